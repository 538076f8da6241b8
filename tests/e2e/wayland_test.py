"""The program on a Wayland desktop, where only the window with the focus may read the clipboard."""

import json
import os
import shutil
import tempfile
import time
from pathlib import Path

from desktop import CHART, NEED_DATA, PRODUCT, START, Desktop, DesktopTest, main, soon


class WaylandDesktop(Desktop):
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
            self.output("wtype", "-k", key)

    def windows(self):
        """The windows of the program: whether they have the focus, by title."""
        found = {}
        nodes = [json.loads(self.output("swaymsg", "-t", "get_tree"))]
        while nodes:
            node = nodes.pop()
            nodes += node["nodes"] + node["floating_nodes"]
            if node.get("app_id") == "io.github.plotvue.PlotVue":
                found[node["name"]] = node["focused"]
        return found

    def window(self, title):
        soon(f"the window {title!r} has the focus", lambda: self.windows().get(title))


class Wayland(DesktopTest):
    desktop_class = WaylandDesktop

    def test_a_capture_at_the_start_opens_its_window_alone(self):
        self.desktop.copy(PRODUCT)
        self.start(CHART)
        time.sleep(1.5)  # longer than the program waits for the focus
        self.assertEqual(list(self.desktop.windows()), [CHART])
        self.still_runs()

    def test_a_capture_that_comes_later_is_charted_by_refresh(self):
        self.start(NEED_DATA)
        self.needs_data()
        self.charts(PRODUCT)
        self.desktop.gone(START)
        self.leave()


if __name__ == "__main__":
    main()
