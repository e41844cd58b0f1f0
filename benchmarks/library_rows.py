"""Rows of the table: what the library table costs."""


def add_filter(table, google_benchmark, programs):
    """Of all keys the one that is worst beside its yardstick, and the one that takes longest."""
    times = google_benchmark([f"{programs}/filter_benchmark"], 9, "--benchmark_min_time=0.02")
    keys = {name.removesuffix("/velmora") for name in times if name.endswith("/velmora")}
    pairs = {key.removeprefix("key/"): (times[f"{key}/velmora"], times[f"{key}/yardstick"]) for key in keys}
    worst = max(pairs, key=lambda key: pairs[key][0] / pairs[key][1])
    table.add_ratio(f'a key in the filter, 100,000 rows, the worst of {len(pairs)} ("{worst}")', *pairs[worst],
                    "one pass of memmem over the same texts for the longest word", 3)
    slowest, _ = max(pairs.values())
    table.add("the same, the slowest", f"{slowest / 1e6:.1f} ms", "", f"{slowest / 1e6:.1f} ms", "at most 50 ms", 50e6, slowest)


def add_library(table, google_benchmark, programs):
    add_filter(table, google_benchmark, programs)
