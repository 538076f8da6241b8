#!/usr/bin/env python3
"""Takes pictures of the windows of all samples on a virtual display.

docs/pictures.py          the pictures of the README, into docs/
docs/pictures.py --all    every window, light and dark, at 100 %, 150 % and 200 %: build/pictures/index.html
docs/pictures.py --windows  every window of plotvue.exe under Wine, at 100 %, 150 % and 200 %:
                          build/pictures-windows/index.html

Requires the release build, or the build of packaging/windows, and xvfb, xclip, xdotool and imagemagick.
"""
import os
import pathlib
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
PROGRAM = ROOT / "build/release/src/plotvue"
FOR_WINDOWS = ROOT / "build/windows/plotvue.exe"
sys.path.append(str(ROOT))
from tests.display.wine import Wine  # noqa: E402

SAMPLES = ["startup"] + sorted(path.stem for path in (ROOT / "samples").glob("*.txt"))
# The keys that open the first row of a list. In a chart window they open nothing.
OPEN_ROW = ["Down", "Return"]
# Samples whose window is also shown with its context menu.
MENUS = ["product", "monthtomonth"]
README = ["product", "product-menu", "monthtomonth", "monthtomonth-chart", "pastdue-chart", "salesmencategories", "glhistory"]

DARK = """[Colors:Window]
BackgroundNormal=49,54,59
ForegroundNormal=239,240,241
[Colors:View]
BackgroundNormal=35,38,41
BackgroundAlternate=42,46,50
ForegroundNormal=239,240,241
[Colors:Button]
BackgroundNormal=59,64,69
ForegroundNormal=239,240,241
[Colors:Selection]
BackgroundNormal=61,174,233
ForegroundNormal=252,252,252
[Colors:Tooltip]
BackgroundNormal=49,54,59
ForegroundNormal=239,240,241
"""


