#!/usr/bin/python3
"""make_library.py FOLDER: the media that the benchmarks read and write, made by ffmpeg and tagged by mutagen.

    FOLDER/leading/     songs with an ID3v2 tag in front and padding behind it
    FOLDER/appended/    songs with an ID3v2.4 tag at the end, found by its footer
    FOLDER/asf/         songs (wma) and films (wmv) with attributes and a padding object
    FOLDER/avi/         films with an INFO list, where ffmpeg places it (every other one) or at the end
    FOLDER/store/       one file of each kind that a title is stored in; the AVI file has its INFO list last
    FOLDER/large/       the same three, with 1 GiB of (sparse) media data
    FOLDER/elements.txt "PATH COUNT" lines: the frames, objects and attributes, or chunks of a file

Every other song carries a cover. Needs about 150 MB; the large files take no room on most file systems.
"""

import io
import os
import shutil
import struct
import subprocess
import sys

from mutagen import id3
from mutagen.asf import ASF, ASFByteArrayAttribute

FILES = 12
GIB = 1 << 30

ALBUM = "Songs of a small town"
ARTIST = "The Evening Band"
TITLE = "A walk along the river"


def ffmpeg(*arguments):
    subprocess.run(["ffmpeg", "-v", "error", "-y", *arguments], check=True, stdin=subprocess.DEVNULL)


def make_sources(folder):
    tone = ["-f", "lavfi", "-i", "sine=frequency=330:duration=180"]
    film = ["-f", "lavfi", "-i", "testsrc2=s=640x360:r=25:d=20"]
    no_tag = ["-map_metadata", "-1", "-fflags", "+bitexact", "-flags:a", "+bitexact"]
    ffmpeg(*tone, "-b:a", "128k", "-id3v2_version", "0", "-write_xing", "0", *no_tag, f"{folder}/song.mp3")
    ffmpeg(*tone, "-b:a", "128k", f"{folder}/song.wma")
    ffmpeg(*film, "-c:v", "wmv2", "-b:v", "1500k", f"{folder}/film.wmv")
    info = [f"-metadata=title={TITLE}", f"-metadata=artist={ARTIST}", "-metadata=genre=Drama",
            "-metadata=date=2007", "-metadata=comment=Two friends walk home."]
    info = [part for pair in info for part in pair.split("=", 1)]
    ffmpeg(*film, "-c:v", "mpeg4", "-b:v", "1500k", *info, f"{folder}/film.avi")
    ffmpeg(*film, "-c:v", "mpeg4", "-b:v", "1500k", f"{folder}/untagged.avi")
    ffmpeg("-f", "lavfi", "-i", "gradients=s=500x500:x0=0:y0=0:x1=500:y1=500:d=1", "-frames:v", "1",
           "-q:v", "2", "-update", "1", f"{folder}/cover.jpg")


def id3_tag(number, cover):
    tag = id3.ID3()
    tag.add(id3.TIT2(encoding=0, text=f"{TITLE} {number}"))
    tag.add(id3.TPE1(encoding=0, text=ARTIST))
    tag.add(id3.TALB(encoding=1 if number % 3 == 0 else 0, text=ALBUM))
    tag.add(id3.TCON(encoding=0, text="Folk"))
    tag.add(id3.TDRC(encoding=0, text="2007"))
    tag.add(id3.TRCK(encoding=0, text=f"{number}/{FILES}"))
    tag.add(id3.COMM(encoding=0, lang="eng", desc="", text="Recorded at home."))
    tag.add(id3.PRIV(owner="WM/ParentalRating", data=b"PG"))
    if cover and number % 2 == 0:
        tag.add(id3.APIC(encoding=0, mime="image/jpeg", type=3, desc="", data=cover))
    return tag


def append_tag(path, tag):
    """Puts the tag at the end of the file: no padding, and a footer that repeats its header."""
    # Tags that are written into nothing.
    stream = io.BytesIO()
    tag.save(stream, v1=0, v2_version=4, padding=lambda info: 0)
    written = bytearray(stream.getvalue())
    written[5] |= 0x10
    with open(path, "ab") as file:
        file.write(written + b"3DI" + written[3:10])


def tag_asf(path, number, cover):
    file = ASF(path)
    file["Title"] = f"{TITLE} {number}"
    file["Author"] = ARTIST
    file["WM/AlbumTitle"] = ALBUM
    file["WM/AlbumArtist"] = ARTIST
    file["WM/Track"] = str(number)
    file["WM/Genre"] = "Folk"
    file["WM/Year"] = "2007"
    file["WM/ParentalRating"] = "PG"
    if cover and number % 2 == 0:
        value = b"\x03" + struct.pack("<I", len(cover)) + "image/jpeg\0\0".encode("utf-16-le") + cover
        file["WM/Picture"] = ASFByteArrayAttribute(value)
    file.save(padding=lambda info: 4096)


def chunk(name, data):
    return name + struct.pack("<I", len(data)) + data + b"\0" * (len(data) & 1)


def avi_chunks(data):
    """The top-level chunks of a RIFF file: [(name, start, size of the data)]."""
    chunks, at = [], 12
    while at + 8 <= len(data):
        name, size = data[at:at + 4], struct.unpack_from("<I", data, at + 4)[0]
        chunks.append((name, at, size))
        at += 8 + size + (size & 1)
    return chunks


