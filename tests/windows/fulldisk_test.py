"""A disk that is full when a small file is written: the error report gives the system's reason. Runs with a mount table
of its own, where it may mount small disks."""

import contextlib
import os
import subprocess
import sys

from tests.display.wine import INSIDE, Wine
from tests.faults.files import CHOSEN, ENTRIES, MAY_MOUNT, ROW, SCRATCH, Files, main, unittest

MOUNTED = "PLOTVUE_MOUNTED"  # set in the process with the mount table of its own
FULL = r"cannot be written \(Disk full\)"  # as Wine names it


@unittest.skipUnless(MAY_MOUNT, "this user may not mount a disk")
class FullDisk(Files):
    def setUp(self):
        super().setUp()
        os.environ.pop(INSIDE, None)  # the display that is there already does not see the disk
        display = self.enterContext(Wine(manager=None))
        os.environ.update({name: value for name, value in display.env.items() if name != INSIDE})

    @contextlib.contextmanager
    def disk_of(self, pages):
        """The directory is a disk of that many pages of 4 KB."""
        subprocess.run(["mount", "-t", "tmpfs", "-o", f"size={4 * pages}k", "none", self.directory], check=True)
        try:
            yield
        finally:
            subprocess.run(["umount", "--lazy", self.directory], check=True)

    def test_a_full_disk_is_reported(self):
        # The capture takes five pages, the key of the row one more, the list three.
        for pages, name in ((1, SCRATCH), (5, CHOSEN), (6, ENTRIES), (8, ENTRIES)):
            with self.subTest(name, pages=pages), self.disk_of(pages):
                replay = self.copied(around=("wine",))
                if name == SCRATCH:
                    self.fails(replay, "start", rf"^The file {name} .* {FULL}\.$")
                else:
                    replay.tell("start")
                    self.fails(replay, ROW, rf"^The file {name} .* {FULL}\.$")


if __name__ == "__main__":
    if MAY_MOUNT and MOUNTED not in os.environ:
        os.environ[MOUNTED] = "1"
        os.execvp("unshare", ("unshare", "--map-root-user", "--mount", *sys.orig_argv))
    main()
