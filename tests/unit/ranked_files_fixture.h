// The files between a list and its drill-down window, among three entries of a month-to-month analysis.
#pragma once

#include "profit_fixture.h"

#include <filesystem>

namespace plotvue::test {

class RankedFiles : public testing::Test {
protected:
    Session session;

    MonthToMonthScreen threeEntries()
    {
        MonthToMonthScreen screen;
        screen.add(1, u"30", u"20", u"10").add(2, u"-5").add(3, u"10");
        return screen;
    }

    // Five lines of an entry as the screen has them, each with its carriage return, as fields of a record.
    static std::string fields(const CaptureBuilder& capture, int number)
    {
        const Text text = capture.text(u"\r");
        std::size_t start = 0;
        for (std::size_t line = 1; line < ProfitScreen::lineOf(number); ++line)
            start = text.find(u'\r', start) + 1;
        std::string result;
        for (int i = 0; i < linesAnEntry; ++i) {
            const std::size_t end = text.find(u'\r', start) + 1;
            result += ",\"" + toUtf8(text.substr(start, end - start)) + "\"";
            start = end;
        }
        return result;
    }

    void blockFile(const char* name)
    {
        std::filesystem::remove(name);
        std::filesystem::create_directory(name);
    }

    void openFirst()
    {
        session.start(threeEntries().text());
        session.clickRow(m2m, gainsGrid, 1);
        session.events();
    }

    void expectError(const std::string& file, const std::string& what)
    {
        const Events events = session.events();
        ASSERT_EQ(events.size(), 1u);
        const std::string begin = "error The file " + file + " in the working directory " + what;
        EXPECT_TRUE(events[0].starts_with(begin)) << events[0];
        EXPECT_TRUE(events[0].ends_with(".")) << events[0];
        EXPECT_TRUE(session.platform.over());
    }
};

} // namespace plotvue::test
