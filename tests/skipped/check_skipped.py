"""check_skipped.py BUILD: lists the tests that the last run of ctest in BUILD skipped, and fails when one of
them is not allowed to by may_skip.txt. Reads ctest's log, since a test that a program of many skips is no
skipped test to ctest."""
import fnmatch
import pathlib
import re
import sys

build = pathlib.Path(sys.argv[1])
log = (build / "Testing/Temporary/LastTest.log").read_text(errors="replace")
sanitized = re.search(r"^VELMORA_SANITIZE:\w+=\S", (build / "CMakeCache.txt").read_text(), re.MULTILINE)

allowed = []
for line in (pathlib.Path(__file__).parent / "may_skip.txt").read_text().splitlines():
    if line and not line.startswith("#"):
        pattern, where, why = (cell.strip() for cell in line.split("|"))
        if where == "anywhere" or sanitized:
            allowed.append((pattern, why))

refused = False
for test in sorted(set(re.findall(r"^\[  SKIPPED \] ([\w/]+\.[\w/]+)", log, re.MULTILINE))):
    reason = next((why for pattern, why in allowed if fnmatch.fnmatchcase(test, pattern)), None)
    refused = refused or reason is None
    print(f"Skipped: {test} ({reason})" if reason else f"Skipped, and should have run: {test}")
sys.exit(refused)
