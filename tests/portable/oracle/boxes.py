"""boxes.py VELMORA_TAG KIND: files of KIND (m4a, mp4, mov, avi, wav, aiff) by ffmpeg and mutagen, each field
set, changed, shortened and deleted; mutagen and ffmpeg read the asked value, everything else is as it was,
and ffmpeg finds the same streams."""
import pathlib
import struct
import subprocess
import sys

from probing import Probing, scratch_folder

from mutagen.aiff import AIFF
from mutagen.id3 import APIC, COMM, PRIV, TXXX, USLT
from mutagen.mp4 import MP4, AtomDataType, MP4Cover, MP4FreeForm
from mutagen.wave import WAVE

velmora_tag, kind = sys.argv[1:]
JPEG = b"\xff\xd8\xff\xe0" + bytes(range(256)) * 4
SONG = kind in ("m4a", "wav", "aiff")
TITLES = ["Harbour", "Evening at the harbour \u00e4\u6f22", "Eve"]
TEXTS = {
    "title": TITLES, "synopsis": ["A ship", "A ship comes in at dusk " * 20, "Sea"],
    "genre": ["Folk", "Sea Shanty", "Pop"], "year": ["1994", "1995", "2003"],
    "artist": ["Ada", "Ada and Bo", "Al"], "album": ["Ports", "Ports of the north", "P"],
    "cast": ["Ada", "Ada, Bo", "Al"], "director": ["Cy", "Cy Young", "C"], "rating": ["PG", "PG-13", "R"],
}
RATINGS = {"PG": "mpaa|PG|200|", "PG-13": "mpaa|PG-13|300|", "R": "mpaa|R|400|", "": ""}
FREE = "----:com.apple.iTunes:"
# option: the items that are its places, and what ffmpeg calls it
MP4_FIELDS = {
    "title": (["\u00a9nam"], "title"), "synopsis": (["ldes", "desc"], "synopsis"),
    "genre": (["\u00a9gen", "gnre"], "genre"), "year": (["\u00a9day"], "date"),
    **({"artist": (["\u00a9ART"], "artist"), "album": (["\u00a9alb"], "album")} if SONG else
       {"cast": (["\u00a9ART"], "artist"), "director": ([FREE + "DIRECTOR"], "DIRECTOR"),
        "rating": ([FREE + "iTunEXTC"], "iTunEXTC")}),
}
ID3_FIELDS = {
    "title": (["TIT2"], "title"), "synopsis": (["COMM::eng"], "comment"), "genre": (["TCON"], "genre"),
    "year": (["TDRC"], "date"), "artist": (["TPE1"], "artist"), "album": (["TALB"], "album"),
}
AVI_FIELDS = {
    "title": (["INAM"], "title"), "synopsis": (["ICMT"], "comment"), "genre": (["IGNR"], "genre"),
    "year": (["ICRD"], "date"), "cast": (["ISTR"], "ISTR"), "director": (["IART"], "artist"),
    "rating": (["IRTD"], "IRTD"),
}
FIELDS = AVI_FIELDS if kind == "avi" else ID3_FIELDS if kind in ("wav", "aiff") else MP4_FIELDS


def run(*command, text=True):
    return subprocess.run(command, check=True, capture_output=True, text=text).stdout


def tag(*arguments):
    run(velmora_tag, "set", *map(str, arguments))


def make(path, *options, metadata=()):
    video = [] if SONG else ["-f", "lavfi", "-i", "testsrc=d=1:s=160x120", "-c:v", "mpeg4", "-g", "5"]
    audio = {"wav": "pcm_s16le", "aiff": "pcm_s16be", "avi": "mp2"}.get(kind, "aac")
    words = [word for pair in metadata for word in ("-metadata", pair)]
    run("ffmpeg", "-v", "error", "-f", "lavfi", "-i", "sine=d=1", *video, "-c:a", audio, *words, *options,
        str(path))
    return path


def furnish(path):
    """What else such a tag can hold."""
    if kind == "avi":
        return
    if kind in ("wav", "aiff"):
        file = (WAVE if kind == "wav" else AIFF)(str(path))
        if file.tags is None:
            file.add_tags()
        for frame in (TXXX(encoding=1, desc="MOOD", text=["calm", "still"]),
                      PRIV(owner="owner", data=b"\0\xff\0"),
                      COMM(encoding=3, lang="deu", desc="other", text=["not it"]),
                      USLT(encoding=3, lang="eng", text="la " * 2000),
                      APIC(encoding=0, mime="image/jpeg", type=4, desc="back", data=JPEG)):
            file.tags.add(frame)
        file.save()
        return
    file = MP4(str(path))
    if file.tags is None:
        file.add_tags()
    file.tags["trkn"] = [(3, 9)]
    file.tags["cpil"] = True
    file.tags["\u00a9wrt"] = ["First", "Second"]
    file.tags["\u00a9cmt"] = ["not the synopsis"]
    file.tags[FREE + "MOOD"] = [MP4FreeForm(b"calm", AtomDataType.UTF8),
                                MP4FreeForm(b"\0\1", AtomDataType.IMPLICIT)]
    file.tags["----:org.example:own"] = [MP4FreeForm(b"x" * 3000)]
    file.tags["covr"] = [MP4Cover(JPEG, MP4Cover.FORMAT_JPEG),
                         MP4Cover(b"\x89PNG\r\n\x1a\nsecond", MP4Cover.FORMAT_PNG)]
    file.save()


