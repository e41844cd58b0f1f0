"""xiph.py VELMORA_TAG KIND: files of KIND (flac, ogg, opus) by ffmpeg and mutagen, each field set, changed,
shortened and deleted; mutagen and ffmpeg read the asked value, mutagen finds everything else as it was, and
ffmpeg the same stream."""
import base64
import pathlib
import subprocess
import sys

from probing import Probing, scratch_folder

import mutagen
from mutagen.flac import Picture

velmora_tag, kind = sys.argv[1:]
JPEG = b"\xff\xd8\xff\xe0" + bytes(range(256)) * 4

# option: its comment, what ffmpeg calls it, and its values: set, changed, shortened
FIELDS = {
    "title": ("title", "title", ["Harbour", "Evening at the harbour \u00e4\u6f22\U0001f3ac", "Eve"]),
    "artist": ("artist", "ARTIST", ["Ada", "Ada and B\u00f6", "Al"]),
    "album": ("album", "ALBUM", ["Ports", "Ports of the north", "P"]),
    "synopsis": ("description", "comment", ["A ship", "A ship\ncomes in \u6f22 " * 5000, "Sea"]),
    "genre": ("genre", "GENRE", ["Folk", "Sea Shanty", "Pop"]),
    "year": ("date", "DATE", ["1994", "1995", "2003"]),
}


def run(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def tag(*arguments):
    run(velmora_tag, "set", *map(str, arguments))


def check(found, expected, what):
    if found != expected:
        sys.exit(f"{what}: {str(found)[:2000]!r} where {str(expected)[:2000]!r} was expected")


def picture(type_, data, description):
    result = Picture()
    result.type, result.data, result.desc, result.mime = type_, data, description, "image/jpeg"
    return result


def pictures(path):
    file = mutagen.File(str(path))
    if kind == "flac":
        return [(p.type, p.mime, p.desc, p.data) for p in file.pictures]
    return [(p.type, p.mime, p.desc, p.data)
            for p in map(Picture, map(base64.b64decode, file.tags.get("metadata_block_picture", [])))]


def furnish(path):
    """All that may stand beside the fields."""
    file = mutagen.File(str(path))
    file["artist"] = ["Old", "older"]
    file["lyrics"] = ["la la " * 500]
    file["musicbrainz_trackid"] = ["1234"]
    file["composer"] = ["one", "two"]
    if kind == "flac":
        file.add_picture(picture(4, JPEG, "back"))
        file.add_picture(picture(0, JPEG * 2, "small"))
    else:
        file["metadata_block_picture"] = [base64.b64encode(p.write()).decode()
                                          for p in (picture(4, JPEG, "back"), picture(0, JPEG * 2, "small"))]
    file.save()


def everything(path):
    file = mutagen.File(str(path))
    blocks = file.metadata_blocks if kind == "flac" else []
    blocks = [(b.code, b.write()) for b in blocks if b.code not in (1, 4, 6)]
    comments = [(key.lower(), value) for key, value in file.tags if key.lower() != "metadata_block_picture"]
    return comments, file.tags.vendor, pictures(path), blocks


def others(path, key):
    comments, *rest = everything(path)
    return [comment for comment in comments if comment[0] != key], *rest


with scratch_folder() as name, scratch_folder() as states:
    probing = Probing(pathlib.Path(states), with_stream_tags=True)
    folder = pathlib.Path(name)
    path = folder / ("song." + kind)
    codec = {"flac": "flac", "ogg": "libvorbis", "opus": "libopus"}[kind]
    run("ffmpeg", "-v", "error", "-f", "lavfi", "-i", "anoisesrc=d=8", "-ac", "2", "-c:a", codec,
        "-metadata", "title=Old", str(path))
    furnish(path)
    media = probing.state(path)
    for option, (key, probe_name, texts) in FIELDS.items():
        before = others(path, key)
        for text in [*texts, ""]:
            what = f"--{option} {text[:40]!r}"
            tag(f"--{option}", text, path)
            check([value for name_, value in everything(path)[0] if name_ == key], [text] if text else [],
                  f"mutagen, {what}")
            state = probing.state(path)
            probing.expect_tag(state, probe_name.lower(), text or None, what)
            check(others(path, key), before, f"the rest, {what}")
            probing.expect_streams(state, media, f"the stream, {what}")
        tag(f"--{option}", texts[0], path)
    cover = folder / "cover.jpg"
    run("ffmpeg", "-v", "error", "-y", "-f", "lavfi", "-i", "testsrc=s=64x48", "-frames:v", "1", str(cover))
    small = cover.read_bytes()
    before = everything(path)[0]
    for data in (small + bytes(100), small + bytes(300 * 1024), small):
        cover.write_bytes(data)
        tag("--cover", cover, path)
        check(pictures(path), [(4, "image/jpeg", "back", JPEG), (3, "image/jpeg", "small", data)],
              "the pictures")
        probing.expect_streams(probing.state(path), media, "the stream with a cover")
    tag("--no-cover", path)
    check(pictures(path), [(4, "image/jpeg", "back", JPEG)], "the pictures without a cover")
    check(everything(path)[0], before, "the comments without a cover")
    probing.expect_streams(probing.state(path), media, "the stream without a cover")
    probing.finish()
    run("ffmpeg", "-v", "error", "-xerror", "-i", str(path), "-map", "0:a", "-f", "null", "-")
    check({p.name for p in folder.iterdir()}, {"song." + kind, "cover.jpg"}, "left behind")
