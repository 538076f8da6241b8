"""Runs the checks of promises with broken programs."""

import json
import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
from pathlib import Path

from building import ROOT, Build

# What makes the tests of a preset in a copy of the tree, and runs one.
IN_COPY = {
    "dev": ["cmake --preset dev", "ctest --test-dir build/dev -R"],
    "check": ["packaging/deb -DPLOTVUE_WERROR=ON -DPLOTVUE_BENCH=ON", "cmake --preset check",
              "cmake --build --preset check", "ctest --test-dir build/check -R"],
    "windows": ["tests/windows/run --only"],
}


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


def synchronise(copy, change):
    """Makes `copy` a copy of the source tree, with the texts of `change` in place of some files. Only what differs is
    written, so that only that is built again."""
    for folder, folders, names in os.walk(ROOT):
        folders[:] = [name for name in folders if name not in ("build", ".git", "__pycache__")]
        there = copy / Path(folder).relative_to(ROOT)
        there.mkdir(parents=True, exist_ok=True)
        for old in set(os.listdir(there)) - {*names, *folders, "build"}:
            subprocess.run(["rm", "-r", there / old], check=True)
        for name in names:
            source = Path(folder, name)
            text = change.get(str(source.relative_to(ROOT)), "").encode() or source.read_bytes()
            if not (there / name).exists() or (there / name).read_bytes() != text:
                (there / name).write_bytes(text)
                shutil.copymode(source, there / name)


class Copy:
    """A copy of the source tree, for what is not broken in a program alone."""

    def __init__(self, breakages):
        self.place = ROOT / "build/breakages"
        self.checks = {one.preset: {each.check for each in breakages if each.preset == one.preset} for one in breakages}
        self.good = {}

    def failures(self, preset, checks, change):
        """How many of the checks fail; none where it cannot be told."""
        synchronise(self.place, change)
        *steps, test = (command.split() for command in IN_COPY[preset])
        for command in [*steps, [*test, f"^({'|'.join(map(re.escape, checks))})$"]]:
            run = subprocess.run(command, cwd=self.place, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                                 check=False)
            if run.returncode and command in steps:
                break
        found = re.search(r"tests passed, (\d+) tests? failed out of", run.stdout)
        if not found or (not change and found[1] != "0"):
            print(run.stdout)
        return int(found[1]) if found else None

    def notices(self, one):
        """As Checks.notices."""
        if one.preset not in self.good:
            self.good[one.preset] = self.failures(one.preset, self.checks[one.preset], {}) == 0
        if not self.good[one.preset]:
            return "a check fails anyway"
        failed = self.failures(one.preset, [one.check], {one.file: one.applied()})
        return "does not build" if failed is None else failed > 0
