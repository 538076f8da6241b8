// Product screens for tests, and the window that charts them.
#pragma once

#include "support/capturebuilder.h"
#include "support/session.h"

#include <gtest/gtest.h>

namespace plotvue::test {

inline constexpr std::size_t left = 1, right = 42;
enum Type { Sales, Profit, Volume, GrossPercent, UnitProfit };
enum Period { Year, TwoYears, HalfYear };

// The frame of a product screen: the identifier with the 10th as its day, the headings in line 5, and a
// newest month without figures.
inline CaptureBuilder screen()
{
    return CaptureBuilder()
        .put(1, 1, u"QXM31H")
        .put(1, 17, u"10")
        .put(2, 1, u"PRODUCT:0020450001DIESEL")
        .put(5, 1, u"----- --------- --------- ---------")
        .put(6, left, u"NOV99");
}

inline Text number(std::size_t value)
{
    const std::string digits = std::to_string(value);
    return {digits.begin(), digits.end()};
}

class ProductTest : public testing::Test {
protected:
    Chart chart(const Text& capture, Type type = Sales, Period period = Year)
    {
        if (!session.loaded("frmProduct"))
            session.start(screen().text());
        session.choose("frmProduct", "optSales", type);
        session.choose("frmProduct", "opt12", period);
        session.copy(capture);
        session.events();
        session.press("frmProduct", "cmdRefresh");
        return session.chart("frmProduct");
    }
    Chart chart(const CaptureBuilder& capture, Type type = Sales, Period period = Year)
    {
        return chart(capture.text(), type, period);
    }

    // Of the newest month; put() in line 6.
    double value(const CaptureBuilder& capture, Type type = Sales)
    {
        return chart(capture, type).series.at(0).at(12);
    }
    double projection(const CaptureBuilder& capture, Type type = Sales)
    {
        return chart(capture, type).series.at(1).at(12);
    }
    Text subject(TextSpan line2)
    {
        return chart(screen().put(2, 1, Text(80, u' ')).put(2, 1, line2)).titles.at(2);
    }

    Session session;
};

// Fields filled to their edges, with figures between them that belong to none.
inline Text fullRow(TextSpan label, std::size_t month)
{
    return Text(label) + u"7" + number(111000000 + month) + u"7" + number(222000000 + 2 * month) + u"7" +
           number(333000000 + 3 * month) + u"7";
}

inline constexpr const char16_t* names[] = {u"JAN", u"FEB", u"MAR", u"APR", u"MAY", u"JUN",
                                            u"JUL", u"AUG", u"SEP", u"OCT", u"NOV", u"DEC"};

// Of month 1 (NOV99) to 25 (NOV97).
inline Text labelOf(std::size_t month)
{
    const std::size_t count = 99 * 12 + 10 - (month - 1);
    return names[count % 12] + number(count / 12);
}

inline CaptureBuilder fullScreen()
{
    CaptureBuilder capture = screen();
    for (std::size_t month = 1; month <= 25; ++month) {
        if (month <= 13)
            capture.put(5 + month, left, fullRow(labelOf(month), month));
        else
            capture.put(5 + month - 12, right - 1, u"7" + fullRow(labelOf(month), month));
    }
    return capture;
}

inline CaptureBuilder newest(TextSpan volume, TextSpan sales, TextSpan profit)
{
    return screen().put(6, 7, volume).put(6, 17, sales).put(6, 27, profit);
}

} // namespace plotvue::test
