// What the monthly windows are to show of their screens: a row for each, worked out by hand from the text of
// its sample.
#pragma once

#include "support/chartwindow.h"
#include "support/monthlytable.h"

#include <functional>
#include <iosfwd>
#include <optional>

namespace plotvue::test {

// What is charted of a month.
using Figure = std::function<double(const MonthlyTable&, int month)>;

struct ExpectedType {
    TextSpan option;                // caption of its option
    std::pair<int, TextSpan> title; // the title that tells it, and its position
    std::optional<int> decimals;
    Figure figure;
    Figure second{}; // none: 0 in every month
};

// A figure that stands in the sample's text.
struct ExpectedFigure {
    int type, month;
    TextSpan label;
    double value;
};

// A word that must stand in the capture, and what a drawing does where it does not.
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
    int dayColumn = 0;               // of line 1; 0: the screen has no day, and nothing is projected
    double days = 0, day = 0;        // how long the sample's newest month is, and how far it has come

    Text caption = u"Plotvue!";
    Texts frames = {u"Frame2: Months", u"Frame1: Data Type"};
    Options periods; // from the top
    std::vector<int> typeOrder = {0, 1, 2, 3, 4};
    std::vector<ExpectedType> types; // by index; none where there is no choice
    std::size_t series = 2;
    std::map<int, Text> titles; // without the one that tells the type
    std::vector<ExpectedFigure> figures;

    MonthlyTable table(CaptureBuilder screen) const { return {std::move(screen), months}; }
    bool projects() const { return dayColumn > 0; }
    Text changed() const; // the sample, with the figures of the second month in the newest one too
};

void PrintTo(const ExpectedScreen& screen, std::ostream* stream);

inline constexpr int monthsOf[] = {13, 25, 6}; // by Period

// The screens with volume, sales and profit; all of the monthly screens.
const std::vector<ExpectedScreen>& salesScreens();
const std::vector<ExpectedScreen>& monthlyScreens();

} // namespace plotvue::test
