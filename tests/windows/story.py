#!/usr/bin/python3 -B
"""story.py PLATFORM STORY PROGRAM HERE: under Wine, PROGRAM tells on PLATFORM the story that HERE, the same program for
this system, tells in memory. STORY is a script, or a capture through whose windows a tour goes."""

import difflib
import subprocess
import sys
import tempfile
from pathlib import Path

from tour import tour
from wine import Wine

ROOT = Path(__file__).resolve().parents[2]
platform, story, program, here = sys.argv[1:]
PATIENCE = 120


def directory(top, name):
    made = Path(top, name)
    made.mkdir()
    (made / "captures").symlink_to(ROOT / "tests/replay/scripts/captures")
    (made / "samples").symlink_to(ROOT / "samples")
    return made


def told_here(script, place):
    return subprocess.run([here], cwd=place, input=script, stdout=subprocess.PIPE, check=True, timeout=PATIENCE).stdout


def told_under_wine(script, place):
    with Wine() as desktop, tempfile.TemporaryFile() as told, tempfile.TemporaryFile() as read:
        read.write(script)
        read.seek(0)
        subprocess.run(["wine", program, f"--platform={platform}"], cwd=place, env=desktop.env, stdin=read, stdout=told,
                       check=True, timeout=PATIENCE)
        told.seek(0)
        return told.read().replace(b"\r\n", b"\n")  # a text stream's line ends there


with tempfile.TemporaryDirectory(prefix="plotvue-story-") as top:
    if story.endswith(".script"):
        script = Path(story).read_bytes()
    else:
        script = tour(here, directory(top, "tour"), Path(story).name).encode()
    script = b"clipboard\n" + script  # Wine's still holds what another story has copied
    stories = told_here(script, directory(top, "here")), told_under_wine(script, directory(top, "wine"))
    texts = [each.decode("utf-8", "backslashreplace").splitlines() for each in stories]
    print("\n".join(difflib.unified_diff(*texts, "here", "under Wine", n=0, lineterm="")))
    if stories[0] != stories[1] or not stories[0]:
        sys.exit("The stories differ.")
    files = [{file.name: file.read_bytes() for file in Path(top, name).iterdir() if file.is_file()}
             for name in ("here", "wine")]
    if files[0] != files[1]:
        sys.exit(f"The small files differ: {files}")