class Display:
    """A virtual display; all programs on it end with it."""

    program = [PROGRAM]
    slowness = 1
    keeps_text = False  # whether the clipboard keeps its text when its owner ends

    def __init__(self):
        read, write = os.pipe()
        self.server = subprocess.Popen(["Xvfb", "-displayfd", str(write), "-screen", "0", "2400x1800x24",
                                        "-noreset"],
                                       pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        self.name = ":" + os.fdopen(read).readline().strip()
        self.environment = {**os.environ, "DISPLAY": self.name, "QT_QPA_PLATFORM": "xcb"}
        self.environment.pop("SESSION_MANAGER", None)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.server.terminate()
        self.server.wait()

    def run(self, *command, **options):
        return subprocess.run(command, env=self.environment, capture_output=True, text=True, timeout=20, **options)

    def windows(self):
        return self.run("xdotool", "search", "--onlyvisible", "--class", "plotvue").stdout.split()


class WineDisplay(Display):
    """A virtual display with Wine."""

    program = ["wine", FOR_WINDOWS]
    slowness = 3
    keeps_text = True

    def __init__(self):
        self.desktop = Wine(screen="2400x1800x24")

    def __enter__(self):
        self.desktop.__enter__()
        self.environment = self.desktop.env
        return self

    def __exit__(self, *_):
        self.desktop.__exit__()

    def scale(self, percent):
        self.desktop.windows_program("reg", "add", r"HKCU\Control Panel\Desktop", "/v", "LogPixels", "/t", "REG_DWORD",
                                     "/d", percent * 96 // 100, "/f")


def wait_for(condition, seconds=10):
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        if condition():
            return
        time.sleep(0.05)
    raise SystemExit("a window did not appear")


def take(display, sample, folder, directory, extra, wanted=None):
    """Takes pictures of the window that the sample opens and, as SAMPLE-chart, of the window that its first row opens.
    `wanted` limits them to these names. Returns the names of the pictures taken."""
    owner = None
    names = []

    def save(window, name):
        if wanted is None or name in wanted:
            folder.mkdir(parents=True, exist_ok=True)
            # A picture of the screen, because a menu is a window of its own.
            place = dict(line.split("=") for line in display.run(
                "xdotool", "getwindowgeometry", "--shell", window).stdout.split())
            display.run("import", "-window", "root", "-crop", "{WIDTH}x{HEIGHT}+{X}+{Y}".format(**place), "+repage", "-strip",
                        str(folder / (name + ".png")), check=True)
            names.append(name)

    text = None if sample == "startup" else ROOT / "samples" / (sample + ".txt")
    if text or display.keeps_text:  # else the clipboard has no owner
        owner = subprocess.Popen(["xclip", "-quiet", "-selection", "clipboard", text or os.devnull],
                                 env=display.environment, stderr=subprocess.DEVNULL)
        time.sleep(0.2 * display.slowness)
    program = subprocess.Popen(display.program, cwd=directory, env={**display.environment, **extra},
                               stderr=subprocess.DEVNULL)
    try:
        if sample == "startup":
            wait_for(lambda: len(display.windows()) > 0)
            time.sleep(0.6 * display.slowness)
            display.run("xdotool", "key", "Return")
        wait_for(lambda: len(display.windows()) > 0)
        time.sleep(0.4 * display.slowness)
        before = display.windows()
        display.run("xdotool", "windowfocus", "--sync", before[-1])
        time.sleep(0.3 * display.slowness)
        save(before[-1], sample)
        if sample == "startup":
            return names
        if sample in MENUS:
            display.run("xdotool", "key", "Menu")
            time.sleep(0.3 * display.slowness)
            save(before[-1], sample + "-menu")
            display.run("xdotool", "key", "Escape")
            time.sleep(0.3 * display.slowness)
        for key in OPEN_ROW:
            display.run("xdotool", "key", key)
            time.sleep(0.3 * display.slowness)
        time.sleep(0.3 * display.slowness)
        for window in display.windows():
            if window not in before:
                save(window, sample + "-chart")
        return names
    finally:
        program.kill()
        program.wait()
        if owner:
            owner.kill()
            owner.wait()


def write_page(folder, names, kinds):
    rows = "".join(
        f"<h2>{name}</h2><p>" + "".join(f'<img src="{kind}/{name}.png" alt="{name}, {kind}"> ' for kind in kinds)
        + "</p>" for name in names)
    (folder / "index.html").write_text(
        "<!doctype html><meta charset=utf-8><title>PlotVue, all windows</title>"
        "<style>img{max-width:48%;vertical-align:top}</style>" + rows)


def take_under_wine():
    folder = ROOT / "build/pictures-windows"
    kinds = [100, 150, 200]
    with WineDisplay() as display, tempfile.TemporaryDirectory() as directory:
        for percent in kinds:
            display.scale(percent)
            names = [name for sample in SAMPLES for name in take(display, sample, folder / str(percent), directory, {})]
    write_page(folder, names, [str(percent) for percent in kinds])
    print(folder / "index.html")


def main():
    if sys.argv[1:] == ["--windows"]:
        take_under_wine()
        return
    everything = sys.argv[1:] == ["--all"]
    if sys.argv[1:] and not everything:
        raise SystemExit(__doc__)
    if not PROGRAM.exists():
        raise SystemExit("Build the release preset first: ./run does it.")
    with Display() as display, tempfile.TemporaryDirectory() as directory:
        if not everything:
            for sample in sorted({name.removesuffix("-chart").removesuffix("-menu") for name in README}):
                take(display, sample, ROOT / "docs", directory, {}, wanted=README)
            return
        pathlib.Path(directory, "kdeglobals").write_text(DARK)
        dark = {"XDG_CONFIG_HOME": directory, "XDG_CURRENT_DESKTOP": "KDE", "KDE_FULL_SESSION": "true",
                "KDE_SESSION_VERSION": "5", "QT_QPA_PLATFORMTHEME": "kde"}
        kinds = {"light": {}, "dark": dark, "light-150": {"QT_SCALE_FACTOR": "1.5"}, "light-200": {"QT_SCALE_FACTOR": "2"},
                 "dark-200": {**dark, "QT_SCALE_FACTOR": "2"}}
        folder = ROOT / "build/pictures"
        for kind, extra in kinds.items():
            names = [name for sample in SAMPLES for name in take(display, sample, folder / kind, directory, extra)]
        write_page(folder, names, list(kinds))
        print(folder / "index.html")


main()
