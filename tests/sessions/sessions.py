"""The program that plays the random sessions and the soak, and the directories and environment that it plays in."""

import os
import subprocess
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]


def built():
    """Builds the program with optimisation; returns its path."""
    build = ROOT / "build/sessions"
    for command in (["cmake", "-S", ROOT, "-B", build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Release"],
                    ["cmake", "--build", build, "--target", "plotvue-sessions"]):
        subprocess.run(command, check=True, stdout=subprocess.DEVNULL)
    return build / "tests/sessions/plotvue-sessions"


def empty_directory(prefix):
    """A new directory, in memory where possible: rewriting thousands of small files keeps a disk busy."""
    memory = "/dev/shm"
    return Path(tempfile.mkdtemp(prefix=prefix, dir=memory if os.access(memory, os.W_OK) else None))


def without_traces(directory):
    """Makes the directory; returns an environment in which everything that is written outside the working directory is
    written there."""
    directory.mkdir(mode=0o700)
    kept = {name: value for name, value in os.environ.items() if not name.startswith("XDG_")}
    return {**kept, "HOME": str(directory), "TMPDIR": str(directory), "XDG_RUNTIME_DIR": str(directory),
            "QT_QPA_PLATFORM": "offscreen", "QT_LOGGING_RULES": "*.warning=false"}  # Qt's
