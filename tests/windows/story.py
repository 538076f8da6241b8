"""story.py PLATFORM STORY PROGRAM HERE: under Wine, PROGRAM prints on PLATFORM what HERE, the same program built for
this system, prints in memory, and writes the same files. STORY is a script or a capture, as for replay/alike.py."""

import os
import sys
import tempfile
from pathlib import Path

from tests.display.wine import Wine
from tests.replay.alike import check_alike, played
from tests.replay.tour import tours
from tests.verdict import remark

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
                with Wine() as display:
                    printed, files = played(["wine", program, f"--platform={platform}"],
                                            script, top / f"wine{number}{attempt}",
                                            {**os.environ, **display.env}, PATIENCE)
                # A text stream of Windows ends its lines with CR LF.
                other = printed.replace(b"\r\n", b"\n"), files
                if one == other:
                    break
                remark(f"{Path(story).name} on {platform} differed in the {attempt} try.")
            check_alike(one, other)


if __name__ == "__main__":
    main()
