"""What other programs get of charts and lists, and PlotVue, which goes on with the captured screen."""

import os
import re
import signal
import subprocess

from tests.display.accessible import SpokenTest, appeared, focused
from tests.display.display import CHART, FIGURES, LIST, PRODUCT, SCREEN, START, ended, main, sample, soon

TEXT, PNG = "UTF8_STRING", "image/png"
COPY_PICTURE, COPY_FIGURES = "ctrl+c", "ctrl+shift+c"


class Copying(SpokenTest):
    def open(self, name, title=CHART):
        self.display.copy(sample(name))
        self.start(title)
        return self.application().shown(title)

    def press(self, key, target):
        """Presses the key that copies; returns what a program pastes then that takes the format."""
        self.display.key(key)
        return soon("it is copied", lambda: self.display.pasted(SCREEN) is not None and self.display.pasted(target))

    def identified(self, picture, *questions):
        """What another program finds in the picture."""
        return subprocess.run(["identify", "-format", " ".join(questions), "-"], input=picture,
                              stdout=subprocess.PIPE, check=True).stdout.decode()

    def test_figures_are_pasted_as_a_table(self):
        self.open("product")
        self.assertEqual(self.press(COPY_FIGURES, TEXT), FIGURES)

    def test_figures_have_the_decimal_sign_of_the_system(self):
        self.display.env["LC_ALL"] = "de_DE.UTF-8"
        self.addCleanup(self.display.env.pop, "LC_ALL")
        self.open("product")
        self.assertEqual(self.press(COPY_FIGURES, TEXT), FIGURES.replace(b".", b","))

    def test_a_picture_is_pasted_on_white_at_twice_its_size(self):
        window = self.open("product")
        box = window.first("chart").handle.get_extents(0)
        picture = self.press(COPY_PICTURE, PNG)
        self.assertEqual(self.identified(picture, "%m", "%w", "%h", "%[pixel:p{0,0}]"),
                         f"PNG {2 * box.width} {2 * box.height} srgb(255,255,255)")
        self.assertEqual(self.display.pasted(SCREEN), PRODUCT)
        self.assertIsNone(self.display.pasted(TEXT))

    def test_rows_are_pasted_as_a_table(self):
        table = self.open("vendors", LIST).first("table")
        rows, columns = table.rows_and_columns()
        pasted = self.press("ctrl+Insert", TEXT).decode()
        lines = [line.split("\t") for line in pasted.removesuffix("\r\n").split("\r\n")]
        self.assertEqual(lines[0], ["Rank", "EOM FIFO", "Vendor Name", "Product Category", "Stock Months"])
        self.assertEqual(lines[1:], [[table.cell(row, column).name for column in range(columns)]
                                     for row in range(rows)])
        self.assertEqual(lines[25], ["25", "3757", "NORTHERN FILTER COMPANY", "MOTOR OIL", "1.0"])

    def test_a_menu_opens_by_mouse_and_keys(self):
        self.open("product")
        window = self.display.windows()[CHART]
        openings = (lambda: self.display.output("xdotool", "mousemove", "--window", window, "300", "300", "click", "3"),
                    lambda: self.display.key("Menu"), lambda: self.display.key("shift+F10"))
        for opening in openings:
            self.display.copy(PRODUCT)
            with appeared("popup menu") as menus:
                opening()
                soon("a menu opens", menus)
            self.assertEqual(self.press("f", TEXT), FIGURES)

    def test_the_entries_of_a_menu_are_announced(self):
        self.open("product")
        with appeared("popup menu") as menus, focused("menu item") as entries:
            self.display.key("shift+F10")
            soon("a menu opens", menus)
            for name in ("Copy Picture", "Copy Figures", "Save Picture…"):
                self.display.key("Down")
                soon(f"{name} is announced", lambda: entries()[-1:] == [name])

    def test_the_chart_goes_on_with_the_captured_screen_after_a_copy_in_this_and_another_plotvue(self):
        for key, target in ((COPY_PICTURE, PNG), (COPY_FIGURES, TEXT)):
            with self.subTest(key):
                chart = self.open("product").first("chart")
                first = self.process
                self.press(key, target)
                self.assertEqual(len(chart.children()), 13)
                self.display.key("Tab", "Up")
                soon("24 months are charted", lambda: len(chart.children()) == 25)
                self.display.key("F5")
                self.display.window(CHART)

                self.start()
                other = self.application().shown(CHART).first("chart")
                self.assertEqual(other.name, chart.name)
                soon("another PlotVue charts the same", lambda: len(other.children()) == 13)
                self.press(key, target)  # and copies what it charts
                self.assertEqual(self.display.pasted(SCREEN), PRODUCT)
                self.process.kill()
                self.process.wait()
                self.process = first
                self.process.kill()
                self.process.wait()

    def test_the_list_goes_on_with_the_captured_screen_after_a_copy(self):
        window = self.open("vendors", LIST)
        table = window.first("table")
        vendors = [table.cell(row, 2).name for row in range(3)]
        self.press("ctrl+c", TEXT)
        self.display.key("Down", "Return")
        charts = self.charted(vendors[1])
        for key, target in ((COPY_PICTURE, PNG), (COPY_FIGURES, TEXT)):
            self.press(key, target)
            self.assertEqual(self.display.pasted(SCREEN), sample("vendors"))
            for step, row in (("Page_Down", 2), ("Page_Up", 1)):
                self.display.key(step)
                self.charted(vendors[row])
        self.display.key("Escape")
        soon("the charts are gone", lambda: not charts.has("SHOWING"))
        self.display.key("ctrl+p")
        self.display.window("Print")
        self.display.key("Escape")
        self.display.gone("Print")
        self.display.window(LIST)
        self.display.key("Escape")
        self.display.window(START)
        (self.display.home / "pvuscrn.txt").unlink()
        self.display.key("F5")
        self.display.window(LIST)
        self.assertEqual((self.display.home / "pvuscrn.txt").read_bytes(), b'"' + sample("vendors") + b'"\r\n')

    def test_a_text_box_copies_what_is_selected_and_keeps_the_captured_screen(self):
        self.open("vendors", LIST)
        self.display.key("Tab", "Tab", "Tab", "Tab")  # Tips, Print, Exit, the analysis
        self.display.key("ctrl+a")
        text = self.press("ctrl+c", TEXT)
        self.assertTrue(text.startswith(b"VENDOR INVENTORY ANALYSIS"))
        self.assertEqual(self.display.pasted(SCREEN), sample("vendors"))

    def test_what_was_no_screen_stays_none(self):
        self.open("product")
        self.display.copy(b"a letter")
        self.press(COPY_FIGURES, TEXT)
        self.assertEqual(self.display.pasted(SCREEN), b"a letter")
        self.display.key("Escape")
        self.display.window(START)
        self.display.key("F5")
        self.needs_data()

    def test_the_start_window_copies_nothing(self):
        self.open("product")
        self.display.key("Escape")
        self.display.window(START)
        self.display.key("Tab", "Tab", "Down", "ctrl+c", "ctrl+Insert", "Menu")
        self.display.key("F5")  # when this is done, so are the others
        self.display.window(CHART)
        self.assertIsNone(self.display.pasted(SCREEN))
        self.assertEqual(self.display.held(5), PRODUCT)

    def test_a_copy_is_gone_with_plotvue_where_no_clipboard_manager_takes_it(self):
        self.open("product")
        self.press(COPY_FIGURES, TEXT)
        self.leave()
        self.assertEqual(self.errors(), "")
        self.assertIsNone(self.display.pasted(TEXT))

    def manager(self, file, format_):
        """A clipboard manager that writes what it takes to the file."""
        manager = self.display.launch(os.environ["CLIPBOARD_MANAGER"], str(file), format_, stdout=subprocess.PIPE)
        manager.stdout.readline()  # it runs
        return manager

    def test_a_clipboard_manager_takes_a_copy_when_plotvue_ends(self):
        taken = self.display.home / "taken"
        for format_, content in ((TEXT, FIGURES), (SCREEN, PRODUCT)):
            self.open("product")
            manager = self.manager(taken, format_)
            self.press(COPY_FIGURES, TEXT)
            self.leave()
            self.assertEqual(self.errors(), "")
            self.assertEqual(ended(manager), 0)
            self.assertEqual(taken.read_bytes(), content)
            taken.unlink()

    def test_a_clipboard_manager_that_hangs_does_not_keep_plotvue(self):
        self.open("product")
        manager = self.manager("unused", TEXT)
        self.press(COPY_FIGURES, TEXT)
        manager.send_signal(signal.SIGSTOP)
        self.leave()
        manager.kill()

    def save_as(self, name):
        self.display.key("ctrl+s")
        self.display.window("Save Picture")
        self.display.output("xdotool", "type", str(name))
        self.display.key("Return")

    def test_pictures_are_saved(self):
        self.open("product")
        folder = self.display.home / "saved"
        folder.mkdir()
        before = sorted(self.display.home.rglob("*"))
        for name, begins in (("a.png", b"\x89PNG"), ("b.pdf", b"%PDF")):
            self.save_as(folder / name)
            self.display.gone("Save Picture")
            soon("it is written", (folder / name).exists)
            self.assertTrue((folder / name).read_bytes().startswith(begins))
        self.assertRegex(self.identified((folder / "a.png").read_bytes(), "%m", "%w", "%h"), r"^PNG \d{4} \d{4}$")
        self.assertEqual(len(re.findall(rb"/Subtype\s*/Image", (folder / "b.pdf").read_bytes())), 0)
        self.assertEqual(sorted(self.display.home.rglob("*")), sorted([*before, folder / "a.png", folder / "b.pdf"]))

    def test_a_picture_that_cannot_be_saved_is_told_and_plotvue_goes_on(self):
        window = self.open("product")
        self.save_as("/sys/a.png")
        box = self.application().shown(LIST, "alert")
        self.assertRegex(box.first("label").name, r"^The picture cannot be saved as /sys/a.png \(\w+.*\)\.$")
        soon("the box has the focus", box.focused)
        self.display.key("Return")
        self.display.window(CHART)
        self.display.key("F5")
        self.display.window(CHART)
        self.assertTrue(window.has("SHOWING"))
        self.still_runs()


if __name__ == "__main__":
    main()
