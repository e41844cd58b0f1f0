"""check_tour.py PROJECT: the source tour names every source file of the rooms once, and none that is not
there."""
import pathlib
import re
import sys

project = pathlib.Path(sys.argv[1])
sources = {".h", ".cpp", ".ui", ".js"}
named = {}
folder = None
wrong = []

for line in (project / "docs/source-tour.md").read_text().splitlines():
    heading = re.match(r"#{2,3} ([a-z0-9_/-]+)", line)
    if line.startswith("#"):
        folder = heading.group(1) if heading and (project / heading.group(1)).is_dir() else None
        continue
    cells = line.split("|")
    if folder is None or len(cells) < 3:
        continue
    # A name that is an extension alone belongs to the name in front of it.
    for name in (name for name in re.findall(r"`([^`]+)`", cells[1]) if not name.startswith(".")):
        path = f"{folder}/{name}"
        if path in named:
            wrong.append(f"{path} is named twice")
        named[path] = False

for room in sorted({path.split("/")[0] for path in named}):
    for file in sorted((project / room).rglob("*")):
        if file.suffix not in sources:
            continue
        whole = str(file.relative_to(project))
        stem = whole[:-len(file.suffix)]
        hits = [path for path in (whole, stem) if path in named]
        # A folder that is named whole stands for its files.
        hits += [path for path in named if path.endswith("/") and whole.startswith(path)]
        if not hits:
            wrong.append(f"{whole} is missing in the tour")
        for path in hits:
            named[path] = True

for path, found in named.items():
    if not found and not (project / path).is_dir():
        wrong.append(f"{path} is in the tour and not in the tree")

print("\n".join(wrong) or f"the tour names {len(named)} subjects and no other")
sys.exit(bool(wrong))
