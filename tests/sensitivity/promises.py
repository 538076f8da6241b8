"""The promises of docs/quality.md, and the table of their breakages."""

import re
import tomllib
from pathlib import Path
from typing import NamedTuple

from building import ROOT
from changes import KINDS
from harmless import outdated

PAGE = ROOT / "docs/quality.md"
TABLE = Path(__file__).parent / "breakages"


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
