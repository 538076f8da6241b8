"""The program on a Wayland display, where only the window with the focus may read the clipboard."""

import json
import os
import shutil
import subprocess
import tempfile
from pathlib import Path

from tests.display.display import CHART, NEED_DATA, PRODUCT, SCREEN, START, Display, DisplayTest, main, soon


class WaylandDisplay(Display):
    """A compositor without a screen, with a keyboard. It does not run as root: then the user nobody runs everything."""

    def __enter__(self):
        self.home = Path(tempfile.mkdtemp(prefix="plotvue-"))
        self.env = {
            "PATH": os.environ["PATH"],
            "HOME": str(self.home),
            "XDG_RUNTIME_DIR": str(self.home),
            "LANG": "C.UTF-8",
            "DBUS_SESSION_BUS_ADDRESS": "disabled:",
            "QT_QPA_PLATFORM": "wayland",
            "WLR_BACKENDS": "headless",
            "WLR_LIBINPUT_NO_DEVICES": "1",
            "WLR_RENDERER": "pixman",
            "SWAYSOCK": str(self.home / "sway"),
        }
        self.user = {}
        try:
            if os.getuid() == 0:
                self.user = {"user": "nobody", "group": "nogroup", "extra_groups": []}
                self.program = shutil.copy(self.program, self.home)  # where nobody may run it
                shutil.chown(self.home, "nobody")
            config = self.home / "config"
            config.write_text("xwayland disable\n")
            self.launch("sway", "-c", str(config))
            self.env["WAYLAND_DISPLAY"] = soon("the compositor runs", lambda: next(
                (path.name for path in self.home.glob("wayland-*") if path.is_socket()), None))
            soon("the compositor answers", lambda: self.output("swaymsg", "-t", "get_version"))
            self.launch("wtype", "-P", "Shift_L", "-p", "Shift_L", "-s", "1000000")  # its keyboard stays that long
            soon("the keyboard is there", lambda: "keyboard" in self.output("swaymsg", "-t", "get_inputs"))
        except BaseException:
            self.__exit__()
            raise
        return self

    def launch(self, *command, **options):
        return super().launch(*command, **self.user, **options)

    def copy(self, capture):
        path = self.home / "capture"
        path.write_bytes(capture)
        with path.open("rb") as held:
            self.launch("wl-copy", "--foreground", "--type", "text/plain;charset=utf-8", stdin=held)
        soon("the capture is on the clipboard", lambda: "text/plain" in self.output("wl-paste", "--list-types"))

    def key(self, *keys):
        for key in keys:
            *held, last = key.split("+")
            self.output("wtype", *(word for name in held for word in ("-M", name)), "-k", last,
                        *(word for name in held for word in ("-m", name)))

    def pasted(self, target):
        if target not in self.output("wl-paste", "--list-types").splitlines():
            return None
        return subprocess.run(["wl-paste", "--no-newline", "--type", target], env=self.env, stdout=subprocess.PIPE,
                              timeout=20, check=False, **self.user).stdout

    def windows(self):
        """The windows of the program: whether they have the focus, by title."""
        return dict(self.all_windows())

    def all_windows(self):
        """Title and focus of each window of every PlotVue."""
        nodes = [json.loads(self.output("swaymsg", "-t", "get_tree"))]
        while nodes:
            node = nodes.pop()
            nodes += node["nodes"] + node["floating_nodes"]
            if node.get("app_id") == "io.github.plotvue.PlotVue":
                yield node["name"], node["focused"]

    def window(self, title):
        soon(f"the window {title!r} has the focus", lambda: self.windows().get(title))


class Wayland(DisplayTest):
    display_class = WaylandDisplay

    def test_a_capture_at_the_start_opens_its_window_alone(self):
        self.display.copy(PRODUCT)
        self.start(CHART)
        self.display.key("ctrl+shift+c")
        soon("figures are copied", lambda: self.display.pasted(SCREEN))  # no longer does it wait for the focus
        self.assertEqual(list(self.display.windows()), [CHART])
        self.still_runs()

    def test_a_capture_that_comes_later_is_charted_by_refresh(self):
        self.start(NEED_DATA)
        self.needs_data()
        self.charts(PRODUCT)
        self.display.gone(START)
        self.leave()

    def test_what_is_copied_is_pasted_and_the_screen_stays(self):
        self.display.copy(PRODUCT)
        self.start(CHART)
        self.display.key("ctrl+shift+c")
        soon("figures are copied", lambda: self.display.pasted(SCREEN))
        self.assertTrue(self.display.pasted("text/plain;charset=utf-8").startswith(
            b"\tSales\tProjected\r\nOCT98\t101211.69\t0\r\n"))
        self.display.key("F5", "ctrl+c")
        soon("a picture is copied", lambda: self.display.pasted("image/png"))
        self.assertTrue(self.display.pasted("image/png").startswith(b"\x89PNG"))
        self.assertEqual(self.display.pasted(SCREEN), PRODUCT)
        self.display.key("F5")
        self.display.key("Escape")
        self.display.window(START)
        self.display.key("F5")
        self.display.window(CHART)

        other = self.display.start()
        self.addCleanup(other.wait)
        self.addCleanup(other.kill)
        soon("another PlotVue charts it, too",
             lambda: [title for title, _ in self.display.all_windows()] == [CHART, CHART])
        self.still_runs()


if __name__ == "__main__":
    main()
