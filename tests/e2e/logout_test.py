"""The session ends while the real program runs: it ends too, and the next session does not start it."""

import os
import subprocess

from tests.display.display import CHART, PRODUCT, DisplayTest, main

NEVER = b"3\n"


class Logout(DisplayTest):
    def log_out(self, save):
        """The session ends and has its programs save that much; returns when the program wants to be restarted."""
        manager = self.display.launch(os.environ["SESSION_MANAGER_PROGRAM"], stdin=subprocess.PIPE,
                                      stdout=subprocess.PIPE)
        self.display.env["SESSION_MANAGER"] = manager.stdout.readline().decode().strip()
        self.display.copy(PRODUCT)
        self.start(CHART)
        manager.stdin.write(save + b"\n")
        manager.stdin.flush()
        restart = manager.stdout.readline()
        self.ends()
        self.assertEqual(self.errors(), "")
        return restart

    def test_data_are_saved(self):
        self.assertEqual(self.log_out(b"global"), NEVER)

    def test_the_state_is_saved(self):
        self.assertEqual(self.log_out(b"local"), NEVER)

    def test_both_are_saved(self):
        self.assertEqual(self.log_out(b"both"), NEVER)


if __name__ == "__main__":
    main()
