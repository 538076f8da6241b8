"""What may be on the clipboard: the captures of samples/, whole and damaged."""

import re
from pathlib import Path

SAMPLES = Path(__file__).resolve().parents[2] / "samples"
WHOLE = {path.stem: path.read_bytes() for path in sorted(SAMPLES.glob("*.txt"))}

ODD_FIELDS = [b"1E308", b"-1E308", b"1e-320", b"99999", b"-32769", b"101", b"0", b"-5", b".", b"-", b"", b"XXX", b'"',
              b'","', "€1,5".encode(), b"\xff\xfe", b"\xed\xa0\x80", b"\0", b"\t", b";", b"GAIN:", b"3A:", b"-----",
              b"RANK:  7"]


def cut(random, lines):
    text = b"\r\n".join(lines)
    return text[:random.randrange(len(text))].split(b"\r\n")


def few_lines(random, lines):
    return lines[:random.randrange(1, 25)]


def shuffled(random, lines):
    lines = list(lines)
    random.shuffle(lines)
    return lines


def without_some(random, lines):
    return [line for line in lines if random.random() > 0.1]


def doubled(random, lines):
    at = random.randrange(len(lines))
    return lines[:at] + lines[at:] * 2


def blank_lines(random, lines):
    return [each for line in lines for each in ([line, b""] if random.random() < 0.2 else [line])]


def random_bytes(random, lines):
    text = bytearray(b"\r\n".join(lines))
    for _ in range(random.randrange(1, 20)):
        text[random.randrange(len(text))] = random.randrange(256)
    return bytes(text).split(b"\r\n")


def wrong_fields(random, lines):
    """Other figures, which keep their column's right edge or shift what stands behind them."""
    lines = list(lines)
    for _ in range(random.randrange(1, 8)):
        at = random.randrange(len(lines))
        fields = list(re.finditer(rb"\S+", lines[at]))
        if fields:
            field, other = random.choice(fields), random.choice(ODD_FIELDS)
            if random.random() < 0.5:
                other = other.rjust(field.end() - field.start())
            lines[at] = lines[at][:field.start()] + other + lines[at][field.end():]
    return lines


def short_lines(random, lines):
    return [line[:random.randrange(len(line) + 1)] if random.random() < 0.15 else line for line in lines]


def another_screen_behind(random, lines):
    return lines + random.choice(list(WHOLE.values())).split(b"\r\n")


def far_down(random, lines):
    return [b" " * random.choice([200, 32760, 40000]) + lines[0], *lines[1:]]


DAMAGES = [cut, few_lines, shuffled, without_some, doubled, blank_lines, random_bytes, wrong_fields, wrong_fields,
           short_lines, another_screen_behind, far_down]


def damaged(random, capture):
    lines = capture.split(b"\r\n")
    for damage in random.choices(DAMAGES, k=random.choice([1, 1, 1, 2, 3])):
        lines = damage(random, lines) or [b""]
    # A real clipboard hands no bare line feeds over, and the one in memory mends none.
    return re.sub(rb"(?<!\r)\n", b"\r\n", b"\r\n".join(lines))
