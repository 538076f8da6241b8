// The months of a host screen where a test says that they stand: what a chart shows is compared with figures
// that the program has not read. Months are counted from 1, from the newest backwards.
#pragma once

#include "support/capturebuilder.h"

namespace plotvue::test {

// A run of months down the screen.
struct MonthColumn {
    int firstMonth, months;
    int line, column; // of the first of them
    int step = 1;     // lines from a month to the one before it
};

struct Columns {
    int offset, width; // the offset is counted from the month's column
};

class MonthlyTable {
public:
    MonthlyTable(CaptureBuilder screen, std::vector<MonthColumn> columns);

    Text characters(int month, Columns columns) const;
    double number(int month, Columns columns) const;
    std::vector<double> numbers(Columns columns, int months) const; // newest first

    // Newest first: "OCT99", or "O99" where more than 18 months are read.
    std::vector<Text> labels(int months) const;
    std::vector<Text> fullLabels(int months) const; // "OCT99"

    // Over what the months hold at the offset.
    void put(int month, int offset, TextSpan text);

    const CaptureBuilder& screen() const { return screen_; }

private:
    struct Place {
        int line, column;
    };
    Place placeOf(int month) const;

    CaptureBuilder screen_;
    std::vector<MonthColumn> columns_;
};

// The slots of a chart: the oldest of the months first, and an empty one after the newest.
template <typename T>
std::vector<T> slots(const std::vector<T>& newestFirst)
{
    std::vector<T> result(newestFirst.rbegin(), newestFirst.rend());
    result.emplace_back();
    return result;
}

} // namespace plotvue::test
