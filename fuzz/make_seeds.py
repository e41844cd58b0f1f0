#!/usr/bin/env python3
"""Writes the seed inputs, corpus/<target>/*: small files of every shape that the code tells apart."""
import pathlib
import struct

CORPUS = pathlib.Path(__file__).parent / "corpus"
FLAGS = dict(title=0x1, artist=0x2, desc=0x4, genre=0x8, year=0x10, picture=0x20, director=0x40, rating=0x80,
             time=0x100)
JPEG = b"\xff\xd8\xff\xe0picture"


def put(target, name, data):
    folder = CORPUS / target
    folder.mkdir(parents=True, exist_ok=True)
    (folder / name).write_bytes(data)


def counted(data):
    return bytes([len(data)]) + data


def edit(choices=0, **fields):
    """The front of a store target's input."""
    flags = sum(FLAGS[name] for name in fields)
    head = bytes([choices]) + struct.pack("<H", flags)
    for name in ("title", "artist", "desc", "genre", "director", "rating"):
        if name in fields:
            head += counted(fields[name])
    if "year" in fields:
        head += struct.pack("<i", fields["year"])
    if "time" in fields:
        head += struct.pack("<Q", fields["time"])
    if "picture" in fields:
        head += counted(fields["picture"])
    return head


EVERYTHING = dict(title=b"Album", artist=b"Ann", desc=b"Song", genre=b"Rock", director=b"Dee", rating=b"PG",
                  year=1999, picture=b"abc", time=128000000000000000)
NOTHING = dict(title=b"", artist=b"", desc=b"", genre=b"", director=b"", rating=b"", year=0,
               picture=b"\0" * 255, time=0)


def syncsafe(value):
    return bytes(value >> shift & 0x7F for shift in (21, 14, 7, 0))


def id3(frames, version=4, appended=False, padding=0):
    size = len(frames) + padding
    tail = bytes([version, 0, 0x10 if appended else 0]) + syncsafe(size)
    return b"ID3" + tail + frames + bytes(padding) + (b"3DI" + tail if appended else b"")


def frame(name, body, version=4):
    size = syncsafe(len(body)) if version == 4 else struct.pack(">I", len(body))
    return name + size + b"\0\0" + body


def id3_seeds():
    frames = lambda version: b"".join(frame(name, body, version) for name, body in [
        (b"TALB", b"\0Album"), (b"TPE1", b"\3Ann"), (b"TIT2", b"\1\xff\xfeS\0\0\0"), (b"TPE3", b"\0Dee"),
        (b"PRIV", b"WM/ParentalRating\0PG"), (b"TCON", b"\0(17)"), (b"TYER", b"\0" b"1999"),
        (b"COMM", b"\0engnote"), (b"APIC", b"\0image/jpeg\0\3cover\0" + JPEG),
        (b"TDRC", b"\0" b"2008-05-04T:10:20:30+1:30"),
        (b"PRIV", b"WM/WMCollectionGroupID\0" + bytes(range(16)))])
    media = b"\xff\xfb\x90\x00" + b"media" * 8
    files = {"appended": media + id3(frames(4), appended=True),
             "leading4": id3(frames(4), padding=30) + media, "leading3": id3(frames(3), version=3) + media,
             "side_file": id3(frames(4), appended=True),
             "leading_with_footer": id3(frame(b"TCON", b"\x11"), appended=True) + media,
             "none": media, "empty": b"", "v1": media + b"TAG" + bytes(125)}
    for name, data in files.items():
        put("id3_load", name, data)
        put("id3_store", name + "-all", edit(2, **EVERYTHING) + data)
    for name in ("appended", "leading4", "leading3"):
        put("id3_store", name + "-clear", edit(2, **NOTHING) + files[name])
        put("id3_store", name + "-title", edit(2, title=b"Longer title", rating=b"R") + files[name])
    put("id3_store", "leading4-no-temporary", edit(0, title=b"x") + files["leading4"])
    put("id3_store", "appended-remove", edit(1) + files["appended"])
    put("id3_store", "side_file-remove", edit(1) + files["side_file"])


def guid(text):
    a, b, c, d, e = text.split("-")
    return bytes.fromhex(a)[::-1] + bytes.fromhex(b)[::-1] + bytes.fromhex(c)[::-1] + bytes.fromhex(d + e)


