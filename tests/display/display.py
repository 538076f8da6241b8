"""A virtual display with a window manager and a clipboard, and the program on it; the user's display is left alone."""

import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

from tests.verdict import remark

SAMPLES = Path(__file__).resolve().parents[2] / "samples"

# The titles of windows.
START, CHART, LIST, NEED_DATA = "Plot Vue!", "Plotvue!", "PlotVue", "Need Data"

# The format in which a copy of PlotVue carries the captured screen.
SCREEN = "application/x-plotvue-screen"


def sample(name):
    return (SAMPLES / f"{name}.txt").read_bytes()


PRODUCT = sample("product")
HOLD = 0.05  # how long a hand presses a mouse button, in seconds

# What "Copy Figures" of its chart gives.
FIGURES = b"""\tSales\tProjected
OCT98\t101211.69\t0
NOV98\t86365.82\t0
DEC98\t79981.06\t0
JAN99\t84673.95\t0
FEB99\t82511.07\t0
MAR99\t98870.39\t0
APR99\t108881.07\t0
MAY99\t108055.06\t0
JUN99\t89927.07\t0
JUL99\t84557.38\t0
AUG99\t93934.66\t0
SEP99\t115258.92\t0
OCT99\t43755.05\t79554.6363636364
""".replace(b"\n", b"\r\n")


class NotInTime(AssertionError):
    """What was waited for did not happen in time."""


def soon(what, condition, seconds=20):
    """Waits until `condition` gives something true and returns that."""
    end = time.monotonic() + seconds
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() > end:
            raise NotInTime(f"{what}: not within {seconds} seconds")
        time.sleep(0.05)


def near(one, other):
    """Whether the two places are the same to a few pixels."""
    return max(abs(one[0] - other[0]), abs(one[1] - other[1])) < 5


class Display:
    """An X display of its own, with a temporary home directory. Use with `with`: it ends what it started."""

    def __init__(self, program, manager="openbox", screen="1280x900x24"):
        self.program = program
        self.screen = screen
        self.manager = manager
        self.started = []
        self.owner = None  # of the clipboard

    def __enter__(self):
        self.home = Path(tempfile.mkdtemp(prefix="plotvue-"))
        keep = ("PATH", "LSAN_OPTIONS", "ASAN_OPTIONS")
        self.env = {name: os.environ[name] for name in keep if name in os.environ}
        self.env.update(
            HOME=str(self.home),
            XDG_RUNTIME_DIR=str(self.home),
            LANG="C.UTF-8",
            DBUS_SESSION_BUS_ADDRESS="disabled:",
            QT_QPA_PLATFORM="xcb",
        )
        try:
            read, write = os.pipe()
            # Without -noreset it would restart when its last client goes, and cut off one that is just connecting.
            self.launch("Xvfb", "-noreset", "-displayfd", str(write), "-screen", "0", self.screen, "-nolisten", "tcp",
                        pass_fds=[write])
            os.close(write)
            with os.fdopen(read) as pipe:
                self.env["DISPLAY"] = ":" + pipe.readline().strip()
            if self.manager:
                self.launch(self.manager)
                soon("the window manager runs", lambda: "(WINDOW)" in self.output(
                    "xprop", "-root", "_NET_SUPPORTING_WM_CHECK"))
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        for process in reversed(self.started):
            if process.poll() is None:
                process.terminate()
                try:
                    process.wait(5)
                except subprocess.TimeoutExpired:
                    process.kill()
                    process.wait()
            for pipe in (process.stdout, process.stderr, process.stdin):
                if pipe:
                    pipe.close()
        shutil.rmtree(self.home, ignore_errors=True)

    def launch(self, *command, **options):
        for stream in ("stdin", "stdout", "stderr"):
            options.setdefault(stream, subprocess.DEVNULL)
        options.setdefault("cwd", self.home)
        process = subprocess.Popen(command, env=self.env, **options)
        self.started.append(process)
        return process

    def output(self, *command):
        return subprocess.run(command, env=self.env, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, text=True, check=False).stdout

    def copy(self, capture):
        """Another process puts the bytes on the clipboard; None takes the text off it."""
        if self.owner:
            self.owner.terminate()
            self.owner.wait()
            self.owner = None
        if capture is None:
            return
        path = self.home / "capture"
        path.write_bytes(capture)
        self.owner = self.launch("xclip", "-quiet", "-selection", "clipboard", "-in", str(path))
        patience = 2 + len(capture) / 5_000_000  # the owner before it may have halted and not answer
        soon("the capture is on the clipboard", lambda: self.held(patience) == capture)

    def held(self, patience):
        """The bytes on the clipboard; none where its owner does not answer in so many seconds."""
        try:
            return subprocess.run(["xclip", "-selection", "clipboard", "-out"], env=self.env, stdout=subprocess.PIPE,
                                  stderr=subprocess.DEVNULL, timeout=patience, check=False).stdout
        except subprocess.TimeoutExpired:
            return None

    def pasted(self, target):
        """What a program pastes that takes this format; None where it is not offered."""
        def asked(what):
            return subprocess.run(["xclip", "-selection", "clipboard", "-out", "-target", what], env=self.env,
                                  stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, timeout=20, check=False).stdout
        return asked(target) if target in asked("TARGETS").decode().split() else None

    def start(self):
        return self.launch(self.program, stderr=subprocess.PIPE)

    def windows(self):
        """The visible windows of the program: numbers by title."""
        found = {}
        for number in self.output("xdotool", "search", "--onlyvisible", "--class", "plotvue").split():
            title = self.output("xdotool", "getwindowname", number).rstrip("\n")
            if title:
                found[title] = number
        return found

    def window(self, title):
        """Waits until the window is shown and has the focus; returns its number."""
        number = soon(f"the window {title!r} is shown", lambda: self.windows().get(title))
        self.focused(number)
        return number

    def focused(self, number):
        soon("the window has the focus", lambda: self.focus() == number)

    def focus(self):
        """The number of the window that has the focus."""
        return self.output("xdotool", "getwindowfocus").strip()

    def stacked(self):
        """The numbers of all windows, the lowest first."""
        order = self.output("xprop", "-root", "_NET_CLIENT_LIST_STACKING")
        return [str(int(number, 16)) for number in re.findall(r"0x\w+", order)]

    def gone(self, title):
        soon(f"the window {title!r} goes", lambda: title not in self.windows())

    def size(self, window):
        geometry = self.output("xdotool", "getwindowgeometry", "--shell", window)
        return [int(re.search(rf"{what}=(\d+)", geometry)[1]) for what in ("WIDTH", "HEIGHT")]

    def height(self, window):
        return self.size(window)[1]

    def point_at(self, window, x, y):
        """Moves the mouse there in the window; returns the place on the screen."""
        self.output("xdotool", "mousemove", "--window", window, str(x), str(y))
        return tuple(map(int, re.findall(r"[xy]:(\d+)", self.output("xdotool", "getmouselocation"))))

    def put(self, window, where, place):
        """Moves the window until what `where` finds in it is at that place of the screen."""
        left = top = 0
        while not near(now := where(), place):
            # The window manager puts the window's frame there, so that the first move is not exact.
            left, top = left + place[0] - now[0], top + place[1] - now[1]
            self.output("xdotool", "windowmove", window, str(left), str(top))
            soon("the window is moved", lambda: where() != now)

    def click(self, place):
        """Presses the mouse's button at that place of the screen."""
        self.output("xdotool", "mousemove", *map(str, place), "mousedown", "1", "sleep", str(HOLD), "mouseup", "1")

    def double_click(self, place, apart, comes):
        """Clicks, waits until a window has come, and clicks again, so many seconds after the first time or a little
        later. Returns the time from one press to the next at most."""
        began = time.monotonic()
        self.click(place)
        soon("a window comes", comes)
        time.sleep(max(0, began + apart - time.monotonic()))
        self.click(place)
        return time.monotonic() - began - HOLD

    def key(self, *keys):
        """Presses the keys, one after the other, for whatever has the focus."""
        for key in keys:
            self.output("xdotool", "key", "--clearmodifiers", key)


