"""What the random sessions and the soak share: the program that plays them, and where it plays."""

import os
import subprocess
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]


def built():
    """The program, built for speed."""
    build = ROOT / "build/sessions"
    for command in (["cmake", "-S", ROOT, "-B", build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Release"],
                    ["cmake", "--build", build, "--target", "plotvue-sessions"]):
        subprocess.run(command, check=True, stdout=subprocess.DEVNULL)
    return build / "tests/sessions/plotvue-sessions"


def empty_directory(prefix):
    """In memory where that is possible: thousands of small files that are rewritten keep a disk busy."""
    memory = "/dev/shm"
    return Path(tempfile.mkdtemp(prefix=prefix, dir=memory if os.access(memory, os.W_OK) else None))


def without_traces(directory):
    """An environment in which whatever is written outside the working directory lands in `directory`, a new one."""
    directory.mkdir(mode=0o700)
    kept = {name: value for name, value in os.environ.items() if not name.startswith("XDG_")}
    return {**kept, "HOME": str(directory), "TMPDIR": str(directory), "XDG_RUNTIME_DIR": str(directory),
            "QT_QPA_PLATFORM": "offscreen", "QT_LOGGING_RULES": "*.warning=false"}  # of Qt's own
