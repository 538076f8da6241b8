"""Every window, walked through as assistive technology does: everything has a name and a role."""

import re

from tests.display.accessible import SpokenTest, appeared, renamed
from tests.display.display import CHART, NEED_DATA, PRODUCT, SAMPLES, START, main, sample, soon

GROUPS = ["categoriessalesmen", "salesmencategories"]
RANKED = {
    "monthtomonth": {"tables": 2, "charts": 2},
    "pastdue": {"charts": 1},
    "profitrank": {"charts": 2},
    "ratios": {"charts": 1, "explanations": ["Formula", "Ratio Notes"]},
    "vendors": {"charts": 2, "tips": ["Tips"]},
}
MONTHLY = sorted({path.stem for path in SAMPLES.glob("*.txt")} - {*GROUPS, *RANKED})

# The roles that may occur in a window.
ROLES = {"chart", "image", "label", "list", "list item", "panel", "push button", "radio button", "table", "text"}
POINT = re.compile(r"[^:]+: .*\d")


class Accessibility(SpokenTest):
    def setUp(self):
        super().setUp()
        self.display.copy(None)
        self.start()
        self.root = self.application()
        self.acknowledge(NEED_DATA, "^Clipboard contains no data$")
        self.start_window = self.root.shown(START)

    def acknowledge(self, title, text):
        self.button_of_box(title, text).press()
        soon("the box goes", lambda: "alert" not in [
            window.role for window in self.root.children() if window.has("SHOWING")])

    def button_of_box(self, title, text):
        box = self.root.shown(title, role="alert")
        words = [node.name for node in box.walk() if node.role == "label"]
        self.assertEqual(len(words), 1)
        self.assertRegex(words[0], re.compile(text, re.DOTALL))
        return box.first("push button", "OK")

    def shows_beside(self, other):
        """Waits for a window beside this one and returns it."""
        return soon("a window shows", lambda: next(
            (window for window in self.root.children()
             if window.handle != other.handle and window.has("SHOWING")), None))

    def open(self, name):
        self.display.copy(sample(name))
        self.start_window.first("push button", "Refresh").press()
        window = self.shows_beside(self.start_window)
        soon("the start window goes", lambda: not self.start_window.has("SHOWING"))
        return window

    def open_drilldown(self, window):
        soon("the grid has the focus", lambda: window.first("table").has("FOCUSED"))
        self.display.key("Return")
        return self.shows_beside(window)

    def close(self, window):
        window.first("push button", "Exit").press()
        soon("the window goes", lambda: self.start_window.has("SHOWING") and not window.has("SHOWING"))

    def check(self, window, buttons, charts=0, tables=0):
        """Checks every control of the window, and that it has these buttons, charts and tables and no others."""
        self.assertEqual(window.role, "frame")
        self.assertNotEqual(window.name, "")
        controls = list(window.walk())
        for control in controls:
            with self.subTest(window=window.name, control=control):
                self.assertIn(control.role, ROLES)
                self.assertNotEqual(control.name.strip(), "")
                self.check_control(control)
        roles = [control.role for control in controls]
        self.assertEqual((roles.count("chart"), roles.count("table")), (charts, tables))
        self.assertEqual([c.name for c in controls if c.role == "push button"], buttons)
        return controls

    def check_control(self, control):
        match control.role:
            case "radio button":
                frame = control.parent()
                self.assertEqual(frame.role, "panel")
                self.assertNotEqual(frame.name, "")
            case "panel":
                options = control.children()
                self.assertEqual({option.role for option in options}, {"radio button"})
                self.assertEqual(sum(option.has("CHECKED") for option in options), 1)
            case "chart":
                points = control.children()
                self.assertGreater(len(points), 0)
                for point in points:
                    self.assertEqual(point.role, "list item")
                    self.assertRegex(point.name, POINT)
            case "table":
                self.check_table(control)
            case "text":
                self.assertNotEqual(control.text(), "")
                self.assertTrue(control.has("READ_ONLY"))
            case "list":
                self.assertGreater(len(control.children()), 0)

    def check_table(self, table):
        rows, columns = table.rows_and_columns()
        self.assertGreater(rows, 0)
        self.assertGreater(columns, 1)
        for column in range(columns):
            heading = table.heading(column)
            self.assertEqual(heading.role, "table column header")
            self.assertNotEqual(heading.name, "")
            for row in (0, rows - 1):
                self.assertEqual(table.cell(row, column).role, "table cell")
        self.assertTrue(all(table.cell(0, column).name for column in range(columns)))

    def test_the_start_window(self):
        controls = self.check(self.start_window, ["Refresh", "Exit"])
        screens = next(control for control in controls if control.role == "list")
        self.assertEqual(screens.name, "Supported screens")
        self.assertEqual(len(screens.children()), 19)

    def test_the_windows_of_the_monthly_screens(self):
        self.assertEqual(len(MONTHLY), 15)
        for name in MONTHLY:
            with self.subTest(name):
                window = self.open(name)
                self.check(window, ["Print", "Refresh", "Exit"], charts=1)
                self.close(window)

    def test_the_windows_of_the_group_screens(self):
        for name in GROUPS:
            with self.subTest(name):
                window = self.open(name)
                self.check(window, ["Print", "Refresh", "Exit"], charts=1,
                           tables=1 if name == "categoriessalesmen" else 0)
                self.close(window)

    def test_the_ranked_lists_and_their_drill_down_windows(self):
        self.assertEqual(len(RANKED), 5)
        for name, what in RANKED.items():
            with self.subTest(name):
                window = self.open(name)
                self.check(window, [*what.get("tips", []), "Print", "Exit"], tables=what.get("tables", 1))
                drilldown = self.open_drilldown(window)
                self.check(drilldown, [*what.get("explanations", []), "Back", "Down", "Print", "Close"],
                           charts=what["charts"])
                drilldown.first("push button", "Close").press()
                soon("the drill-down window closes", lambda: not drilldown.has("SHOWING"))
                self.close(window)

    def test_boxes_are_announced_with_their_title_and_text(self):
        window = self.open("ratios")
        drilldown = self.open_drilldown(window)
        for button, title, text in (
            ("Formula", "Formula", r"^Formula in QXM: [^\n]+\n+Current month data: "),
            ("Ratio Notes", "Ratio Notes", "solvency"),
            ("Back", "PlotVue", "^End of list$"),
        ):
            with self.subTest(title):
                drilldown.first("push button", button).press()
                self.acknowledge(title, text)
        soon("the drill-down window closes", lambda: not drilldown.has("SHOWING"))
        self.close(window)

    def test_a_redraw_announces_the_chart_and_every_point_once(self):
        window = self.open("product")
        with renamed() as names:
            window.first("radio button", "Profit").press()
            soon("the newest month is announced", lambda: any(name.startswith("OCT99: Profit") for name in names()))
        announced = names()
        self.assertEqual(sorted(announced), sorted(node.name for node in [
            window.first("chart"), *window.first("chart").children()]))
        self.close(window)

    def test_a_notice_is_announced_each_time_as_an_alert(self):
        earlier = "This chart is of an earlier copy. Press Refresh to chart the copied screen."
        window = self.open("product")
        self.close(window)
        self.display.copy(PRODUCT.replace(b"DIESEL", b"KEROSN"))
        for _ in range(2):
            with appeared("alert") as names:
                self.start_window.first("push button", "Refresh").press()
                soon("the notice is announced", lambda: earlier in names())
            self.assertEqual(window.first("alert").name, earlier)
            self.close(window)
        self.display.focused(self.display.window(START))
        self.display.key("F5")
        soon("the chart shows", lambda: window.has("SHOWING"))
        self.assertIn("DIESEL", window.first("chart").name)
        self.display.focused(self.display.window(CHART))
        self.display.key("F5")
        soon("the notice goes", lambda: "alert" not in [node.role for node in window.walk()])
        self.assertIn("KEROSN", window.first("chart").name)
        self.close(window)

    def test_a_month_of_two_years_is_named_in_full(self):
        window = self.open("product")
        window.first("radio button", "24 Month").press()
        chart = window.first("chart")
        soon("two years are charted", lambda: len(chart.children()) == 25)
        self.assertEqual([point.name[:6] for point in chart.children() if point.name.startswith("J")],
                         ["JAN98:", "JUN98:", "JUL98:", "JAN99:", "JUN99:", "JUL99:"])
        self.close(window)

    def test_the_end_by_an_error_is_announced(self):
        lines = PRODUCT.split(b"\r\n")
        newest = next(i for i, line in enumerate(lines) if b"-----" in line[:28]) + 1
        lines[newest] = b"XXX" + lines[newest][3:]
        self.display.copy(b"\r\n".join(lines))
        self.start_window.first("push button", "Refresh").press()
        self.button_of_box("PlotVue", r"^[A-Z].*\.$").press()
        self.ends(1)


if __name__ == "__main__":
    main()
