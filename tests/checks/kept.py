"""Compares docs/kept.md with the code and the tests. Every entry is named in a comment of the code, every name there is
an entry, and the captures and tests that an entry names exist. Prints what does not fit, and exits 1 if anything."""

import re
import sys
from pathlib import Path

PAGE = Path("docs/kept.md")
CAPTURES = (Path("samples"), Path("tests/replay/scripts/captures"))
NAMED = re.compile(r"Kept: ([^()]*) \(docs/kept\.md\)")
FIELDS = re.compile(r"- Capture: (.+) Told: (.+) Test: (.+)")


def entries():
    """The text of each entry, without line ends, by its name."""
    sections = PAGE.read_text(encoding="utf-8").split("\n### ")[1:]
    for section in sections:
        name, text = section.split("\n## ")[0].split("\n", 1)
        yield name, " ".join(text.split())


def named_in_code():
    """The names in the comments of the code, and where they are."""
    for path in sorted(Path("src").rglob("*.[ch]*")):
        text = re.sub(r"\s*\n\s*//", "", path.read_text(encoding="utf-8"))
        for names in NAMED.findall(text):
            for name in names.split(", "):
                yield name, path
        if text.count("docs/kept.md") != len(NAMED.findall(text)):
            yield "a comment that is not \"Kept: … (docs/kept.md).\"", path


def wrong_captures(text):
    for file, line in re.findall(r"`([\w-]+\.txt)(?::(\d+))?`", text):
        paths = [folder / file for folder in CAPTURES if (folder / file).exists()]
        if not paths or int(line or 1) > len(paths[0].read_bytes().split(b"\r")):
            yield f"there is no {file}:{line}"


def wrong_tests(text):
    file = Path()
    tests = 0
    for word in re.findall(r"`([^`]+)`", text):
        if re.search(r"\.(cpp|py)$", word):
            file = Path("tests", word) if "/" in word else Path("tests/unit", word)
        elif not file.exists():
            yield f"there is no {file}"
        else:
            tests += 1
            suite, name = word.split(".")
            found = rf"TEST(_[FP])?\({suite},\s*{name}\)" if file.suffix == ".cpp" else rf"def {name}\("
            if not re.search(found, file.read_text(encoding="utf-8")):
                yield f"{file} has no test {word}"
    if tests == 0:
        yield "it names no test"


def faults():
    in_code = list(named_in_code())
    known = {name.lower(): text for name, text in entries()}
    for name, path in in_code:
        if name.lower() not in known:
            yield f"{path}: {PAGE} has no entry: {name}"
    named = {name.lower() for name, _ in in_code}
    for name, text in entries():
        if name.lower() not in named:
            yield f"{PAGE}: {name}: no code names it"
        fields = FIELDS.search(text)
        if not fields:
            yield f"{PAGE}: {name}: it needs \"- Capture: … Told: … Test: …\""
            continue
        for wrong in (*wrong_captures(fields[1]), *wrong_tests(fields[3])):
            yield f"{PAGE}: {name}: {wrong}"


found = list(faults())
print("\n".join(found))
sys.exit(1 if found else 0)
