"""read_fields.py PATH...: what mutagen (for AVI, which it does not know: ffmpeg) finds in the tag of each
PATH, one line "field: value" for each field that is there; of a cover, the checksum of its bytes. Below it
the checksums of the media, and a line "---". All files are of one kind."""
import base64
import hashlib
import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).parents[1] / "portable/oracle"))
from probing import Probing, scratch_folder

import mutagen
from mutagen.flac import FLAC, Picture
from mutagen.mp4 import MP4

paths = [pathlib.Path(path) for path in sys.argv[1:]]
suffix = sys.argv[1].rsplit(".", 1)[1]
FREE = "----:com.apple.iTunes:"
NAMES = {
    "id3": {"title": "TIT2", "artist": "TPE1", "album": "TALB", "director": "TXXX:DIRECTOR",
            "synopsis": "COMM::eng", "genre": "TCON", "rating": "TXXX:CONTENTRATING", "year": "TDRC"},
    "mp4": {"title": "\u00a9nam", "artist": "\u00a9ART", "album": "\u00a9alb", "director": FREE + "DIRECTOR",
            "synopsis": "ldes", "genre": "\u00a9gen", "rating": FREE + "iTunEXTC", "year": "\u00a9day"},
    "asf": {"title": "Title", "artist": "Author", "album": "WM/AlbumTitle", "director": "WM/Director",
            "synopsis": "Description", "genre": "WM/Genre", "rating": "WM/ParentalRating", "year": "WM/Year"},
    "xiph": {"title": "title", "artist": "artist", "album": "album", "director": "director",
             "synopsis": "description", "genre": "genre", "rating": "contentrating", "year": "date"},
    # As ffmpeg calls them.
    "avi": {"title": "title", "artist": "ISTR", "director": "artist", "synopsis": "comment", "genre": "genre",
            "rating": "IRTD", "year": "date"},
}
KINDS = {"mp3": "id3", "wav": "id3", "aiff": "id3", "m4a": "mp4", "mp4": "mp4", "mov": "mp4", "wma": "asf",
         "wmv": "asf", "flac": "xiph", "ogg": "xiph", "opus": "xiph", "avi": "avi"}
kind = KINDS[suffix]


def text(value):
    while isinstance(value, list):
        value = value[0]
    value = getattr(value, "text", value)
    value = value[0] if isinstance(value, list) else value
    return value.decode() if isinstance(value, bytes) else str(value)


def cover(path, found):
    if suffix == "flac":
        pictures = [picture.data for picture in FLAC(path).pictures if picture.type == 3]
    elif kind == "xiph":
        pictures = [Picture(base64.b64decode(block)).data
                    for block in found.get("metadata_block_picture", [])]
    elif kind == "id3":
        pictures = [frame.data for name, frame in found.items()
                    if name.startswith("APIC") and frame.type == 3]
    elif kind == "mp4":
        pictures = [bytes(value) for value in MP4(path).tags.get("covr", [])] if MP4(path).tags else []
    elif kind == "asf":
        # WM/Picture: type, size, MIME type and description in UTF-16, bytes
        pictures = [block[len(block) - int.from_bytes(block[1:5], "little"):]
                    for block in (value.value for value in found.get("WM/Picture", [])) if block[0] == 3]
    else:
        data = open(path, "rb").read()
        at = data.rfind(b"IPIC")
        pictures = [data[at + 8:at + 8 + int.from_bytes(data[at + 4:at + 8], "little")]] if at >= 0 else []
    return pictures


with scratch_folder() as name:
    probing = Probing(pathlib.Path(name))
    states = [probing.state(path) for path in paths]
    probing.tags_asked.update(states)
    probing.streams_asked.update(states)
    probing.finish()
    for path, state in zip(paths, states):
        found = probing.tags(state) if kind == "avi" else mutagen.File(str(path)).tags or {}
        for field, key in sorted(NAMES[kind].items()):
            if key in found:
                print(f"{field}: {text(found[key])}")
        for data in cover(str(path), found):
            print(f"cover: {hashlib.md5(data).hexdigest()}")
        print(probing.streams(state) + "---")
