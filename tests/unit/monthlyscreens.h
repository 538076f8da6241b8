// What each monthly window must show of its sample, worked out by hand from the sample's text.
#pragma once

#include "support/chartwindow.h"
#include "support/monthlytable.h"

#include <functional>
#include <iosfwd>
#include <optional>

namespace plotvue::test {

// Calculates the value that the chart must show for a month.
using Figure = std::function<double(const MonthlyTable&, int month)>;

struct ExpectedType {
    TextSpan option;                // caption of its option
    std::pair<int, TextSpan> title; // the title that names the data type, and its position
    std::optional<int> decimals;
    Figure figure;
    Figure second{}; // of the second series; null: 0 in every month
};

// A figure that the sample's text contains.
struct ExpectedFigure {
    int type, month;
    TextSpan label;
    double value;
};

// A word that the capture must contain, and what happens when a capture without it is charted.
struct ExpectedWord {
    enum class Missing {
        Leaves,          // hides the window, with its chart as it was
        LeavesAndCharts, // hides the window and charts the capture all the same
        Ends             // ends the process
    };
    TextSpan word;
    Missing missing = Missing::Leaves;
};

struct ExpectedScreen {
    Name window;
    std::string_view sample;
    std::vector<ExpectedWord> words; // the screen identifier is the last
    Events endOfEmptyCapture{};      // after the window is left

    std::vector<MonthColumn> months;
    Columns figureColumns = {5, 34}; // all figures of a month
    int dayColumn = 0;               // in line 1; 0: the screen has no day, and nothing is projected
    double days = 0, day = 0;        // of the sample's newest month: its length, and the day in progress

    Text caption = u"Plotvue!";
    Texts frames = {u"Frame2: Months", u"Frame1: Data Type"};
    Options periods; // from the top
    std::vector<int> typeOrder = {0, 1, 2, 3, 4};
    std::vector<ExpectedType> types; // by index; empty where there is no choice
    std::size_t series = 2;
    std::map<int, Text> titles; // without the one that names the data type
    std::vector<ExpectedFigure> figures;

    MonthlyTable table(CaptureBuilder screen) const { return {std::move(screen), months}; }
    bool projects() const { return dayColumn > 0; }
    Text changed() const; // the sample, with the figures of the second month also in the newest
};

void PrintTo(const ExpectedScreen& screen, std::ostream* stream);

inline constexpr int monthsOf[] = {13, 25, 6}; // by Period

// The monthly screens with volume, sales and profit, and all monthly screens.
const std::vector<ExpectedScreen>& salesScreens();
const std::vector<ExpectedScreen>& monthlyScreens();

} // namespace plotvue::test
