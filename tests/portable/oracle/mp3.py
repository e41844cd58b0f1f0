"""mp3.py VELMORA_TAG GROUP: MP3 files by ffmpeg with tags of all sorts (GROUP: mutagen, behind, 2.2, 2.3,
2.4), each field set, changed, shortened and deleted; mutagen and ffmpeg read the asked value, mutagen finds
every other frame as it was, and ffmpeg the same stream."""
import pathlib
import struct
import subprocess
import sys
import zlib

from probing import Probing, scratch_folder

import mutagen.apev2
import mutagen.id3
from mutagen.id3 import (APIC, CHAP, COMM, CTOC, GEOB, ID3, PRIV, RVAD, TALB, TCON, TDAT, TDRC, TIT2, TIT3,
                         TPE1, TXXX, TYER, USLT)

velmora_tag, group = sys.argv[1:]
JPEG = b"\xff\xd8\xff\xe0" + bytes(range(256)) * 4
LARGE_JPEG = b"\xff\xd8\xff\xe0" + bytes(range(256)) * 1200

# option: its frames in 2.2, and later; what ffmpeg calls it; values: set, changed, shortened
FIELDS = {
    "title": ({"TT2", "TIT2"}, "title", ["Harbour", "Evening at the harbour \u00e4\u6f22\U0001f3ac", "Eve"]),
    "artist": ({"TP1", "TPE1"}, "artist", ["Ada", "Ada and B\u00f6", "Al"]),
    "album": ({"TAL", "TALB"}, "album", ["Ports", "Ports of the north", "P"]),
    "synopsis": ({"COM", "COMM"}, "comment", ["A ship", "A ship\ncomes in \u6f22", "Sea"]),
    "genre": ({"TCO", "TCON"}, "genre", ["Folk", "Sea Shanty", "Pop"]),
    "year": ({"TYE", "TYER", "TDA", "TDAT", "TIME", "TIM", "TDRC"}, "date", ["1994", "1995", "2003"]),
}


