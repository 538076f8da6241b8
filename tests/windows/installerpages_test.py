"""The pages of the installer and the uninstaller, operated with keys."""

import contextlib
import subprocess
from pathlib import Path

from tests.display.display import NotInTime, soon
from tests.verdict import remark
from tests.windows.installing import CANCELLED, DONE, NO_RIGHTS, RUNNING, TEXT, InstallerTest, main


class Pages(InstallerTest):
    def open(self, title, *command):
        """Starts the program and waits for its first window."""
        self.process = self.display.launch("wine", *map(str, command))
        self.addCleanup(self.process.wait)
        self.addCleanup(self.process.kill)
        soon(f"{title!r} is shown", lambda: self.has_focus(title))

    def open_setup(self, page="", *command):
        self.open(self.title(page), *command, self.setup)

    @classmethod
    def title(cls, page=""):
        return f"PlotVue {Path(cls.setup).name.split('-')[1]} Setup{page}"

    def has_focus(self, title):
        found = self.display.output("xdotool", "search", "--onlyvisible", "--name", f"^{title}$").split()
        return self.display.focus() in found

    def ended(self):
        return self.process.poll() is not None

    def press(self, key, what, condition):
        """Presses the key until the condition is met, because under Wine a key is lost now and then."""
        for _ in range(4):
            self.display.key(key)
            with contextlib.suppress(NotInTime):
                return soon(what, condition, 10)
            remark(f"{self.id()} pressed {key} again.")
        raise NotInTime(f"{what}: not after {key} was pressed four times")

    def answer(self, key, title):
        """The key leads to the window with this title."""
        self.press(key, f"{title!r} is shown", lambda: self.ended() or self.has_focus(title))

    def end(self, key="Return"):
        """The key ends the program; returns its exit code."""
        self.press(key, "the program ends", self.ended)
        return self.process.returncode

    def picture(self):
        return subprocess.run(["import", "-window", "root", "rgb:-"], env=self.display.env, stdout=subprocess.PIPE,
                              timeout=20, check=True).stdout

    def test_an_administrator_is_asked_who_is_to_have_it(self):
        self.open_setup()
        before = self.picture()
        self.press("alt+a", "another button is marked", lambda: self.picture() != before)
        self.answer("Return", self.title(FOLDER))
        self.answer("Return", self.title(COMPLETED))
        self.assertTrue(self.all.there())
        self.assertFalse(self.own.there())
        self.assertEqual(self.end(), DONE)

        self.open(REMOVE, self.all.uninstaller)
        self.answer("Return", REMOVE + COMPLETED)
        self.assertFalse(self.all.there())
        self.assertEqual(self.end(), DONE)
        soon("all files are removed", lambda: self.files() == self.before)

    def test_an_administrator_installs_it_for_himself_without_rights(self):
        self.open_setup("", self.limited)
        self.answer("Return", self.title(FOLDER))
        self.answer("Return", self.title(COMPLETED))
        self.assertEqual(self.end(), DONE)
        self.assertTrue(self.own.there())
        self.assertFalse(self.all.there())

    def test_a_question_is_cancelled(self):
        self.open_setup()
        self.assertEqual(self.end("Escape"), CANCELLED)
        self.assertEqual(self.files(), self.before)

    def test_who_does_not_become_an_administrator_is_told_that_one_is_needed(self):
        self.open(self.title(), self.limited, self.setup, "/Restarted", "/AllUsers")
        self.assertEqual(self.end(), NO_RIGHTS)
        self.assertEqual(self.files(), self.before)

    def test_the_user_is_asked_to_leave_plotvue(self):
        self.install()
        new = self.own.contents()
        (self.own.folder / TEXT).write_text("old")
        old = self.own.contents()
        self.from_menu(self.own)
        self.open(self.title(FOLDER), self.setup, "/CurrentUser")
        self.answer("Return", self.title())
        self.assertEqual(self.end("Escape"), RUNNING)
        self.assertEqual(self.own.contents(), old)

        self.open(self.title(FOLDER), self.setup, "/CurrentUser")
        self.answer("Return", self.title())
        self.kill()
        self.answer("Return", self.title(COMPLETED))
        self.assertEqual(self.own.contents(), new)
        self.assertEqual(self.end(), DONE)

    def test_a_second_installer_gives_up(self):
        self.install("/AllUsers")
        self.from_menu(self.all)
        self.open(self.title(FOLDER), self.setup, "/AllUsers")
        self.answer("Return", self.title())
        (self.all.folder / "PlotVue.new").mkdir()  # as if it had begun
        self.install("/CurrentUser", status=RUNNING)
        self.install("/AllUsers", status=RUNNING)
        self.assertTrue((self.all.folder / "PlotVue.new").is_dir())
        self.assertFalse(self.own.there())
        self.assertEqual(self.end("Escape"), RUNNING)
        self.install("/CurrentUser")


REMOVE = "Remove PlotVue"
FOLDER, COMPLETED = ": Installation Folder", ": Completed"

if __name__ == "__main__":
    main()
