"""Changes that the unit tests do not notice, and why each is no fault."""

import re

ROOM = "how the room in a window is shared out: looked at by eye, and that all fits by tests/desktop/sizes_test.cpp"
LETTERS = "how letters look: looked at by eye"
NOT_USED = "is set before it is used"
OTHER_THINGS = "each rule takes other things from the line, so their order cannot be seen"
ONLY_WHERE = "only which places are compared at all, never what is found there"
NOTHING_MORE = "nothing is left for the one step more"
NOTHING_THERE = "the slot after the last one has no label and no figure"
ZERO = "zero is added, to whichever it may be"
TOLERANCE = "only a deviation exactly as large as the tolerance"
SYSTEM_CALL = "no open, read or write of a file gives that, or what it gives is all the same"

# By the file, then by what the change, told without its line number, holds.
HARMLESS = {
    r"capture/month": {
        r"\+ 3, \[2 -> 3\]": "a letter follows the two digits of every month in the table",
    },
    r"capture/number": {
        r"(data|text)\(?\)?\.?(data\(\))?\[ \+ -> - \](number|text)\.size": "the null after the text ends the number too",
        r"exponent = \[0|exponent\[ < -> <= \]0|exponent < \[0": "what is out of range is far from the limit",
        r"buffer\{\}|char, \[32": "the buffer is larger than any number",
    },
    r"capture/utf8": {
        r"point = \[0": "is not looked at where nothing was decoded",
        r"0xF4 -> 245": "what begins so is beyond the last character",
        r"0x7F -> 126|0xD800\) <<|0x10000\) &|- -> \+ \]0x(D800|10000)": "the bit that differs is cut off",
    },
    r"history/monthlyreader": {
        r"\? dayAt.* : \[0": "the day of a screen that has none is not used",
        r"\? screen\.firstYear.* : \[0": "the first year of a screen that has none is not used",
        r"double part = \[": NOT_USED,
    },
    r"window\.cpp|drilldown": {
        r"types\.empty\(\) \? \[0": "what draws a chart without types does not look at it",
    },
    r"(history|group|ranked|app)/": {
        r"Space\{\}, \[|grid\.box, \[|, 1\}\}, \[|ChartBox.*\}, \[|^\[\d -> \d\][})],?|\.(width|height|stretch) = \[": ROOM,
        r"\.(points|bold|italic) = \[": LETTERS,
        r"u\"YTD\" <-> u\"QTY\"": "a screen without either word is left alike",
    },
    r"group/": {
        r"mid\(rest, 1, end( - \[1 -> 0\]|\[ - -> \+ \]1)": "the semicolon after a figure ends the number",
        r"i\[ < -> <= \]maxGroups \* valuesPerGroup": NOTHING_MORE,
    },
    r"files/smallfile": {
        r"descriptor|written|count|buffer\[|done|good": SYSTEM_CALL,
    },
    r"ranked/": {
        r"field = \[3 -> 2\]": "without a mark the second line is taken all the same",
        r"draw = \[1000": "a record that is drawn was among the first 500 when it was stepped to",
        r"searchedLines = \[1000 -> 1001": NOTHING_MORE,
        r" <-> .*ScreenText": OTHER_THINGS,
        r"\"Mlabel\".* <-> .*\"1:\"": OTHER_THINGS,
        r"\{\.marker = u\"GAIN:\".* <-> \{\.marker = u\"P:\"": "both take the same columns of the same line",
        r"u\"GAIN:\" <-> u\"P:\"": "either mark is asked for, in any order",
    },
    r"chart/figuretext": {
        r"if \(value\[ < -> <= \]0 &&": "the digits of zero are all 0, which takes no minus",
        r"std::round\(scaled\)\)\[ <= -> < \]1e-7": TOLERANCE,
    },
    r"chart/(scale|layout)": {
        r"return value\[ > -> >= \]0\.5": "a half is no whole number",
        r"std::round\(value\)\)\[ < -> <= \]1e-6|minStep \* \(1 - tolerance": TOLERANCE,
        r"high - low\[ < -> <= \]unit \* tolerance|<= -> < \]scale\.max \+ step \* tolerance": TOLERANCE,
        r"\(value.*\[ < -> <= \]0 \? down : up\) \+= value": ZERO,
        r"int slot = 0; slot\[ < -> <= \](input\.data\.slotCount\(\)|layout\.pointCount|data\.pointCount)": NOTHING_THERE,
    },
    r"app/(recognition|markersearch)": {
        r"characters = |with(First|Last)|found & |possible (==|>>)": ONLY_WHERE,
        r"static_assert": "the compiler checks it, and no list of screens violates it",
        r"i\[ < -> <= \](screens|markers)": "no candidate has a bit after the last marker's",
    },
}


def reason(change):
    return next((why for path, reasons in HARMLESS.items() if re.search(path, change.path)
                 for pattern, why in reasons.items() if re.search(pattern, change.shown)), None)