def run(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def tag(*arguments):
    run(velmora_tag, "set", *map(str, arguments))


def check(found, expected, what):
    if found != expected:
        sys.exit(f"{what}: {found!r} where {expected!r} was expected")


def synchsafe(number):
    return bytes(number >> shift & 0x7F for shift in (21, 14, 7, 0))


def unsynchronised(data):
    result = bytearray()
    for i, byte in enumerate(data):
        result.append(byte)
        if byte == 0xFF and (i + 1 == len(data) or data[i + 1] == 0 or data[i + 1] >= 0xE0):
            result.append(0)
    return bytes(result)


def frame(version, name, body, flags=0):
    if version == 2:
        return name + struct.pack(">I", len(body))[1:] + body
    size = struct.pack(">I", len(body)) if version == 3 else synchsafe(len(body))
    return name + size + struct.pack(">H", flags) + body


def whole_tag(version, content, flags=0):
    head = bytes([version, 0, flags]) + synchsafe(len(content))
    return b"ID3" + head + content + (b"3DI" + head if flags & 0x10 else b"")


def furnish_by_mutagen(path, encoding, version):
    tags = ID3()
    tags.add(TIT2(encoding, ["Old title", "and another"]))
    tags.add(TPE1(encoding, ["Old \u00e4rtist"]))
    tags.add(TALB(encoding, ["Old album"]))
    tags.add(TCON(encoding, ["(17)"] if version == 3 else ["17", "Own"]))
    tags.add(COMM(encoding, "deu", "", ["Old comment"]))
    tags.add(COMM(encoding, "eng", "iTunNORM", ["00000"]))
    tags.add(TXXX(encoding, "DIRECTOR", ["is none of a song's"]))
    tags.add(TIT3(encoding, ["unknown to us"]))
    tags.add(USLT(encoding, "eng", "", "la la " * 500))
    tags.add(PRIV("someone", b"\xff\xfb\x00\xff\x00"))
    tags.add(GEOB(encoding, "application/x-thing", "file", "thing", bytes(range(256))))
    tags.add(APIC(encoding, "image/jpeg", 4, "back", JPEG))
    tags.add(APIC(encoding, "image/png", 5, "leaflet", LARGE_JPEG))
    tags.add(CHAP("one", 0, 1000, 0xFFFFFFFF, 0xFFFFFFFF, sub_frames=[TIT2(encoding, ["Chapter"])]))
    tags.add(CTOC("toc", 3, ["one"], sub_frames=[]))
    if version == 3:
        tags.add(TYER(encoding, ["1980"]))
        tags.add(TDAT(encoding, ["0405"]))
    else:
        tags.add(TDRC(encoding, ["1980-05-04"]))
    tags.save(str(path), v2_version=version)


def packed_frames(version, text=b"\x01\xff\xfeO\0l\0d\0"):
    """Frames that only bytes by hand give: in UTF-16, compressed, encrypted, of no known name."""
    if version == 2:
        return (frame(2, b"TT2", text) + frame(2, b"TYE", b"\0001980") + frame(2, b"ULT", b"\0eng\0la la")
                + frame(2, b"PIC", b"\0JPG\4back\0" + JPEG) + frame(2, b"XYZ", b"\xff\xfb\x90"))
    packed = zlib.compress(b"\0Packed")
    compressed = (struct.pack(">I", 7) + packed, 0x0080) if version == 3 else (synchsafe(7) + packed, 0x0009)
    encrypted = (b"\x80secret", 0x0040) if version == 3 else (b"\x80secret", 0x0004)
    return (frame(version, b"TIT2", text) + frame(version, b"TPE1", *compressed)
            + frame(version, b"TIT3", *encrypted)
            + frame(version, b"RVAD", b"\3\x10\0\1\0\2") + frame(version, b"EQUA", b"\x10\x80\0\xff\xe0")
            + frame(version, b"TSIZ", b"\0001234") + frame(version, b"XYZW", bytes(300)))


def bytes_tags():
    checksum = struct.pack(">IHII", 10, 0x8000, 0, 0)
    whole = synchsafe(12) + b"\1\x20" + b"\5" + bytes(5)
    yield "2.2", whole_tag(2, packed_frames(2) + bytes(200))
    yield "2.2 unsynchronised", whole_tag(2, unsynchronised(packed_frames(2)), 0x80)
    yield "2.3 packed", whole_tag(3, packed_frames(3))
    yield "2.3 unsynchronised", whole_tag(3, unsynchronised(packed_frames(3)) + bytes(50), 0x80)
    extension = struct.pack(">IHI", 6, 0, 99)
    yield "2.3 extended header", whole_tag(3, extension + packed_frames(3) + bytes(99), 0x40)
    yield "2.3 checksum", whole_tag(3, checksum + packed_frames(3), 0x40)
    yield "2.4 packed", whole_tag(4, packed_frames(4) + bytes(10))
    yield "2.4 extended header", whole_tag(4, whole + packed_frames(4), 0x40)
    yield "2.4 footer", whole_tag(4, packed_frames(4), 0x10)
    loose = packed_frames(4, b"\3Old") + frame(4, b"USLT", unsynchronised(b"\0eng\0\xff\xe0\xff\0"), 0x0002)
    yield "2.4 one frame unsynchronised", whole_tag(4, loose)


parsed = {}


def parse(path):
    """The tag of PATH in its own version. The last one is kept: taking it apart is what takes the time."""
    data = path.read_bytes()
    if data not in parsed:
        parsed.clear()
        parsed[data] = ID3(str(path), translate=False)
    return parsed[data]


def frames(path):
    """Every frame as mutagen has it, those that it does not know as bytes."""
    try:
        tags = parse(path)
    except mutagen.id3.ID3NoHeaderError:
        return []
    known = [(value.FrameID, value.HashKey, repr(value)) for value in tags.values()]
    return sorted(known) + [("unknown", "", bytes(data)) for data in tags.unknown_frames]


def is_place(name, key, places):
    return name in places and (name not in ("COMM", "COM") or key.split(":")[1] == "")


def others(path, places):
    return [item for item in frames(path) if not is_place(item[0], item[1], places)]


def values(path, places):
    tags = parse(path)
    found = [value for value in tags.values() if is_place(value.FrameID, value.HashKey, places)]
    return {str(text) for value in found for text in value.text}


def check_fields(path, what):
    media = probing.state(path)
    version = ID3(str(path)).version
    for option, (places, probe_name, texts) in FIELDS.items():
        before = others(path, places)
        for text in [*texts, ""]:
            here = f"{what}, --{option} {text!r}"
            tag(f"--{option}", text, path)
            check(values(path, places), {text} if text else set(), f"mutagen, {here}")
            probing.expect_tag(probing.state(path), probe_name, text or None, here)
            check(others(path, places), before, f"the rest, {here}")
        tag(f"--{option}", texts[0], path)
    probing.expect_streams(probing.state(path), media, f"the stream, {what}")
    check(ID3(str(path)).version, version, f"the version, {what}")


def check_cover(path, folder, what):
    cover = folder / "cover.jpg"
    run("ffmpeg", "-v", "error", "-y", "-f", "lavfi", "-i", "testsrc=s=64x64", "-frames:v", "1", str(cover))
    small = cover.read_bytes()
    media = probing.state(path)
    before = [item for item in frames(path)]
    for data in (small + bytes(100), small + bytes(300 * 1024), small):
        cover.write_bytes(data)
        tag("--cover", cover, path)
        pictures = [value for value in ID3(str(path)).getall("APIC") if value.type == 3]
        check([(value.mime, value.data) for value in pictures], [("image/jpeg", data)], f"the cover, {what}")
    tag("--no-cover", path)
    check(frames(path), before, f"the rest without the cover, {what}")
    probing.expect_streams(probing.state(path), media, f"the stream with covers, {what}")


def check_tags_behind(media, folder):
    """APE and ID3v1: changed where they are, never added."""
    path = folder / "behind.mp3"
    path.write_bytes(media.read_bytes())
    ape = mutagen.apev2.APEv2()
    ape.update({"Title": "Old", "Artist": "Old artist", "Publisher": "kept"})
    ape.save(str(path))
    block = (b"TAG" + b"Old".ljust(30, b"\0") + b"Old artist".ljust(30, b"\0") + bytes(30) + b"1980"
             + b"kept".ljust(28, b"\0") + b"\0\7" + b"\x11")
    path.write_bytes(path.read_bytes() + block)
    tag("--title", "New \u6f22", "--year", "1981", "--album", "Not there yet", path)
    found = mutagen.apev2.APEv2(str(path))
    check({key: str(value) for key, value in found.items()},
          {"Title": "New \u6f22", "Artist": "Old artist", "Publisher": "kept"}, "APE")
    check(path.read_bytes()[-128:], b"TAG" + b"New ?".ljust(30, b"\0") + b"Old artist".ljust(30, b"\0")
          + b"Not there yet".ljust(30, b"\0") + b"1981" + block[97:], "ID3v1")
    probing.expect_streams(probing.state(path), probing.state(media), "the stream in front of APE and ID3v1")
    check({key: str(value) for key, value in ID3(str(path), load_v1=False).items()},
          {"TIT2": "New \u6f22", "TPE1": "Old artist", "TALB": "Not there yet", "TDRC": "1981",
           "TCON": "Rock"}, "ID3v2")


with scratch_folder() as name, scratch_folder() as states:
    probing = Probing(pathlib.Path(states))
    folder = pathlib.Path(name)
    media = folder / "media.mp3"
    run("ffmpeg", "-v", "error", "-f", "lavfi", "-i", "sine=d=1", "-c:a", "libmp3lame", "-map_metadata", "-1",
        "-id3v2_version", "0", "-write_xing", "0", str(media))
    path = folder / "song.mp3"
    if group == "mutagen":
        for version, encoding in ((3, 0), (3, 1), (4, 1), (4, 3)):
            path.write_bytes(media.read_bytes())
            furnish_by_mutagen(path, encoding, version)
            check_fields(path, f"2.{version} in encoding {encoding}")
    elif group == "behind":
        check_tags_behind(media, folder)
    else:
        for what, head in bytes_tags():
            if not what.startswith(group):
                continue
            path.write_bytes(head + media.read_bytes())
            check_fields(path, what)
    if path.exists():
        check_cover(path, folder, group)
    probing.finish()
    check({p.name for p in folder.iterdir()} - {"behind.mp3", "cover.jpg", "media.mp3", "song.mp3"}, set(),
          "left behind")
