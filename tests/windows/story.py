#!/usr/bin/python3 -B
"""story.py PLATFORM STORY PROGRAM HERE: under Wine, PROGRAM prints on PLATFORM what HERE, the same program built for
this system, prints in memory, and writes the same files. STORY is a script or a capture, as for replay/alike.py."""

import os
import sys
import tempfile
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "replay"))
from alike import check_alike, played  # noqa: E402
from tour import tours  # noqa: E402
from wine import Wine  # noqa: E402

PATIENCE = 120


def scripts(here, story, top):
    if story.suffix == ".script":
        return [story.read_text()]
    capture = f"{story.parent.name}/{story.name}"
    return ["".join(line + "\n" for line in tour.script) for tour, _, _ in tours(here, top, capture)]


def main():
    platform, story, program, here = sys.argv[1:]
    with tempfile.TemporaryDirectory(prefix="plotvue-story-") as directory:
        top = Path(directory)
        for number, script in enumerate(scripts(here, Path(story), top)):
            script = "clipboard\n" + script  # Wine's clipboard still holds what another story has copied
            one = played([here], script, top / f"here{number}", patience=PATIENCE)
            # On a busy machine Wine loses its clipboard now and then; a difference of PlotVue's comes every time.
            for attempt in ("first", "second"):
                with Wine() as desktop:
                    printed, files = played(["wine", program, f"--platform={platform}"],
                                            script, top / f"wine{number}{attempt}",
                                            {**os.environ, **desktop.env}, PATIENCE)
                # A text stream of Windows ends its lines with CR LF.
                other = printed.replace(b"\r\n", b"\n"), files
                if one == other:
                    break
            check_alike(one, other)


if __name__ == "__main__":
    main()
