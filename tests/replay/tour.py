"""A tour through the windows that a capture opens: every option, row, button and step, each followed by a dump.

The tour plays on the platform in memory and writes its script as it goes, because the available actions depend on what
is displayed. If an action ends the session, the next tour skips it, until one tour is complete.
"""

import itertools

from tests.replay.replay import Replay, working_directory

ANOTHER_SCREEN = "captures/product-accents.txt"


class Ended(Exception):
    """The session is over: PlotVue has ended or waits for ever."""


class Tour(Replay):
    def __init__(self, program, directory, left_out):
        super().__init__(program, directory)
        self.left_out = left_out
        self.action = 0  # number of the action; the actions are the same in every tour of a capture
        self.visible = []  # names of the visible windows, in the order in which they were shown

    def do(self, *lines):
        """Plays the lines of one action; returns the state that the last one dumped, or None."""
        self.action += 1
        if self.action in self.left_out:
            return None
        answers = self.tell(*lines)
        for event in answers:
            if event.get("event") == "show":
                self.visible.append(event["window"])
            elif event.get("event") == "hide":
                self.visible.remove(event["window"])
        if self.over:
            raise Ended
        return answers[-1] if answers and "controls" in answers[-1] else None

    def controls(self, window, kind):
        """The window's controls of that kind, by name."""
        state = self.state(window)
        if self.over:
            raise Ended
        found = state["controls"]
        return {name: control for name, control in found.items() if control["kind"] == kind}

    def choose_each(self, window):
        """Chooses every visible option once; returns the options of each frame, which exclude each other."""
        frames = {}
        for name, control in self.controls(window, "options").items():
            for index in (option["index"] for option in control["options"] if option["visible"]):
                state = self.do(f"choose {window} {name} {index}", f"dump {window}")
                chosen = state["controls"][name]["chosen"] if state else []
                if index in chosen:
                    frames.setdefault((name, chosen.index(index)), []).append((name, index))
        return list(frames.values())

    def choose_all(self, window):
        """Chooses every combination of options in all frames."""
        frames = self.choose_each(window)
        before = ()
        for options in itertools.product(*frames) if len(frames) > 1 else ():
            changed = [f"choose {window} {name} {index}" for name, index in options if (name, index) not in before]
            self.do(*changed, f"dump {window}")
            before = options

    def press(self, window, *buttons):
        """Presses the buttons, as long as the window is visible."""
        for button in buttons:
            if window in self.visible:
                self.do(f"click {window} {button}", f"dump {window}")

    def press_all(self, window):
        """Presses every button that stays in the window and in its record."""
        self.press(window, *sorted(set(self.controls(window, "button")) - {"cmdExit", "cmdBack", "cmdNext"}))

    def step(self, chart, button, count):
        """Presses the button `count` times, or until the end of the list closes the window."""
        for _ in range(count):
            if not self.do(f"click {chart} {button}", f"dump {chart}"):
                break

    def use_rows(self, window, grid, rows):
        chart = window + "A"
        exits = itertools.cycle((f"click {chart} cmdExit", f"close {chart}"))
        for row in range(1, rows):
            self.do(f"row {window} {grid} {row}")
            if chart not in self.visible:
                continue
            self.do(f"dump {chart}")
            self.press_all(chart)
            if row == 1:
                self.choose_all(chart)
                self.step(chart, "cmdNext", rows)
            elif row == rows - 1:
                self.choose_each(chart)
                self.step(chart, "cmdBack", rows)
            elif row % 2:
                self.choose_each(chart)
                self.press(chart, "cmdNext", "cmdBack")
                if chart in self.visible:
                    self.do(next(exits))
            else:
                self.choose_each(chart)  # the next row is clicked while these charts are open

    def walk(self, capture):
        """The whole tour, from the start with the capture on the clipboard to Exit in the start-up window."""
        self.do("printer accept 2", f"clipboard {capture}", "start", "dump startup")
        window = self.visible[-1]
        if window != "startup":
            self.do(f"dump {window}")
            self.choose_all(window)
            self.press_all(window)
            for name, grid in self.controls(window, "grid").items():
                self.use_rows(window, name, grid["rows"])
            self.leave_and_come_back(window)
        self.do("click startup Command1")
        if self.visible[-1] != "startup":
            self.do(f"click {self.visible[-1]} cmdExit")
        self.do("click startup Command2")

    def leave_and_come_back(self, window):
        for exit_action in (f"click {window} cmdExit", f"close {window}"):
            self.do(exit_action, "click startup Command1", f"dump {window}")
        self.do(f"clipboard {ANOTHER_SCREEN}")
        if "cmdRefresh" in self.controls(window, "button"):
            self.press(window, "cmdRefresh")
        if window in self.visible:
            self.do(f"click {window} cmdExit")


def tours(program, top, capture):
    """The tours of the capture. Yields each with its new directory below `top`, and its exit status and error text."""
    left_out = set()
    while True:
        directory = working_directory(top / f"tour{len(left_out)}")
        tour = Tour(program, directory, frozenset(left_out))
        try:
            tour.walk(capture)
        except Ended:
            pass
        yield tour, directory, tour.end()
        if tour.over not in ("error", "spin") or tour.action == 1:
            return
        left_out.add(tour.action)
