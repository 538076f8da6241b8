// The screens that list volume, sales and profit of 25 months in two halves have rows and data types of one
// kind. What holds for each of them is tested once, in saleshistory_test.cpp, and instantiated by each.
#pragma once

#include "history/screen.h"
#include "support/monthlytable.h"
#include "support/session.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace plotvue::test {

struct SalesHistory {
    const MonthlyScreen& screen;
    std::string_view sample;
    int newestLine; // of the newest month; the right half begins one line lower
    int dayLine, dayColumn;
    double days, day; // of the sample's newest month: how long it is, and how far it has come
    double (*percent)(double profit, double divisor);
    std::vector<Text> periods, types;             // captions by index
    std::vector<int> typeOrder = {0, 1, 2, 3, 4}; // from the top
    Text periodFrame = u"Months", typeFrame = u"Data Type";
};

inline double quotientTimesHundred(double profit, double divisor)
{
    return profit / divisor * 100;
}

inline double hundredTimesQuotient(double profit, double divisor)
{
    return 100 * profit / divisor;
}

enum Types { Sales, Profit, Volume, Percent, PerUnit };
enum Periods { Months12, Months24, Months6 };

// The window of one screen.
class HistoryTester {
public:
    explicit HistoryTester(Name name) : window(name) {}

    void start(TextSpan capture);
    void choose(int type, int period);
    Chart chart() { return session.chart(window); }
    double newest(int type, int series = 0); // its slot with "12 Month"
    Text title(int position) { return chart().titles.at(position); }

    // Copies a capture, presses Refresh and says what happened.
    std::vector<std::string> refresh(TextSpan capture);

    // Refresh with the capture puts the start-up window in front and leaves the chart as it was. Then the
    // window is opened again.
    void expectRefusal(TextSpan capture);

    Session session;
    const Name window;

private:
    Text first_; // the capture it was started with
};

// Every occurrence of the word overwritten with dots.
Text blotted(Text capture, TextSpan word);

// The capture, filled up so that the word follows with its first letter at the position.
Text withWordAt(Text capture, TextSpan word, std::size_t position);

class SalesHistoryTest : public testing::TestWithParam<SalesHistory> {
protected:
    SalesHistoryTest() : tester(GetParam().screen.window) {}

    HostScreen sampleScreen() const { return HostScreen(sample(GetParam().sample)); }

    // The sample with other figures in the newest month, each in the whole width of its field.
    HostScreen newestMonth(TextSpan volume, TextSpan sales, TextSpan profit) const;

    HistoryTester tester;
};

} // namespace plotvue::test
