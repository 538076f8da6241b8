"""Two of the real program on one display and in one directory."""

from tests.display.accessible import SpokenTest
from tests.display.display import ended, main, sample, soon


class Pair(SpokenTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.display.copy(sample("vendors"))

    def start_with_focus(self):
        process = self.start()
        window = self.display.application(process).shown("PlotVue")
        number = soon("it has a window", lambda: self.display.output(
            "xdotool", "search", "--all", "--onlyvisible", "--pid", str(process.pid), "--name", "PlotVue").strip())
        self.display.output("xdotool", "windowactivate", number)
        soon("it has the focus", lambda: self.display.output("xdotool", "getwindowfocus").strip() == number)
        table = window.first("table")
        self.vendors = [" ".join((table.cell(row, 2).name, table.cell(row, 3).name)) for row in range(5)]
        return process

    def drill_down(self, process):
        """The process's window with charts and the name of its first chart, or None for both."""
        for window in self.display.application(process).children():
            charts = [node.name for node in window.walk() if node.role == "chart"] if window.has("SHOWING") else []
            if charts:
                return window, charts[0]
        return None, None

    def shows(self, process, row):
        words = self.vendors[row].split()
        soon(f"{self.vendors[row]} is charted", lambda: all(
            word in (self.drill_down(process)[1] or "") for word in words))

    def press(self, process, button):
        self.drill_down(process)[0].first("push button", button).press()

    def test_both_step_through_the_one_list(self):
        one = self.start_with_focus()
        self.display.key("Return")
        self.shows(one, 0)
        two = self.start_with_focus()
        self.display.key("Down", "Down", "Return")
        self.shows(two, 2)
        self.shows(one, 0)
        # Both step on from the row that was chosen last, whichever of them chose it.
        for process, button, row in ((one, "Down", 3), (two, "Down", 4), (one, "Back", 3), (one, "Back", 2),
                                     (two, "Back", 1), (one, "Down", 2)):
            self.press(process, button)
            self.shows(process, row)
        self.press(two, "Close")
        soon("its charts are closed", lambda: self.drill_down(two)[0] is None)
        self.press(one, "Down")
        self.shows(one, 3)
        self.assertIsNone(one.poll())
        self.assertIsNone(two.poll())

    def test_each_reaches_the_end_of_the_list_for_itself(self):
        one = self.start_with_focus()
        self.display.key("Return")
        self.shows(one, 0)
        two = self.start_with_focus()
        self.display.key("Return")
        self.shows(two, 0)
        self.press(two, "Back")
        box = self.display.application(two).shown("PlotVue", "alert")
        soon("the box has the focus", box.focused)
        self.press(one, "Down")
        self.shows(one, 1)
        self.display.key("Return")
        soon("its charts are closed", lambda: self.drill_down(two)[0] is None)
        one.terminate()
        ended(one)
        self.assertIsNone(two.poll())


if __name__ == "__main__":
    main()
