"""The real program leaves nothing behind: no settings, no temporary files, only the three small files."""

from tests.display.display import LIST, PRODUCT, START, DisplayTest, main, sample, soon
from tests.display.printserver import PrintServer

VENDORS = sample("vendors")
TO_FILE, SAVE = "Print To File ...", "Save Picture"  # titles of dialogs


class Traces(DisplayTest):
    def setUp(self):
        super().setUp()
        self.server = PrintServer(self.display, ["paper"])
        self.addCleanup(self.server.close)
        top = self.display.home / "top"
        self.home, self.temporary, self.configuration, self.runtime, self.here, self.saved = (
            top / name for name in ("home", "tmp", "config", "run", "here", "saved"))
        for folder in (top, self.home, self.temporary, self.configuration, self.runtime, self.here, self.saved):
            folder.mkdir(mode=0o700)

    def start_with(self, **session):
        self.display.copy(VENDORS)
        folders = {"HOME": self.home, "TMPDIR": self.temporary, **session}
        variables = [f"{name}={folder}" for name, folder in folders.items()]
        self.process = self.display.launch("env", f"--chdir={self.here}", "--unset=XDG_RUNTIME_DIR", *variables,
                                           self.program)
        self.rows = self.display.window(LIST)

    def chart_a_row(self):
        self.display.key("Return")
        soon("a row is charted", lambda: (self.here / "plotvue.txt").exists())
        self.chart = soon("the chart has the focus",
                          lambda: self.display.focus() not in ("", self.rows) and self.display.focus())
        self.display.key("Page_Down")

    def finish_printing(self):
        self.display.key("alt+p")
        self.display.gone("Print")
        self.display.focused(self.chart)

    def print_on_paper(self):
        self.display.key("ctrl+p")
        self.display.window("Print")
        self.finish_printing()
        soon("it is printed", lambda: self.server.completed("paper"))

    def choose_file(self):
        """Opens the dialog for files from the dialog for printers."""
        self.display.key("space")
        self.display.window(TO_FILE)

    def print_to_file(self, file):
        self.display.key("ctrl+p")
        printer = self.display.window("Print")
        self.display.key("alt+n", "End")  # the last printer is a file
        self.display.key(*["Tab"] * 3)
        self.choose_file()
        self.display.key("Escape")
        self.display.focused(printer)
        self.choose_file()
        self.display.output("xdotool", "type", str(file))
        self.display.key("Return")
        self.display.focused(printer)
        self.finish_printing()
        self.assertTrue(soon("the file is written", lambda: file.exists() and file.read_bytes()).startswith(b"%PDF"))

    def save_picture(self, file):
        self.display.key("ctrl+s")
        self.display.window(SAVE)
        self.display.output("xdotool", "type", str(file))
        self.display.key("Return")
        self.display.focused(self.chart)
        soon("the picture is written", file.exists)

    def leave_all(self):
        self.display.key("Escape")
        self.display.focused(self.rows)
        self.display.key("Escape")
        self.display.window(START)
        self.charts(PRODUCT)
        self.leave()

    def leaves_no_traces(self, **session):
        self.start_with(**session)
        self.chart_a_row()
        self.print_on_paper()
        self.print_to_file(self.saved / "chart.pdf")
        self.save_picture(self.saved / "chart.png")
        self.leave_all()
        self.assertEqual(sorted(path.name for path in self.here.iterdir()),
                         ["plotvue.txt", "plotvue1.txt", "pvuscrn.txt"])
        self.assertEqual(sorted(path.name for path in self.saved.iterdir()), ["chart.pdf", "chart.png"])
        for folder in (self.temporary, self.configuration, self.runtime):
            self.assertEqual(list(folder.rglob("*")), [])
        # CUPS keeps the name of the default printer.
        self.assertEqual(sorted(self.home.rglob("*")), [self.home / ".cups", self.home / ".cups/lpoptions"])

    def test_without_a_session(self):
        self.leaves_no_traces()

    def test_with_a_folder_for_configuration(self):
        self.leaves_no_traces(XDG_CONFIG_HOME=self.configuration)

    def test_with_a_folder_of_the_session(self):
        self.leaves_no_traces(XDG_RUNTIME_DIR=self.runtime)

    def test_with_both(self):
        self.leaves_no_traces(XDG_CONFIG_HOME=self.configuration, XDG_RUNTIME_DIR=self.runtime)


if __name__ == "__main__":
    main()
