"""Rows of the table: what the library table costs."""

import os
import re
import shutil
import subprocess
import sys
import tempfile

from portable_rows import SONGS, encode, run


def add_filter(table, google_benchmark, programs):
    """Of all keys the one that is worst beside its yardstick, and the one that takes longest."""
    times = google_benchmark([f"{programs}/filter_benchmark"], 9, "--benchmark_min_time=0.02")
    keys = {name.removesuffix("/velmora") for name in times if name.endswith("/velmora")}
    pairs = {key.removeprefix("key/"): (times[f"{key}/velmora"], times[f"{key}/yardstick"]) for key in keys}
    worst = max(pairs, key=lambda key: pairs[key][0] / pairs[key][1])
    table.add_ratio(f'a key in the filter, 100,000 rows, the worst of {len(pairs)} ("{worst}")',
                    *pairs[worst], "one pass of memmem over the same texts for the longest word", 3)
    slowest, _ = max(pairs.values())
    table.add("the same, the slowest", f"{slowest / 1e6:.1f} ms", "", f"{slowest / 1e6:.1f} ms",
              "at most 50 ms", 50e6, slowest)


def make_songs(folder, count):
    """COUNT small songs of four kinds."""
    for suffix, options in SONGS:
        first = f"{folder}/0000 - Lanterns on the Water.{suffix}"
        encode(first, "sine=d=0.3", *options, "-metadata", "album=Songs of the Harbour",
               "-metadata", "genre=Folk", "-metadata", "date=1996")
        for number in range(1, count // len(SONGS)):
            shutil.copy(first, f"{folder}/{number:04} - Lanterns on the Water.{suffix}")


def figures(pattern, *command):
    """The numbers that COMMAND prints where PATTERN has groups."""
    run = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, check=False,
                         env={**os.environ, "QT_QPA_PLATFORM": "offscreen"})
    match = re.match(pattern, run.stdout)
    if not match:
        sys.exit(f"{os.path.basename(command[0])} failed")
    return [float(value) for value in match.groups()]


def add_reading(table, programs):
    with tempfile.TemporaryDirectory() as songs:
        make_songs(songs, 10000)
        ours, yardstick = figures("table (.+) ms, yardstick (.+) ms", f"{programs}/library_benchmark", songs)
    table.add_ratio("read the tags of 10,000 files into the library table, by the clock", ours * 1e6,
                    yardstick * 1e6, "a loop over TagLib's FileRef on all cores, tags only", 1.3)


def add_scale(table, programs):
    """100,000 names of 10,000 songs, so that they fit in the page cache."""
    with tempfile.TemporaryDirectory() as folder:
        albums = [f"{folder}/A. Keeper/Songs of the Harbour ({year})" for year in range(1990, 2000)]
        for album in albums:
            os.makedirs(album)
        make_songs(albums[0], 10000)
        for album in albums[1:]:
            for song in os.listdir(albums[0]):
                os.link(f"{albums[0]}/{song}", f"{album}/{song}")
        frame = "{} (.+) ms, longest (.+) ms, processor (.+) ms"
        pattern = ("stall (.+) ms, by the clock (.+) ms, row (.+) bytes, texts (.+) bytes, " +
                   f"{frame.format('page')}, {frame.format('wheel')}")
        stall, clock, row, texts, *frames = figures(pattern, f"{programs}/library_scale", folder)
        _, clock_at_once, *_ = figures(pattern, f"{programs}/library_scale", folder, "at-once")
    work = "longest stall of the event loop while 100,000 files are listed, read and sorted"
    table.add(f"{work}, by the clock", f"{clock:.1f} ms", "", f"{clock:.1f} ms", "at most 50 ms", 50, clock)
    table.add_without_target("the same, processor time", f"{stall:.1f} ms", "", "")
    table.add("the same when all files are listed before the table is opened, by the clock",
              f"{clock_at_once:.1f} ms", "", f"{clock_at_once:.1f} ms", "at most 50 ms", 50, clock_at_once)
    table.add("memory of a row of the library table", f"{row:.0f} bytes", f"its texts: {texts:.0f} bytes",
              f"{row / texts:.2f}", "at most 3", 3, row / texts)
    for how, (median, longest, processor) in (("a page", frames[:3]), ("the wheel", frames[3:])):
        table.add(f"a frame while 100,000 rows are scrolled by {how}, by the clock", f"{median:.1f} ms", "",
                  f"{median:.1f} ms", "at most 16 ms", 16, median)
        table.add("the longest of 500, processor time", f"{processor:.1f} ms",
                  f"by the clock: {longest:.1f} ms", f"{processor:.1f} ms", "at most 16 ms", 16, processor)


def make_lots(folder, lots, count):
    """LOTS folders of COUNT copies of a song of 5 MB with a cover-less tag, all in the page cache; their
    paths."""
    song = f"{folder}/song.mp3"
    encode(song, "anoisesrc=d=130", "-c:a", "libmp3lame", "-b:a", "320k")
    paths = [f"{folder}/{lot}" for lot in range(lots)]
    for path in paths:
        os.mkdir(path)
        for number in range(count):
            shutil.copy(song, f"{path}/{number:03}.mp3")
    return paths


def add_apply(table, programs, tool):
    """Each side writes every file once, lot by lot, and who goes first changes: the disk is faster at one
    time than at another."""
    with tempfile.TemporaryDirectory() as folder:
        # Files are replaced whole, so that a copy more is there for a moment; the disk's write-back lags
        # behind.
        lots = max(1, min(10, shutil.disk_usage(folder).free * 2 // 3 // (100 * 5_300_000)))
        ours, theirs = [], []
        for number, lot in enumerate(make_lots(folder, lots, 100)):
            subprocess.run(["sync"], check=True)
            benchmark = f"{programs}/apply_benchmark"
            sides = [lambda: ours.append(figures("(.+)", benchmark, lot, "Folk")[0] * 1e6),
                     lambda: theirs.append(run(tool, "set", "--genre", "Jazz", "--recursive", lot))]
            for side in sides if number % 2 else reversed(sides):
                side()
    files = f"{lots * 100:,}"
    table.add_ratio(f"set the genre of {files} MP3s of 5 MB in the library table, by the clock", sum(ours),
                    sum(theirs), "velmora-tag set of the same", 1.1)


def add_library(table, google_benchmark, programs):
    add_filter(table, google_benchmark, programs)
    add_reading(table, programs)
    add_scale(table, programs)
    add_apply(table, programs, f"{os.path.dirname(programs)}/tag_tool/velmora-tag")
