"""asf.py VELMORA_TAG KIND: files of KIND (wma, wmv) by ffmpeg and mutagen, each field set, changed, shortened
and deleted; mutagen and ffmpeg read the asked value, mutagen finds everything else as it was, and ffmpeg the
same streams."""
import pathlib
import struct
import subprocess
import sys

from probing import Probing, scratch_folder

from mutagen.asf import (ASF, ASFBoolAttribute, ASFByteArrayAttribute, ASFDWordAttribute, ASFGUIDAttribute,
                         ASFQWordAttribute, ASFUnicodeAttribute)

velmora_tag, kind = sys.argv[1:]
JPEG = b"\xff\xd8\xff\xe0" + bytes(range(256)) * 4
LARGE_JPEG = b"\xff\xd8\xff\xe0" + bytes(range(256)) * 1200

# option: the attributes that are its places, what ffmpeg calls it, and its values: set, changed, shortened
COMMON = {
    "title": ({"Title", "title"}, "title", ["Harbour", "Evening at the harbour", "Eve"]),
    "synopsis": ({"Description"}, "comment",
                 ["A ship", "A ship comes in at dusk \u00e4\u6f22\U0001f3ac", "Sea"]),
    "genre": ({"WM/Genre", "Genre"}, "genre", ["Folk", "Sea Shanty", "Pop"]),
    "year": ({"WM/Year", "Year", "date"}, "WM/Year", ["1994", "1995", "2003"]),
}
FIELDS = {
    "wma": {**COMMON, "artist": ({"Author"}, "artist", ["Ada", "Ada and Bo", "Al"]),
            "album": ({"WM/AlbumTitle"}, "album", ["Ports", "Ports of the north", "P"])},
    "wmv": {**COMMON, "cast": ({"Author"}, "artist", ["Ada", "Ada, Bo", "Al"]),
            "director": ({"WM/Director", "director"}, "WM/Director", ["Cy", "Cy Young", "C"]),
            "rating": ({"WM/ParentalRating"}, "WM/ParentalRating", ["PG", "PG-13", "R"])},
}


def run(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def tag(*arguments):
    run(velmora_tag, "set", *map(str, arguments))


def make(path, *metadata):
    video = ["-f", "lavfi", "-i", "testsrc=d=1:s=160x120", "-c:v", "wmv2"] if path.suffix == ".wmv" else []
    options = [word for pair in metadata for word in ("-metadata", pair)]
    run("ffmpeg", "-v", "error", "-f", "lavfi", "-i", "sine=d=1", *video, "-c:a", "wmav2", *options,
        str(path))


def picture(kind, data, mime="image/jpeg"):
    return (bytes([kind]) + struct.pack("<I", len(data)) + (mime + "\0").encode("utf-16-le")
            + "\u00e4\0".encode("utf-16-le") + data)


def furnish(path):
    """All that an ASF header can hold, in all four kinds of objects."""
    file = ASF(str(path))
    file.tags["Copyright"] = ["(c) nobody"]
    file.tags["Author"] = ["Ada", "Bo"]
    file.tags["WM/Genre"] = ["Folk", "Sea"]
    file.tags["WM/Mood"] = [ASFUnicodeAttribute("calm"), ASFUnicodeAttribute("ruhig", language=0)]
    file.tags["WM/Track"] = [ASFDWordAttribute(7)]
    file.tags["WM/EncodingTime"] = [ASFQWordAttribute(2 ** 60)]
    file.tags["IsVBR"] = [ASFBoolAttribute(True)]
    file.tags["WM/MediaClassPrimaryID"] = [ASFGUIDAttribute(b"0123456789abcdef")]
    file.tags["AspectRatioX"] = [ASFDWordAttribute(4, stream=1)]
    file.tags["Title of the stream"] = [ASFUnicodeAttribute("left", stream=1)]
    file.tags["WM/Picture"] = [ASFByteArrayAttribute(picture(4, JPEG)),
                               ASFByteArrayAttribute(picture(5, LARGE_JPEG))]
    file.tags["WM/Lyrics"] = ["la " * 40000]
    file.save()


def attributes(path):
    return [(name, type(value).__name__, value.value, value.language, value.stream)
            for name, value in ASF(str(path)).tags]


def others(path, places):
    return [attribute for attribute in attributes(path) if attribute[0] not in places]


def check(found, expected, what):
    if found != expected:
        sys.exit(f"{what}: {found!r} where {expected!r} was expected")


def file_size_field(path):
    data = path.read_bytes()
    at = data.index(bytes.fromhex("A1DCAB8C47A9CF118EE400C00C205365"))
    return struct.unpack_from("<Q", data, at + 40)[0]


def check_field(path, option, places, probe_name, values):
    before = others(path, places)
    for value in [*values, ""]:
        what = f"{path.name} --{option} {value!r}"
        tag(f"--{option}", value, path)
        texts = {attribute[2] for attribute in attributes(path) if attribute[0] in places}
        check(texts, {value} if value else set(), f"mutagen, {what}")
        probing.expect_tag(probing.state(path), probe_name, value or None, what)
        check(others(path, places), before, f"the rest of {what}")
        check(file_size_field(path), path.stat().st_size, f"file properties of {what}")


def check_cover(path, folder):
    cover = folder / "cover.jpg"
    before = attributes(path)
    run("ffmpeg", "-v", "error", "-y", "-f", "lavfi", "-i", "testsrc=s=64x64", "-frames:v", "1", str(cover))
    small = cover.read_bytes()
    for data in (small + bytes(100), small + bytes(300 * 1024), small):
        cover.write_bytes(data)
        tag("--cover", cover, path)
        front = [value for name, _, value, _, _ in attributes(path) if name == "WM/Picture" and value[0] == 3]
        check(len(front), 1, f"front covers of {path.name}")
        check(front[0].endswith(data) and struct.unpack_from("<I", front[0], 1)[0] == len(data), True,
              f"cover of {path.name}")
        check([a for a in attributes(path) if a[2] not in front], before,
              f"the rest of {path.name} with a cover")
    tag("--no-cover", path)
    check(attributes(path), before, f"{path.name} without cover")


with scratch_folder() as name, scratch_folder() as states:
    probing = Probing(pathlib.Path(states))
    folder = pathlib.Path(name)
    bare = folder / f"bare.{kind}"
    make(bare)
    tagged = folder / f"tagged.{kind}"
    make(tagged, "title=Old", "artist=Old", "album=Old", "genre=Old", "date=1980", "comment=Old",
         "director=Old")
    furnished = folder / f"furnished.{kind}"
    make(furnished, "title=Old", "comment=Old", "encoded_by=Nobody")
    furnish(furnished)
    for path in (bare, tagged, furnished):
        media = probing.state(path)
        for option, (places, probe_name, values) in FIELDS[kind].items():
            check_field(path, option, places, probe_name, values)
        check_cover(path, folder)
        probing.expect_streams(probing.state(path), media, f"the streams of {path.name}")
    probing.finish()
