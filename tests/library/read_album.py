"""read_album.py FOLDER: what mutagen says of the songs in FOLDER, a line for each in the order of their
names."""
import hashlib
import pathlib
import sys

from mutagen.id3 import ID3, ID3NoHeaderError

for path in sorted(pathlib.Path(sys.argv[1]).glob("*.mp3")):
    try:
        tag = ID3(path)
    except ID3NoHeaderError:
        print(path.name, "without a tag")
        continue
    texts = [str(tag.get(name, "-")) for name in ("TIT2", "TPE1", "TALB", "TDRC")]
    covers = [hashlib.md5(cover.data).hexdigest() for cover in tag.getall("APIC")]
    print(path.name, *texts, *covers)
