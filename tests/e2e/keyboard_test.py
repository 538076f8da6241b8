"""The program without a mouse; which control has the focus is asked as assistive technology asks."""

from tests.display.accessible import SpokenTest, focused
from tests.display.display import CHART, LIST, START, main, sample, soon


class Keyboard(SpokenTest):
    def open(self, name, title=CHART):
        self.display.copy(sample(name))
        self.start()
        return self.shown(title)

    def shown(self, title):
        self.display.window(title)
        return self.application().shown(title)

    def focus_is(self, window, role, name):
        def there():
            self.focus = window.focused()
            return self.focus and (self.focus.role, self.focus.name) == (role, name)

        try:
            soon(f"the focus is on {role} {name}", there, 5)
        except AssertionError:
            self.fail(f"The focus is on {self.focus}, not on {role} {name!r}.")

    def tab_goes_through(self, window, *controls):
        for role, name in controls:
            self.display.key("Tab")
            self.focus_is(window, role, name)

    def gone_to_the_start_window(self):
        self.display.window(START)
        self.display.gone(CHART)

    def test_tab_goes_through_a_chart_window_in_reading_order(self):
        window = self.open("product")
        chart = window.first("chart")
        self.focus_is(window, "chart", chart.name)
        self.tab_goes_through(window, ("radio button", "12 Month"), ("radio button", "Sales"),
                              ("push button", "Print"), ("push button", "Refresh"), ("push button", "Exit"),
                              ("chart", chart.name))

    def test_tab_goes_through_the_start_window_in_reading_order(self):
        self.open("product")
        self.display.key("Escape")
        window = self.shown(START)
        self.focus_is(window, "push button", "Refresh")
        self.tab_goes_through(window, ("push button", "Exit"), ("list item", "Sales Journal History"),
                              ("push button", "Refresh"))
        self.display.key("Return")
        self.shown(CHART)

    def test_tab_goes_through_a_list_window_in_reading_order(self):
        window = self.open("vendors", LIST)
        self.focus_is(window, "table", "Inventory")
        self.tab_goes_through(window, ("push button", "Tips"), ("push button", "Print"), ("push button", "Exit"),
                              ("text", "Analysis"), ("text", "Summary"), ("table", "Inventory"))

    def test_arrows_choose_in_an_option_group(self):
        window = self.open("product")
        chart = window.first("chart")
        self.assertEqual(len(chart.children()), 13)
        self.display.key("Tab", "Up")
        self.focus_is(window, "radio button", "24 Month")
        soon("24 months are charted", lambda: len(chart.children()) == 25)
        self.display.key("Down")
        self.focus_is(window, "radio button", "12 Month")
        soon("12 months are charted", lambda: len(chart.children()) == 13)

    def test_arrows_go_through_the_points_of_a_chart(self):
        window = self.open("product")
        points = [point.name for point in window.first("chart").children()]
        for key, point in (("Right", 0), ("Right", 1), ("End", -1), ("Left", -2), ("Home", 0)):
            with focused("list item") as announced:
                self.display.key(key)
                soon(f"{points[point]} is announced", lambda: points[point] in announced())
                self.assertEqual(announced(), [points[point]])
            self.focus_is(window, "list item", points[point])
        self.display.key("Left")
        self.focus_is(window, "list item", points[0])

    def test_escape_hides_the_read_out_and_then_leaves(self):
        window = self.open("product")
        chart = window.first("chart")
        self.display.key("Right")
        self.focus_is(window, "list item", chart.children()[0].name)
        self.display.key("Escape")
        self.focus_is(window, "chart", chart.name)
        self.assertIn(CHART, self.display.windows())
        self.display.key("Escape")
        self.gone_to_the_start_window()
        self.display.key("Escape")
        self.ends()

    def test_enter_on_a_row_opens_the_drill_down_that_steps_through_the_list(self):
        window = self.open("vendors", LIST)
        table = window.first("table")
        vendors = [table.cell(row, 2).name for row in range(3)]
        self.display.key("Down", "Return")
        drilldown = self.charted(vendors[1])
        for key, row in (("Page_Down", 2), ("Page_Up", 1), ("alt+Left", 0), ("Page_Down", 1)):
            self.display.key(key)
            self.charted(vendors[row])
        chart, age = (node.name for node in drilldown.walk() if node.role == "chart")
        self.tab_goes_through(drilldown, ("chart", age), ("radio button", "Sales"), ("push button", "Back"),
                              ("push button", "Down"), ("push button", "Print"), ("push button", "Close"),
                              ("chart", chart))
        self.display.key("Escape")
        self.focus_is(window, "table", table.name)

    def test_a_row_chosen_while_charts_are_open_brings_them_to_the_front(self):
        self.open("vendors", LIST)
        rows = self.display.focus()
        self.display.key("Return")
        charts = soon("the charts have the focus",
                      lambda: (now := self.display.focus()) not in ("", rows) and now)
        for key in ("Return", "KP_Enter"):
            self.display.output("xdotool", "windowactivate", "--sync", rows)
            self.display.focused(rows)
            self.display.key("Down", key)
            self.display.focused(charts)
            self.assertEqual(self.display.stacked()[-1], charts)

    def test_refresh_by_key(self):
        for key in ("F5", "alt+r"):
            with self.subTest(key):
                self.open("product")
                self.display.copy(None)
                self.display.key(key)
                self.gone_to_the_start_window()
                self.process.kill()
                self.process.wait()

    def test_exit_by_key(self):
        self.open("product")
        self.display.key("alt+x")
        self.gone_to_the_start_window()

    def test_print_by_key_opens_a_dialog_that_escape_closes(self):
        self.open("product")
        before = sorted(self.display.home.iterdir())
        for key in ("ctrl+p", "alt+p"):
            with self.subTest(key):
                self.display.key(key)
                self.display.window("Print")
                self.display.key("Escape")
                self.display.gone("Print")
                self.display.window(CHART)
        self.assertEqual(sorted(self.display.home.iterdir()), before)

    def test_tooltips_name_the_shortcuts(self):
        window = self.open("product")
        for name, key in (("Print", "Ctrl+P"), ("Refresh", "F5"), ("Exit", "Esc")):
            self.assertEqual(window.first("push button", name).description(), f"{name} ({key})")


if __name__ == "__main__":
    main()
