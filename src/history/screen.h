// A monthly history screen of the host, said as data. Lines, columns, months and years are counted from 1,
// months from the newest backwards.
#pragma once

#include "platform/declaration.h"

#include <optional>

namespace plotvue {

// A word that must stand in the capture; the words are looked for in their order.
struct Needed {
    enum class Missing {
        Stop,  // hide, show the start-up window and read no further
        GoOn,  // hide, show the start-up window and chart the text into the hidden window all the same
        End,   // end the process
        Passes // nothing; only a word that stands too late stops
    };
    TextSpan word;
    Missing missing = Missing::Stop;
    Position below = toTheEnd; // stops when the word first stands at this position or later
};

// Which positions found by search are held in 16 bits, and fail beyond 32767.
enum class ShortPositions { None, OfNeededWords, All };

// A run of months in a column of the screen. Of the blocks that have begun, the last holds the month.
struct Block {
    int firstMonth;
    int column;
    int row;       // of the first month; counted from the dash line where the screen's rows hang on it
    int step = 1;  // rows from a month to the one before it
    int years = 0; // behind the base year, where months stand in columns by year
};

struct Field {
    int offset = 0; // columns behind the block's column
    int width = 0;
};

// What is charted of a month.
struct Value {
    enum class Is {
        Nothing,              // 0
        Figure,               // a
        QuotientTimesHundred, // a / b * 100; 0 when b is 0
        HundredTimesQuotient, // 100 * a / b; 0 when b is 0
        Rest                  // a - b - c
    } is = Is::Nothing;
    Field a{}, b{}, c{};
};

constexpr Value figure(Field a)
{
    return {Value::Is::Figure, a};
}
constexpr Value quotientTimesHundred(Field a, Field b)
{
    return {Value::Is::QuotientTimesHundred, a, b};
}
constexpr Value hundredTimesQuotient(Field a, Field b)
{
    return {Value::Is::HundredTimesQuotient, a, b};
}
constexpr Value rest(Field a, Field b, Field c)
{
    return {Value::Is::Rest, a, b, c};
}

struct DataType {
    TextSpan option{};  // caption of its option
    TextSpan caption{}; // title at position 1; empty: neither it nor the decimals are set
    int decimals = 0;
    Value value{};
    bool projected = false;
    Value second{};    // of screens with a second series of their own, which is hidden while Nothing
    TextSpan suffix{}; // of the title at position 2
};

// A piece of a title: a text of its own, or characters cut from a line.
struct Piece {
    TextSpan text{};

    int line = 0;      // the line that is cut; 0: the piece is `text`
    TextSpan behind{}; // first occurrence counts; absent counts as position 0, and empty means so
    int from = 0;      // characters behind the first one of `behind`
    Position length = toTheEnd;
    bool lineEnd = true; // may reach into the line's last character, its carriage return

    int behindLine = 0;            // the line in which `behind` is looked for, where it is another one
    bool behindBeforeEnd = false;  // `behind` is not looked for in the line's last character
    Position lineLimit = toTheEnd; // cut as if the line were no longer, and a start behind its end fails
};

enum class SecondSeries {
    None,
    Projection, // the rest of the newest month at the pace so far
    OwnValue    // DataType::second
};

enum class MonthLabels {
    MonthAndYear, // at the block's column: "OCT99", or "O99" where more than 18 months are shown
    CalendarRows  // "OCT" in columns 2 to 4, and "J99" in the row of January
};

enum class Amounts {
    AsRead,
    WholeTurned // rounded to 32-bit whole numbers, and turned where most of them are negative
};

struct Period {
    TextSpan caption;
    int months;
};

struct MonthlyScreen {
    Name window;
    TextSpan captionOnLoad{}; // empty: the window keeps "Plotvue!"

    std::vector<Needed> needed; // the screen identifier is the last
    ShortPositions shortPositions = ShortPositions::None;
    std::optional<int> day{}; // characters from the identifier's first to the two of the day; none: no day

    bool rowsHangOnDashLine = false;
    std::vector<Block> blocks;
    int skippedMonths = 0; // newest rows that are on the screen and never charted
    bool dropCommas = false;
    std::vector<Field> readAlways{}; // fields read for every data type, needed or not
    std::optional<Piece> baseYear{};
    MonthLabels labels = MonthLabels::MonthAndYear;
    Amounts amounts = Amounts::AsRead;
    SecondSeries second = SecondSeries::Projection;

    std::vector<DataType> types;   // by option index; one without caption where there is no choice
    std::vector<Piece> subject;    // title at position 2
    std::vector<Piece> subject2{}; // title at position 3; empty: not set

    std::vector<Period> periods;                                // by option index
    TextSpan periodFrame = u"Months", typeFrame = u"Data Type"; // captions; empty: untitled
    std::vector<int> periodOrder = {1, 0, 2};                   // from the top
    std::vector<int> typeOrder = {0, 1, 2, 3, 4};               // from the top; empty: no choice
    std::map<int, TextSpan> legends{{1, u"Projected"}};         // of series that are shown together
};

} // namespace plotvue
