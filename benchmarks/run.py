#!/usr/bin/python3
"""run.py BUILD_FOLDER [PART...]: runs the benchmarks of the build and prints one table, in Markdown, with
ratios and targets. A PART is tags, memory, portable, trim, search, library, dom or start; without any it is
all of them.

Each ratio comes from one run of one program (or, for the starts, one loop) in which the two sides take turns,
and is a ratio of medians. Time is processor time, user and system together, unless a row says otherwise: it
is what the work costs on a machine that has other things to do. Ends with 1 when a target is missed.
"""

import json
import os
import platform
import re
import statistics
import subprocess
import sys
import tempfile
import time

from library_rows import add_library
from portable_rows import add_portable
from table import Table, duration

HERE = os.path.dirname(os.path.abspath(__file__))
KINDS = [("leading", "MP3 with the tag in front"), ("appended", "MP3 with an appended tag"), ("asf", "ASF"),
         ("avi", "AVI")]
STORES = [("appended", "MP3 with an appended tag"), ("asf", "ASF with room in its padding"),
          ("avi", "AVI with INFO last")]


def google_benchmark(command, repetitions, *options):
    """{name: median processor time in ns} of a program of Google Benchmark."""
    with tempfile.NamedTemporaryFile(suffix=".json") as out:
        subprocess.run([*command, f"--benchmark_repetitions={repetitions}", f"--benchmark_out={out.name}",
                        "--benchmark_enable_random_interleaving=true", "--benchmark_out_format=json",
                        *options],
                       check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        runs = json.load(out)["benchmarks"]
    times = {}
    units = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}
    for run in runs:
        if run.get("error_occurred"):
            sys.exit(f"{run['name']}: {run['error_message']}")
        if run["run_type"] == "iteration":
            name = re.sub("/iterations:.*", "", run["run_name"])
            times.setdefault(name, []).append(run["cpu_time"] * units[run["time_unit"]])
    return {name: statistics.median(values) for name, values in times.items()}


def add_tags(table, programs, library):
    tag_benchmark = [f"{programs}/tag_benchmark", library]
    limits = {"leading": 0.35, "appended": 0.40, "asf": 0.45, "avi": 0.40}
    times = google_benchmark(tag_benchmark, 15, "--benchmark_filter=read|store", "--benchmark_min_time=0.03")
    names = {"leading": "TagLib, tags only", "appended": "TagLib's parser and a footer search",
             "asf": "TagLib", "avi": "TagLib's RIFF classes"}
    for kind, text in KINDS:
        work = f"read {kind}"
        table.add_ratio(f"read the tags of 12 files, {text}", times[f"{work}/velmora"],
                        times[f"{work}/yardstick"], names[kind], limits[kind], times[f"{work}/closed"])
        if f"{work} without covers/velmora" in times:
            work += " without covers"
            table.add_ratio("the same, the 6 of them without a cover", times[f"{work}/velmora"],
                            times[f"{work}/yardstick"], names[kind], limits[kind], times[f"{work}/closed"])
    add_calls(table, programs, library)
    limits = {"appended": 0.30, "asf": 0.006, "avi": 0.30}
    for kind, text in STORES:
        work = f"store {kind}"
        table.add_ratio(f"store a title in place, {text}", times[f"{work}/velmora"],
                        times[f"{work}/yardstick"], names[kind], limits[kind], times[f"{work}/closed"])
        if kind == "avi":
            table.add_ratio("the same, beside a search for the list that reads every list in whole",
                            times[f"{work}/velmora"], times[f"{work}/whole lists"], names[kind], 0.05,
                            times[f"{work}/closed"])
            # No product's figure, and no target of its own: how far down the ratio could go at all.
            fewest, yardstick = times[f"{work}/fewest calls"], times[f"{work}/yardstick"]
            table.add_without_target("the same as a plain loop of the fewest reads and writes", "",
                                     f"{duration(fewest)} beside {duration(yardstick)}",
                                     f"{fewest / yardstick:.2f}")
    for kind, text in STORES:
        work = f"store {kind}"
        table.add_ratio(f"the same store in a file of 1 GiB, {text}", times[f"{work}/large"],
                        times[f"{work}/velmora"], "in a small file", 2.0)
    times = google_benchmark(tag_benchmark, 5, "--benchmark_filter=move")
    table.add_ratio("move 1 GiB of ASF data, up and back", times["move/velmora"], times["move/yardstick"],
                    "a plain loop in steps of 1 MiB", 1.3)