HEADER = guid("75B22630-668E-11CF-A6D9-00AA0062CE6C")
CD = guid("75B22633-668E-11CF-A6D9-00AA0062CE6C")
ECD = guid("D2D0A440-E307-11D2-97F0-00A0C95EA850")
PADDING = guid("1806D474-CADF-4509-A4BA-9AABCB96AAE8")
OTHER = guid("8CABDCA1-A947-11CF-8EE4-00C00C205365")


def wide(text):
    return (text + "\0").encode("utf-16-le")


def asf_object(which, body):
    return which + struct.pack("<Q", 24 + len(body)) + body


def asf_file(children, data=b"media data"):
    body = struct.pack("<IH", len(children), 0x0201) + b"".join(children)
    return asf_object(HEADER, body) + data


def attribute(name, kind, value):
    return struct.pack("<H", len(wide(name))) + wide(name) + struct.pack("<HH", kind, len(value)) + value


def asf_seeds():
    strings = [wide("Song"), wide("Ann"), b"", wide("about"), b""]
    cd = asf_object(CD, struct.pack("<5H", *map(len, strings)) + b"".join(strings))
    picture = b"\3" + struct.pack("<I", len(JPEG)) + wide("image/jpeg") + wide("") + JPEG
    attributes = [attribute("WM/AlbumTitle", 0, wide("Album")), attribute("AlbumArtist", 0, wide("Ann")),
                  attribute("Description", 0, wide("Text")), attribute("WM/Track", 0, wide("Text")),
                  attribute("Genre", 0, wide("R\u00f6ck")), attribute("Year", 3, struct.pack("<i", 1999)),
                  attribute("WM/EncodingTime", 4, struct.pack("<Q", 128000000000000000)),
                  attribute("WM/Flag", 2, b"\1\0\0\0"), attribute("WM/Word", 5, b"\1\0"),
                  attribute("WM/Director", 1, b"Dee\0"), attribute("WM/Picture", 1, picture)]
    ecd = asf_object(ECD, struct.pack("<H", len(attributes)) + b"".join(attributes))
    small = asf_object(ECD, struct.pack("<H", 1) + attribute("WM/Genre", 0, wide("Pop")))
    other = asf_object(OTHER, b"properties")
    files = {"padded": asf_file([other, cd, ecd, asf_object(PADDING, bytes(200))]),
             "unpadded": asf_file([cd, small, other]), "no_ecd": asf_file([other, cd]),
             "no_cd": asf_file([small, asf_object(PADDING, bytes(40))]), "bare": asf_file([]),
             "small_padding": asf_file([cd, small, asf_object(PADDING, b"")]),
             "cut": asf_file([cd, ecd])[:300]}
    for name, data in files.items():
        put("asf_load", name, data)
        put("asf_store", name + "-all", edit(2, **EVERYTHING) + data)
        put("asf_store", name + "-title", edit(2, title=b"Longer") + data)
    for name in ("padded", "unpadded"):
        put("asf_store", name + "-clear", edit(2, **NOTHING) + files[name])
        put("asf_store", name + "-little-data", edit(0, title=b"Longer album") + files[name])
        put("asf_store", name + "-remove", edit(3) + files[name])
        put("asf_store", name + "-very-much-data", edit(0xF2, **EVERYTHING) + files[name])


def chunk(fourcc, data):
    return fourcc + struct.pack("<I", len(data)) + data + b"\0" * (len(data) % 2)


def avi_file(*chunks, form=b"AVI "):
    return chunk(b"RIFF", form + b"".join(chunks))


