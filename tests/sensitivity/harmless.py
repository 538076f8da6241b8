"""Changes that the unit tests do not notice, and why each is no fault. harmless.toml has them, told as `run` tells
them but without the number of the line."""

import tomllib
from pathlib import Path

ENTRIES = tomllib.loads(Path(__file__).with_suffix(".toml").read_text(encoding="utf-8"))["harmless"]
REASONS = {(path, change): entry["why"] for entry in ENTRIES
           for path, changes in entry["changes"].items() for change in changes}


def reason(change):
    return REASONS.get((change.path, change.shown))


def outdated(changes):
    """What harmless.toml has that none of all changes is."""
    possible = {(change.path, change.shown) for change in changes}
    return [f"harmless.toml: {path} cannot be changed so: {shown}" for path, shown in REASONS.keys() - possible]
