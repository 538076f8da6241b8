"""sessions.py PROGRAM: 300 random sessions under Wine, every tenth on both platforms. What must hold is in
tests/sessions."""

import os
import subprocess
import sys
import tempfile

from tests.display.wine import Wine

SEED, COUNT, BOTH, STEPS = 1, 300, 10, 40

program = sys.argv[1]
with Wine() as display, tempfile.TemporaryDirectory(prefix="plotvue-sessions-") as directory, \
        tempfile.TemporaryFile() as printed, tempfile.TemporaryFile() as complaints:
    status = subprocess.run(["wine", program, "sessions", *map(str, (SEED, 0, COUNT, BOTH, STEPS))], cwd=directory,
                            env=display.env, stdin=subprocess.DEVNULL, stdout=printed, stderr=complaints, timeout=500,
                            check=False).returncode
    printed.seek(0)
    complaints.seek(0)
    ends = printed.read().decode()
    print(ends, complaints.read().decode(errors="replace"), os.listdir(directory))
    played = sum(int(line.split()[0]) for line in ends.splitlines())
    sys.exit(status or played != COUNT)
