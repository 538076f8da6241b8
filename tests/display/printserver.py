"""A print server for one test: its queues keep what is sent to them."""

import os
import re
import subprocess
import tempfile
from pathlib import Path

from tests.display.display import CHART, PRODUCT, DisplayTest, soon

BACKEND = """#!/bin/sh
# backend JOB USER TITLE COPIES OPTIONS [FILE]
[ $# -ge 5 ] || exit 0
cat "${6:--}" >"$KEPT/$PRINTER-$1.document" && echo "$4" >"$KEPT/$PRINTER-$1.copies"
"""

CUPSD = """
Listen {top}/socket
LogLevel warn
Browsing No
WebInterface No
DefaultAuthType None
PreserveJobHistory Yes
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order deny,allow
    Allow all
  </Limit>
</Policy>
"""

CUPS_FILES = """
ServerRoot {top}/etc
ServerBin {top}/bin
CacheDir {top}/cache
StateDir {top}/state
RequestRoot {top}/spool
TempDir {top}/spool/tmp
DocumentRoot {top}/doc
AccessLog {top}/log/access
ErrorLog {top}/log/error
PageLog {top}/log/page
SetEnv KEPT {top}/kept
{user}
"""

QUEUE = """
<Printer {name}>
Info {name}
DeviceURI keep:/{name}
State Idle
Accepting Yes
Shared No
</Printer>
"""


class PrintServer:
    """A print server that the programs on the display use; it ends with the display."""

    def __init__(self, display, queues):
        # Not below the home directory: the server's helpers run as another user when the test runs as root.
        self.directory = tempfile.TemporaryDirectory(prefix="plotvue-cups-", dir="/tmp")
        top = Path(self.directory.name)
        top.chmod(0o755)
        self.kept = top / "kept"
        for name in ("etc", "bin/backend", "cache", "state", "spool/tmp", "doc", "log", "kept"):
            (top / name).mkdir(parents=True)
        self.kept.chmod(0o777)
        for name in ("filter", "daemon", "monitor", "notifier"):
            (top / "bin" / name).symlink_to(Path("/usr/lib/cups") / name)
        backend = top / "bin/backend/keep"
        backend.write_text(BACKEND)
        backend.chmod(0o755)
        user = "" if os.getuid() == 0 else f"User {os.getuid()}\nGroup {os.getgid()}"
        (top / "etc/cupsd.conf").write_text(CUPSD.format(top=top))
        (top / "etc/cups-files.conf").write_text(CUPS_FILES.format(top=top, user=user))
        (top / "etc/printers.conf").write_text("".join(QUEUE.format(name=name) for name in queues))

        self.display = display
        self.log = top / "log/error"
        display.env.update(CUPS_SERVER=f"{top}/socket", CUPS_SERVERROOT=f"{top}/etc")
        self.process = display.launch("/usr/sbin/cupsd", "-f", "-c", f"{top}/etc/cupsd.conf",
                                      "-s", f"{top}/etc/cups-files.conf")
        soon("the print server answers",
             lambda: "scheduler is running" in display.output("lpstat", "-r"))

    def close(self):
        self.process.terminate()
        self.process.wait()
        self.directory.cleanup()

    def connections(self):
        """How many programs are connected to the server, those included that it has not noticed yet."""
        sockets = Path("/proc/net/unix").read_text().splitlines()
        return sum(line.endswith(self.display.env["CUPS_SERVER"]) for line in sockets)

    def completed(self, queue):
        """The names of the queue's completed jobs."""
        listing = self.display.output("lpstat", "-W", "completed", "-o", queue)
        return [line.split()[0] for line in listing.splitlines()]

    def copies(self, job):
        return int((self.kept / f"{job}.copies").read_text())

    def check_pages(self, test, jobs):
        """Each job must be one copy of one page that is not empty."""
        for job in jobs:
            test.assertEqual(self.copies(job), 1)
            (_, _, ink), = self.pages(job)
            test.assertGreater(ink, 2000)

    def pages(self, job):
        """For every page of the job: its width and height, and how many of its pixels are not white."""
        pages = []
        # Reads PDF, which the toolkit prints on this system, and PostScript, which Wine prints.
        subprocess.run(["gs", "-q", "-dSAFER", "-sDEVICE=pgmraw", "-r40", "-dTextAlphaBits=4", "-dGraphicsAlphaBits=4",
                        "-o", self.kept / "page%d.pgm", self.kept / f"{job}.document"], check=True)
        for page in sorted(self.kept.glob("page*.pgm")):
            content = page.read_bytes()
            width, height = map(int, re.search(rb"^(\d+) (\d+)$", content, re.MULTILINE).groups())
            pages.append((width, height, sum(byte < 250 for byte in content[-width * height:])))
            page.unlink()
        return pages


class PrintTest(DisplayTest):
    """Tests with a chart on the screen and two printers, of which the first is the default."""

    def setUp(self):
        super().setUp()
        self.server = PrintServer(self.display, ["first", "second"])
        self.addCleanup(self.server.close)
        self.display.copy(PRODUCT)
        self.start(CHART)

    def open_dialog(self):
        self.display.key("ctrl+p")
        return self.display.window("Print")

    def cancel(self):
        self.display.key("Escape")
        self.display.gone("Print")

    def print_copies(self, *digits):
        """Prints so many copies on the second printer, by the keys of the dialog that is open."""
        dialog = self.display.window("Print")
        height = self.display.height(dialog)
        self.display.key("alt+o")  # more options
        soon("the dialog shows its options", lambda: self.display.height(dialog) > height)
        self.display.key("alt+n", "Down")  # the next printer
        self.display.key(*["Tab"] * 6, *digits, "alt+p")  # the number of copies has no key of its own
