"""alike.py PROGRAM STORY: checks that PROGRAM has the same output and files in memory and on the desktop.

STORY is a script, or a capture, which is played with tours (tour.py). The expected output of a script is in the file
beside it that ends in `.expected`, written by hand with one line for each printed line. An object there names only the
members that matter, and null matches anything. Empty lines and lines that begin with # are ignored.
"""

import difflib
import math
import os
import subprocess
import sys
import tempfile
from pathlib import Path

from tests.replay.replay import ENVIRONMENT, parsed, working_directory
from tests.replay.tour import tours

PATIENCE = 150  # seconds, enough for a busy machine


def files(place):
    """The contents of the files in the directory of a session, by name."""
    return {path.name: path.read_bytes() for path in sorted(place.iterdir()) if path.is_file()}


def played(command, script, place, env=None, patience=PATIENCE):
    """Plays the script in a new directory; returns the output and the files that were written."""
    working_directory(place)
    # Files instead of pipes, because processes that Wine starts would keep a pipe open.
    with tempfile.TemporaryFile() as printed, tempfile.TemporaryFile() as read:
        read.write(script.encode())
        read.seek(0)
        subprocess.run(command, cwd=place, env=env or {**os.environ, **ENVIRONMENT}, stdin=read, stdout=printed,
                       check=True, timeout=patience)
        printed.seek(0)
        return printed.read(), files(place)


def check_alike(one, other):
    """Exits with the differences if the output or the files differ."""
    if one[0] != other[0]:
        lines = [printed.decode("utf-8", "backslashreplace").splitlines() for printed in (one[0], other[0])]
        sys.exit("\n".join(difflib.unified_diff(*lines, "in memory", "elsewhere", n=0, lineterm="")))
    if not one[0]:
        sys.exit("Nothing was printed.")
    if one[1] != other[1]:
        sys.exit(f"The small files differ: {one[1]} {other[1]}")


def holds(found, expected):
    """Whether `found` matches `expected`: null matches anything, and decimals may differ in their last digits."""
    if isinstance(expected, dict) and isinstance(found, dict):
        if "notice" in found and "notice" not in expected:
            return False  # a notice is never there unnoticed
        return all(name in found and holds(found[name], value) for name, value in expected.items())
    if isinstance(expected, list) and isinstance(found, list):
        return len(expected) == len(found) and all(map(holds, found, expected))
    if expected is None:
        return True
    if isinstance(expected, float) and isinstance(found, (int, float)):
        return math.isclose(found, expected, rel_tol=1e-9)
    return found == expected


def check_expected(printed, path):
    expected = [line for line in path.read_bytes().splitlines() if line and not line.startswith(b"#")]
    lines = printed.splitlines()
    for number, (line, wanted) in enumerate(zip(lines, expected), 1):
        if not holds(parsed(line), parsed(wanted)):
            sys.exit(f"Printed line {number} is\n{line.decode()}\nand should hold\n{wanted.decode()}")
    if len(lines) != len(expected):
        sys.exit(f"{len(lines)} lines were printed, {len(expected)} are expected.")


def check_script(program, path, top):
    script = path.read_text()
    printed = [played([program, f"--platform={platform}"], script, top / platform)
               for platform in ("recording", "desktop")]
    check_alike(*printed)
    check_expected(printed[0][0], path.with_suffix(".expected"))


def check_capture(program, capture, top):
    for number, (tour, directory, ending) in enumerate(tours(program, top, f"{capture.parent.name}/{capture.name}")):
        if ending != (0, "") or not tour.over:
            sys.exit(f"The tour ended with {ending}, and Exit with {tour.over}.")
        script = "".join(line + "\n" for line in tour.script)
        desktop = played([program, "--platform=desktop"], script, top / f"desktop{number}")
        check_alike((b"".join(tour.printed), files(directory)), desktop)


def main():
    program, story = Path(sys.argv[1]).resolve(), Path(sys.argv[2]).resolve()
    with tempfile.TemporaryDirectory(prefix="plotvue-story-") as top:
        check = check_script if story.suffix == ".script" else check_capture
        check(program, story, Path(top))


if __name__ == "__main__":
    main()
