"""On a small screen every window of the real program opens with its whole frame on the screen."""

import re

from tests.display.display import CHART, LIST, PRODUCT, START, Display, DisplayTest, main, sample, soon

WIDTH, HEIGHT = 960, 560
THICK = 30  # a border that nobody expects, in pixels
CONFIGURATION = """<openbox_config xmlns="http://openbox.org/3.4/rc">
<theme><name>thick</name></theme>
</openbox_config>"""


class SmallScreen(DisplayTest):
    def setUp(self):
        """There is no window manager yet."""
        self.display = self.enterContext(Display(self.program, manager=None, screen=f"{WIDTH}x{HEIGHT}x24"))

    def manage(self, *options):
        self.display.launch("openbox", *options)
        soon("the window manager runs", lambda: "(WINDOW)" in self.display.output(
            "xprop", "-root", "_NET_SUPPORTING_WM_CHECK"))

    def frame(self, window):
        """The left, top, right and bottom edge of the window with its frame."""
        place = self.display.output("xwininfo", "-id", window)
        x, y, width, height = (int(re.search(rf"{name}: +(-?\d+)", place)[1]) for name in (
            "Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))
        extents = self.display.output("xprop", "-id", window, "_NET_FRAME_EXTENTS")
        left, right, top, bottom = map(int, re.findall(r"\d+", extents))
        return x - left, y - top, x + width + right, y + height + bottom

    def is_inside(self, window):
        left, top, right, bottom = self.frame(window)
        return left >= 0 and top >= 0 and right <= WIDTH and bottom <= HEIGHT

    def all_are_inside(self):
        windows = self.display.windows().values()
        soon("the frames are on the screen", lambda: all(self.is_inside(window) for window in windows))
        return len(windows)

    def open_all(self):
        self.display.copy(sample("vendors"))
        self.start(LIST)
        self.all_are_inside()
        rows = self.display.focus()
        self.display.key("Return")
        chart = soon("a row is charted", lambda: self.display.focus() not in ("", rows) and self.display.focus())
        self.assertTrue(soon("its frame is on the screen", lambda: self.is_inside(chart)))
        self.display.key("Escape")
        self.display.focused(rows)
        self.display.key("Escape")
        self.display.window(START)
        self.all_are_inside()
        self.charts(PRODUCT)
        self.all_are_inside()

    def test_with_the_usual_frames(self):
        self.manage()
        self.open_all()
        self.still_runs()

    def test_with_thick_frames(self):
        theme = self.display.home / ".themes/thick/openbox-3"
        theme.mkdir(parents=True)
        (theme / "themerc").write_text(f"border.width: {THICK}\n")
        (self.display.home / "rc.xml").write_text(CONFIGURATION)
        self.manage("--config-file", str(self.display.home / "rc.xml"))
        self.open_all()
        left, top, right, bottom = self.frame(self.display.window(CHART))
        self.assertEqual((right - left, bottom - top), (WIDTH, HEIGHT))


if __name__ == "__main__":
    main()
