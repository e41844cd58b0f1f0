"""Rows of the table: what portable tags cost, through the command line. By the clock, since most of it is the
disk's work; the two sides take turns, and each figure is a median."""

import os
import shutil
import statistics
import subprocess
import tempfile
import time

SONGS = [("mp3", ["-c:a", "libmp3lame"]), ("m4a", ["-c:a", "aac"]), ("flac", ["-c:a", "flac"]),
         ("wma", ["-c:a", "wmav2"])]
# A frame of 1920 x 1080 in YUV 4:2:2 has 4,147,200 bytes. ffmpeg's AVI becomes a second RIFF above 1 GiB.
FILMS = [("film.wmv", "1 GiB WMV", 259, ["-f", "asf"]), ("film.avi", "0.9 GiB AVI", 233, []),
         ("film.mov", "1 GiB MOV with moov behind", 259, [])]


def run(*command):
    """Time in ns by the clock of a command that must succeed."""
    began = time.monotonic_ns()
    subprocess.run(command, check=True, stdout=subprocess.DEVNULL)
    return time.monotonic_ns() - began


def peak_memory(*command):
    """In KiB. A small program starts COMMAND: a process counts what its parent took until it is a program of
    its own."""
    ended = subprocess.run(["/usr/bin/time", "-f", "%M", *command], check=True, stdout=subprocess.DEVNULL,
                           stderr=subprocess.PIPE, text=True)
    return int(ended.stderr)


def encode(path, source, *options):
    subprocess.run(["ffmpeg", "-v", "error", "-y", "-f", "lavfi", "-i", source, *options,
                    "-metadata", "title=Harbour", "-metadata", "artist=A. Keeper", path], check=True)


def add_start(table, tool, programs):
    starts = [(run(tool, "--version"), run(f"{programs}/bare_taglib")) for _ in range(41)]
    ours, bare = (statistics.median(pair[side] for pair in starts) for side in (0, 1))
    table.add_ratio("start of velmora-tag, by the clock", ours, bare,
                    "a program that links TagLib and ends", 2)


def add_show(table, tool, programs, folder):
    songs = f"{folder}/songs"
    os.mkdir(songs)
    for suffix, options in SONGS:
        encode(f"{songs}/0000.{suffix}", "sine=d=0.3", *options)
        for number in range(1, 500):
            shutil.copy(f"{songs}/0000.{suffix}", f"{songs}/{number:04}.{suffix}")
    pairs = [(run(tool, "show", "--json", "--recursive", songs), run(f"{programs}/taglib_loop", songs))
             for _ in range(12)][1:]
    ours, yardstick = (statistics.median(pair[side] for pair in pairs) for side in (0, 1))
    table.add_ratio("velmora-tag show --json of 2,000 small songs, by the clock", ours, yardstick,
                    "a loop over TagLib's FileRef, tags only", 1.2)


def add_save(table, tool, path, text, rounds, limit):
    """A title of another length is saved into a copy of the file at PATH."""
    copy = f"{os.path.dirname(path)}/copy{os.path.splitext(path)[1]}"
    copied, saved = [], []
    for number in range(rounds):
        if os.path.exists(copy):
            os.remove(copy)
        copied.append(run("sh", "-c", 'cp --reflink=never "$0" "$1" && sync -d "$1"', path, copy))
        saved.append(run(tool, "set", "--title", "Harbour, early " * (number + 1), copy))
    peak = peak_memory(tool, "set", "--title", "Harbour", copy)
    os.remove(copy)
    table.add_ratio(f"portable save of a title, {text}, by the clock", statistics.median(saved),
                    statistics.median(copied), "cp and sync -d", limit)
    return peak


def add_saves(table, tool, folder):
    song = f"{folder}/song.mp3"
    encode(song, "anoisesrc=d=130", "-c:a", "libmp3lame", "-b:a", "320k")
    add_save(table, tool, song, "5 MB MP3", 31, 2.0)
    at_rest = peak_memory(tool, "--version")
    for name, text, frames, options in FILMS:
        film = f"{folder}/{name}"
        encode(film, "testsrc2=s=1920x1080", "-c:v", "rawvideo", "-pix_fmt", "uyvy422",
               "-frames:v", str(frames), *options)
        peak = add_save(table, tool, film, text, 5, 1.5)
        os.remove(film)
        above = (peak - at_rest) / 1024
        table.add(f"peak memory of a portable save, {text}", f"{peak / 1024:.1f} MiB",
                  f"the process at rest: {at_rest / 1024:.1f} MiB", f"{above:.1f} MiB above",
                  "at most 16 MiB above", 16, above)


def add_portable(table, build):
    tool, programs = f"{build}/tag_tool/velmora-tag", f"{build}/benchmarks"
    add_start(table, tool, programs)
    with tempfile.TemporaryDirectory() as folder:
        add_show(table, tool, programs, folder)
        add_saves(table, tool, folder)