def info_items(data):
    """The items of every INFO list on the top level of a film."""
    found = []
    at = 12
    while at + 8 <= len(data):
        name, size = data[at:at + 4], struct.unpack_from("<I", data, at + 4)[0]
        if name == b"LIST" and data[at + 8:at + 12] == b"INFO":
            inner = at + 12
            while inner + 8 <= at + 8 + size:
                length = struct.unpack_from("<I", data, inner + 4)[0]
                found.append((data[inner:inner + 4].decode(), data[inner + 8:inner + 8 + length]))
                inner += 8 + length + (length & 1)
        at += 8 + size + (size & 1)
    return found


def items(path):
    """Each item of the tag by its name, its values as texts where they are texts."""
    if kind == "avi":
        return {name: data if name == "IPIC" else data.rstrip(b"\0").decode()
                for name, data in info_items(path.read_bytes())}
    if kind in ("wav", "aiff"):
        frames = (WAVE if kind == "wav" else AIFF)(str(path)).tags or {}
        return {name: frame.text[0] if name[:4] in ("TIT2", "TPE1", "TALB", "TCON", "COMM")
                else str(frame.text[0]) if name == "TDRC"
                else repr(frame) for name, frame in frames.items()}
    found = {}
    for name, values in (MP4(str(path)).tags or {}).items():
        first = values[0] if isinstance(values, list) else values
        if name.startswith("\0"):
            continue # a key's number
        if name in ("covr",):
            found[name] = [(bytes(value), value.imageformat) for value in values]
        elif name in (FREE + "DIRECTOR", FREE + "iTunEXTC"):
            found[name] = bytes(first).decode()
        elif isinstance(first, MP4FreeForm):
            found[name] = [(bytes(value), value.dataformat) for value in values]
        else:
            found[name] = first if len(values if isinstance(values, list) else [0]) == 1 else values
    return found


def check(found, expected, what):
    if found != expected:
        sys.exit(f"{what}: {found!r} where {expected!r} was expected")


def others(path, places):
    return {name: value for name, value in items(path).items() if name not in places}


def check_field(path, option):
    places, probe_name = FIELDS[option]
    before = others(path, places)
    for value in [*TEXTS[option], ""]:
        what = f"{path.name} --{option} {value!r}"
        tag(f"--{option}", value, path)
        written = RATINGS[value] if option == "rating" and kind != "avi" else value
        found = {name: text for name, text in items(path).items() if name in places}
        expected = {name: written[:255] if name == "desc" else written
                    for name in places if value and name != "gnre"}
        check(found, expected, f"mutagen, {what}")
        probing.expect_tag(probing.state(path), probe_name, written or None, what)
        check(others(path, places), before, f"the rest of {what}")


def cover_of(path):
    found = items(path)
    if kind == "avi":
        return found.get("IPIC")
    if kind in ("wav", "aiff"):
        frames = (WAVE if kind == "wav" else AIFF)(str(path)).tags or {}
        return next((frame.data for name, frame in frames.items()
                     if name.startswith("APIC") and frame.type == 3), None)
    return found["covr"][0][0] if "covr" in found else None


def check_cover(path, folder):
    cover = folder / "cover.jpg"
    places = {{"avi": "IPIC", "wav": "APIC:", "aiff": "APIC:"}.get(kind, "covr")}
    before = others(path, places)
    second = items(path).get("covr", [])[1:]
    run("ffmpeg", "-v", "error", "-y", "-f", "lavfi", "-i", "testsrc=s=64x64", "-frames:v", "1", str(cover))
    small = cover.read_bytes()
    for data in (small + bytes(101), small + bytes(300 * 1024), small):
        cover.write_bytes(data)
        tag("--cover", cover, path)
        check(cover_of(path) == data, True, f"the cover of {path.name}, {len(data)} bytes")
        check(items(path).get("covr", [])[1:], second, f"the other pictures of {path.name}")
        check(others(path, places), before, f"the rest of {path.name} with a cover")
    tag("--no-cover", path)
    check(cover_of(path), None, f"{path.name} without cover")
    check(others(path, places), before, f"the rest of {path.name} without a cover")


def shapes(folder):
    """Files that differ in where their tags and their media are."""
    old = ["title=Old", "artist=Old", "genre=Rock", "date=1980", "comment=Other", "copyright=Nobody"]
    yield make(folder / f"bare.{kind}"), kind in ("wav", "aiff")
    furnished = make(folder / f"furnished.{kind}", metadata=old)
    furnish(furnished)
    yield furnished, kind not in ("wav", "aiff")   # there ffmpeg reads other texts, too
    if kind in ("m4a", "mp4", "mov"):
        yield make(folder / f"in_front.{kind}", "-movflags", "faststart", metadata=old), False
    if kind in ("mp4", "mov"):
        yield make(folder / f"keys.{kind}", "-movflags", "use_metadata_tags+faststart", metadata=old), False
    if kind == "mp4":
        yield make(folder / "fragments.mp4", "-movflags", "frag_keyframe", metadata=old), False
        yield make(folder / "fragments_behind.mp4", "-movflags", "frag_keyframe+empty_moov",
                   metadata=old), False
        yield make(folder / "segments.mp4", "-movflags",
                   "frag_keyframe+empty_moov+default_base_moof+dash+global_sidx", metadata=old), False


with scratch_folder() as name, scratch_folder() as states:
    probing = Probing(pathlib.Path(states))
    for path, every_field in shapes(pathlib.Path(name)):
        media = probing.state(path)
        for option in FIELDS if every_field else ["title", "year"]:
            check_field(path, option)
        check_cover(path, pathlib.Path(name))
        probing.expect_streams(probing.state(path), media, f"the streams of {path.name}")
    probing.finish()
