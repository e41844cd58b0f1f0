"""check_walls.py PROJECT BUILD: every line of walls.txt, asked of the compiler with the command of the room's
own source file, and no include of any room that leaves it by "..". Prints what does not hold and fails."""
import json
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile

project, build = (pathlib.Path(path).resolve() for path in sys.argv[1:3])
rooms = ["taglib", "portable", "platform", "model", "imaging", "weblookup", "browser", "library", "app",
         "tag_tool"]
wrong = []

def sources_of(compiled):
    """The sources in a file that is compiled: itself, or those that the build put together in it."""
    if compiled.parent.name != "Unity":
        return [compiled]
    return map(pathlib.Path, re.findall(r'^#include "(/.*\.cpp)"', compiled.read_text(), re.M))


commands = {}
for entry in json.loads((build / "compile_commands.json").read_text()):
    for source in sources_of(pathlib.Path(entry["file"])):
        if source.is_relative_to(project):
            commands.setdefault(str(source.relative_to(project)), entry)


def reading(source):
    """The words that have a file read as SOURCE is, but for its name, and where. Includes are settled before
    anything is compiled, and a precompiled header has no part in where they are looked for."""
    entry = commands[source]
    words = shlex.split(entry["command"])
    output = words.index("-o")
    del words[output:output + 2]
    words = words[:-2] if words[-2] == "-c" else words
    words = [word for word in words if word != "-Xclang"]
    for option in ("-include", "-include-pch"):
        while option in words:
            at = words.index(option)
            del words[at:at + 2]
    words = [word for word in words if not word.startswith(("-M", "--launcher")) and not word.endswith(".d")]
    return entry["directory"], *words, "-E", "-o", "/dev/null"


def question(header, seen):
    """An error where HEADER, included, is found or is not found against what is SEEN; one that has to be is
    included."""
    name = f'"{header}"' if "/" in header else f"<{header}>"
    if seen:
        return f"#if __has_include({name})\n#include {name}\n#else\n#error does not see {header}\n#endif\n"
    return f"#if __has_include({name})\n#error sees {header}\n#endif\n"


def ask(directory, words, questions):
    """Puts all QUESTIONS of one command in one file."""
    with tempfile.TemporaryDirectory() as folder:
        probe = pathlib.Path(folder) / "probe.cpp"
        unseen_first = sorted(questions, key=lambda one: one[2])
        probe.write_text("".join(question(header, seen) for _, header, seen in unseen_first))
        run = subprocess.run([*words, str(probe)], cwd=directory, capture_output=True, text=True)
    errors = set(re.findall(r"#error ((?:does not see|sees) \S+)", run.stderr))
    sources = {header: source for source, header, _ in questions}
    wrong.extend(f"{sources[error.split()[-1]]} {error}" for error in sorted(errors))
    if run.returncode != 0 and not errors:
        wrong.append(f"{', '.join(sources.values())}: fails for another reason:\n{run.stderr}")


checked = 0
asked = {}
for line in (pathlib.Path(__file__).parent / "walls.txt").read_text().splitlines():
    if not line.strip() or line.startswith("#"):
        continue
    source, header, seen = line.split()
    checked += 1
    if source in commands:
        asked.setdefault(reading(source), []).append((source, header, seen == "yes"))
    else:
        wrong.append(f"{source} is not built")
for (directory, *words), questions in asked.items():
    ask(directory, words, questions)

for room in rooms:
    for path in sorted((project / room).rglob("*")):
        if path.suffix not in (".h", ".cpp"):
            continue
        for target in re.findall(r'^#include "(\.\./[^"]*)"', path.read_text(), re.M):
            if not (path.parent / target).resolve().is_relative_to((project / room).resolve()):
                wrong.append(f"{path.relative_to(project)} leaves its room: {target}")

print("\n".join(wrong) or f"{checked} walls hold")
sys.exit(bool(wrong) or checked == 0)