def task_cost(programs, *arguments):
    return int(subprocess.run([f"{programs}/task_cost", *arguments], check=True, capture_output=True,
                              text=True).stdout)


def add_calls(table, programs, library):
    with open(f"{library}/elements.txt", encoding="utf-8") as file:
        counts = [line.rsplit(" ", 1) for line in file]
    limits = {"leading": 8, "appended": 9, "asf": 10, "avi": 16}
    for (kind, text), (path, elements) in zip(KINDS, counts):
        calls = task_cost(programs, "calls", "read", path)
        what = {"asf": "objects and attributes", "avi": "chunks"}.get(kind, "frames")
        table.add(f"system calls of a read, {text}", f"{calls}", f"{int(elements)} {what}", f"{calls}",
                  f"at most {limits[kind]}", limits[kind], calls)
    limits = {"appended": 14, "asf": 14, "avi": 16}
    files = {"appended": "song.mp3", "asf": "song.wma", "avi": "film.avi"}
    for kind, text in STORES:
        calls = task_cost(programs, "calls", "store", f"{library}/store/{files[kind]}")
        table.add(f"system calls of a store of a title in place, {text}", f"{calls}", "", f"{calls}",
                  f"at most {limits[kind]}", limits[kind], calls)


def add_memory(table, programs, library):
    bare = statistics.median(task_cost(programs, "memory", "bare") for _ in range(5))
    tasks = [(f"read, {text}, 1 GiB", "read", f"{library}/large/{name}")
             for text, name in (("MP3", "song.mp3"), ("ASF", "song.wma"), ("AVI", "film.avi"))]
    tasks.append(("read, MP3 with the tag in front", "read", f"{library}/leading/02.mp3"))
    tasks.append(("move of 1 GiB", "move", f"{library}/large/song.wma"))
    for text, task, path in tasks:
        peak = statistics.median(task_cost(programs, "memory", task, path) for _ in range(3))
        above = (peak - bare) / 1024
        table.add(f"peak memory of a {text}", f"{peak / 1024:.1f} MiB",
                  f"the bare process: {bare / 1024:.1f} MiB", f"{above:.1f} MiB above", "at most 8 MiB above",
                  8, above)


def add_trim(table, programs):
    times = google_benchmark([f"{programs}/bitmap_trim_benchmark"], 9, "--benchmark_min_time=0.05")
    read = times["Read"]
    table.add_ratio("bitmap_trim, 4000 x 4000, blank", times["Blank"], read, "one vectorised read", 1.5)
    border, copy, large_copy = times["Border/200"], times["CopyOfBox/200"], times["CopyIntoLargePages/200"]
    ratio = (border - copy) / read
    table.add("bitmap_trim, 4000 x 4000, border of 200", duration(border),
              f"one vectorised read: {duration(read)}, one copy of the box: {duration(copy)}",
              f"{ratio:.2f} and the copy", "at most 0.5 and the copy", 0.5, ratio)
    table.add_without_target("the same, beside a copy that asks for large pages too", duration(border),
                             f"one vectorised read: {duration(read)}, "
                             f"one copy of the box: {duration(large_copy)}",
                             f"{(border - large_copy) / read:.2f} and the copy")


