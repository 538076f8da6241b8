// A monthly history screen of the host, described as data. What a single screen does in its own way is a
// function in the file of that screen. Lines, columns and months are counted from 1, months from the newest
// to the oldest.
#pragma once

#include "capture/lines.h"
#include "platform/declaration.h"

#include <functional>
#include <optional>

namespace plotvue {

struct DataType;
struct MonthlyScreen;

constexpr bool isPresent(Position position)
{
    return position > 0;
}

// A word that the capture must hold. The words of a screen are looked for in their order.
struct RequiredWord {
    TextSpan word;
    enum class Otherwise {
        Stop, // the window is left and nothing is charted
        GoOn, // the window is left. Kept: a window charted while hidden (docs/kept.md).
        End   // the process ends. Kept: a text that ends the process (docs/kept.md).
    } otherwise = Otherwise::Stop;
    bool (*accepts)(Position) = isPresent; // is given the word's first position; 0 where it is absent
};

// Which positions must fit into 16 bits: those of the required words in the capture, and those at which a
// title is cut in its line. Kept: positions of 16 bits (docs/kept.md).
enum class ShortPositions { None, OfWords, OfWordsAndTitles };

struct MonthPlace {
    int column;
    int line;
};

// Months one below the other, the newest at the top. A block ends with the month before the next block.
struct Block {
    int firstMonth;
    int column;
    int line; // of the first month
};

// The usual place of a month: in the block that holds it.
MonthPlace placeInBlocks(const MonthlyScreen& screen, const ScreenLines& lines, int month);

struct Field {
    int offset = 0; // columns after the first column of the month
    int width = 0;
};

// What the screen shows of a month.
struct MonthRow {
    int month;
    int column; // in which the month begins
    TextSpan line;
    bool dropCommas;

    // Throws Failure when the number is too large.
    double read(Field field) const;
};

struct MonthLabel {
    Text onAxis, full;
};

// The usual label: "OCT99"; on the axis "O99" where more than 18 months are charted.
MonthLabel monthAndYear(const MonthRow& row, int months, int firstYear);

// Works out what is charted of a month. Throws Failure when a number is too large.
using Value = std::function<double(const MonthRow&)>;

Value valueOf(Field field);
// Kept: two ways to a percentage (docs/kept.md). Both give 0 when `b` is 0.
Value quotientTimesHundred(Field a, Field b); // a / b * 100
Value hundredTimesQuotient(Field a, Field b); // 100 * a / b

struct DataType {
    TextSpan option{};  // caption of its option
    TextSpan caption{}; // title at position 1; empty: the title and the decimals are not set
    int decimals = 0;
    Value value;
    bool projected = false; // whether the second series is the rest of the newest month
    // If set, the second series shows this of every month. If only other data types of the screen set it, the
    // second series is hidden.
    Value second{};
};

// A part of a title: a text, or characters of a line.
struct Piece {
    TextSpan text{};

    int line = 0;     // 0: the piece is `text`
    TextSpan after{}; // its first occurrence in the line; empty or absent: position 0
    int from = 0;     // the piece begins this many characters after the position of `after`
    Position length = toTheEnd;
    // Whether the piece may hold the line's last character, its carriage return.
    // Kept: a line end in a text (docs/kept.md).
    bool lineEnd = true;

    // Returns the piece. If it is set, the members above are not used.
    TextSpan (*cut)(const ScreenLines&, const DataType&) = nullptr;
};

struct Period {
    TextSpan caption;
    int months;
};

struct MonthlyScreen {
    Name window;
    TextSpan caption = u"Plotvue!"; // Kept: spellings of the caption (docs/kept.md).

    // The screen identifier is the last. Kept: a screen that is recognised and refused (docs/kept.md).
    std::vector<RequiredWord> words;
    ShortPositions shortPositions = ShortPositions::None;
    // The two digits of the day begin this many characters after the first one of the identifier. They tell
    // how much of the newest month is over; without a day nothing is projected.
    std::optional<int> day{};

    std::vector<Block> blocks{};
    MonthPlace (*place)(const MonthlyScreen&, const ScreenLines&, int month) = placeInBlocks;
    bool dropCommas = false;
    // Returns the year for `label`. It is called before the reader checks that the capture has all lines.
    int (*firstYear)(const ScreenLines&) = nullptr;
    MonthLabel (*label)(const MonthRow&, int months, int firstYear) = monthAndYear;
    void (*finish)(std::vector<double>& values) = nullptr; // changes the values when all months are read

    std::vector<DataType> types;   // by option index; a single one where there is no choice
    std::vector<Piece> subject;    // title at position 2
    std::vector<Piece> subject2{}; // title at position 3; empty: the title is not set

    std::vector<Period> periods;                                // by option index
    TextSpan periodFrame = u"Months", typeFrame = u"Data Type"; // captions; empty: none
    // Kept: options out of order (docs/kept.md).
    std::vector<int> periodOrder = {1, 0, 2};     // the option indices from top to bottom
    std::vector<int> typeOrder = {0, 1, 2, 3, 4}; // the same for the data types; empty: no choice
    std::map<int, TextSpan> legends{};            // by series, where nothing is projected
};

// Whether a data type has a second series that is not the projection.
bool hasOwnSecondSeries(const MonthlyScreen& screen);

} // namespace plotvue
