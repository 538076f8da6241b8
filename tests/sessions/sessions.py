"""The program for the random sessions and the soak test, and its directories and environment."""

import os
import subprocess
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]


def built():
    """Builds an optimised program; returns its path."""
    build = ROOT / "build/sessions"
    for command in (["cmake", "-S", ROOT, "-B", build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Release"],
                    ["cmake", "--build", build, "--target", "plotvue-sessions"]):
        subprocess.run(command, check=True, stdout=subprocess.DEVNULL)
    return build / "tests/plotvue-sessions"


def empty_directory(prefix):
    """A new directory, in memory if possible, because the sessions rewrite small files thousands of times."""
    memory = "/dev/shm"
    return Path(tempfile.mkdtemp(prefix=prefix, dir=memory if os.access(memory, os.W_OK) else None))


def without_traces(directory):
    """Creates the directory; returns an environment in which files outside the working directory are written there."""
    directory.mkdir(mode=0o700)
    kept = {name: value for name, value in os.environ.items() if not name.startswith("XDG_")}
    return {**kept, "HOME": str(directory), "TMPDIR": str(directory), "XDG_RUNTIME_DIR": str(directory),
            "QT_QPA_PLATFORM": "offscreen", "QT_LOGGING_RULES": "*.warning=false"}  # no warnings of Qt
