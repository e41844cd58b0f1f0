"""What ffmpeg finds in files: of many states of them in one process, since its start takes longer than what
it does in each."""
import os
import re
import shutil
import subprocess
import sys
import tempfile

FILES_AT_ONCE = 50
PAIR = r"^((?:\\.|[^\\=;\n])+)=((?:\\.|[^\\\n])*)\n"
MEMORY, ROOM = "/dev/shm", 512 << 20


def scratch_folder():
    """A folder for as long as it is used, in memory where there is room: nothing in it has to last."""
    in_memory = os.access(MEMORY, os.W_OK) and shutil.disk_usage(MEMORY).free >= ROOM
    return tempfile.TemporaryDirectory(dir=MEMORY if in_memory else None)


class Probing:
    """Copies of files as they were when something was expected of them, in FOLDER, where nothing else is.
    finish() looks at all of them and exits with a message at the first that is not as expected.
    WITH_STREAM_TAGS: the first stream's tags count where the file itself has none, and names in upper and
    lower case are the same."""

    def __init__(self, folder, with_stream_tags=False):
        self.folder = folder
        self.with_stream_tags = with_stream_tags
        self.states = []
        self.tags_asked = set()
        self.streams_asked = set()
        self.expectations = []

    def state(self, path):
        """PATH as it is now, to be asked about."""
        self.states.append(self.folder / f"{len(self.states)}{path.suffix}")
        shutil.copyfile(path, self.states[-1])
        return len(self.states) - 1

    def expect_tag(self, state, name, value, what):
        """A tag of that name has VALUE; None: there is none."""
        self.tags_asked.add(state)
        self.expectations.append((lambda: (self.tags(state).get(name), value), what))

    def expect_streams(self, state, other, what):
        """The streams of two states are the same, bit by bit."""
        self.streams_asked |= {state, other}
        self.expectations.append((lambda: (self.streams(state), self.streams(other)), what))

    def finish(self):
        for first in range(0, len(self.states), FILES_AT_ONCE):
            self.look_at(range(first, min(first + FILES_AT_ONCE, len(self.states))))
        for compared, what in self.expectations:
            found, expected = compared()
            if found != expected:
                sys.exit(f"ffmpeg, {what}: {str(found)[:2000]!r} where {str(expected)[:2000]!r} was expected")

    def look_at(self, numbers):
        inputs, outputs = [], []
        for at, number in enumerate(numbers):
            inputs += ["-i", str(self.states[number])]
            if number in self.tags_asked:
                outputs += ["-map_metadata", str(at), "-map_chapters", "-1", "-f", "ffmetadata",
                            str(self.folder / f"{number}.format")]
                if self.with_stream_tags:
                    outputs += ["-map_metadata:g", f"{at}:s:0", "-map_chapters", "-1", "-f", "ffmetadata",
                                str(self.folder / f"{number}.stream")]
            if number in self.streams_asked:
                outputs += ["-map", f"{at}:a?", "-map", f"{at}:V?", "-c", "copy", "-f", "streamhash",
                            str(self.folder / f"{number}.hash")]
        run = subprocess.run(["ffmpeg", "-v", "error", "-nostdin", *inputs, *outputs], capture_output=True,
                             text=True)
        if run.returncode != 0:
            sys.exit(f"ffmpeg does not read the states {numbers}:\n{run.stderr}")

    def tags(self, state):
        if not self.with_stream_tags:
            return self.read_tags(f"{state}.format")
        found = {**self.read_tags(f"{state}.stream"), **self.read_tags(f"{state}.format")}
        return {name.lower(): value for name, value in found.items()}

    def read_tags(self, name):
        """ffmpeg's list of tags: NAME=VALUE lines, where "\\" stands before what else would end a name or a
        value. A picture may be among them, as a text."""
        text = (self.folder / name).read_bytes().decode(errors="backslashreplace")
        return {re.sub(r"\\(.)", r"\1", key, flags=re.S): re.sub(r"\\(.)", r"\1", value, flags=re.S)
                for key, value in re.findall(PAIR, text, re.M | re.S)}

    def streams(self, state):
        found = (self.folder / f"{state}.hash").read_text()
        return found or sys.exit(f"no streams in {self.states[state].name}")
