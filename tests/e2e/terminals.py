"""Real terminals that show a screen of 24 lines of 80 columns; each gives the function that copies all of it."""

import re
from contextlib import contextmanager

from desktop import soon
from tn3270host import Host

# A terminal that is asked what it is has shown all before the question when it answers.
SHOW = 'stty -icanon -echo; cat "$0"; head -c 4 >"$1"; exec sleep 1000'
QUESTION = b"\x1b[c"


@contextmanager
def running(desktop, *command):
    terminal = desktop.launch(*command)
    try:
        yield terminal
    finally:
        terminal.kill()
        terminal.wait()


def xterm_with(desktop, *command):
    return running(desktop, "xterm", "-geometry", "80x24", "-xrm", "*selectToClipboard: true", "-e", *command)


def showing(desktop, lines):
    """The command that shows the lines, and the function that waits until it has. Cells after a line stay null."""
    screen, answer = desktop.home / "screen", desktop.home / "answer"
    answer.unlink(missing_ok=True)
    places = (b"\x1b[%d;1H%s" % (row, line.encode()) for row, line in enumerate(lines, 1))
    screen.write_bytes(b"\x1b[?25l\x1b[2J" + b"".join(places) + QUESTION)
    return (["sh", "-c", SHOW, str(screen), str(answer)],
            lambda: soon("the terminal shows the screen", lambda: answer.exists() and answer.stat().st_size > 0))


def marking(desktop, terminal, shift=False):
    """The function that drags the mouse from the first cell of the terminal's window to the last."""
    def found():
        return desktop.output("xdotool", "search", "--onlyvisible", "--pid", str(terminal.pid)).split()

    window, = soon("the terminal has a window", found)
    soon("the terminal has the focus", lambda: desktop.output("xdotool", "getwindowfocus").strip() == window)
    geometry = desktop.output("xdotool", "getwindowgeometry", "--shell", window)
    last = [str(int(re.search(rf"{side}=(\d+)", geometry)[1]) - 1) for side in ("WIDTH", "HEIGHT")]
    before, after = (["keydown", "shift"], ["keyup", "shift"]) if shift else ([], [])

    def mark():
        desktop.output("xdotool", *before, "mousemove", "--window", window, "4", "4", "mousedown", "1",
                       "mousemove", "--window", window, *last, "mouseup", "1", *after)

    return mark


@contextmanager
def xterm(desktop, lines):
    command, shown = showing(desktop, lines)
    with xterm_with(desktop, *command) as terminal:
        shown()
        yield marking(desktop, terminal)


@contextmanager
def stterm(desktop, lines):
    command, shown = showing(desktop, lines)
    with running(desktop, "stterm", "-g", "80x24", "-e", *command) as terminal:
        shown()
        mark = marking(desktop, terminal)

        def copy():
            mark()
            desktop.key("ctrl+shift+c")

        yield copy


@contextmanager
def c3270(desktop, lines):
    with Host() as host, xterm_with(desktop, "c3270", "-model", "3278-2", f"127.0.0.1:{host.port}") as terminal:
        host.greet()
        host.show(lines)
        yield marking(desktop, terminal, shift=True)  # alone, the mouse is the program's
