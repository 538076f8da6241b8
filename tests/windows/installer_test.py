"""The installer and the uninstaller without questions: for one user and for all, over a copy that is installed or runs;
and what is left in the end: nothing."""

import contextlib
import shutil
import subprocess
from pathlib import Path

from tests.display.display import NotInTime, soon
from tests.windows.installing import (
    DONE, FAILED, NO_RIGHTS, PROGRAM, RUNNING, TEXT, UNINSTALLER, Copy, InstallerTest, main)


class Installer(InstallerTest):
    def remove(self, copy):
        """When the uninstaller returns, PlotVue is removed; it goes itself a moment later."""
        self.assertEqual(self.status(copy.uninstaller, "/S"), DONE)
        self.assertFalse(copy.there())
        soon("the uninstaller goes", lambda: not copy.folder.exists())

    def nothing_is_left(self):
        with contextlib.suppress(NotInTime):
            soon("all files are removed", lambda: self.files() == self.before)
        self.assertEqual(self.files(), self.before)

    def leave(self, starts=None):
        """Esc closes the box that needs data, and leaves the start-up window; the last to end removes the folder."""
        def over():
            if self.display.windows():
                self.display.key("Escape")
            return not (starts or self.starts).exists()
        soon("every PlotVue ends, and the folders go", over)

    def test_the_program_and_the_installer_are_small(self):
        self.assertLess(Path(self.program).stat().st_size, 21_000_000)
        self.assertLess(Path(self.setup).stat().st_size, 8_000_000)

    def test_the_notice_names_qt_and_the_sources_beside_the_installer(self):
        self.install()
        notice = (self.own.folder / TEXT).read_text()
        self.assertRegex(notice, r"\bQt \d+\.\d+\.\d+,")
        sources = [file.name for file in (Path(self.setup).parent / "qt-source").iterdir()]
        self.assertTrue(sources)
        for name in sources:
            self.assertIn(name, notice)

    def test_a_user_installs_starts_and_removes_it(self):
        self.install()
        self.assertTrue(self.own.there())
        self.assertFalse(self.all.there())
        self.assertTrue((self.own.folder / TEXT).is_file())

        one = self.from_menu(self.own)
        two = self.from_menu(self.own)
        self.assertNotEqual(one, two)
        self.assertEqual(self.status(self.own.uninstaller, "/S"), RUNNING)
        self.assertTrue(self.own.there())
        self.leave()

        self.remove(self.own)
        self.nothing_is_left()

    def test_all_users_have_it_and_work_in_folders_of_their_own(self):
        self.install("/AllUsers")
        self.assertTrue(self.all.there())
        self.assertFalse(self.own.there())
        installed = self.all.contents()
        self.from_menu(self.all)
        self.leave()

        other = self.drive / "other"
        other.mkdir()
        batch = self.display.home / "other.bat"
        batch.write_text('set LOCALAPPDATA=C:\\other\r\ncd /d "C:\\Program Files\\PlotVue"\r\nstart plotvue.exe\r\n')
        self.display.windows_program("cmd", "/c", batch)
        soon("another user's window comes", self.display.windows)
        self.assertTrue((other / "PlotVue/1").is_dir())
        self.leave(other / "PlotVue")
        other.rmdir()

        self.assertEqual(self.all.contents(), installed)
        self.remove(self.all)
        self.nothing_is_left()

    def test_who_is_no_administrator_installs_for_himself_only(self):
        self.assertEqual(self.status(self.limited, self.setup, "/S", "/AllUsers"), NO_RIGHTS)
        self.assertEqual(self.files(), self.before)
        self.assertEqual(self.status(self.limited, self.setup, "/S"), DONE)
        self.assertTrue(self.own.there())
        self.remove(self.own)

        self.install("/AllUsers")
        self.assertEqual(self.status(self.limited, self.setup, "/S"), NO_RIGHTS)
        self.assertEqual(self.status(self.limited, self.all.uninstaller, "/S"), NO_RIGHTS)
        self.assertTrue(self.all.there())
        self.assertFalse(self.own.there())

    def test_an_update_replaces_what_is_installed_where_it_is(self):
        for copy, option in ((self.own, "/CurrentUser"), (self.all, "/AllUsers")):
            with self.subTest(option):
                self.install(option)
                new, version = copy.contents(), copy.listed("DisplayVersion")
                copy.make_old()
                self.install()
                self.assertEqual(copy.contents(), new)
                self.assertEqual(copy.listed("DisplayVersion"), version)
                self.assertEqual([self.own.there(), self.all.there()].count(True), 1)
                self.remove(copy)
        self.nothing_is_left()

    def test_a_running_copy_is_not_updated(self):
        self.install()
        (self.own.folder / TEXT).write_text("old")
        self.from_menu(self.own)
        before = self.own.contents()
        self.install(status=RUNNING)
        self.install("/AllUsers", status=RUNNING)
        self.assertEqual(self.own.contents(), before)
        self.assertFalse(self.all.folder.exists())
        self.leave()
        self.install()
        self.assertNotEqual(self.own.contents(), before)

    def test_an_update_that_fails_changes_nothing(self):
        self.install()
        self.own.make_old()
        before = self.own.contents()
        for file in (UNINSTALLER, PROGRAM):  # PlotVue is the last file that is replaced
            with self.subTest(file):
                with self.held(self.own.folder / file):
                    self.install(status=FAILED)
                self.assertEqual(self.own.contents(), before)
                self.assertEqual(self.own.listed("DisplayVersion"), "1.0")
        self.install()
        self.assertNotEqual(self.own.contents(), before)

    @contextlib.contextmanager
    def held(self, file):
        """Another program has the file open."""
        process = self.display.launch("wine", self.holder, f"Z:{file}", stdout=subprocess.PIPE)
        self.assertTrue(process.stdout.readline())
        yield
        process.kill()
        process.wait()

    def test_a_removal_that_fails_changes_nothing(self):
        self.install()
        before = self.own.contents()
        with self.held(self.own.folder / PROGRAM):
            self.assertEqual(self.status(self.own.uninstaller, "/S"), FAILED)
        self.assertEqual(self.own.contents(), before)
        self.assertTrue(self.own.there())
        self.remove(self.own)

    def test_what_cannot_be_replaced_does_not_run(self):
        self.install()
        program = self.own.folder / PROGRAM
        program.unlink()
        program.mkdir()
        before = self.own.contents()
        self.install(status=FAILED)
        self.assertEqual(self.own.contents(), before)

    def test_an_installation_that_fails_leaves_nothing(self):
        self.own.folder.mkdir(parents=True)
        (self.own.folder / "PlotVue.new").touch()  # it writes into a folder of this name first
        before = self.files()
        self.install(status=FAILED)
        self.assertEqual(self.files(), before)
        self.assertFalse(self.own.there())

    def test_another_folder_is_moved_to(self):
        self.install()
        self.install(r"/D=C:\moved")
        self.assertFalse(self.own.folder.exists())
        moved = Copy(self.display, self.drive / "moved", self.own.entry.parent, "HKCU")
        self.assertTrue(moved.there())
        self.install()
        self.assertEqual(moved.listed(), r"C:\moved")
        self.remove(moved)
        self.nothing_is_left()

    def test_the_copy_for_all_users_replaces_the_users_own(self):
        self.install()
        self.install("/AllUsers")
        self.assertTrue(self.all.there())
        self.assertFalse(self.own.there())
        self.assertFalse(self.own.folder.exists())
        self.remove(self.all)
        self.nothing_is_left()

    def test_a_users_own_copy_is_beside_that_of_all_users(self):
        self.install("/AllUsers")
        self.install("/CurrentUser")
        self.assertTrue(self.all.there())
        self.assertTrue(self.own.there())
        work = self.from_menu(self.own)
        (work / "plotvue.txt").touch()
        self.remove(self.all)
        self.assertTrue((work / "plotvue.txt").exists())
        self.leave()
        self.remove(self.own)
        self.nothing_is_left()

    def test_what_is_installed_at_once_after_a_removal_stays(self):
        self.install()
        installed = self.own.contents()
        self.assertEqual(self.status(self.own.uninstaller, "/S"), DONE)
        self.install()  # before the uninstaller is deleted, which is tried after a second
        soon("the deletion is over", lambda: not self.processes("PlotVue.gone"))
        self.assertEqual(self.own.contents(), installed)

    def processes(self, text):
        """The numbers of this Wine's processes whose command line has the text."""
        def has_text(folder):
            with contextlib.suppress(OSError):  # it has ended
                return (self.display.env["WINEPREFIX"].encode() in (folder / "environ").read_bytes()
                        and text.encode() in (folder / "cmdline").read_bytes())
        return [int(folder.name) for folder in Path("/proc").glob("[0-9]*") if has_text(folder)]

    def test_what_a_crash_left_is_swept_at_the_next_start(self):
        self.install()
        left = self.from_menu(self.own)
        (left / "plotvue.txt").write_text("left")
        self.kill()
        self.assertTrue(left.is_dir())
        (self.starts / "other").mkdir()
        self.start_entry(self.own)
        soon("the folders are swept",
             lambda: not (self.starts / "other").exists() and not (left / "plotvue.txt").exists())
        soon("a window comes", self.display.windows)
        self.assertEqual(len(self.working()), 1)
        self.kill()
        self.remove(self.own)
        self.nothing_is_left()

    def test_started_by_hand_it_works_where_it_is_started(self):
        shutil.copy(self.program, self.display.home / PROGRAM)
        process = self.display.start(PROGRAM)
        soon("a window comes", self.display.windows)
        self.assertFalse(self.starts.exists())
        process.kill()
        process.wait()


if __name__ == "__main__":
    main()
