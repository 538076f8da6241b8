"""What terminals copy from a host's screen is charted like the screen itself, with or without blanks at line ends."""

from contextlib import suppress

from tests.e2e import terminals
from tests.display.accessible import SpokenTest
from tests.display.display import SAMPLES, NotInTime, main, soon

LINES, COLUMNS = 24, 80
SCREENS = ("product", "glhistory", "active", "glexpense", "pastdue")


def page(sample):
    """The lines of the sample's first page."""
    lines = (SAMPLES / f"{sample}.txt").read_text().splitlines()
    return lines[:next((i for i in range(1, LINES) if lines[i] == lines[0]), LINES)]


def trimmed(lines):
    """The text of the lines, however many blanks and empty lines come after it."""
    return "\n".join(line.rstrip() for line in lines).rstrip()


def first(application, *roles):
    """Waits for an object with one of the roles in any window."""
    def there():
        windows = (window for window in application.children() if window.has("SHOWING"))
        return next((node for window in windows for node in window.walk() if node.role in roles), None)

    return soon(f"a {' or '.join(roles)} shows", there)


def words(chart):
    return [chart.name, *(point.name for point in chart.children())]


def charted(display):
    """The words of the chart that the program opens when it starts, or of its list and the chart of the first row."""
    process = display.start()
    try:
        application = display.application(process)
        opened = first(application, "chart", "table")
        if opened.role == "chart":
            return words(opened)
        rows, columns = opened.rows_and_columns()
        cells = [opened.cell(row, column).name for row in range(rows) for column in range(columns)]
        soon("the list has the focus", lambda: opened.has("FOCUSED"))
        display.key("Return")
        return cells + words(first(application, "chart"))
    finally:
        process.kill()
        process.communicate()


class Terminals(SpokenTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.intact = {}
        for sample in SCREENS:
            cls.display.copy("".join(line + "\r\n" for line in page(sample)).encode())
            cls.intact[sample] = charted(cls.display)
        cls.display.copy(None)

    def copied(self, copy, lines):
        """The text that the terminal copies; it is asked again while it may still be painting."""
        def held():
            return (self.display.held(2) or b"").decode()

        for _ in range(5):
            copy()
            with suppress(NotInTime):
                soon("the screen is copied", lambda: trimmed(held().splitlines()) == trimmed(lines), 2)
                break
        text = held()
        self.assertEqual(trimmed(text.splitlines()), trimmed(lines))
        return text

    def check(self, terminal):
        for painted in (True, False):
            for sample in SCREENS:
                found = None
                with self.subTest(terminal.__name__, sample=sample, line_ends="painted" if painted else "null"):
                    lines = [line.ljust(COLUMNS) if painted else line.rstrip() for line in page(sample)]
                    lines += [" " * COLUMNS if painted else ""] * (LINES - len(lines))
                    with terminal(self.display, lines) as copy:
                        text = self.copied(copy, lines)
                        keeps = painted and terminal is terminals.xterm
                        self.assertEqual(" \n" in text, keeps, "blanks at the ends of lines")
                        found = charted(self.display)
                    self.assertEqual(found, self.intact[sample])
                if not found:
                    return  # the other samples would take as long to fail

    def test_xterm(self):
        self.check(terminals.xterm)

    def test_stterm(self):
        self.check(terminals.stterm)

    def test_c3270(self):
        self.check(terminals.c3270)


if __name__ == "__main__":
    main()
