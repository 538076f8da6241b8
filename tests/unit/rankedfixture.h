// What the tests of the ranked windows share: they build a screen line by line, open a list with it and look
// at what the windows and the small files then hold.
#pragma once

#include "ranked/profitanalysis.h"
#include "ranked/rankedscreens.h"
#include "support/capturebuilder.h"
#include "windowfixture.h"

#include <filesystem>

namespace plotvue::test {

using Rows = std::vector<Texts>;
using Lines = std::vector<TextSpan>;

inline constexpr Name firstGrid = "MSFlexGrid1", gainsGrid = firstGrid, lossesGrid = "MSFlexGrid2";

inline constexpr TextSpan monthLabels = u"OCT99SEP99AUG99JUL99JUN99MAY99APR99MAR99FEB99JAN99DEC98NOV98OCT98";
extern const Texts oldestFirst; // the same labels

// A list window and its drill-down window.
class RankedSession : public Session {
public:
    // Opens the list.
    RankedSession(Name listWindow, TextSpan capture);
    // Opens the list and clicks a row. events() leaves out what happened until then.
    RankedSession(Name listWindow, TextSpan capture, int row, Name grid = firstGrid);

    const Name list;
    const std::string drillDown;

    void open(TextSpan capture); // leaves the list, copies, and presses Refresh
    void click(int row, Name grid = firstGrid) { clickRow(list, grid, row); }
    void use(Name button) { press(drillDown, button); }
    void down() { use("cmdNext"); }
    void back() { use("cmdBack"); }
    void chooseType(int index) { choose(drillDown, "optSales", index); }

    Rows rows(Name grid = firstGrid) { return this->grid(list, grid).cells; } // without the headings
    Texts column(std::size_t number, Name grid = firstGrid);                  // from 0
    Text header(Name control) { return text(list, control); }
    Chart drawn(Name control = "ChartFX1") { return chart(drillDown, control); }
    Text subject() { return drawn().titles.at(2); } // whose figures are drawn
    double newest() { return drawn().series.at(0).back(); }
};

// What happens when a list window does not accept the capture, and when a step passes an end of the list.
Events refusing(Name list);
Events endOfList(std::string_view drillDown);

// Whether the last event is a run-time error whose sentence contains these words, and the process is over.
testing::AssertionResult failed(Session& session, std::string_view words);

void writeFile(const char* file, std::string_view bytes);
void blockFile(const char* file); // puts a directory in its place: nobody can read or write it

Text digits(int number);
Text atRight(TextSpan text, std::size_t width);
Text atLeft(TextSpan text, std::size_t width);
Text hostScreen(const Lines& lines); // with these lines only

// A capture of each ranked screen, with three entries.
struct ThreeEntries {
    Name list;
    const RankedScreen& screen;
    Text capture;
    std::array<std::string, 3> keys; // what the chosen-row file holds
    std::array<Text, 3> subjects;    // how subject() begins
    bool hasTypes;                   // whether the drill-down window has an option group of data types

    std::size_t placeOf(int entry) const; // in the capture: where entry 1, 2 or 3 begins
    Text before(int entry) const { return capture.substr(0, placeOf(entry)); }
};
const std::vector<ThreeEntries>& everyRankedScreen();
void PrintTo(const ThreeEntries& entries, std::ostream* stream);

inline constexpr auto nameOfList = [](const auto& tested) { return std::string(tested.param.list); };

// The two profit analyses
// ------------------------------------------------------------------------------------

inline constexpr Name m2m = "frmM2Mpft", profRank = "frmProfRank";
inline constexpr int labelLine = 3, totalsLine = 4, firstEntryLine = 5, linesAnEntry = 5;

// A screen with one page heading, then five lines for each entry. Entry 7 is customer 10007, "CUSTOMER 7",
// group "GROUP 7". In month k its sales are 70 + k, its volume is 1000 more, its profit 2000 more.
class ProfitScreen : public CaptureBuilder {
public:
    ProfitScreen(TextSpan title, TextSpan figureMark);

    ProfitScreen& add(int rank, TextSpan figure, TextSpan volumePart = u"", TextSpan marginPart = u"");

    // The first line of the entry that was added as `number`. Entries count from 1.
    static std::size_t lineOf(int number);

private:
    Text mark_;
    int entries_ = 0;
};

struct MonthToMonthScreen : ProfitScreen {
    MonthToMonthScreen() : ProfitScreen(u"MONTH TO MONTH PROFIT ANALYSIS", u"GAIN:") {}
};

struct RankedProfitScreen : ProfitScreen {
    RankedProfitScreen() : ProfitScreen(u"RANKED PROFIT ANALYSIS", u"P:") {}
};

// Past-due receivables
// ---------------------------------------------------------------------------------------

inline constexpr Name pastdue = "frmPastdue";
inline constexpr TextSpan pastdueTitle = u"RANKED PAST DUE RECEIVABLES";
inline constexpr TextSpan pastdueMonths = u"Mlabel OCT99SEP99AUG99JUL99JUN99MAY99";
inline constexpr TextSpan fourBuckets = u"       CURRENT  1 - 30 31 - 60 OVER 60";

Text rankLine(TextSpan rank, TextSpan number, TextSpan name, TextSpan city, TextSpan state, TextSpan amount);
Text ageing(TextSpan month, const Lines& amounts);
Text twoCustomers();

// Vendor inventory
// -------------------------------------------------------------------------------------------

inline constexpr Name vendors = "frmVendInv";
inline constexpr TextSpan vendorTitle = u"VENDOR INVENTORY ANALYSIS";

Text vendorLine(TextSpan rank, TextSpan vendor, TextSpan category);
Text months(TextSpan mark, const Lines& figures);
Text twoPairs();

// Financial ratios
// -------------------------------------------------------------------------------------------

inline constexpr Name ratios = "frmRatio";
inline constexpr TextSpan ratioTitle = u"FINANCIAL RATIO ANALYSIS";

Text ratioLine(TextSpan mark, TextSpan code, const Lines& figures);      // a ratio's first or second line
Text benchmarkLine(TextSpan figure, TextSpan value, TextSpan benchmark); // a ratio's third line
Text ratioBlock(TextSpan code);                                          // a ratio with its code only
Text explained(TextSpan data, TextSpan formula, TextSpan note, TextSpan third = u"3:"); // the ratio "GP  "
Text twoRatios();

} // namespace plotvue::test
