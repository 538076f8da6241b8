"""The real program on a real display: what another program copied, and what the user then sees."""

from tests.display.display import (
    CHART, FIGURES, LIST, NEED_DATA, PRODUCT, SCREEN, START, DisplayTest, main, soon)


class Clipboard(DisplayTest):
    def test_a_capture_at_the_start_opens_its_window_alone(self):
        self.display.copy(PRODUCT)
        self.start(CHART)
        self.assertEqual(list(self.display.windows()), [CHART])

    def test_refresh_without_a_capture_leads_back_to_the_start_window_and_exit_ends(self):
        self.display.copy(PRODUCT)
        self.start(CHART)
        self.display.copy(None)
        self.display.key("F5")
        self.display.window(START)
        self.display.gone(CHART)
        self.display.key("Escape")
        self.ends()
        self.assertEqual(self.errors(), "")

    def test_an_empty_clipboard_is_reported_and_the_start_window_stays(self):
        self.start(NEED_DATA)
        self.assertIn(START, self.display.windows())
        self.needs_data()
        self.charts(PRODUCT)
        self.display.gone(START)
        self.still_runs()

    def test_bare_line_feeds_are_read_as_line_ends(self):
        self.display.copy(PRODUCT.replace(b"\r\n", b"\n"))
        self.start(CHART)
        self.display.key("ctrl+shift+c")
        soon("figures are copied", lambda: self.display.pasted(SCREEN))
        self.assertEqual(self.display.pasted("UTF8_STRING"), FIGURES)

    def test_a_newest_month_without_a_name_ends_with_the_error_report(self):
        lines = PRODUCT.split(b"\r\n")
        newest = next(i for i, line in enumerate(lines) if b"-----" in line[:28]) + 1
        lines[newest] = b"XXX" + lines[newest][3:]
        self.display.copy(b"\r\n".join(lines))
        self.start(LIST)
        self.still_runs()
        self.display.key("Return")
        self.ends(1)
        self.assertRegex(self.errors(), r"^PlotVue: [A-Z].*\.\n$")

    def test_without_a_display_one_sentence_is_printed_and_nothing_is_left(self):
        temporary = self.display.home / "tmp"
        temporary.mkdir()
        self.display.env["TMPDIR"] = str(temporary)
        del self.display.env["XDG_RUNTIME_DIR"]
        for display in (None, "", ":9999"):
            with self.subTest(display=display):
                self.display.env.pop("DISPLAY", None)
                if display is not None:
                    self.display.env["DISPLAY"] = display
                self.start()
                self.ends(1)
                self.assertEqual(self.errors(), "PlotVue: there is no display to show windows on.\n")
        # On Wayland, and without an X display that could be used in its place.
        self.display.env.pop("DISPLAY", None)
        self.display.env["QT_QPA_PLATFORM"] = "wayland"
        for compositor in (None, "", "wayland-9999"):
            with self.subTest(compositor=compositor):
                self.display.env.pop("WAYLAND_DISPLAY", None)
                if compositor is not None:
                    self.display.env["WAYLAND_DISPLAY"] = compositor
                self.start()
                self.ends(1)
                self.assertEqual(self.errors(), "PlotVue: there is no display to show windows on.\n")
        self.assertEqual(list(temporary.iterdir()), [])

    def test_any_other_reason_why_no_window_can_be_shown_is_printed(self):
        self.display.env["QT_QPA_PLATFORM"] = "no such"
        self.start()
        self.ends(1)
        self.assertRegex(self.errors(), r"PlotVue: no window can be shown: [^\n]+\n$")


if __name__ == "__main__":
    main()
