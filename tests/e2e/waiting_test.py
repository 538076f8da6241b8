"""A screen that is too short to be read: a box says so, whatever window is visible, and can end the program."""

from tests.display.accessible import Atspi, SpokenTest
from tests.display.display import CHART, LIST, PRODUCT, main, soon

BOX = LIST  # it has the title of the list windows
SHORT = b"".join(PRODUCT.splitlines(keepends=True)[:11])
BAR = "#2458B0"


class Waiting(SpokenTest):
    def start_with(self, capture):
        self.display.copy(capture)
        self.start()

    def start_window(self):
        """The start-up window, and nothing on the clipboard."""
        self.start_with(None)
        self.needs_data()

    def chart(self):
        """A chart, and a screen that is too short on the clipboard."""
        self.start_with(PRODUCT)
        self.display.window(CHART)
        window = self.application().shown(CHART)
        self.display.copy(SHORT)
        return window

    def box(self, lines="11 lines"):
        """Waits for the box, checks what it says and returns it."""
        self.display.window(BOX)
        box = self.application().shown(BOX, role="alert")
        words = " ".join(node.name for node in box.walk() if node.role == "label")
        for part in (f" {lines},", " 24;", "at least 20 ", "keep the blanks"):
            self.assertIn(part, words)
        self.assertEqual([node.name for node in box.walk() if node.role == "push button"], ["Close PlotVue"])
        self.still_runs()
        return box

    def fails(self):
        """The program ends, and says why on standard error."""
        self.ends(1)
        self.assertRegex(self.errors(), r"^PlotVue: [^\n]*fewer than 20 lines[^\n]*\n$")

    def bars(self, window):
        """How many pixels of the window have the bars' colour."""
        picture = self.display.output("import", "-silent", "-window", window, "-depth", "8", "txt:-")
        return picture.count(BAR)

    def click(self, node):
        place = Atspi.Component.get_extents(node.handle, Atspi.CoordType.SCREEN)
        self.display.output("xdotool", "mousemove", str(place.x + place.width // 2),
                            str(place.y + place.height // 2), "click", "1")

    def test_at_the_start_the_box_is_alone(self):
        self.start_with(SHORT)
        self.box()
        self.assertEqual(list(self.display.windows()), [BOX])
        self.display.key("Return")
        self.fails()

    def test_one_line(self):
        self.start_with(b"QXM31H          10\r\n")
        self.box("1 line")
        self.display.key("space")
        self.fails()

    def test_empty_lines_do_not_count_and_blank_ones_do(self):
        self.start_with(b"QXM31H          10\r\n\r\nPRODUCT:\r\n \r\n\r\n")
        self.box("3 lines")
        self.display.key("Escape")
        self.fails()

    def test_at_refresh_in_the_start_up_window(self):
        self.start_window()
        self.display.copy(SHORT)
        self.display.key("F5")
        self.box()
        self.display.key("Escape")
        self.fails()

    def test_by_mouse_at_an_option_with_a_chart_open(self):
        window = self.chart()
        self.click(window.first("radio button", "Profit"))
        self.click(self.box().first("push button", "Close PlotVue"))
        self.fails()

    def test_by_the_title_bar_of_the_box(self):
        self.chart()
        self.display.key("F5")
        self.box()
        self.display.key("alt+F4")
        self.fails()

    def test_by_assistive_technology_which_runs_nothing_under_the_box(self):
        window = self.chart()
        window.first("radio button", "Profit").press()
        box = self.box()
        window.first("push button", "Exit").press()
        window.first("push button", "Refresh").press()
        self.assertEqual(box.description(), box.description())  # asked after them, it answers after them
        self.assertEqual(sorted(self.display.windows()), [BOX, CHART])
        box.first("push button", "Close PlotVue").press()
        self.fails()

    def test_the_chart_under_the_box_stays_there_and_is_painted(self):
        self.chart()
        self.display.key("F5")
        self.box()
        number = self.display.windows()[CHART]
        box = self.display.windows()[BOX]
        self.assertEqual(self.display.stacked(), [number, box])
        self.display.output("xdotool", "windowraise", number)
        self.display.output("xdotool", "windowmove", box, "0", "0")
        self.display.output("xdotool", "windowsize", number, "820", "600")
        soon("the chart is painted in its new size",
             lambda: self.display.height(number) == 600 and self.bars(number) > 5000)
        self.assertEqual(self.display.stacked(), [number, box])  # it was to be raised before
        self.display.key("Return")
        self.fails()


if __name__ == "__main__":
    main()
