"""velmora_tag.py VELMORA_TAG: what the program prints, how it ends, and what it leaves."""
import json
import os
import pathlib
import pty
import signal
import subprocess
import sys
import tempfile
import time

velmora_tag = os.path.abspath(sys.argv[1])
FRAMES = b"\xff\xfb\x90\x64" + bytes(range(256)) * 4
PNG = (b"\x89PNG\r\n\x1a\n\0\0\0\rIHDR" + (7).to_bytes(4, "big") + (5).to_bytes(4, "big")
       + b"\x08\2\0\0\0" + bytes(20))


def run(*arguments, **options):
    done = subprocess.run([velmora_tag, *arguments], capture_output=True, **options)
    return done.returncode, *(text.decode(errors="surrogateescape") for text in (done.stdout, done.stderr))


def check(found, expected, what):
    if found != expected:
        sys.exit(f"{what}: {found!r} where {expected!r} was expected")


def show(*arguments):
    status, output, _ = run("show", "--json", *arguments)
    return status, json.loads(output)


def check_wrong_use(song):
    for arguments in ([], ["play"], ["show"], ["set", song], ["set", "--title", "x"],
                      ["set", "--year", "soon", song], ["set", "--year", "12345", song],
                      ["set", "--tilte", "x", song], ["show", "--tilte", song],
                      ["set", "--cover", song, song], ["set", "--cover", song, "--no-cover", song]):
        status, output, error = run(*arguments)
        check((status, output, error != ""), (2, "", True), f"the end of {arguments}")
    for arguments in (["--help"], ["set", "--help"], ["--version"]):
        status, output, error = run(*arguments)
        check((status, output != "", error), (0, True, ""), f"the end of {arguments}")
    for command in ("show", "set", "remove"):
        usage = [line for line in run(command, "--help")[1].splitlines() if line.startswith("Usage:")]
        check(usage, [f"Usage: velmora-tag {command} [OPTIONS] PATH..."], f"the usage of {command}")


def check_show(folder):
    song = folder / "song.mp3"
    song.write_bytes(FRAMES)
    cover = folder / "cover.png"
    cover.write_bytes(PNG)
    check(run("set", "--title", "T\u00e4", "--artist", "A", "--album", "B", "--synopsis", "one\ntwo",
              "--genre", "Folk", "--year", "1994", "--cover", str(cover), str(song)), (0, "", ""), "set")
    check(show(str(song)), (0, [{
        "path": str(song), "kind": "audio", "tags": ["ID3v2.4"], "title": "T\u00e4", "artist": "A",
        "album": "B", "synopsis": "one\ntwo", "genre": "Folk", "rating": None, "year": 1994,
        "cover": {"mime": "image/png", "bytes": len(PNG), "width": 7, "height": 5}}]), "a song")
    check(list(show(str(song))[1][0]), ["path", "kind", "tags", "title", "artist", "album", "synopsis",
                                        "genre", "rating", "year", "cover"], "the order of the keys")
    film = folder / "film.mpg"
    film.write_bytes(FRAMES)
    check(run("set", "--cast", "Ann", "--director=Cy", "--rating", "PG", str(film))[0], 0, "set of a film")
    found = show(str(film))[1][0]
    check([found[key] for key in ("kind", "cast", "director", "rating", "title")],
          ["video", "Ann", "Cy", "PG", None], "a film")
    check(show(str(cover))[1][0]["kind"], "image", "a picture")
    check(run("show", str(song))[1].splitlines()[:3], [str(song), "  title: T\u00e4", "  artist: A"], "text")
    check(run("set", "--title=", "--no-cover", str(song)), (0, "", ""), "deleting")
    check([show(str(song))[1][0][key] for key in ("title", "cover", "artist")], [None, None, "A"],
          "what is left")
    film.unlink()
    cover.unlink()


def check_failures(folder):
    song = folder / "song.mp3"
    song.write_bytes(FRAMES)
    none = folder / "none.mp3"
    status, output, error = run("set", "--title", "x", str(none), str(folder), str(song))
    check((status, output), (1, ""), "an end with failures")
    check(error.splitlines(), [f"{none}: No such file or directory",
                               f"{folder}: a folder, which takes --recursive"], "failures")
    check(show(str(song))[1][0]["title"], "x", "the file behind the failures")
    status, found = show(str(none))
    check((status, found[0]["error"], found[0]["title"]), (1, "No such file or directory", None),
          "a failure in JSON")
    for option, name in (("--cast", "cast"), ("--director", "director"), ("--rating", "rating")):
        status, _, error = run("set", option, "x", str(song))
        check((status, error), (1, f"{song}: this kind of file has no such field ({name})\n"), option)
    odd = os.fsencode(folder) + b"/a\nb\xff.mp3"
    with open(odd, "wb") as file:
        file.write(FRAMES)
    found = show(os.fsdecode(odd))[1][0]
    check((found["path"], found["path_hex"]), (str(folder) + "/a\nb\ufffd.mp3", odd.hex()),
          "a path that is not UTF-8")
    check(run("set", "--cast", "x", os.fsdecode(odd))[2].encode(errors="surrogateescape").count(b"\n"), 1,
          "lines of a failure")
    os.remove(odd)
    bracket = folder / "[live].mp3"
    dash = folder / "-x.mp3"
    for path in (bracket, dash):
        path.write_bytes(FRAMES)
    check(run("set", "--title", "--a=b", "./-x.mp3", cwd=folder), (0, "", ""), "a value with an equals sign")
    check(show(str(dash))[1][0]["title"], "--a=b", "a value with an equals sign")
    check(run("set", "--title", "-dash [a]", "--", "[live].mp3", "-x.mp3", cwd=folder)[0], 0, "odd names")
    check([entry["title"] for entry in show(str(bracket), str(dash))[1]], ["-dash [a]"] * 2,
          "titles of odd names")
    bracket.unlink()
    dash.unlink()
    with open("/dev/full", "wb") as full:
        done = subprocess.run([velmora_tag, "show", str(song)], stdout=full, stderr=subprocess.PIPE)
    check((done.returncode, done.stderr), (1, b"standard output: No space left on device\n"), "a full output")


