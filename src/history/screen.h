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
        GoOn, // the window is left, and the capture is charted in it all the same
        End   // the process ends
    } otherwise = Otherwise::Stop;
    bool (*accepts)(Position) = isPresent; // the word's first position in the capture, 0 where it is absent
};

// Which positions in the capture must fit into 16 bits.
enum class ShortPositions { None, OfWords, OfWordsAndTitles };

struct MonthPlace {
    int column;
    int line;
};

// A run of months, one to a line, the newest first. It ends where the next block begins.
struct Block {
    int firstMonth;
    int column;
    int line; // of the first month
};

// Where the blocks put a month.
MonthPlace placeInBlocks(const MonthlyScreen& screen, const ScreenLines& lines, int month);

struct Field {
    int offset = 0; // columns from the first column of the month
    int width = 0;
};

// A month on the screen.
struct MonthRow {
    int month;
    int column;
    TextSpan line;
    bool dropCommas;

    // Throws Failure when the number is too large.
    double read(Field field) const;
};

// "OCT99", or "O99" where more than 18 months are shown.
Text monthAndYear(const MonthRow& row, int months, int firstYear);

// What is charted of a month. Throws Failure for a number that is too large.
using Value = std::function<double(const MonthRow&)>;

Value valueOf(Field field);
// Both are 0 when `b` is 0. They differ in the last bit.
Value quotientTimesHundred(Field a, Field b); // a / b * 100
Value hundredTimesQuotient(Field a, Field b); // 100 * a / b

struct DataType {
    TextSpan option{};  // caption of its option
    TextSpan caption{}; // title at position 1; empty: the title and the decimals are not set
    int decimals = 0;
    Value value;
    bool projected = false; // whether the rest of the newest month is charted on top of it
    Value second{};         // the second series of a screen without a day; it is hidden where this is empty
};

// A part of a title: a text, or characters of a line.
struct Piece {
    TextSpan text{};

    int line = 0;     // 0: the piece is `text`
    TextSpan after{}; // the first occurrence in the line counts; absent or empty counts as position 0
    int from = 0;     // characters from the position of `after` to the piece
    Position length = toTheEnd;
    bool lineEnd = true; // whether the piece may hold the line's last character, its carriage return

    TextSpan (*cut)(const ScreenLines&, const DataType&) = nullptr; // in place of all this
};

struct Period {
    TextSpan caption;
    int months;
};

struct MonthlyScreen {
    Name window;
    TextSpan caption = u"Plotvue!";

    std::vector<RequiredWord> words; // the screen identifier is the last
    ShortPositions shortPositions = ShortPositions::None;
    // Characters from the first one of the identifier to the two digits of the day, from which the rest of
    // the newest month is projected; none: no projection.
    std::optional<int> day{};

    std::vector<Block> blocks{};
    MonthPlace (*place)(const MonthlyScreen&, const ScreenLines&, int month) = placeInBlocks;
    bool dropCommas = false;
    // Is asked as soon as the lines are cut, and before it is known that the capture has all of them.
    int (*firstYear)(const ScreenLines&) = nullptr;
    Text (*label)(const MonthRow&, int months, int firstYear) = monthAndYear;
    void (*finish)(std::vector<double>& values) = nullptr; // a last change to the values of all months

    std::vector<DataType> types;   // by option index; a single one where there is no choice
    std::vector<Piece> subject;    // title at position 2
    std::vector<Piece> subject2{}; // title at position 3; empty: the title is not set

    std::vector<Period> periods;                                // by option index
    TextSpan periodFrame = u"Months", typeFrame = u"Data Type"; // captions; empty: none
    std::vector<int> periodOrder = {1, 0, 2};                   // indices from the top
    std::vector<int> typeOrder = {0, 1, 2, 3, 4};               // indices from the top; empty: no choice
    std::map<int, TextSpan> legends{};                          // of the series of a screen without a day
};

// Whether the types have a second series of their own.
bool hasOwnSecondSeries(const MonthlyScreen& screen);

} // namespace plotvue