def avi_seeds():
    hdrl = chunk(b"LIST", b"hdrl" + chunk(b"avih", bytes(8)))
    movi = chunk(b"LIST", b"movi" + chunk(b"00dc", b"frame"))
    idx1 = chunk(b"idx1", bytes(16))
    info = chunk(b"LIST", b"INFO" + b"".join(chunk(name, data) for name, data in [
        (b"INAM", b"Title\0"), (b"ISTR", b"Ann\0"), (b"ICMT", b"Text\0"), (b"IGNR", b"Rock\0"),
        (b"ICRD", b"1999\0"), (b"IART", b"Dee\0"), (b"IRTD", b"PG\0"), (b"IPIC", JPEG),
        (b"ISFT", b"kept\0")]))
    nested = chunk(b"LIST", b"abcd" + chunk(b"INAM", b"x\0"))
    files = {"none": avi_file(hdrl, movi, idx1), "last": avi_file(hdrl, movi, idx1, info),
             "middle": avi_file(hdrl, info, movi), "two": avi_file(hdrl, info, movi, info),
             "tail": avi_file(hdrl, movi, info) + b"\1trailing bytes",
             "several_riffs": avi_file(hdrl, movi) + avi_file(movi, form=b"AVIX"),
             "cut": avi_file(hdrl, movi, info)[:-5], "bare": avi_file(),
             "nested": avi_file(hdrl, chunk(b"LIST", b"INFO" + nested))}
    for name, data in files.items():
        put("avi_load", name, data)
        put("avi_store", name + "-all", edit(0, **EVERYTHING) + data)
    for name in ("none", "last", "middle", "two"):
        put("avi_store", name + "-clear", edit(0, **NOTHING) + files[name])
        put("avi_store", name + "-title", edit(0, title=b"Longer") + files[name])
        put("avi_store", name + "-remove", edit(1) + files[name])


def bitmap_seeds():
    def bitmap(width, height, border, *runs):
        return bytes([width - 1, height - 1]) + border + b"".join(bytes(run[:2]) + run[2] for run in runs)
    white, black = b"\xff\xff\xff\xff", b"\0\0\0\xff"
    put("bitmap_trim", "blank", bitmap(40, 30, white))
    put("bitmap_trim", "box", bitmap(40, 6, black, (0, 40, white), (0, 5, white),
                                     (30, 10, white), (30, 10, white), (30, 0, white)))
    put("bitmap_trim", "corner", bitmap(8, 8, black, (1, 6, black), (1, 0, white)))
    put("bitmap_trim", "tolerance", bitmap(70, 2, b"\x40\x40\x40\x40", (64, 0, b"\x65\x1b\x40\x40"),
                                           (2, 0, b"\x66\x40\x40\x40")))
    put("bitmap_trim", "one", bitmap(1, 1, white))


DIV, H5, A, TABLE, TBODY, TR, TD, IMG, UL, LI, B, BR, TITLE, SVG = range(14)
CLOSE, TEXT, COMMENT, CLASS, NAME, SRC, ID, ALT = 14, 18, 24, 25, 26, 27, 28, 30
PHRASES = ("info", "cast", "poster", "prodImageCell", "prodImage", "http://h/p_AA240_.jpg", "Director:",
           "Genre:", "Release Date:", "more", "Plot Outline:", "Actors:", "Certification:", "USA:Unrated",
           "Rating", "14 June 2001 (", "Directors:", "June 14, 2001", "Product Description")


def phrase(text):
    return bytes([PHRASES.index(text)]) if text in PHRASES else b"\xff" + counted(text.encode())


def with_text(instruction, text):
    return bytes([instruction]) + phrase(text)


def element(tag, *contents):
    return bytes([tag]) + b"".join(contents) + bytes([CLOSE])


def dom_seeds():
    text = lambda t: with_text(TEXT, t)
    link = lambda t: element(A, text(t))
    label = lambda tag, t: element(tag, text(t))
    movie = element(TITLE, text("Film (2001)")) + element(
        DIV, with_text(CLASS, "info"), label(H5, "Director:"), link("Dee"), label(H5, "Release Date:"),
        text("14 June 2001 ("), label(H5, "Genre:"), link("Drama"), link("more"), label(H5, "Plot Outline:"),
        text("Plot"), label(H5, "Certification:"), link("USA:Unrated"),
        element(TABLE, with_text(CLASS, "cast"),
                element(TBODY, element(TR, element(TD), element(TD, link("Ann")))))
    ) + element(A, with_text(NAME, "poster"), element(IMG, with_text(SRC, "http://h/p_AA240_.jpg")))
    product = element(TITLE, text("Shop: Film: DVD: Ann")) + element(
        UL, element(LI, label(B, "Actors:"), link("Ann")), element(LI, label(B, "Directors:"), link("Dee")),
        element(LI, label(B, "Rating"), element(IMG, with_text(ALT, "PG"))),
        element(LI, label(B, "Release Date:"), text("June 14, 2001"))
    ) + label(B, "Product Description") + element(BR) + text("One") + element(BR) + text("two") + element(
        TD, with_text(ID, "prodImageCell"),
        element(A, element(IMG, with_text(ID, "prodImage"), with_text(SRC, "http://h/p_AA240_.jpg"))))
    put("dom_extract", "movie", b"\x10" + movie)
    put("dom_extract", "product", b"\x20" + product)
    put("dom_extract", "odd", b"\0" + element(SVG, with_text(COMMENT, "x"), bytes([CLOSE]) * 3, text("")))
    put("dom_extract", "snapshot",
        b'\1{"url":"http://h/","nodes":[[-1,0,"HTML",null,1,""],[0,0,"TITLE",null,1,""],'
        b'[1,1,"#text","Film (2001)"],[0,2,"A",null,1,"",["name","poster"],"poster"],'
        b'[3,5,"IMG",null,1,"",["id","x"],"","http://h/p"]]}')


