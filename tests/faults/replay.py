"""The replay program as a process that is told one thing after the other."""

import json
import os
import subprocess
import tempfile

ENVIRONMENT = {"QT_QPA_PLATFORM": "offscreen", "QT_LOGGING_RULES": "*.warning=false"}  # of Qt's own


def text(line):
    """Half a surrogate pair comes as its own three bytes."""
    return line.decode("utf-8", "surrogatepass")


class Replay:
    """Keeps the script and what was printed; `over` is how the session ended, None while it lives."""

    def __init__(self, program, directory, platform="recording", around=()):
        self.script, self.printed, self.over = [], [], None
        self.complaints = tempfile.TemporaryFile("w+", errors="replace")
        self.process = subprocess.Popen(
            [*around, program, f"--platform={platform}"], cwd=directory, stdin=subprocess.PIPE,
            stdout=subprocess.PIPE, stderr=self.complaints, env={**os.environ, **ENVIRONMENT})

    def tell(self, *lines):
        """Plays the lines and returns the events and states that they printed."""
        lines = [*lines, "dump startup"]  # the last answer says that all is done
        self.script += lines
        try:
            self.process.stdin.write("".join(line + "\n" for line in lines).encode())
            self.process.stdin.flush()
        except BrokenPipeError:
            pass  # it is over, as will be read
        awaited = sum(line.startswith("dump ") for line in lines)
        answers = []
        while awaited and (line := self.process.stdout.readline()):
            self.printed.append(line)
            answers.append(json.loads(text(line)))
            awaited -= "event" not in answers[-1]
        if awaited:
            last = json.loads(text(self.printed[-1])) if self.printed else {}
            self.over = last.get("event", "nothing was printed")
            return answers
        return answers[:-1]

    def state(self, window):
        """What the window shows; None when the session is over."""
        answers = self.tell(f"dump {window}")
        return None if self.over else answers[-1]

    def end(self):
        """Ends the script; returns the exit status and what was printed on standard error."""
        try:
            rest, _ = self.process.communicate(timeout=20)
        except subprocess.TimeoutExpired:
            self.process.kill()
            rest, _ = self.process.communicate()
        self.printed += rest.splitlines(keepends=True)
        with self.complaints as complaints:
            complaints.seek(0)
            return self.process.returncode, complaints.read()
