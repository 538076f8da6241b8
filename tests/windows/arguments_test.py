"""plotvue.exe with an argument, as when a file is dropped on its icon: a box refuses it, and so does a line where
standard error leads to a file or a pipe."""

import os
import tempfile

from tests.display.display import LIST, main
from tests.display.wine import WineTest

BOX = LIST  # both have the same title
SENTENCE = b"PlotVue takes no arguments: it charts the screen on the clipboard.\r\n"


class Arguments(WineTest):
    shared = True

    def refuse(self, *arguments, **streams):
        """Starts the program with these arguments and closes the box."""
        self.process = self.display.launch("wine", self.program, *arguments, **streams)
        self.addCleanup(self.process.wait)
        self.addCleanup(self.process.kill)
        self.display.window(BOX)
        self.assertEqual(list(self.display.windows()), [BOX])
        self.display.key("Return")
        self.ends(2)

    def test_a_box_refuses_a_file(self):
        self.refuse("product.txt")

    def test_also_a_file_gets_the_sentence(self):
        with tempfile.TemporaryFile() as printed:
            self.refuse("-platform", "offscreen", stderr=printed)
            printed.seek(0)
            self.assertEqual(printed.read(), SENTENCE)

    def test_also_a_pipe_gets_the_sentence(self):
        read, write = os.pipe()
        with os.fdopen(read, "rb") as printed:
            self.refuse("--help", stderr=write)
            os.close(write)
            self.assertEqual(printed.readline(), SENTENCE)


if __name__ == "__main__":
    main()
