"""Rows of the table: what the library table costs."""

import os
import re
import shutil
import subprocess
import sys
import tempfile

from portable_rows import SONGS, encode


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


def add_reading(table, programs):
    """10,000 small songs of four kinds."""
    with tempfile.TemporaryDirectory() as songs:
        for suffix, options in SONGS:
            encode(f"{songs}/0000.{suffix}", "sine=d=0.3", *options)
            for number in range(1, 10000 // len(SONGS)):
                shutil.copy(f"{songs}/0000.{suffix}", f"{songs}/{number:04}.{suffix}")
        run = subprocess.run([f"{programs}/library_benchmark", songs], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                             text=True, check=False, env={**os.environ, "QT_QPA_PLATFORM": "offscreen"})
    match = re.match("table (.+) ms, yardstick (.+) ms", run.stdout)
    if not match:
        sys.exit("library_benchmark failed")
    ours, yardstick = (float(value) * 1e6 for value in match.groups())
    table.add_ratio("read the tags of 10,000 files into the library table, by the clock", ours, yardstick,
                    "a loop over TagLib's FileRef on all cores, tags only", 1.3)


def add_library(table, google_benchmark, programs):
    add_filter(table, google_benchmark, programs)
    add_reading(table, programs)
