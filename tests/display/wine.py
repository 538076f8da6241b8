"""Wine on a virtual display of its own, and Windows programs on it; nothing of the user's is touched.

    python3 -m tests.display.wine COMMAND...    runs the command there; `wine` in it is this Wine
"""

import os
import subprocess
import sys
import tempfile
from pathlib import Path

from tests.display.display import Display, DisplayTest

# Without these, Wine shows bitmap fonts and a serif. A Windows machine has the fonts that its dialogs use.
SETTINGS = r"""Windows Registry Editor Version 5.00

[HKEY_LOCAL_MACHINE\Software\Microsoft\Windows NT\CurrentVersion\FontSubstitutes]
"MS Shell Dlg"="DejaVu Sans"
"MS Shell Dlg 2"="DejaVu Sans"
"Segoe UI"="DejaVu Sans"
"Tahoma"="DejaVu Sans"

; Wine itself places these windows, at once, as Windows does. Elsewhere the X window manager does it, a moment later.
[HKEY_CURRENT_USER\Software\Wine\AppDefaults\desktoptests.exe\X11 Driver]
"Managed"="N"
"""
DEFAULT_PRINTER = r"HKCU\Software\Microsoft\Windows NT\CurrentVersion\Windows"
INSIDE = "PLOTVUE_WINE"  # set for programs that run on such a display; they use it


class Wine(Display):
    def __init__(self, program=None, **options):
        super().__init__(program, **options)

    def __enter__(self):
        if INSIDE in os.environ:
            self.env = dict(os.environ)
            self.home = Path(tempfile.mkdtemp(prefix="plotvue-"))
            return self
        super().__enter__()
        try:
            # Wine hides variables whose names begin with QT_ from its programs, and passes on WINEQT_ as QT_.
            self.env.update(WINEPREFIX=str(self.home / "wine"), WINEDEBUG="-all", WINEQT_QPA_PLATFORM="windows",
                            WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe=")
            self.env[INSIDE] = "1"
            self.windows_program("wineboot", "--init", seconds=180)
            settings = self.home / "settings.reg"
            settings.write_text(SETTINGS)
            self.windows_program("regedit", "/S", f"Z:{settings}")
            # While Wine creates its folder, two sets of its services run and block each other.
            subprocess.run(["wineserver", "--kill"], env=self.env, timeout=30, check=True)
            subprocess.run(["wineserver", "--wait"], env=self.env, timeout=60, check=True)
            # Otherwise the server ends after each program and starts again for the next.
            subprocess.run(["wineserver", "--persistent"], env=self.env, timeout=30, check=True)
            self.windows_program("cmd", "/c", "exit")
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *arguments):
        if INSIDE not in os.environ:
            subprocess.run(["wineserver", "--kill"], env=self.env, timeout=30, check=False)
        super().__exit__(*arguments)

    def windows_program(self, *command, seconds=60, **options):
        """Runs it until it ends, with exit code 0; returns its output."""
        options = {"cwd": self.home, "env": self.env, **options}
        # Not a pipe, because processes that Wine starts in the background would keep it open.
        with tempfile.TemporaryFile() as printed:
            subprocess.run(["wine", *map(str, command)], stdin=subprocess.DEVNULL, stdout=printed,
                           stderr=subprocess.DEVNULL, timeout=seconds, check=True, **options)
            printed.seek(0)
            return printed.read()

    def start(self, program=None, directory=None, **options):
        return self.launch("wine", str(program or self.program), cwd=directory or self.home, **options)


class WineTest(DisplayTest):
    display_class = Wine


if __name__ == "__main__":
    with Wine() as display:
        sys.exit(subprocess.run(sys.argv[1:], env={**os.environ, **display.env}, check=False).returncode)
