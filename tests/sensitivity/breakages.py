#!/usr/bin/python3 -B
"""Breaks the promises of docs/quality.md on purpose, one at a time, and looks whether their checks notice.

    tests/sensitivity/breakages.py table                         compares it, and harmless.toml, with page and sources
    tests/sensitivity/breakages.py try [PATTERN] [--preset NAME] tries the breakages, or those whose promise, file or
                                                                 check matches the regular expression
    tests/sensitivity/breakages.py sample COUNT BUILD            tries some at random, other ones for each commit

The table is breakages/SECTION.toml, a file for each section of the page, with entries such as

    [[breakage]]
    promise = "Every screen is recognised, …"     the first cell of the page's row
    file = "src/app/recognition.cpp"              what is broken
    text = "…"                                    occurs once in the file
    broken = "…"                                  replaces it
    check = "unit"                                ctest's name of the test that must fail; "desktop": of desktop.0 to .3
    filter = "Recognition*"                       only these of its tests, if any are named: GoogleTest's filter, or
                                                  in Python a part of the name
    preset = "dev"                                the build with that test, unless it is this one: "sanitize", "check"
                                                  (the package) or "windows"

A row of the page needs an entry unless its check is done by hand. Nothing changes in the source tree: a source is
compiled elsewhere and linked in place of the one that it breaks, and the test runs the new program; for what is not
compiled into a program the test runs in a copy of the tree. `try` first looks whether the check passes without the
breakage. Prints a table, and exits 1 if a check did not notice its breakage.
"""

import argparse
import random
import re
import sys
from pathlib import Path

from building import ROOT, seed_of_commit
from checks import Checks, Copy
from promises import table

# The quick ones: the others start displays, or many sessions.
SAMPLED = re.compile(r"unit|desktop|(replay|tour)\..*|faults\.(reading|writing)")


def needs_copy(one):
    """Whether no program that a test starts is made of what is broken."""
    return one.preset in ("check", "windows") or not one.file.startswith("src/") or one.check.startswith("check.")


def tried(breakages, directories, unbroken):
    checks, copy = {}, Copy([one for one in breakages if needs_copy(one)])
    unnoticed = 0
    print("| promise | breakage | check | noticed |\n|---|---|---|---|")
    for one in breakages:
        if needs_copy(one):
            end = copy.notices(one)
        else:
            directory = directories[one.preset]
            if directory not in checks:
                checks[directory] = Checks(directory)
            end = checks[directory].notices(one, unbroken)
        unnoticed += end is not True
        end = {True: "noticed", False: "NOT noticed"}.get(end, f"NOT TRIED: {end}")
        shown = one.shown().replace("|", "\\|")
        check = f"{one.check} {one.filter}".strip()
        print(f"| {one.promise} | {shown} | {check} | {end} |", flush=True)
    print(f"{len(breakages) - unnoticed} of {len(breakages)} noticed")
    return 1 if unnoticed else 0


def sampled(breakages, count, build):
    seed = seed_of_commit()
    print(f"{count} breakages, chosen with the seed {seed}.")
    quick = [one for one in breakages if SAMPLED.fullmatch(one.check) and one.preset == "dev"]
    return tried(random.Random(seed).sample(quick, count), {"dev": build}, False)


def main():
    parser = argparse.ArgumentParser(usage=__doc__)
    commands = parser.add_subparsers(dest="command", required=True)
    commands.add_parser("table")
    trying = commands.add_parser("try")
    trying.add_argument("pattern", nargs="?", default="")
    trying.add_argument("--preset")
    sample = commands.add_parser("sample")
    sample.add_argument("count", type=int)
    sample.add_argument("build", type=Path)
    options = parser.parse_args()

    breakages, mistakes = table()
    for mistake in mistakes:
        print(mistake)
    match options.command:
        case "table":
            return 1 if mistakes else 0
        case "sample":
            return sampled(breakages, options.count, options.build)
    chosen = [one for one in breakages if re.search(options.pattern, f"{one.promise}\n{one.file}\n{one.check}")
              and options.preset in (None, one.preset)]
    return tried(chosen, {one.preset: ROOT / "build" / one.preset for one in chosen}, True)


if __name__ == "__main__":
    sys.exit(main())
