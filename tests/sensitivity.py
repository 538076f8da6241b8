#!/usr/bin/python3
"""Do the tests notice when a number of a monthly screen is wrong by one?

    tests/sensitivity.py [--only TEXT] [--every N] [--jobs N] [--keep DIRECTORY]

Takes each number in src/history/frm*.cpp and salesfields.h and moves it by +1 and by -1, swaps neighbours in
the recognition order, and swaps the windows of neighbours in the dispatch table: one change at a time, in a
copy of the tree, where the unit tests are built and run. A change after which all tests still pass has
survived. Prints the score and the survivors; exits 1 when one survived that is not in `harmless`.

--only TEXT       changes whose name holds TEXT: "frmsite.cpp", "recognition"
--every N         each Nth change only, for a sample
--jobs N          that many copies at work at the same time (1)
--keep DIRECTORY  where the copies are built, and stay for the next run; otherwise they are temporary

Half an hour for all on two idle processors. Needs what the unit tests need.
"""

import argparse
import concurrent.futures
import pathlib
import queue
import re
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
TEST_SECONDS = 60

# Survivors that change nothing that could be seen, by the name of the change.
harmless = {}


def blanked(text):
    """The text with comments and literals blanked out, so that what is left can be found by position."""
    kept = re.sub(r'//[^\n]*|#include[^\n]*|"(?:\\.|[^"\\])*"', lambda m: " " * len(m[0]), text)
    assert len(kept) == len(text)
    return kept


def number_changes(path):
    text = (ROOT / path).read_text()
    for number in re.finditer(r"\b\d+\b", blanked(text)):
        start, end = number.span()
        before = text.rfind("\n", 0, start) + 1
        line = text.count("\n", 0, start) + 1
        for step in (1, -1):
            moved = str(int(number[0]) + step)
            shown = (text[before:start] + f"[{number[0]} -> {moved}]" + text[end:text.find("\n", end)]).strip()
            yield path, f"{path}:{line}: {shown}", text[:start] + moved + text[end:]


def swaps(path, pattern):
    """Exchanges what the pattern's group matches between each two neighbours."""
    text = (ROOT / path).read_text()
    found = list(re.finditer(pattern, text))
    assert found, f"{path} has changed: nothing in it looks like {pattern}"
    for one, two in zip(found, found[1:]):
        swapped = text[: one.start(1)] + two[1] + text[one.end(1) : two.start(1)] + one[1] + text[two.end(1) :]
        yield path, f"{path}: {one[1]} <-> {two[1]}", swapped


def all_changes():
    screens = sorted((ROOT / "src/history").glob("frm*.cpp")) + [ROOT / "src/history/salesfields.h"]
    for screen in screens:
        yield from number_changes(str(screen.relative_to(ROOT)))
    yield from swaps("src/app/recognition.cpp", r"    (Marker\{u\"[^}]*\}),")
    yield from swaps("src/app/application.cpp", r"\{u\"[^\"]+\", ([^}]+)\}")


class Copy:
    """A copy of the tree with its build."""

    def __init__(self, directory):
        self.tree = directory / "tree"
        self.build = directory / "build"
        self.tree.mkdir(parents=True, exist_ok=True)
        listed = ["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"]
        names = subprocess.run(listed, cwd=ROOT, check=True, capture_output=True, text=True).stdout
        files = [name for name in names.split("\0") if name and (ROOT / name).exists()]
        subprocess.run(["cp", "-a", "--parents", "--update", *files, self.tree], cwd=ROOT, check=True)
        subprocess.run(
            ["cmake", "-S", self.tree, "-B", self.build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE="],
            check=True,
            stdout=subprocess.DEVNULL,
        )
        if not self.passes():
            sys.exit("The tests fail before anything is changed.")

    def passes(self):
        quiet = {"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL}
        if subprocess.run(["ninja", "-C", self.build, "-j2", "unittests"], **quiet).returncode != 0:
            return False
        tests = [self.build / "tests/unittests", "--gtest_fail_fast", "--gtest_filter=-*Chart*"]
        try:
            return subprocess.run(tests, timeout=TEST_SECONDS, **quiet).returncode == 0
        except subprocess.TimeoutExpired:
            return False

    def survives(self, path, text):
        file = self.tree / path
        whole = file.read_text()
        file.write_text(text)
        try:
            return self.passes()
        finally:
            file.write_text(whole)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--only", default="")
    parser.add_argument("--every", type=int, default=1)
    parser.add_argument("--jobs", type=int, default=1)
    parser.add_argument("--keep", type=pathlib.Path)
    options = parser.parse_args()

    changes = [change for change in all_changes() if options.only in change[1]][:: options.every]
    with tempfile.TemporaryDirectory() as temporary:
        place = options.keep or pathlib.Path(temporary)
        copies = queue.Queue()
        for job in range(options.jobs):
            copies.put(Copy(place / str(job)))

        def tried(change):
            path, name, text = change
            copy = copies.get()
            try:
                return name, copy.survives(path, text)
            finally:
                copies.put(copy)

        survivors = []
        with concurrent.futures.ThreadPoolExecutor(options.jobs) as pool:
            for done, (name, survived) in enumerate(pool.map(tried, changes), 1):
                if survived:
                    survivors.append(name)
                    print(name, "-", harmless.get(name, "SURVIVED"), flush=True)
                if sys.stderr.isatty():
                    print(f"{done}/{len(changes)}", end="\r", file=sys.stderr)

    unexplained = [name for name in survivors if name not in harmless]
    print(f"{len(changes)} changes, {len(changes) - len(survivors)} noticed, {len(survivors)} survived, "
          f"{len(survivors) - len(unexplained)} of them harmless")
    return 1 if unexplained else 0


if __name__ == "__main__":
    sys.exit(main())
