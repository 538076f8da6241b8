"""A tour through the windows that a capture opens: every option, a row of every list, down and back, every window told."""

import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "faults"))
from replay import Replay  # noqa: E402


class Guide(Replay):
    """Writes the script while it goes along: what there is to click depends on what is shown."""

    def __init__(self, program, directory):
        super().__init__(program, directory)
        self.shown = []

    def play(self, *lines):
        for told in self.tell(*lines):
            if told.get("event") == "show":
                self.shown.append(told["window"])
            elif told.get("event") == "hide":
                self.shown.remove(told["window"])

    def controls(self, window):
        return self.state(window)["controls"]

    def choose_all(self, window):
        for name, control in self.controls(window).items():
            for option in control.get("options", []):
                if option["visible"]:
                    self.play(f"choose {window} {name} {option['index']}", f"dump {window}")

    def use_row(self, window, grid):
        self.play(f"row {window} {grid} 1")
        chart = window + "A"
        if chart not in self.shown:
            return
        self.choose_all(chart)
        for button in ("cmdNext", "cmdBack", "cmdPrint"):
            if chart in self.shown:
                self.play(f"click {chart} {button}", f"dump {chart}")


def tour(program, directory, sample):
    """The script of a tour with this sample."""
    guide = Guide(program, directory)
    guide.play("printer accept 2", f"clipboard samples/{sample}", "start")
    window = guide.shown[-1]
    guide.choose_all(window)
    for name, control in guide.controls(window).items():
        if control["kind"] == "grid" and control["rows"] > 1:
            guide.use_row(window, name)
    guide.play(f"click {window} cmdPrint", f"click {window} cmdExit")
    guide.end()
    return "".join(f"{line}\n" for line in guide.script)
