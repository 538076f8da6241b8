"""The replay program as a process that plays lines as they are sent to it."""

import json
import os
import subprocess
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
SAMPLES = ROOT / "samples"
CAPTURES = ROOT / "tests/replay/scripts/captures"
# Without Qt's warnings, standard error holds only PlotVue's messages.
ENVIRONMENT = {"QT_QPA_PLATFORM": "offscreen", "QT_LOGGING_RULES": "*.warning=false"}


def parsed(line):
    """The event or state of a printed line. An unpaired surrogate is encoded in three bytes."""
    return json.loads(line.decode("utf-8", "surrogatepass"))


def working_directory(place):
    """Creates a directory with links to the samples and captures that scripts name."""
    place.mkdir()
    (place / "samples").symlink_to(SAMPLES)
    (place / "captures").symlink_to(CAPTURES)
    return place


class Replay:
    """Keeps the script and the output. `over` says how the session ended; it is None as long as the session runs."""

    def __init__(self, program, directory, platform="recording", around=()):
        self.script, self.printed, self.over = [], [], None
        self.complaints = tempfile.TemporaryFile("w+", errors="replace")
        self.process = subprocess.Popen(
            [*around, program, f"--platform={platform}"], cwd=directory, stdin=subprocess.PIPE,
            stdout=subprocess.PIPE, stderr=self.complaints, env={**os.environ, **ENVIRONMENT})

    def tell(self, *lines):
        """Plays the lines and returns the events and states that they printed."""
        dumped = lines[-1].startswith("dump ")
        lines = lines if dumped else (*lines, "dump startup")  # the answer to it shows that all lines were played
        self.script += lines
        try:
            self.process.stdin.write("".join(line + "\n" for line in lines).encode())
            self.process.stdin.flush()
        except BrokenPipeError:
            pass  # the session is over; the missing answers show it below
        awaited = sum(line.startswith("dump ") for line in lines)
        answers = []
        while awaited and (line := self.process.stdout.readline()):
            self.printed.append(line)
            answers.append(parsed(line))
            awaited -= "event" not in answers[-1]
        if awaited:
            last = parsed(self.printed[-1]) if self.printed else {}
            self.over = last.get("event", "it broke off")
            return answers
        return answers if dumped else answers[:-1]

    def state(self, window):
        """The state of the window; None if the session is over."""
        answers = self.tell(f"dump {window}")
        return None if self.over else answers[-1]

    def end(self):
        """Ends the script; returns the exit status and the text on standard error."""
        try:
            rest, _ = self.process.communicate(timeout=20)
        except subprocess.TimeoutExpired:
            self.process.kill()
            rest, _ = self.process.communicate()
        self.printed += rest.splitlines(keepends=True)
        with self.complaints as complaints:
            complaints.seek(0)
            return self.process.returncode, complaints.read()
