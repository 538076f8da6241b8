// Reads the months of a host screen from places that a test gives. So tests compare a chart with figures that
// PlotVue has not read. Months count from 1, the newest.
#pragma once

#include "support/capturebuilder.h"

namespace plotvue::test {

// Months one below the other on the screen.
struct MonthColumn {
    int firstMonth, months;
    int line, column; // of the first month
    int step = 1;     // lines from one month to the next
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

    // Writes the text over the screen, beginning at this offset from the month's column.
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
