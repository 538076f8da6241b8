#!/usr/bin/env python3
"""Takes pictures of the windows of all samples on a virtual display.

docs/pictures.py          the pictures of the README, into docs/
docs/pictures.py --all    every window, light and dark, at 100 %, 150 % and 200 %: build/pictures/index.html
docs/pictures.py --windows  every window of plotvue.exe under Wine, at 100 %, 150 % and 200 %:
                          build/pictures-windows/index.html

Requires the release build, or the build of packaging/windows, and xvfb, xclip, xdotool and imagemagick.
"""
import re
import sys
import tempfile
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
sys.path.append(str(ROOT))
from tests.display.display import Display, soon  # noqa: E402
from tests.display.wine import Wine  # noqa: E402

PROGRAM = ROOT / "build/release/src/plotvue"
FOR_WINDOWS = ROOT / "build/windows/plotvue.exe"
SCREEN = "2400x1800x24"

SAMPLES = ["startup"] + sorted(path.stem for path in (ROOT / "samples").glob("*.txt"))
# The keys that open the first row of a list. In a chart window they open nothing.
OPEN_ROW = ["Down", "Return"]
# Samples whose window is also shown with its context menu.
MENUS = ["product", "monthtomonth"]
README = ["product", "product-menu", "monthtomonth", "monthtomonth-chart", "pastdue-chart", "salesmencategories",
          "glhistory"]

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


class OnDisplay:
    """The program on a virtual display. `slowness` stretches the pauses in which it draws."""

    def __init__(self, display, command, slowness=1):
        self.display, self.command, self.slowness = display, command, slowness
        self.directory = display.home / "work"
        self.directory.mkdir()

    def pause(self, seconds):
        time.sleep(seconds * self.slowness)

    def windows(self):
        return self.display.output("xdotool", "search", "--onlyvisible", "--class", "plotvue").split()

    def press(self, *keys):
        for key in keys:
            self.display.key(key)
            self.pause(0.3)

    def save(self, window, file):
        """A picture of the screen, because a menu is a window of its own."""
        file.parent.mkdir(parents=True, exist_ok=True)
        width, height = self.display.size(window)
        x, y = re.findall(r"[XY]=(-?\d+)", self.display.output("xdotool", "getwindowgeometry", "--shell", window))
        self.display.output("import", "-window", "root", "-crop", f"{width}x{height}+{x}+{y}", "+repage", "-strip",
                            str(file))

    def take(self, sample, folder, wanted=None):
        """Takes pictures of the window that the sample opens and, as SAMPLE-chart, of the window that its first row
        opens. `wanted` limits them to these names. Returns the names of the pictures taken."""
        names = []

        def save(window, name):
            if wanted is None or name in wanted:
                self.save(window, folder / f"{name}.png")
                names.append(name)

        # Under Wine the clipboard keeps its text when its owner ends.
        self.display.copy(b"" if sample == "startup" else (ROOT / f"samples/{sample}.txt").read_bytes())
        program = self.display.launch(*self.command, cwd=self.directory)
        try:
            soon("a window is shown", self.windows)
            if sample == "startup":
                self.pause(0.6)
                self.press("Return")
                soon("a window is shown", self.windows)
            self.pause(0.4)
            before = self.windows()
            self.display.output("xdotool", "windowfocus", "--sync", before[-1])
            self.pause(0.3)
            save(before[-1], sample)
            if sample == "startup":
                return names
            if sample in MENUS:
                self.press("Menu")
                save(before[-1], f"{sample}-menu")
                self.press("Escape")
            self.press(*OPEN_ROW)
            self.pause(0.3)
            for window in self.windows():
                if window not in before:
                    save(window, f"{sample}-chart")
            return names
        finally:
            program.kill()
            program.wait()

    def take_all(self, folder):
        return [name for sample in SAMPLES for name in self.take(sample, folder)]


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
    with Wine(screen=SCREEN) as display:
        wine = OnDisplay(display, ["wine", FOR_WINDOWS], slowness=3)
        for percent in kinds:
            display.windows_program("reg", "add", r"HKCU\Control Panel\Desktop", "/v", "LogPixels", "/t", "REG_DWORD",
                                    "/d", percent * 96 // 100, "/f")
            names = wine.take_all(folder / str(percent))
    write_page(folder, names, [str(percent) for percent in kinds])
    print(folder / "index.html")


def take_everything():
    folder = ROOT / "build/pictures"
    with tempfile.TemporaryDirectory() as directory:
        Path(directory, "kdeglobals").write_text(DARK)
        dark = {"XDG_CONFIG_HOME": directory, "XDG_CURRENT_DESKTOP": "KDE", "KDE_FULL_SESSION": "true",
                "KDE_SESSION_VERSION": "5", "QT_QPA_PLATFORMTHEME": "kde"}
        kinds = {"light": {}, "dark": dark, "light-150": {"QT_SCALE_FACTOR": "1.5"},
                 "light-200": {"QT_SCALE_FACTOR": "2"}, "dark-200": {**dark, "QT_SCALE_FACTOR": "2"}}
        for kind, extra in kinds.items():
            with Display(PROGRAM, manager=None, screen=SCREEN) as display:
                display.env.update(extra)
                names = OnDisplay(display, [PROGRAM]).take_all(folder / kind)
    write_page(folder, names, list(kinds))
    print(folder / "index.html")


def main():
    if sys.argv[1:] == ["--windows"]:
        return take_under_wine()
    if sys.argv[1:] not in ([], ["--all"]):
        raise SystemExit(__doc__)
    if not PROGRAM.exists():
        raise SystemExit("Build the release preset first: ./run does it.")
    if sys.argv[1:]:
        return take_everything()
    with Display(PROGRAM, manager=None, screen=SCREEN) as display:
        pictures = OnDisplay(display, [PROGRAM])
        for sample in sorted({name.removesuffix("-chart").removesuffix("-menu") for name in README}):
            pictures.take(sample, ROOT / "docs", wanted=README)


main()