PORTABLE_KINDS = ("mp3", "flac", "m4a", "mp4", "wav", "wma", "wmv", "avi", "ogg", "opus", "aiff", "mpg")


def be32(value):
    return struct.pack(">I", value)


def box(name, *contents):
    data = b"".join(contents)
    return be32(8 + len(data)) + name + data


def aiff_chunk(name, data):
    return name + be32(len(data)) + data + bytes(len(data) & 1)


def vorbis_comments(*texts):
    pack = lambda text: struct.pack("<I", len(text)) + text
    return pack(b"v") + struct.pack("<I", len(texts)) + b"".join(map(pack, texts))


def flac_picture(kind, data):
    return be32(kind) + be32(9) + b"image/png" + be32(1) + b"d" + bytes(16) + be32(len(data)) + data


def ogg_checksum(page):
    value = 0
    for byte in page:
        value ^= byte << 24
        for _ in range(8):
            value = (value << 1 ^ (0x04C11DB7 if value & 0x80000000 else 0)) & 0xFFFFFFFF
    return value


def ogg_page(flags, sequence, *packets):
    sizes = b"".join(bytes([255] * (len(p) // 255) + [len(p) % 255]) for p in packets)
    page = lambda sum_: (b"OggS\0" + bytes([flags]) + bytes(8) + struct.pack("<III", 7, sequence, sum_)
                         + bytes([len(sizes)]) + sizes + b"".join(packets))
    return page(ogg_checksum(page(0)))


def portable_files():
    media = b"\xff\xfb\x90\x64" + bytes(range(100))
    song = lambda version: b"".join(frame(name, body, version) for name, body in [
        (b"TIT2", b"\1\xff\xfeS\0\0\0T\0"), (b"TPE1", b"\0Ann"), (b"TALB", b"\0Album"),
        (b"TCON", b"\0(17)(4)x"), (b"COMM", b"\0eng\0note"),
        (b"TYER" if version == 3 else b"TDRC", b"\0001999-05"), (b"TXXX", b"\0DIRECTOR\0Dee"),
        (b"APIC", b"\0image/png\0\3\0picture"), (b"APIC", b"\0image/png\0\0\0other"),
        (b"PRIV", b"o\0\xff\xe0\xff")])
    short = lambda name, body: name + be32(len(body))[1:] + body
    old = short(b"TT2", b"\0Song") + short(b"PIC", b"\0PNG\3\0picture") + short(b"TYE", b"\0001999")
    v1 = b"TAG" + b"Song".ljust(30) + b"Ann".ljust(30, b"\0") + bytes(30) + b"1999" + bytes(30) + b"\x11"
    item = lambda key, value: struct.pack("<II", len(value), 0) + key + b"\0" + value
    items = item(b"Title", b"Song") + item(b"Cover Art (Front)", b"x.png\0picture")
    ends = lambda flags: b"APETAGEX" + struct.pack("<IIII", 2000, len(items) + 32, 2, flags) + bytes(8)
    ape = ends(0xA0000000) + items + ends(0x80000000)
    yield "mp3", "bare", media
    yield "mp3", "v3", id3(song(3), 3, padding=20) + media
    yield "mp3", "v4", id3(song(4), 4) + media
    yield "mp3", "v2", id3(old, 2) + media
    yield "mp3", "behind", id3(song(4)) + media + ape + v1
    yield "mp3", "appended", id3(song(3), 3) + media + id3(song(4), 4, appended=True)
    yield "mpg", "own", media + id3(song(4), 4, appended=True)
    comments = vorbis_comments(b"TITLE=Song", b"ARTIST=Ann", b"ARTIST=Bo", b"DATE=1999-05", b"OTHER=x")
    block = lambda kind, data, last=0: bytes([kind | last]) + be32(len(data))[1:] + data
    yield "flac", "whole", (b"fLaC" + block(0, bytes(34)) + block(4, comments)
                            + block(6, flac_picture(3, b"picture")) + block(1, bytes(50), 0x80) + media)
    yield "flac", "strange", id3(song(3), 3) + b"fLaC" + block(0, bytes(34), 0x80) + media + v1
    yield "opus", "whole", (ogg_page(2, 0, b"OpusHead") + ogg_page(0, 1, b"OpusTags" + comments)
                            + ogg_page(0, 2, media) + ogg_page(4, 3, media))
    yield "ogg", "whole", (ogg_page(2, 0, b"\x01vorbis")
                           + ogg_page(0, 1, b"\x03vorbis" + comments + b"\1", b"\x05vorbis" + bytes(50))
                           + ogg_page(4, 2, media))
    value = lambda name, data, kind=1: box(name, box(b"data", be32(kind), bytes(4), data))
    ilst = box(b"ilst", value(b"\xa9nam", b"Song"), value(b"\xa9day", b"1999-05-01"),
               value(b"covr", b"\x89PNGpicture", 14), value(b"gnre", b"\0\x12", 0),
               box(b"----", box(b"mean", bytes(4), b"com.apple.iTunes"), box(b"name", bytes(4), b"DIRECTOR"),
                   box(b"data", be32(1), bytes(4), b"Dee")))
    handler = box(b"hdlr", bytes(8), b"mdirappl", bytes(9))
    stbl = lambda offset: box(b"stbl", box(b"stco", bytes(4), be32(1), be32(offset)))
    udta = box(b"udta", box(b"meta", bytes(4), handler, ilst), box(b"\xa9nam", b"\0\4\0\0Song"))
    moov = lambda offset: box(b"moov", box(b"trak", box(b"mdia", box(b"minf", stbl(offset)))), udta)
    ftyp, mdat = box(b"ftyp", b"isom"), box(b"mdat", media)
    yield "mp4", "behind", ftyp + moov(len(ftyp) + len(moov(0)) + 8) + mdat
    yield "m4a", "front", ftyp + mdat + box(b"free", bytes(8)) + moov(len(ftyp) + 8)
    info = chunk(b"LIST", b"INFO" + chunk(b"INAM", b"Song\0") + chunk(b"ICRD", b"1999\0")
                 + chunk(b"IPIC", b"\x89PNGpicture"))
    yield "wav", "whole", chunk(b"RIFF", b"WAVE" + chunk(b"fmt ", bytes(16)) + info + chunk(b"data", media)
                                + chunk(b"id3 ", id3(song(4))))
    yield "avi", "whole", avi_file(chunk(b"LIST", b"hdrl" + chunk(b"avih", bytes(56))),
                                   chunk(b"LIST", b"movi" + chunk(b"00dc", media)), chunk(b"idx1", bytes(16)),
                                   info)
    yield "aiff", "whole", aiff_chunk(b"FORM", b"AIFF" + aiff_chunk(b"COMM", bytes(18))
                                      + aiff_chunk(b"SSND", media) + aiff_chunk(b"ID3 ", id3(song(3), 3)))
    for path in sorted((CORPUS / "asf_load").iterdir()):
        yield "wma", "asf-" + path.name, path.read_bytes()


def portable_seeds():
    for kind, name, data in portable_files():
        number = bytes([PORTABLE_KINDS.index(kind)])
        put("portable_read", kind + "-" + name, number + data)
        # Fields that are set, fields that are deleted, and their texts.
        put("portable_set", kind + "-" + name + "-all",
            number + b"\x83\1\0\0" + counted(b"New title") + counted(b"Bo")
            + counted(b"\x89PNG\r\n\x1a\npicture") + data)
        put("portable_set", kind + "-" + name + "-clear", number + b"\0\0\xff\1" + data)
        put("portable_set", kind + "-" + name + "-year",
            number + b"\x80\0\1\0" + struct.pack("<H", 2001) + data)


for seeds in (id3_seeds, asf_seeds, avi_seeds, bitmap_seeds, dom_seeds, portable_seeds):
    seeds()
