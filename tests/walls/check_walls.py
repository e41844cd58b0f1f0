"""check_walls.py PROJECT BUILD: every line of walls.txt, compiled with the command of the room's own source
file, and no include of any room that leaves it by "..". Prints what does not hold and fails."""
import json
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile

project, build = (pathlib.Path(path).resolve() for path in sys.argv[1:3])
rooms = ["taglib", "portable", "platform", "model", "imaging", "weblookup", "browser", "library", "app"]
wrong = []

commands = {}
for entry in json.loads((build / "compile_commands.json").read_text()):
    source = pathlib.Path(entry["file"])
    if source.is_relative_to(project):
        commands.setdefault(str(source.relative_to(project)), entry)


def compiles(source, header):
    """Whether a file with nothing but that include compiles where SOURCE does."""
    entry = commands[source]
    words = shlex.split(entry["command"])
    output = words.index("-o")
    del words[output:output + 2]
    words = words[:-2] if words[-2] == "-c" else words
    words = [word for word in words if not word.startswith(("-M", "--launcher")) and not word.endswith(".d")]
    with tempfile.TemporaryDirectory() as folder:
        probe = pathlib.Path(folder) / "probe.cpp"
        bracketed = f'"{header}"' if "/" in header else f"<{header}>"
        probe.write_text(f"#include {bracketed}\n")
        run = subprocess.run([*words, "-fsyntax-only", str(probe)], cwd=entry["directory"],
                             capture_output=True, text=True)
    missing = re.search(r"fatal error: '?" + re.escape(header) + r"\b.*(No such file|file not found)",
                        run.stderr)
    if run.returncode != 0 and not missing:
        wrong.append(f"{source}, {header}: fails for another reason:\n{run.stderr}")
    return run.returncode == 0


checked = 0
for line in (pathlib.Path(__file__).parent / "walls.txt").read_text().splitlines():
    if not line.strip() or line.startswith("#"):
        continue
    source, header, seen = line.split()
    checked += 1
    if source not in commands:
        wrong.append(f"{source} is not built")
    elif compiles(source, header) != (seen == "yes"):
        wrong.append(f"{source} {'does not see' if seen == 'yes' else 'sees'} {header}")

for room in rooms:
    for path in sorted((project / room).rglob("*")):
        if path.suffix not in (".h", ".cpp"):
            continue
        for target in re.findall(r'^#include "(\.\./[^"]*)"', path.read_text(), re.M):
            if not (path.parent / target).resolve().is_relative_to((project / room).resolve()):
                wrong.append(f"{path.relative_to(project)} leaves its room: {target}")

print("\n".join(wrong) or f"{checked} walls hold")
sys.exit(bool(wrong) or checked == 0)
