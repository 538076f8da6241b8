#include "rankedfixture.h"

#include <fstream>
#include <ostream>

namespace plotvue::test {

const Texts oldestFirst{u"OCT98", u"NOV98", u"DEC98", u"JAN99", u"FEB99", u"MAR99", u"APR99",
                        u"MAY99", u"JUN99", u"JUL99", u"AUG99", u"SEP99", u"OCT99"};

RankedSession::RankedSession(Name listWindow, TextSpan capture)
    : list(listWindow),
      drillDown(std::string(listWindow) + "A")
{
    start(capture);
}

RankedSession::RankedSession(Name listWindow, TextSpan capture, int row, Name grid)
    : RankedSession(listWindow, capture)
{
    click(row, grid);
    events();
}

void RankedSession::open(TextSpan capture)
{
    press(list, "cmdExit");
    copy(capture);
    press("startup", "Command1");
}

Texts RankedSession::column(std::size_t number, Name grid)
{
    Texts cells;
    for (const Texts& row : rows(grid))
        cells.push_back(row.at(number));
    return cells;
}

Events refusing(Name list)
{
    return {"load startup", "show startup", "hide startup", "load " + std::string(list), "show startup"};
}

Events endOfList(std::string_view drillDown)
{
    const std::string name(drillDown);
    return {"message : End of list", "hide " + name, "unload " + name};
}

testing::AssertionResult failed(Session& session, std::string_view words)
{
    const Events events = session.events();
    if (events.empty() || !events.back().starts_with("error "))
        return testing::AssertionFailure() << "no run-time error";
    const std::string& said = events.back();
    if (said.find(words) == std::string::npos || !said.ends_with('.'))
        return testing::AssertionFailure() << said;
    return session.platform.over() ? testing::AssertionSuccess()
                                   : testing::AssertionFailure() << "the process goes on";
}

void writeFile(const char* file, std::string_view bytes)
{
    std::ofstream(file, std::ios::binary) << bytes;
}

void blockFile(const char* file)
{
    std::filesystem::remove(file);
    std::filesystem::create_directory(file);
}

Text digits(int number)
{
    return fromUtf8(std::to_string(number));
}

Text atRight(TextSpan text, std::size_t width)
{
    return Text(width - std::min(width, text.size()), u' ') + Text(text);
}

Text atLeft(TextSpan text, std::size_t width)
{
    return Text(text) + Text(width - std::min(width, text.size()), u' ');
}

Text hostScreen(const Lines& lines)
{
    Text capture;
    for (const TextSpan line : lines)
        capture += Text(line) + u"\r\n";
    return capture;
}

std::size_t ThreeEntries::placeOf(int entry) const
{
    const TextSpan begin = list == ratios ? u"1:" : u"RANK:";
    std::size_t place = capture.find(begin);
    for (int i = 1; i < entry; ++i)
        place = capture.find(begin, place + 1);
    return place;
}

const std::vector<ThreeEntries>& everyRankedScreen()
{
    static const std::vector<ThreeEntries> screens = [] {
        const std::array<std::string, 3> pairs{"10001,\"GROUP 1   \"\r\n", "10002,\"GROUP 2   \"\r\n",
                                               "10003,\"GROUP 3   \"\r\n"};
        const std::array<Text, 3> customers{u"Customer: 10001 - CUSTOMER 1", u"Customer: 10002 - CUSTOMER 2",
                                            u"Customer: 10003 - CUSTOMER 3"};
        Text customersPastDue = hostScreen({pastdueTitle, pastdueMonths});
        Text vendorPairs = hostScreen({vendorTitle});
        for (const TextSpan number : {u"1", u"2", u"3"}) {
            const Text line = ageing(u"OCT99", {u"4", u"3", u"2", u"1"});
            customersPastDue +=
                hostScreen({rankLine(number, Text(u"1000") + Text(number), u"", u"", u"", u"0"), fourBuckets,
                            line, line, line, line, line, line});
            vendorPairs +=
                hostScreen({vendorLine(number, Text(u"VENDOR ") + Text(number), u"OIL"), u"F:",
                            months(u"V", {number}), months(u"S", {number}), months(u"P", {number})});
        }
        const auto vendor = [](const std::string& number) {
            return "\"VENDOR " + number + std::string(22, ' ') + "\",\"OIL" + std::string(27, ' ') + "\"\r\n";
        };
        return std::vector<ThreeEntries>{
            {m2m, frmM2Mpft, MonthToMonthScreen().add(1, u"30").add(2, u"20").add(3, u"10").text(), pairs,
             customers, true},
            {profRank, frmProfRank, RankedProfitScreen().add(1, u"30").add(2, u"20").add(3, u"10").text(),
             pairs, customers, true},
            {pastdue,
             frmPastdue,
             customersPastDue,
             {"10001\r\n", "10002\r\n", "10003\r\n"},
             {u"10001 - ", u"10002 - ", u"10003 - "},
             false},
            {vendors,
             frmVendInv,
             vendorPairs,
             {vendor("1"), vendor("2"), vendor("3")},
             {u"Vendor: VENDOR 1", u"Vendor: VENDOR 2", u"Vendor: VENDOR 3"},
             true},
            {ratios,
             frmRatio,
             hostScreen({ratioTitle}) + ratioBlock(u"CUR ") + ratioBlock(u"Q   ") + ratioBlock(u"GP  "),
             {"\"CUR \"\r\n", "\"Q   \"\r\n", "\"GP  \"\r\n"},
             {u"Current Ratio", u"Quick Ratio", u"Gross Profit Percentage"},
             false},
        };
    }();
    return screens;
}

void PrintTo(const ThreeEntries& entries, std::ostream* stream)
{
    *stream << entries.list;
}

ProfitScreen::ProfitScreen(TextSpan title, TextSpan figureMark) : CaptureBuilder(4), mark_(figureMark)
{
    put(1, 1, title);
    put(2, 1, u"FOR SALES REP 014");
    put(labelLine, 1, u"Mlabel " + Text(monthLabels));
    put(totalsLine, 1, u"Mprofit   9250.00    8000.00");
}

ProfitScreen& ProfitScreen::add(int rank, TextSpan figure, TextSpan volumePart, TextSpan marginPart)
{
    const std::size_t line = lineOf(++entries_);
    put(line, 1, u"RANK:" + atRight(digits(rank), 3) + u"     " + digits(10000 + rank));
    put(line, 20, u"CUSTOMER " + digits(rank));
    put(line, 51, u"GROUP " + digits(rank));
    put(line, 60, u" ");
    put(line + 1, 1, mark_);
    put(line + 1, 6, atRight(figure, 9));
    put(line + 1, 19, atRight(volumePart, 9));
    put(line + 1, 32, atRight(marginPart, 9));
    for (int k = 1; k <= 13; ++k) {
        const auto column = static_cast<std::size_t>(8 * k - 5);
        put(line + 2, column, atRight(digits(10 * rank + k + 1000), 8));
        put(line + 3, column, atRight(digits(10 * rank + k), 8));
        put(line + 4, column, atRight(digits(10 * rank + k + 2000), 8));
    }
    put(line + 2, 1, u"V");
    put(line + 3, 1, u"S");
    put(line + 4, 1, u"P");
    return *this;
}

std::size_t ProfitScreen::lineOf(int number)
{
    return static_cast<std::size_t>(firstEntryLine + linesAnEntry * (number - 1));
}

Text rankLine(TextSpan rank, TextSpan number, TextSpan name, TextSpan city, TextSpan state, TextSpan amount)
{
    return CaptureBuilder(1)
        .put(1, 1, u"RANK:")
        .put(1, 6, atRight(rank, 3))
        .put(1, 14, atRight(number, 5))
        .put(1, 20, name)
        .put(1, 51, city)
        .put(1, 67, state)
        .put(1, 70, atRight(amount, 8))
        .text(u"");
}

// An ageing line: amounts of 8 columns each, from column 7 on.
Text ageing(TextSpan month, const Lines& amounts)
{
    Text line = atLeft(month, 6);
    for (const TextSpan amount : amounts)
        line += atRight(amount, 8);
    return line;
}

Text twoCustomers()
{
    return hostScreen({
        pastdueTitle,
        pastdueMonths,
        rankLine(u"1", u"10442", u"NORTHSIDE TRUCKING", u"HARBOR CITY", u"OR", u"12345.00"),
        fourBuckets,
        ageing(u"OCT99", {u"1200", u"300", u"50", u"7.5"}),
        ageing(u"SEP99", {u"900", u"200"}),
        ageing(u"AUG99", {u"100", u"10", u"1", u"-3"}),
        ageing(u"JUL99", {u"110", u"11", u"2", u"0"}),
        ageing(u"JUN99", {u"120", u"12", u"3", u"0"}),
        ageing(u"MAY99", {u"130", u"13", u"4", u"5"}),
        rankLine(u"2", u"77", u"ACME", u"ELK", u"WA", u"0.00"),
        fourBuckets,
        ageing(u"OCT99", {u"10", u"20", u"30", u"40"}),
        ageing(u"SEP99", {u"50", u"60", u"70", u"80"}),
        ageing(u"AUG99", {u"90", u"100", u"110", u"120"}),
        ageing(u"JUL99", {u"130", u"140", u"150", u"160"}),
        ageing(u"JUN99", {u"170", u"180", u"190", u"200"}),
        ageing(u"MAY99", {u"210", u"220", u"230", u"240"}),
    });
}

// A "RANK:" line whose category is filled up to 30 characters.
Text vendorLine(TextSpan rank, TextSpan vendor, TextSpan category)
{
    return CaptureBuilder(1)
        .put(1, 1, u"RANK:" + atRight(rank, 3))
        .put(1, 17, vendor)
        .put(1, 54, atLeft(category, 30))
        .text(u"");
}

// A line with a figure for each month: 8 columns each, from column 3 on.
Text months(TextSpan mark, const Lines& figures)
{
    Text line = atLeft(mark, 2);
    for (const TextSpan figure : figures)
        line += atRight(figure, 8);
    return line;
}

// Two pairs of vendor and category. The first earns a quarter of its sales in most months.
Text twoPairs()
{
    return hostScreen({
        vendorTitle,
        u"Total EOM 1,234,567",
        u"Mlabel " + Text(monthLabels),
        vendorLine(u"1", u"CASCADE", u"MOTOR OIL"),
        u"F:123456.7   100.5   24.9    60702    8434    9218    3467   15967",
        months(u"V",
               {u"10", u"20", u"30", u"40", u"50", u"60", u"70", u"80", u"90", u"100", u"0", u"8", u"1"}),
        months(u"S", {u"100", u"200", u"300", u"400", u"0", u"-600", u"700", u"800", u"900", u"1000", u"1100",
                      u"16", u"40"}),
        months(u"P", {u"25", u"-50", u"75", u"100", u"125", u"150", u"175", u"200", u"225", u"250", u"275",
                      u"1", u"30"}),
        vendorLine(u"2", u"TIDEWATER", u"FILTERS"),
        u"F:   99.00     0.0    1.5        1       2       3       4       5",
        months(u"V", {u"1", u"2"}),
        months(u"S", {u"3", u"4"}),
        months(u"P", {u"5", u"6"}),
    });
}

// A line with a figure for each month: 13 columns and a blank each, from column 9 on.
Text ratioLine(TextSpan mark, TextSpan code, const Lines& figures)
{
    Text line = atLeft(Text(mark) + Text(code), 8);
    for (const TextSpan figure : figures)
        line += atRight(figure, 13) + u' ';
    return line;
}

// The figure, the value and the benchmark have 13 columns each, from columns 3, 31 and 45 on.
Text benchmarkLine(TextSpan figure, TextSpan value, TextSpan benchmark)
{
    return CaptureBuilder(1)
        .put(1, 1, u"3:" + atRight(figure, 13))
        .put(1, 31, atRight(value, 13))
        .put(1, 45, atRight(benchmark, 13))
        .text(u"");
}

Text ratioBlock(TextSpan code)
{
    return hostScreen({Text(u"1:") + Text(code), Text(u"2:") + Text(code), u"3:", u"4: D", u"5: F", u"6: N"});
}

Text explained(TextSpan data, TextSpan formula, TextSpan note, TextSpan third)
{
    return hostScreen({ratioTitle, u"1:GP  ", u"2:GP  ", third, data, formula, note});
}

// PlotVue knows the first ratio by its code. The second has a name and a note on the screen.
Text twoRatios()
{
    return hostScreen({
        ratioTitle,
        u"COMP:NORTHWAY FUEL",
        u"Mlabel " + Text(monthLabels),
        ratioLine(u"1:", u"CUR ", {u"1.5", u"2", u"3", u"4", u"5", u"6", u"7"}),
        ratioLine(u"2:", u"CUR ", {u"8", u"-9", u"10", u"11", u"12", u"13.25"}),
        benchmarkLine(u"2.00", u"1.50", u"2.00"),
        u"4: CASS 4,182,300  CLIB 2,298,000",
        u"5: CASS / CLIB",
        u"6: STD",
        ratioLine(u"1:", u"DLVG", {u"6"}),
        ratioLine(u"2:", u"DLVG", {}),
        benchmarkLine(u"7", u"6 cents", u"7 cents") + u"  3A:Delivery Cents per Gallon|IN CENTS",
        u"4: DELIVERY 171,300",
        u"5: DELIVERY / GALLONS",
        u"6: Delivery expense by the gallons delivered.",
    });
}

} // namespace plotvue::test
