#!/usr/bin/python3 -B
"""Counts tests. Every test run ends with its last line: "N passed, M failed".

    verdict.py ctest BUILD [CTEST-OPTION ...]   runs the tests of BUILD and counts them
    verdict.py test NAME COMMAND ...            runs a command that is one test
    verdict.py part NAME COMMAND ...            runs a command that counts tests itself
    verdict.py failed NAME                      counts a failure
    verdict.py sum                              prints the sum; fails if a test failed or none passed

The counts are kept in the folder PLOTVUE_VERDICT. Counted as failed are also: a test that is skipped, a run of ctest
without results, a part without tests, and a failure of either that no test explains.
"""

import os
import re
import subprocess
import sys
from pathlib import Path
from xml.etree import ElementTree

# What test programs print that did not test anything: Python's unittest and GoogleTest.
NOT_TESTED = re.compile(r"^(OK|FAILED) \(.*skipped=\d|^Ran 0 tests|\[  SKIPPED \]|^\[=+\] 0 tests from", re.MULTILINE)


def counted(results, status):
    """The numbers of tests that passed and failed, from the JUnit file that ctest wrote, and ctest's exit status."""
    try:
        cases = list(ElementTree.parse(results).iter("testcase"))
    except (OSError, ElementTree.ParseError):
        cases = []
    failed = 0
    for case in cases:
        tested = case.get("status") == "run"
        if tested and NOT_TESTED.search(case.findtext("system-out") or ""):
            print(f"{case.get('name')} skipped tests.")
            tested = False
        failed += not tested
    passed = len(cases) - failed
    if not cases or (status and not failed):
        failed += 1
    return passed, failed


def lines(name):
    file = Path(os.environ["PLOTVUE_VERDICT"]) / name
    return file.read_text(encoding="utf-8").splitlines() if file.exists() else []


def append(name, line):
    with (Path(os.environ["PLOTVUE_VERDICT"]) / name).open("a", encoding="utf-8") as file:
        file.write(line + "\n")


def remark(sentence):
    """Has the sum tell something about a test that passed, such as a second try."""
    if "PLOTVUE_VERDICT" in os.environ:
        append("remarks", sentence)


def add(passed, failed):
    append("counts", f"{passed} {failed}")
    return 1 if failed else 0


def total():
    counts = [tuple(map(int, line.split())) for line in lines("counts")]
    return tuple(map(sum, zip(*counts))) if counts else (0, 0)


def fail(name):
    print(f"{name} failed.")
    return add(0, 1)


def status_of(command):
    return subprocess.run(command, check=False).returncode


def run_ctest(build, options):
    results = Path(build).resolve() / "results.xml"
    results.unlink(missing_ok=True)
    status = status_of(["ctest", "--test-dir", build, "--timeout", "120", "--progress", "--output-on-failure",
                        "--test-output-size-passed", "1000000", "--output-junit", results, *options])
    return add(*counted(results, status))


def run_part(name, command):
    before = total()
    status = status_of(command)
    passed, failed = (after - earlier for after, earlier in zip(total(), before))
    return fail(name) if not failed and (status or not passed) else int(failed > 0)


def print_sum():
    for line in lines("remarks"):
        print(line)
    passed, failed = total()
    print(f"{passed} passed, {failed} failed")
    return 0 if passed and not failed else 1


def main():
    match sys.argv[1:]:
        case ["ctest", build, *options]:
            return run_ctest(build, options)
        case ["test", name, *command] if command:
            return fail(name) if status_of(command) else add(1, 0)
        case ["part", name, *command] if command:
            return run_part(name, command)
        case ["failed", name]:
            return fail(name)
        case ["sum"]:
            return print_sum()
    print(__doc__, file=sys.stderr)
    return 64


if __name__ == "__main__":
    sys.exit(main())