def check_walk(folder):
    tree = folder / "tree"
    (tree / "b" / "VIDEO_TS").mkdir(parents=True)
    for name in ("Z.MP3", "a.mp3", "b/c.mp3", "b/notes.txt", "b/VIDEO_TS/VIDEO_TS.IFO",
                 "b/VIDEO_TS/VTS_01_1.VOB", "\u00e4.mp3"):
        (tree / name).write_bytes(FRAMES)
    (tree / "linked").symlink_to(tree / "b", target_is_directory=True)
    names = ["Z.MP3", "a.mp3", "b/VIDEO_TS/VIDEO_TS.IFO", "b/c.mp3", "\u00e4.mp3"]
    status, found = show("--recursive", str(tree))
    check((status, [entry["path"] for entry in found]), (0, [f"{tree}/{name}" for name in names]), "a walk")
    status, output, error = run("set", "--title", "x", "--dry-run", "--recursive", str(tree))
    check((status, output.splitlines(), error), (0, [f"{tree}/{name}" for name in names], ""), "a dry run")
    check((tree / "a.mp3").read_bytes(), FRAMES, "a file after a dry run")
    check(run("set", "--title", "x", "--recursive", str(tree)), (0, "", ""), "set in a folder")
    check((tree / "b/VIDEO_TS/VIDEO_TS.TAG").exists(), True, "the side file")
    check((tree / "b/VIDEO_TS/VTS_01_1.VOB").read_bytes(), FRAMES, "a part of the film")
    check(run("set", "--title", "x", "--dry-run", "--recursive", str(tree)), (0, "", ""),
          "a dry run where nothing changes")
    check(run("remove", "--recursive", str(tree)), (0, "", ""), "remove")
    check((tree / "a.mp3").read_bytes(), FRAMES, "a file after its fields are removed")


def check_remove(folder):
    song = folder / "song.mp3"
    frame = b"XYZW" + bytes([0, 0, 0, 3]) + b"\0\0abc"
    content = frame + b"TIT2" + bytes([0, 0, 0, 2]) + b"\0\0\3x"
    song.write_bytes(b"ID3\4\0\0" + bytes([0, 0, 0, len(content)]) + content + FRAMES)
    check(run("remove", str(song)), (0, "", ""), "remove")
    check(song.read_bytes(), b"ID3\4\0\0" + bytes([0, 0, 0, len(content)]) + frame
          + bytes(len(content) - len(frame)) + FRAMES, "what is no field")
    check(run("remove", "--all", str(song)), (0, "", ""), "remove --all")
    check(song.read_bytes(), FRAMES, "a file without tags")


def check_interruption(folder):
    """Ctrl+C while it works: the files are the old ones or the new ones, and nothing is beside them."""
    many = folder / "many"
    many.mkdir()
    for i in range(400):
        (many / f"{i:03}.mp3").write_bytes(FRAMES)
    process = subprocess.Popen([velmora_tag, "set", "--title", "x", "-r", str(many)], stderr=subprocess.PIPE)
    while (many / "003.mp3").stat().st_size == len(FRAMES) and process.poll() is None:
        time.sleep(0.001)
    process.send_signal(signal.SIGINT)
    check(process.wait(), 130, "the end by Ctrl+C")
    sizes = [path.stat().st_size for path in sorted(many.iterdir())]
    check(len(sizes), 400, "the files after Ctrl+C")
    check((sizes[0] > len(FRAMES), sizes[-1]), (True, len(FRAMES)), "the first and the last file")
    check(sizes, sorted(sizes, reverse=True), "the order of the work")


def check_progress(folder):
    """On a terminal more than a handful of files shows a bar, which goes."""
    names = [str(folder / "many" / f"{i:03}.mp3") for i in range(8)]
    for count, expected in ((8, True), (2, False)):
        terminal, inner = pty.openpty()
        subprocess.run([velmora_tag, "set", "--title", f"y{count}", *names[:count]], stderr=inner, check=True)
        os.close(inner)
        shown = b""
        try:
            while data := os.read(terminal, 4096):
                shown += data
        except OSError:
            pass
        os.close(terminal)
        check(b"#" in shown and shown.endswith(b"\r\x1b[K"), expected, f"a bar for {count} files")


with tempfile.TemporaryDirectory() as name:
    folder = pathlib.Path(name)
    (folder / "song.mp3").write_bytes(FRAMES)
    check_wrong_use(str(folder / "song.mp3"))
    check_show(folder)
    check_failures(folder)
    check_walk(folder)
    check_remove(folder)
    check_interruption(folder)
    check_progress(folder)
    check({path.name for path in folder.iterdir()}, {"song.mp3", "tree", "many"}, "left behind")
