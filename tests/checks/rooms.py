"""The rooms of src/ that each room may include. Any other include is a fault, and so are the toolkit outside its room,
and what belongs to one operating system outside the files that are named after that system."""

import re
import sys
from pathlib import Path

CAPTURE = {"capture"}
CHART = CAPTURE | {"chart"}
PLATFORM = CHART | {"platform"}
WINDOW = PLATFORM | {"window"}
APP = WINDOW | {"files", "history", "group", "ranked", "app"}

MAY_INCLUDE = {
    "capture": CAPTURE,
    "chart": CHART,
    "files": CAPTURE | {"files"},
    "platform": PLATFORM,
    "desktop/chart": CHART | {"desktop/chart"},
    "desktop": PLATFORM | {"desktop", "desktop/chart"},
    "window": WINDOW,
    "history": WINDOW | {"history"},
    "group": WINDOW | {"group"},
    "ranked": WINDOW | {"files", "ranked"},
    "app": APP,
    "": APP | {"desktop"},  # main.cpp
}

TOOLKIT = re.compile(r"(Qt?[A-Z]\w*(/.*)?|qt?[a-z0-9_]+\.h|cups/.*|fontconfig/.*|xcb/.*|X11/.*)$")
TOOLKIT_ROOMS = ("src/desktop/", "src/main.cpp", "tests/desktop/", "tests/replay/desktop",
                 "tests/e2e/clipboardmanager.cpp", "tests/e2e/sessionmanager.cpp", "tests/faults/owner.cpp",
                 "tests/windows/printer.cpp", "bench/")

SYSTEM = re.compile(r"(unistd|fcntl|windows|winspool|aclapi)\.h$|sys/")
OF_ONE_SYSTEM = re.compile(r"_(unix|windows)\.cpp$")
CONDITION = re.compile(r"^\s*#\s*(if|elif).*(_WIN|__unix|__linux|__APPLE|Q_OS_)", re.MULTILINE)

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')


def includes(path):
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        if match := INCLUDE.match(line):
            yield f"{path}:{number}", match[1], match[2]


def faults():
    for top in ("src", "tests", "bench", "fuzz"):
        for path in sorted(Path(top).rglob("*")):
            if path.suffix not in (".cpp", ".h"):
                continue
            room = str(path.parent.relative_to("src")).removeprefix(".") if top == "src" else None
            if room is not None and room not in MAY_INCLUDE:
                yield f"{path}: tests/checks/rooms.py does not know the room {room}"
                continue
            if CONDITION.search(path.read_text(encoding="utf-8")):
                yield f"{path}: code for one operating system belongs in a file of its own, …_unix.cpp, …_windows.cpp"
            for where, bracket, name in includes(path):
                if room is not None and SYSTEM.match(name) and not OF_ONE_SYSTEM.search(path.name):
                    yield f"{where}: {name} belongs to one operating system"
                if TOOLKIT.match(name) and not str(path).startswith(TOOLKIT_ROOMS):
                    yield f"{where}: this room may not include the toolkit: {name}"
                if room is not None and bracket == '"':
                    included = str(Path(name).parent).removeprefix(".")
                    if included not in MAY_INCLUDE[room]:
                        yield f"{where}: {room or 'main'} may not include {included or name}"


found = list(faults())
print("\n".join(found))
sys.exit(1 if found else 0)
