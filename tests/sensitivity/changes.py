"""The changes that break PlotVue on purpose, one at a time."""

import re
from typing import NamedTuple

from building import ROOT

SCREENS = ["history", "group", "ranked", "app"]
LAYOUT = ["src/capture/lines.cpp", "src/capture/lines.h", "src/capture/month.cpp"]
COMPUTED = ["capture", "files", *SCREENS, "window", "platform", "chart"]

OPERATORS = {" + ": " - ", " - ": " + ", " * ": " / ", " / ": " * ", " % ": " / ", " += ": " -= ", " -= ": " += ",
             " < ": " <= ", " <= ": " < ", " > ": " >= ", " >= ": " > ", " == ": " != ", " != ": " == ",
             " && ": " || ", " || ": " && ", " | ": " & ", " & ": " | ", " << ": " >> ", " >> ": " << ",
             "++": "--", "--": "++", "std::min": "std::max", "std::max": "std::min", "floor": "ceil", "ceil": "floor",
             "(!": "("}


class Change(NamedTuple):
    kind: str
    path: str
    line: int
    shown: str
    text: str  # the whole file, changed

    def __str__(self):
        return f"{self.path}:{self.line}: {self.shown}"


def code_of(path):
    """The file's text, and the same with comments, literals and includes blanked out."""
    text = (ROOT / path).read_text(encoding="utf-8")
    blanks = r'//[^\n]*|#[^\n]*|"(?:\\.|[^"\\])*"|u?\'(?:\\.|[^\'\\])+\''
    return text, re.sub(blanks, lambda found: " " * len(found[0]), text)


def replaced(kind, path, text, start, end, by):
    first = text.rfind("\n", 0, start) + 1
    last = text.find("\n", end)
    shown = f"{text[first:start]}[{text[start:end]} -> {by}]{text[end:last]}"
    return Change(kind, path, text.count("\n", 0, start) + 1, " ".join(shown.split()), text[:start] + by + text[end:])


def swapped(kind, path, text, one, two):
    """Exchanges two spans."""
    a, b = text[slice(*one)], text[slice(*two)]
    shown = " ".join(f"{a} <-> {b}".split())
    return Change(kind, path, text.count("\n", 0, one[0]) + 1, shown,
                  text[:one[0]] + b + text[one[1]:two[0]] + a + text[two[1]:])


def sources(rooms, suffix=".cpp"):
    for room in rooms:
        for path in sorted((ROOT / "src" / room).glob("*" + suffix)):
            if path.name.endswith("_windows.cpp"):
                continue  # another system's
            yield str(path.relative_to(ROOT))


def numbers(kind, path):
    """Each number, one more and one less, and each flag the other way."""
    text, code = code_of(path)
    for found in re.finditer(r"(?<![\w.])(?:0x[0-9A-Fa-f]+|\d+)(?=u?\b)|\btrue\b|\bfalse\b", code):
        start, end = found.span()
        line = code[code.rfind("\n", 0, start) + 1:code.find("\n", end)]
        # What else a header says in numbers is the size of a type, or what a member is before it is set.
        if path.endswith(".h") and "constexpr" not in line and not path.endswith("salesfields.h"):
            continue
        if found[0] in ("true", "false"):
            yield replaced(kind, path, text, start, end, "false" if found[0] == "true" else "true")
        else:
            for step in (1, -1):
                yield replaced(kind, path, text, start, end, str(int(found[0], 0) + step))


def fields():
    """Each line, column, width, slot, count and flag of the screens."""
    for path in [*LAYOUT, *sources(SCREENS), *sources(SCREENS, ".h")]:
        yield from numbers("fields", path)


def members(code, start):
    """Spans between the commas of the braces that open at `start`."""
    depth, begin, spans = 0, start + 1, []
    for at in range(start, len(code)):
        depth += (code[at] in "{([") - (code[at] in "})]")
        if depth == 0 or (depth == 1 and code[at] == ","):
            inside = code[begin:at]
            if inside.strip():
                spans.append((begin + len(inside) - len(inside.lstrip()), begin + len(inside.rstrip())))
            begin = at + 1
        if depth == 0:
            return spans
    raise ValueError("braces without an end")


def neighbours(kind, path, opening):
    """Swaps the neighbours in each list that begins so."""
    text, code = code_of(path)
    for found in re.finditer(opening, code):
        spans = members(code, found.end() - 1)
        for one, two in zip(spans, spans[1:]):
            yield swapped(kind, path, text, one, two)


def order():
    """Neighbours in the list of screens, their windows, and the rules of the ranked screens."""
    yield from neighbours("order", "src/app/screens.h", r"screens\{")
    text, _ = code_of("src/app/screens.h")
    windows = [found.span() for found in re.finditer(r"Ranked\{&[^}]+\}|&frm\w+|makeWindow<frm\w+>", text)]
    for one, two in zip(windows, windows[1:]):
        yield swapped("order", "src/app/screens.h", text, one, two)
    for path in sources(["ranked"]):
        yield from neighbours("order", path, r"\.rules = \{")


def captions():
    """Neighbours among the texts of a file: captions, titles, marks."""
    for path in [*sources(["capture", *SCREENS, "window"]), "src/history/salesfields.h", "src/app/screens.h"]:
        text, _ = code_of(path)
        found = [match.span() for match in re.finditer(r"//[^\n]*|#[^\n]*|u\"(?:\\.|[^\"\\])*\"", text)
                 if match[0].startswith("u")]
        for one, two in zip(found, found[1:]):
            if text[slice(*one)] != text[slice(*two)]:
                yield swapped("captions", path, text, one, two)


def operators():
    """The usual changes of operators, wherever something is worked out, and of its numbers that lay out no screen."""
    pattern = "|".join(map(re.escape, sorted(OPERATORS, key=len, reverse=True)))
    for path in sources(COMPUTED):
        text, code = code_of(path)
        for found in re.finditer(pattern, code):
            yield replaced("operators", path, text, *found.span(), OPERATORS[found[0]])
    for path in sources(["capture", "files"]):
        if path not in LAYOUT:
            yield from numbers("operators", path)


KINDS = {"fields": fields, "order": order, "captions": captions, "operators": operators}
