"""Real terminals that show a screen of 24 lines of 80 columns; each gives the function that copies all of it."""

import re
from contextlib import contextmanager

from tests.display.display import soon
from tests.e2e.tn3270host import Host

# A terminal that is asked what it is has shown all before the question when it answers.
SHOW = 'stty -icanon -echo; cat "$0"; head -c 4 >"$1"; exec sleep 1000'
QUESTION = b"\x1b[c"


@contextmanager
def running(display, *command):
    terminal = display.launch(*command)
    try:
        yield terminal
    finally:
        terminal.kill()
        terminal.wait()


def xterm_with(display, *command):
    return running(display, "xterm", "-geometry", "80x24", "-xrm", "*selectToClipboard: true", "-e", *command)


def showing(display, lines):
    """The command that shows the lines, and the function that waits until it has. Cells after a line stay null."""
    screen, answer = display.home / "screen", display.home / "answer"
    answer.unlink(missing_ok=True)
    places = (b"\x1b[%d;1H%s" % (row, line.encode()) for row, line in enumerate(lines, 1))
    screen.write_bytes(b"\x1b[?25l\x1b[2J" + b"".join(places) + QUESTION)
    return (["sh", "-c", SHOW, str(screen), str(answer)],
            lambda: soon("the terminal shows the screen", lambda: answer.exists() and answer.stat().st_size > 0))


def marking(display, terminal, shift=False):
    """The function that drags the mouse from the first cell of the terminal's window to the last."""
    def found():
        return display.output("xdotool", "search", "--onlyvisible", "--pid", str(terminal.pid)).split()

    window, = soon("the terminal has a window", found)
    soon("the terminal has the focus", lambda: display.output("xdotool", "getwindowfocus").strip() == window)
    geometry = display.output("xdotool", "getwindowgeometry", "--shell", window)
    last = [str(int(re.search(rf"{side}=(\d+)", geometry)[1]) - 1) for side in ("WIDTH", "HEIGHT")]
    before, after = (["keydown", "shift"], ["keyup", "shift"]) if shift else ([], [])

    def mark():
        display.output("xdotool", *before, "mousemove", "--window", window, "4", "4", "mousedown", "1",
                       "mousemove", "--window", window, *last, "mouseup", "1", *after)

    return mark


@contextmanager
def xterm(display, lines):
    command, shown = showing(display, lines)
    with xterm_with(display, *command) as terminal:
        shown()
        yield marking(display, terminal)


@contextmanager
def stterm(display, lines):
    command, shown = showing(display, lines)
    with running(display, "stterm", "-g", "80x24", "-e", *command) as terminal:
        shown()
        mark = marking(display, terminal)

        def copy():
            mark()
            display.key("ctrl+shift+c")

        yield copy


@contextmanager
def c3270(display, lines):
    with Host() as host, xterm_with(display, "c3270", "-model", "3278-2", f"127.0.0.1:{host.port}") as terminal:
        host.greet()
        host.show(lines)
        yield marking(display, terminal, shift=True)  # alone, the mouse is the program's