def add_search(table, programs):
    run = subprocess.run([f"{programs}/search_benchmark"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                         text=True, check=False, env={**os.environ, "QT_QPA_PLATFORM": "offscreen"})
    for how, name in ((", by the clock", "clock"), ("", "processor")):
        match = re.search(name + r": find (.+) ms, walk (.+) ms, listing (.+) ms, listing by name (.+) ms",
                          run.stdout)
        if not match:
            sys.exit("search_benchmark failed")
        find, walk, unsorted, by_name = (float(value) * 1e6 for value in match.groups())
        table.add_ratio(f"walk of 100,000 files{how}", walk, find, "find with the same size test", 1.5)
        table.add_ratio(f"list 100,000 files, unsorted{how}", unsorted, walk, "the walk alone", 3)
        table.add_ratio(f"list 100,000 files, sorted by name{how}", by_name, walk, "the walk alone", 5)


def add_dom_copy(table, programs):
    environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen"}
    if os.geteuid() == 0:
        environment["QTWEBENGINE_DISABLE_SANDBOX"] = "1"  # the engine's sandbox does not run as root
    run = subprocess.run([f"{programs}/dom_copy_benchmark"], stdout=subprocess.PIPE,
                         stderr=subprocess.DEVNULL, text=True, check=False, env=environment)
    match = re.match("copy (.+) ms, text (.+) ms", run.stdout)
    if not match:
        sys.exit("dom_copy_benchmark failed")
    copy, text = (float(value) * 1e6 for value in match.groups())
    table.add("copy the DOM of a page of 20,000 nodes and read a film from it, by the clock", duration(copy),
              f"the page's HTML as one text: {duration(text)}", duration(copy), "at most 150 ms", 150e6, copy)


def start(program, home):
    """Processor and wall time in ns until the program has painted its window, at which it ends."""
    environment = {**os.environ, "HOME": home, "QT_QPA_PLATFORM": "offscreen"}
    began = time.monotonic_ns()
    process = subprocess.Popen([program], env=environment, stdout=subprocess.DEVNULL,
                               stderr=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    took = time.monotonic_ns() - began
    process.returncode = status
    if status != 0:
        sys.exit(f"{program} failed")
    return (usage.ru_utime + usage.ru_stime) * 1e9, took


def add_start(table, programs):
    both = [f"{programs}/start_of_velmora", f"{programs}/start_of_bare_window"]
    times = {program: [] for program in both}
    with tempfile.TemporaryDirectory() as home:
        for _ in range(16):
            for program in both:
                times[program].append(start(program, home))
    # The first round reads the programs from the disk.
    velmora, bare = ([statistics.median(column) for column in zip(*times[program][1:])] for program in both)
    yardstick = "a bare window with the same widgets, empty"
    table.add_ratio("start to first paint", velmora[0], bare[0], yardstick, 1.3)
    table.add_ratio("start to first paint, by the clock", velmora[1], bare[1], yardstick, 1.3)


def machine():
    memory = os.sysconf("SC_PAGE_SIZE") * os.sysconf("SC_PHYS_PAGES") / (1 << 30)
    load = os.getloadavg()[1]
    return (f"{os.cpu_count()} cores of {platform.machine()}, {memory:.0f} GiB of memory, "
            f"files in the page cache; load of the last five minutes {load:.1f}.")


def main():
    programs = f"{os.path.abspath(sys.argv[1])}/benchmarks"
    parts = sys.argv[2:] or ["tags", "memory", "portable", "trim", "search", "library", "dom", "start"]
    table = Table()
    if "tags" in parts or "memory" in parts:
        with tempfile.TemporaryDirectory() as library:
            subprocess.run([sys.executable, f"{HERE}/make_library.py", library], check=True)
            if "tags" in parts:
                add_tags(table, programs, library)
            if "memory" in parts:
                add_memory(table, programs, library)
    if "portable" in parts:
        add_portable(table, os.path.abspath(sys.argv[1]))
    if "library" in parts:
        add_library(table, google_benchmark, programs)
    for part, add in (("trim", add_trim), ("search", add_search), ("dom", add_dom_copy),
                      ("start", add_start)):
        if part in parts:
            add(table, programs)
    table.write()
    print(f"\n{machine()}")
    return 0 if table.met else 1


sys.exit(main())