def ended(process, seconds=20):
    """Exit status of the process; it must end by itself."""
    try:
        return process.wait(seconds)
    except subprocess.TimeoutExpired:
        raise NotInTime("the program did not end") from None


class DisplayTest(unittest.TestCase):
    """Tests of the program on a display: a new one for each test, or one for all tests of a class that is `shared`."""

    display_class = Display
    shared = False
    program = None

    @classmethod
    def setUpClass(cls):
        if cls.shared:
            cls.display = cls.enterClassContext(cls.display_class(cls.program))

    def setUp(self):
        if not self.shared:
            self.display = self.enterContext(self.display_class(self.program))

    def start(self, title=None):
        """Starts the program, which ends with the test, and waits for its window of that title, if one is given."""
        self.process = self.display.start()
        self.addCleanup(self.process.wait)
        self.addCleanup(self.process.kill)
        if title:
            self.display.window(title)
        return self.process

    def until_fast_enough(self, what, once):
        """Calls `once`, which starts the program, until it says that the machine was not too busy for it. The last
        lines of the test run tell of a second try."""
        for number in range(1, 21):
            try:
                if once():
                    break
            finally:
                self.process.kill()
                self.process.wait()
        else:
            self.fail(f"{what}: the machine is too busy")
        if number > 1:
            remark(f"{what} took {number} tries, because the machine was busy.")

    def still_runs(self):
        self.assertIsNone(self.process.poll())

    def ends(self, status=0):
        self.assertEqual(ended(self.process), status)

    def errors(self):
        """What the program has printed on standard error until its end."""
        return self.process.stderr.read().decode()

    def charts(self, capture):
        """Copies the capture, a monthly screen, while a window is up; Refresh charts it."""
        self.display.copy(capture)
        self.display.key("F5")
        self.display.window(CHART)

    def needs_data(self):
        """The program says that there is no data, and shows the start-up window then."""
        self.display.window(NEED_DATA)
        self.display.key("Return")
        self.display.gone(NEED_DATA)
        self.display.window(START)

    def leave(self):
        """Escape leads from a chart or list to the start-up window, and ends the program there."""
        self.display.key("Escape")
        self.display.window(START)
        self.display.key("Escape")
        self.ends()


def main():
    """Runs the tests of the file that is run; its last argument is the program."""
    DisplayTest.program = sys.argv.pop()
    unittest.main(verbosity=2)


signal.signal(signal.SIGTERM, lambda *_: exit(1))  # a test that takes too long still cleans up
