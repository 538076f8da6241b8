#include "unit/monthlyscreens.h"

#include <ostream>

namespace plotvue::test {

namespace {

using Missing = ExpectedWord::Missing;

Figure at(Columns columns)
{
    return [=](const MonthlyTable& table, int month) { return table.number(month, columns); };
}

Figure quotientTimesHundred(Columns a, Columns b)
{
    return [=](const MonthlyTable& table, int month) {
        return table.number(month, a) / table.number(month, b) * 100;
    };
}

Figure hundredTimesQuotient(Columns a, Columns b)
{
    return [=](const MonthlyTable& table, int month) {
        return 100 * table.number(month, a) / table.number(month, b);
    };
}

std::vector<ExpectedType> salesTypes(Figure (*percent)(Columns, Columns), TextSpan percentOption,
                                     TextSpan unitOption)
{
    constexpr Columns volume{6, 9}, sales{16, 9}, profit{26, 9};
    return {{u"Sales", {1, u"Sales"}, 0, at(sales)},
            {u"Profit", {1, u"Profit"}, 0, at(profit)},
            {u"Volume", {1, u"Volume"}, 0, at(volume)},
            {percentOption, {1, u"Profit%"}, 2, percent(profit, sales)},
            {unitOption, {1, u"Unit G/P"}, 2, percent(profit, volume)}};
}

// 13 months in the left half of the screen and 12 in the right half, which begins a line lower.
std::vector<MonthColumn> twoHalves(int line)
{
    return {{1, 13, line, 1}, {14, 12, line + 1, 42}};
}

const Options wordyPeriods{{1, u"24 Month"}, {0, u"12 Month"}, {2, u"6 Month"}};
const Options shortPeriods{{1, u"24"}, {0, u"12"}, {2, u"6"}};
const std::vector<ExpectedType> wordyTypes = salesTypes(quotientTimesHundred, u"GP %", u"G/P Units");
const std::vector<ExpectedType> shortTypes = salesTypes(hundredTimesQuotient, u"G/P %", u"Unit G/P");

} // namespace

const std::vector<ExpectedScreen>& salesScreens()
{
    static const std::vector<ExpectedScreen> screens{
        {.window = "frmProduct",
         .sample = "product",
         .words = {{u"QXM31H"}},
         .months = twoHalves(6),
         .dayColumn = 17,
         .days = 31,
         .day = 11,
         .periods = wordyPeriods,
         .types = wordyTypes,
         .titles = {{2, u"Product: 0020450001 DIESEL FUEL NO. 2 LOW SULFUR"}},
         .figures = {{Sales, 1, u"OCT99", 43755.05},
                     {Sales, 6, u"MAY99", 108055.06},
                     {Sales, 13, u"OCT98", 101211.69},
                     {Sales, 14, u"SEP98", 93174.61},
                     {Sales, 25, u"OCT97", 93299.06}}},
        {.window = "frmSalesman",
         .sample = "salesman",
         .words = {{u"QXM21D", Missing::LeavesAndCharts}},
         .endOfEmptyCapture = {"spin"},
         .months = twoHalves(7),
         .dayColumn = 17,
         .days = 31,
         .day = 11,
         .periods = wordyPeriods,
         .types = wordyTypes,
         .titles = {{2, u"Sales Rep: 014  HALVARD OSTBY"}, {3, u"Category: MOTOR OILS"}},
         .figures = {{Sales, 1, u"OCT99", 36838.63},
                     {Sales, 6, u"MAY99", 108093.74},
                     {Sales, 13, u"OCT98", 97297.20},
                     {Sales, 14, u"SEP98", 97217.75},
                     {Sales, 25, u"OCT97", 84122.24}}},
        {.window = "frmCustomerE",
         .sample = "customer",
         .words = {{u"QXM12E1"}},
         .months = twoHalves(6),
         .dayColumn = 69,
         .days = 30,
         .day = 20,
         .periods = wordyPeriods,
         .types = wordyTypes,
         .titles = {{2, u"Customer: 104420 GREENWATER BROS HAULING INC."}, {3, u"Product: 0020450002"}},
         .figures = {{Volume, 1, u"SEP99", 101728.55},
                     {Volume, 6, u"APR99", 142174.13},
                     {Volume, 13, u"SEP98", 133535.76},
                     {Volume, 14, u"AUG98", 158825.34},
                     {Volume, 25, u"SEP97", 126728.06}}},
        {.window = "frmCustP",
         .sample = "custcat",
         .words = {{u"YTD"}, {u"QTY"}, {u"QXM12P"}},
         .months = twoHalves(6),
         .dayColumn = 8,
         .days = 28,
         .day = 9,
         .periods = wordyPeriods,
         .types = wordyTypes,
         .titles = {{2, u"Customer: 104420 GREENWATER BROS HAULING INC."}, {3, u"Category: LUBRICANTS"}},
         .figures = {{Profit, 1, u"FEB00", 5083.72},
                     {Profit, 6, u"SEP99", 26027.89},
                     {Profit, 13, u"FEB99", 12834.97},
                     {Profit, 14, u"JAN99", 9839.33},
                     {Profit, 25, u"FEB98", 10423.02}}},
        {.window = "frmCustP2",
         .sample = "custpack",
         .words = {{u"YTD"}, {u"QTY"}, {u"QXM12P2"}},
         .months = twoHalves(7),
         .dayColumn = 9,
         .days = 31,
         .day = 24,
         .periods = wordyPeriods,
         .types = wordyTypes,
         .titles = {{2, u"Customer: 104420 GREENWATER HAULING"}, {3, u"Prod/Pak/WH:  0020610015 /055/001"}},
         .figures = {{Volume, 1, u"MAY00", 7544.31},
                     {Volume, 6, u"DEC99", 7361.06},
                     {Volume, 13, u"MAY99", 9188.85},
                     {Volume, 14, u"APR99", 8991.43},
                     {Volume, 25, u"MAY98", 8151.31}}},
        {.window = "frmPware",
         .sample = "prodware",
         .words = {{u"QXM32C"}},
         .months = twoHalves(7),
         .dayColumn = 17,
         .days = 30,
         .day = 18,
         .frames = {u"Frame2: ", u"Frame1: "},
         .periods = wordyPeriods,
         .types = salesTypes(hundredTimesQuotient, u"GP %", u"G/P Units"),
         .titles = {{2, u"0020450003  KEROSENE K-1 LOW SULFUR"}, {3, u"Pack: 0055 BULK  WH: 001"}},
         .figures = {{Sales, 1, u"NOV99", 109601.92},
                     {Percent, 1, u"NOV99", 9.558272},  // 10476.05 of 109601.92
                     {PerUnit, 1, u"NOV99", 10.707294}, // 10476.05 of 97840.31
                     {Sales, 6, u"JUN99", 50728.73},
                     {Sales, 13, u"NOV98", 174545.18},
                     {Sales, 14, u"OCT98", 121262.58},
                     {Sales, 25, u"NOV97", 156842.38}}},
        {.window = "frmSJHIST",
         .sample = "salesjournal",
         .words = {{u"QXMSJHIST"}},
         .months = twoHalves(6),
         .dayColumn = 20,
         .days = 31,
         .day = 7,
         .periods = shortPeriods,
         .types = shortTypes,
         .titles = {{2, u"WH: 001 HARBOR ROAD TERMINALS  PftCtr: 100 WHOLESALE"},
                    {3, u"Category: DISTILLATES"}},
         .figures = {{Profit, 1, u"DEC99", 2427.12},
                     {Profit, 5, u"AUG99", -3405.37}, // a month of loss
                     {Profit, 6, u"JUL99", 16153.10},
                     {Profit, 13, u"DEC98", 8363.44},
                     {Profit, 14, u"NOV98", 15053.99},
                     {Profit, 25, u"DEC97", 8958.99}}},
        {.window = "frmSite",
         .sample = "site",
         .words = {{u"QTY", Missing::LeavesAndCharts}, {u"CRD812H", Missing::Ends}},
         .endOfEmptyCapture = {"end"},
         .months = twoHalves(5),
         .dayColumn = 9,
         .days = 30,
         .day = 17,
         .periods = shortPeriods,
         .types = shortTypes,
         .titles = {{2, u"C/L Site: 0417 BRAMBLE HOLLOW"}, {3, u"Fuel: UNLEADED"}},
         .figures = {{Sales, 1, u"NOV99", 75185.33},
                     {Sales, 6, u"JUN99", 153775.02},
                     {Sales, 13, u"NOV98", 112178.84},
                     {Sales, 14, u"OCT98", 125481.06},
                     {Sales, 25, u"NOV97", 95293.19}}},
        {.window = "frmDriver",
         .sample = "driver",
         .words = {{u"YTD"}, {u"QTY"}, {u"QXM855DH", Missing::LeavesAndCharts}},
         .months = twoHalves(6),
         .dayColumn = 17,
         .days = 28,
         .day = 19,
         .periods = shortPeriods,
         .typeOrder = {0, 2, 1, 3, 4},
         .types = shortTypes,
         .titles = {{2, u"Driver: 031 T. OAKHALLOW"}, {3, u"Category: HEATING OIL"}},
         .figures = {{Sales, 1, u"FEB00", 137231.16},
                     {Sales, 6, u"SEP99", 123658.33},
                     {Sales, 13, u"FEB99", 170823.80},
                     {Sales, 14, u"JAN99", 179281.24},
                     {Sales, 25, u"FEB98", 148871.86}}},
        {.window = "frmTruck",
         .sample = "truck",
         .words = {{u"YTD"}, {u"QTY"}, {u"QXM855TH", Missing::LeavesAndCharts}},
         .months = twoHalves(6),
         .dayColumn = 17,
         .days = 31,
         .day = 6,
         .periods = shortPeriods,
         .typeOrder = {4, 3, 1, 2, 0},
         .types = shortTypes,
         .titles = {{2, u"Truck: 14 TANK WAGON 2800 GAL"}, {3, u"Category: FARM DIESEL"}},
         .figures = {{Profit, 1, u"AUG98", 2433.30},
                     {Profit, 6, u"MAR98", 11784.11},
                     {Profit, 13, u"AUG97", 10742.01},
                     {Profit, 14, u"JUL97", 9360.50},
                     {Profit, 25, u"AUG96", 9888.72}}},
        {.window = "frmCSTORE",
         .sample = "cstore",
         .words = {{u"YTD"}, {u"PCS05H1B", Missing::Ends}},
         .months = twoHalves(5),
         .dayColumn = 10,
         .days = 31,
         .day = 22,
         .periods = shortPeriods,
         .types = shortTypes,
         .titles = {{2, u"Store: LANTERN HILL MARKET, 88 ORCHARD ROW"}, {3, u"GROCERY AND DELI"}},
         .figures = {{Sales, 1, u"JUL99", 128060.18},
                     {Sales, 6, u"FEB99", 115561.63},
                     {Sales, 13, u"JUL98", 153250.29},
                     {Sales, 14, u"JUN98", 147155.78},
                     {Sales, 25, u"JUL97", 138691.30}}},
    };
    return screens;
}

namespace {

const std::vector<ExpectedScreen>& otherScreens()
{
    constexpr Columns total{6, 9}, open{16, 9}, paid{25, 9};
    const Figure lost = [=](const MonthlyTable& table, int month) {
        return table.number(month, total) - table.number(month, open) - table.number(month, paid);
    };
    static const std::vector<ExpectedScreen> screens{
        {.window = "frmGLexpense",
         .sample = "glexpense",
         .words = {{u"PFMEXP1"}},
         .months = {{1, 12, 7, 1}, {13, 13, 7, 41}}, // line 6 is a month in progress
         .periods = shortPeriods,
         .typeOrder = {2, 0, 1},
         .types = {{u"Dollars", {1, u"Dollars"}, 0, at({5, 12})},
                   {u"Volume", {1, u"Volume"}, 0, at({17, 14})},
                   {u"Cents/Gallon", {1, u"Cents per Gallon"}, 2, at({30, 8})}},
         .series = 1,
         .titles = {{2, u"Expense/Volume for Acct: 6210-00 DELIVERY FLEET REPAIRS"}, {3, u"ALL TERMINALS"}},
         .figures = {{0, 1, u"SEP99", 53526.38},
                     {1, 1, u"SEP99", 1269974.69},
                     {2, 1, u"SEP99", 4.2148},
                     {0, 6, u"APR99", 56966.65},
                     {0, 12, u"OCT98", 51142.29},
                     {0, 13, u"SEP98", 49425.37}, // the first month in the right half
                     {0, 25, u"SEP97", 45972.73}}},
        {.window = "frmLateCharge",
         .sample = "latecharge",
         .words = {{u"QXMLCHIST"}},
         .months = twoHalves(4),
         .caption = u"Late Charge Analysis",
         .periods = shortPeriods,
         .typeOrder = {4, 3, 0, 2, 1},
         .types = {{u"Total", {1, u"Total Charges"}, 0, at(total)},
                   {u"Open", {1, u"Open"}, 0, at(open)},
                   {u"Paid", {1, u"Paid"}, 0, at(paid)},
                   {u"Paid %", {1, u"% Collected"}, 1, quotientTimesHundred(paid, total)},
                   {u"Paid/Lost", {1, u"Paid/Lost"}, 0, at(paid), lost}},
         .titles = {{2, u"Late Charge History"}},
         .figures = {{0, 1, u"SEP99", 5727.96},
                     {1, 1, u"SEP99", 4961.21},
                     {2, 1, u"SEP99", 667.08},
                     {3, 1, u"SEP99", 11.646031}, // 667.08 of 5727.96
                     {4, 1, u"SEP99", 667.08},
                     {0, 6, u"APR99", 7822.25},
                     {0, 13, u"SEP98", 6828.98},
                     {0, 14, u"AUG98", 6489.12},
                     {0, 25, u"SEP97", 7160.87}}},
        {.window = "frmActive",
         .sample = "active",
         .words = {{u"QXMACTIVE"}},
         .months = twoHalves(5), // line 4 is a month in progress
         .periods = shortPeriods,
         .typeOrder = {3, 1, 0, 2},
         .types = {{u"Fuels", {2, u"Count of Active Customers - Fuels"}, {}, at({5, 9})},
                   {u"Lubes/Other", {2, u"Count of Active Customers - Lubes/Other"}, {}, at({13, 9})},
                   {u"Cardlock", {2, u"Count of Active Customers - Cardlock"}, {}, at({21, 9})},
                   {u"All", {2, u"Count of Active Customers - All"}, {}, at({29, 8})}},
         .series = 1,
         .titles = {{3, u"BRAMBLEWICK FUEL CO - ALL BRANCHES"}},
         .figures = {{0, 1, u"DEC99", 1865},
                     {1, 1, u"DEC99", 436},
                     {2, 1, u"DEC99", 789},
                     {3, 1, u"DEC99", 2636},
                     {0, 6, u"JUL99", 1089},
                     {0, 13, u"DEC98", 1809},
                     {0, 14, u"NOV98", 1651},
                     {0, 25, u"DEC97", 1780}}},
        {.window = "frmGLarch", // what it charts of its amounts: frmglarch_test.cpp
         .sample = "glhistory",
         .words = {{u"PFMGLARCH1"}},
         .months = {{1, 12, 17, 62, -1}},
         .figureColumns = {0, 13},
         .frames = {u"Frame2: Years"},
         .periods = {{0, u"1"}, {1, u"2"}, {2, u"3"}, {3, u"4"}, {4, u"5"}},
         .typeOrder = {},
         .types = {},
         .series = 1,
         .titles = {{2, u"G/L History for Acct: 4010-00 HEATING OIL SALES"}, {3, u"ALL TERMINALS"}},
         .figures = {}},
    };
    return screens;
}

} // namespace

const std::vector<ExpectedScreen>& monthlyScreens()
{
    static const std::vector<ExpectedScreen> screens = [] {
        std::vector<ExpectedScreen> all = salesScreens();
        all.insert(all.end(), otherScreens().begin(), otherScreens().end());
        return all;
    }();
    return screens;
}

Text ExpectedScreen::changed() const
{
    MonthlyTable other = table(CaptureBuilder(test::sample(sample)));
    other.put(1, figureColumns.offset, other.characters(2, figureColumns));
    return other.screen().text();
}

void PrintTo(const ExpectedScreen& screen, std::ostream* stream)
{
    *stream << screen.window;
}

} // namespace plotvue::test
