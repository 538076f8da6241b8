"""Builds programs with changed sources, beside a build directory: neither it nor the source tree is touched."""

import collections
import json
import os
import random
import shlex
import shutil
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]


def seed_of_commit():
    """A seed for what is chosen at random: the commit, or where there is none a number."""
    run = subprocess.run(["git", "rev-parse", "HEAD"], cwd=ROOT, capture_output=True, text=True, check=False)
    return run.stdout.strip() or str(random.randrange(1_000_000))


class Build:
    """Compiles a changed file with the flags of a build directory, and links programs with it."""

    def __init__(self, directory, programs, errors=subprocess.DEVNULL):
        """`programs` are targets of the build directory, such as "tests/unittests"; they are built first. `errors` is
        where the compiler says why it does not compile a change."""
        self.directory = directory.resolve()
        self.errors = errors
        run = subprocess.run(["ninja", *programs], cwd=self.directory, capture_output=True, text=True, check=False)
        if run.returncode:
            sys.exit(f"{self.directory} cannot build {' '.join(programs)}:\n{run.stdout}{run.stderr}")
        commands = json.loads((self.directory / "compile_commands.json").read_text(encoding="utf-8"))
        self.compilers = collections.defaultdict(list)  # the commands for a source: more than one target may have it
        for each in commands:
            self.compilers[os.path.relpath(each["file"], ROOT)].append(shlex.split(each["command"]))
        self.linkers = {program: self.linker(program) for program in programs}
        self.users = self.users_of_headers()

    def ninja(self, *words):
        return subprocess.run(["ninja", "-t", *words], cwd=self.directory, capture_output=True, text=True,
                              check=True).stdout

    def linker(self, program):
        """The words of the command that links a program."""
        steps = self.ninja("commands", program).splitlines()
        words = shlex.split(next(line for line in reversed(steps) if f" -o {program} " in line)
                            .removeprefix(": && ").split(" && ")[0])
        if shutil.which("ld.lld"):
            words.insert(1, "-fuse-ld=lld")
        return words

    def users_of_headers(self):
        """Which sources of src/ include a header."""
        users = collections.defaultdict(list)
        for entry in self.ninja("deps").split("\n\n"):
            paths = [os.path.relpath(os.path.join(self.directory, line.strip()), ROOT)
                     for line in entry.splitlines()[1:]]
            source = next((path for path in paths if path.startswith("src/") and path in self.compilers), None)
            if source:
                for path in paths:
                    if source not in users[path]:
                        users[path].append(source)
        return users

    def command(self, source, program):
        """The command that compiles the source for the program; none if the program does not have it."""
        for words in self.compilers[source]:
            target = words[words.index("-o") + 1]  # src/CMakeFiles/ROOM.dir/…
            folder, inside = target.split("/CMakeFiles/")
            room = f"{folder}/lib{inside.split('.dir/')[0]}.a"
            if target in self.linkers[program] or room in self.linkers[program]:
                return words
        return None

    def compiled(self, path, text, program, place):
        """The objects of the program that a changed file leads to, as a list of (object, its place in the build
        directory); none where it does not compile. It is empty if the program does not have the file."""
        if path.endswith(".h"):
            copy = place / "include" / Path(path).relative_to("src")
            copy.parent.mkdir(parents=True, exist_ok=True)
            sources = {user: ROOT / user for user in self.users[path]}
        else:
            copy = place / Path(path).name
            sources = {path: copy}
        copy.write_text(text, encoding="utf-8")
        objects = []
        for user, source in sources.items():
            words = self.command(user, program)
            if not words:
                continue
            replaced = words[words.index("-o") + 1]
            words = words[1:] if "ccache" in words[0] else words
            target = place / f"{len(objects)}.o"
            words = words[:words.index("-o")] + ["-w", "-o", str(target), "-c", str(source)]
            words.insert(1, f"-I{place}/include")
            if subprocess.run(words, cwd=self.directory, stderr=self.errors, check=False,
                              env=os.environ | {"CCACHE_DISABLE": "1"}).returncode:
                objects = None
                break
            objects.append((str(target), replaced))
        copy.unlink()
        return objects

    def linked(self, objects, program, target):
        """Links the program with these objects in place of its own."""
        words = list(self.linkers[program])
        words[words.index("-o") + 1] = str(target)
        for one, replaced in objects:
            if replaced in words:
                words[words.index(replaced)] = one
            else:  # the linker takes nothing from a library that an object has
                words.insert(next(at for at, word in enumerate(words) if word.endswith(".o")), one)
        subprocess.run(words, cwd=self.directory, check=True)
