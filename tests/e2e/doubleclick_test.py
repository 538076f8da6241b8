"""A double-click opens or leaves a window, and its second click operates nothing in the window that it brought up."""

from tests.display.accessible import SpokenTest
from tests.display.display import CHART, LIST, PRODUCT, START, main, near, sample, soon
from gi.repository import Atspi

SYSTEMS_TIME = 0.4  # from one press to the next: the toolkit's own, because this display sets none


def centre(node):
    box = Atspi.Component.get_extents(node.handle, Atspi.CoordType.SCREEN)
    return box.x + box.width // 2, box.y + box.height // 2


class DoubleClick(SpokenTest):
    def numbers(self):
        return self.display.output("xdotool", "search", "--onlyvisible", "--class", "plotvue").split()

    def attempt(self, what, once):
        for apart in (0.2, 0.35):
            with self.subTest(apart=apart):
                self.until_fast_enough(f"A double-click on {what}, {apart} s apart,", lambda: once(apart))

    def row_double_clicked(self, apart):
        self.start(LIST)
        listed, = self.numbers()
        rows = self.application().shown(LIST)
        place = centre(rows.first("table").cell(1, 1))

        def opened():
            return next((number for number in self.numbers() if number != listed), None)

        def chart_window():
            self.display.focused(soon("the chart has a window", opened))
            return soon("it is known", lambda: next(
                (w for w in self.application().children() if w.has("SHOWING") and w.handle != rows.handle), None))

        self.display.key("Down", "Return")
        option = chart_window().first("radio button", "G/P %")
        self.display.put(opened(), lambda: centre(option), place)
        self.display.key("Escape")
        soon("the chart goes", lambda: not opened())
        self.display.focused(listed)
        surely = self.display.double_click(place, apart, opened) < SYSTEMS_TIME
        if surely:
            window = chart_window()
            self.display.key("Next")
            soon("the next row is charted", lambda: "KESTREL AIR TAXI" in window.first("chart").name)
            self.assertTrue(near(centre(window.first("radio button", "G/P %")), place))
            self.assertEqual(window.first("chart").name.split(",")[0], "Sales")
            self.display.click(place)
            soon("a third click counts", lambda: window.first("chart").name.startswith("Profit%,"))
        return surely

    def test_on_a_row_opens_its_chart_and_chooses_no_option_there(self):
        self.display.copy(sample("profitrank"))
        self.attempt("a row", self.row_double_clicked)

    def exit_double_clicked(self, apart):
        self.start(CHART)
        place = centre(self.application().shown(CHART).first("push button", "Exit"))
        self.display.key("Escape")
        start = self.display.window(START)
        exit_again = self.application().shown(START).first("push button", "Exit")
        self.display.put(start, lambda: centre(exit_again), place)
        self.charts(PRODUCT)
        surely = self.display.double_click(place, apart, lambda: START in self.display.windows()) < SYSTEMS_TIME
        if surely:
            self.display.window(START)
            self.charts(PRODUCT)
            self.display.key("Escape")
            self.display.window(START)
            self.assertTrue(near(centre(self.application().shown(START).first("push button", "Exit")), place))
            self.display.click(place)
            self.ends()
        return surely

    def test_on_exit_leads_to_the_start_window_and_no_further(self):
        self.display.copy(PRODUCT)
        self.attempt("Exit", self.exit_double_clicked)


if __name__ == "__main__":
    main()
