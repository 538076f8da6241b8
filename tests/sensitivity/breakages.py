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
import json
import os
import random
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import tomllib
from pathlib import Path
from typing import NamedTuple

from building import ROOT, Build, seed_of_commit
from changes import KINDS
from harmless import outdated

PAGE = ROOT / "docs/quality.md"
TABLE = Path(__file__).parent / "breakages"
# The quick ones: the others start displays, or many sessions.
SAMPLED = re.compile(r"unit|desktop|(replay|tour)\..*|faults\.(reading|writing)")
# What makes the tests of a preset in a copy of the tree, and runs one.
IN_COPY = {
    "dev": ["cmake --preset dev", "ctest --test-dir build/dev -R"],
    "check": ["packaging/deb -DPLOTVUE_WERROR=ON -DPLOTVUE_BENCH=ON", "cmake --preset check",
              "cmake --build --preset check", "ctest --test-dir build/check -R"],
    "windows": ["tests/windows/run --only"],
}


class Breakage(NamedTuple):
    promise: str
    file: str
    text: str
    broken: str
    check: str
    filter: str = ""
    preset: str = "dev"

    def applied(self):
        return (ROOT / self.file).read_text(encoding="utf-8").replace(self.text, self.broken)

    def shown(self):
        return " ".join(f"{self.file}: {self.text.strip()} -> {self.broken.strip() or 'nothing'}".split())


def promises():
    """The promises of each section of the page, and whether each is looked at by hand."""
    found, mistakes = {}, []
    before = ""
    for line in PAGE.read_text(encoding="utf-8").splitlines():
        if line.startswith("## "):
            section = found.setdefault(line.removeprefix("## ").lower().replace(" ", "-"), {})
        elif line.startswith("| ") and not line.startswith("| promise |"):
            if not before.startswith("|"):
                mistakes.append(f"The table of {PAGE.name} is interrupted before: {line}")
            promise, how = (cell.strip() for cell in line.split("|")[1:3])
            section[promise] = re.search(r"\bby hand$", how) is not None
        before = line
    return found, mistakes


def table():
    """All breakages, and what is wrong with them."""
    page, mistakes = promises()
    found = []
    for path in sorted(TABLE.glob("*.toml")):
        promised = page.get(path.stem)
        if promised is None:
            mistakes.append(f"{path.name}: the page has no such section.")
            continue
        for entry in tomllib.loads(path.read_text(encoding="utf-8"))["breakage"]:
            one = Breakage(**entry)
            found.append(one)
            times = (ROOT / one.file).read_text(encoding="utf-8").count(one.text) if (ROOT / one.file).exists() else 0
            if times != 1 or one.text == one.broken:
                mistakes.append(f"{path.name}: {one.file} has this {times} times, not once: {one.shown()}")
            if one.promise not in promised:
                mistakes.append(f"{path.name}: the page does not promise: {one.promise}")
    for section, promised in page.items():
        for promise, by_hand in promised.items():
            if not by_hand and not any(one.promise == promise for one in found):
                mistakes.append(f"{section}.toml: nothing breaks the promise: {promise}")
    mistakes += outdated(change for kind in KINDS.values() for change in kind())
    return found, mistakes


def named(check, name):
    return name == check or re.fullmatch(re.escape(check) + r"\.\d", name)


def tests_of(build):
    shown = subprocess.run(["ctest", "--test-dir", build, "--show-only=json-v1"], capture_output=True, text=True,
                           check=True).stdout
    return json.loads(shown)["tests"]


def passes(test, programs, folder):
    """Runs a test of ctest with other programs in place of its own."""
    properties = {each["name"]: each["value"] for each in test["properties"]}
    env = os.environ | dict(each.split("=", 1) for each in properties.get("ENVIRONMENT", []))
    env = {key: programs.get(value, value) for key, value in env.items()}
    command = [programs.get(word, word) for word in test["command"]]
    with (folder / "output").open("w+", encoding="utf-8") as output:
        process = subprocess.Popen(command, cwd=properties["WORKING_DIRECTORY"], env=env, stdin=subprocess.DEVNULL,
                                   stdout=output, stderr=output, start_new_session=True)
        try:
            status = process.wait(properties.get("TIMEOUT", 120))
            output.seek(0)
            return status == 0 and "Ran 0 tests" not in output.read()
        except subprocess.TimeoutExpired:
            return False
        finally:
            try:
                os.killpg(process.pid, signal.SIGKILL)
            except ProcessLookupError:
                pass
            process.wait()


