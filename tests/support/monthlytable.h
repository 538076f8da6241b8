// A host screen of monthly figures as a test states it: its own small reading of lines and columns, so that
// what the program shows is compared with figures that the program has not read. Lines, columns and months
// are counted from 1, months from the newest backwards.
#pragma once

#include "capture/text.h"

#include <vector>

namespace plotvue::test {

// Reads and changes one capture.
class HostScreen {
public:
    explicit HostScreen(TextSpan capture); // lines end in CR LF

    Text text() const; // with CR LF again
    Text characters(int line, int column, int width) const;

    // Commas dropped. Throws std::runtime_error unless the characters hold one number between blanks.
    double number(int line, int column, int width) const;

    HostScreen& put(int line, int column, TextSpan text); // over what stands there
    HostScreen& replaceLine(int line, TextSpan text);
    HostScreen& moveDown(int line); // a line with a dot comes before it

private:
    std::vector<Text> lines_; // without line ends
};

// A run of months down the screen.
struct MonthColumn {
    int firstMonth, months;
    int line, column; // of the first of them
    int step = 1;     // lines from a month to the one before it
};

struct Columns {
    int offset, width; // behind the month's column
};

// The months of a screen, where the test says that they stand.
class MonthlyTable {
public:
    MonthlyTable(HostScreen screen, std::vector<MonthColumn> columns);

    Text characters(int month, Columns columns) const;
    double number(int month, Columns columns) const;
    std::vector<double> numbers(Columns columns, int months) const; // newest first

    // Newest first: "OCT99", or "O99" where more than 18 months are read.
    std::vector<Text> labels(int months) const;

private:
    struct Place {
        int line, column;
    };
    Place placeOf(int month) const;

    HostScreen screen_;
    std::vector<MonthColumn> columns_;
};

// The slots of a chart: the oldest of the months first, and an empty one behind the newest.
template <typename T>
std::vector<T> slots(const std::vector<T>& newestFirst)
{
    std::vector<T> result(newestFirst.rbegin(), newestFirst.rend());
    result.emplace_back();
    return result;
}

} // namespace plotvue::test