def with_info_last(data):
    data = data.replace(b"LIST\x1a\0\0\0INFO", b"JUNK\x1a\0\0\0INFO")  # ffmpeg's own, with its name alone
    assert all(data[at + 8:at + 12] != b"INFO" for name, at, _ in avi_chunks(data) if name == b"LIST")
    texts = [(b"INAM", TITLE), (b"IART", ARTIST), (b"IGNR", "Drama"), (b"ICRD", "2007"),
             (b"ICMT", "Two friends.")]
    info = b"INFO" + b"".join(chunk(name, text.encode() + b"\0") for name, text in texts)
    data = data + chunk(b"LIST", info)
    return data[:4] + struct.pack("<I", len(data) - 8) + data[8:]


def write(path, data):
    with open(path, "wb") as file:
        file.write(data)


def read(path):
    with open(path, "rb") as file:
        return file.read()


def make_songs(folder, cover):
    for number in range(1, FILES + 1):
        leading = f"{folder}/leading/{number:02}.mp3"
        shutil.copy(f"{folder}/song.mp3", leading)
        tag = id3_tag(number, cover)
        tag.save(leading, v1=0, v2_version=3 if number % 4 < 2 else 4, padding=lambda info: 1024)
        appended = f"{folder}/appended/{number:02}.mp3"
        shutil.copy(f"{folder}/song.mp3", appended)
        append_tag(appended, id3_tag(number, cover))
        extension = "wma" if number % 4 < 2 else "wmv"
        asf = f"{folder}/asf/{number:02}.{extension}"
        shutil.copy(f"{folder}/{'song' if extension == 'wma' else 'film'}.{extension}", asf)
        tag_asf(asf, number, cover)


def make_films(folder):
    in_front = read(f"{folder}/film.avi")
    last = with_info_last(read(f"{folder}/untagged.avi"))
    for number in range(1, FILES + 1):
        write(f"{folder}/avi/{number:02}.avi", in_front if number % 2 == 0 else last)


def make_store_files(folder):
    shutil.copy(f"{folder}/song.mp3", f"{folder}/store/song.mp3")
    append_tag(f"{folder}/store/song.mp3", id3_tag(1, None))
    shutil.copy(f"{folder}/song.wma", f"{folder}/store/song.wma")
    tag_asf(f"{folder}/store/song.wma", 1, None)
    shutil.copy(f"{folder}/avi/01.avi", f"{folder}/store/film.avi")


def with_hole(path, source, at):
    """A copy of the bytes of SOURCE with 1 GiB of zeros, which take no room, put in at AT."""
    with open(path, "wb") as file:
        file.write(source[:at])
        file.seek(at + GIB)
        file.write(source[at:])
        file.truncate(GIB + len(source))


def make_large_files(folder):
    # The hole lies in the media data: anywhere in a song, behind the header object, at the
    # end of the movi list.
    song = read(f"{folder}/store/song.mp3")
    with_hole(f"{folder}/large/song.mp3", song, 100_000)
    with_hole(f"{folder}/large/song.wma", read(f"{folder}/store/song.wma"), 100_000)
    film = bytearray(read(f"{folder}/store/film.avi"))
    start, size = next((at, size) for name, at, size in avi_chunks(film) if film[at + 8:at + 12] == b"movi")
    struct.pack_into("<I", film, start + 4, size + GIB)
    struct.pack_into("<I", film, 4, len(film) - 8 + GIB)
    with_hole(f"{folder}/large/film.avi", bytes(film), start + 8 + size)


def count_id3(path):
    # A tag at the end is not found by mutagen: count its frames from their headers.
    data = read(path)
    size = sum(byte << shift for byte, shift in zip(data[-4:], (21, 14, 7, 0)))
    at, end, frames = len(data) - 10 - size, len(data) - 10, 0
    while at < end:
        frames += 1
        at += 10 + sum(byte << shift for byte, shift in zip(data[at + 4:at + 8], (21, 14, 7, 0)))
    return frames


def count_asf(path):
    """Objects of the header, the header itself, and the attributes of the extended content description."""
    data = read(path)
    count, at = struct.unpack_from("<I", data, 24)[0], 30
    elements = 1 + count
    for _ in range(count):
        if data[at:at + 4] == b"\x40\xa4\xd0\xd2":
            elements += struct.unpack_from("<H", data, at + 24)[0]
        at += struct.unpack_from("<Q", data, at + 16)[0]
    return elements


def count_avi(path):
    """The RIFF chunk, its chunks, and those of the INFO list."""
    data = read(path)
    elements = 1
    for _, at, size in avi_chunks(data):
        elements += 1
        if data[at + 8:at + 12] == b"INFO":
            elements += len(avi_chunks(data[at:at + 8 + size]))
    return elements


def write_element_counts(folder):
    leading = f"{folder}/leading/01.mp3"
    counts = [(leading, len(id3.ID3(leading))),
              (f"{folder}/appended/01.mp3", count_id3(f"{folder}/appended/01.mp3")),
              (f"{folder}/asf/01.wma", count_asf(f"{folder}/asf/01.wma")),
              (f"{folder}/avi/01.avi", count_avi(f"{folder}/avi/01.avi"))]
    with open(f"{folder}/elements.txt", "w", encoding="utf-8") as file:
        file.writelines(f"{path} {count}\n" for path, count in counts)


def main():
    folder = sys.argv[1]
    for kind in ("leading", "appended", "asf", "avi", "store", "large"):
        os.makedirs(f"{folder}/{kind}", exist_ok=True)
    make_sources(folder)
    cover = read(f"{folder}/cover.jpg")
    make_songs(folder, cover)
    make_films(folder)
    make_store_files(folder)
    make_large_files(folder)
    write_element_counts(folder)


main()