class Checks:
    """The checks of a build directory."""

    def __init__(self, directory):
        self.directory = directory.resolve()
        self.tests = tests_of(self.directory)
        self.builds = {}
        self.good = {}

    def of(self, one):
        found = [test for test in self.tests if named(one.check, test["name"])]
        for test in found:
            command = test["command"]
            if one.filter and "python" in command[0]:
                command = [*command[:-1], "-k", one.filter, command[-1]]
            elif one.filter:
                command = [*command, f"--gtest_filter={one.filter}"]
            yield {**test, "command": command}

    def programs(self, test):
        """The test's programs that are built here, as paths in the build directory."""
        environment = next((each["value"] for each in test["properties"] if each["name"] == "ENVIRONMENT"), [])
        words = [*test["command"], *(each.split("=", 1)[1] for each in environment)]
        paths = [Path(word) for word in words if word.startswith(f"{self.directory}/")]
        return [str(path.relative_to(self.directory)) for path in paths if path.suffix != ".py" and not path.is_dir()]

    def build(self, programs):
        if programs not in self.builds:
            self.builds[programs] = Build(self.directory, programs, sys.stdout)
        return self.builds[programs]

    def notices(self, one, unbroken):
        """Whether a test fails with the breakage, or a word for why that is not known."""
        tests = list(self.of(one))
        if not tests:
            return "no such check"
        programs = tuple(dict.fromkeys(program for test in tests for program in self.programs(test)))
        if one.preset == "check" or not one.file.startswith("src/") or not programs:
            return self.notices_in_copy(one)
        build = self.build(programs)
        with tempfile.TemporaryDirectory(prefix="plotvue-breakage-") as directory:
            folder = Path(directory)
            if unbroken:
                key = (one.check, one.filter)
                if key not in self.good:
                    self.good[key] = all(passes(test, {}, folder) for test in tests)
                if not self.good[key]:
                    return "fails anyway"
            new = {}
            for program in programs:
                objects = build.compiled(one.file, one.applied(), program, folder)
                if objects is None:
                    return "does not compile"
                if objects:
                    target = folder / Path(program).name
                    build.linked(objects, program, target)
                    new[str(self.directory / program)] = str(target)
            if not new:
                return "is not in the check's program"
            return not all(passes(test, new, folder) for test in tests)

    def notices_in_copy(self, one):
        copy = ROOT / "build/breakages"
        *steps, test = (command.split() for command in IN_COPY[one.preset])
        for change in ({}, {one.file: one.applied()}):
            synchronise(copy, change)
            for command in [*steps, [*test, f"^{re.escape(one.check)}$"]]:
                run = subprocess.run(command, cwd=copy, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                                     check=False)
                if run.returncode and command[0] != test[0]:
                    break
            failed = re.search(r"tests passed, (\d+) tests? failed out of", run.stdout)
            if not failed or (not change and failed[1] != "0"):
                print(run.stdout)
                return "fails anyway" if failed else "cannot be tested"
        return failed[1] != "0"


def synchronise(copy, change):
    """Makes `copy` a copy of the source tree, with the texts of `change` in place of some files. Only what differs is
    written, so that only that is built again."""
    for folder, folders, names in os.walk(ROOT):
        folders[:] = [name for name in folders if name not in ("build", ".git", "__pycache__")]
        there = copy / Path(folder).relative_to(ROOT)
        there.mkdir(parents=True, exist_ok=True)
        for old in set(os.listdir(there)) - {*names, *folders, "build"}:
            (there / old).unlink()
        for name in names:
            source = Path(folder, name)
            text = change.get(str(source.relative_to(ROOT)), "").encode() or source.read_bytes()
            if not (there / name).exists() or (there / name).read_bytes() != text:
                (there / name).write_bytes(text)
                shutil.copymode(source, there / name)


def tried(breakages, directories, unbroken):
    checks = {}
    unnoticed = 0
    print("| promise | breakage | check | noticed |\n|---|---|---|---|")
    for one in breakages:
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
    quick = [one for one in breakages if SAMPLED.fullmatch(one.check) and one.file.startswith("src/")]
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
