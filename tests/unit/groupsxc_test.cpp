#include "groupfixture.h"

namespace plotvue::test {
namespace {

class SalesmenByCategory : public testing::Test {
protected:
    Session session;

    CaptureBuilder screen(std::size_t groups, std::size_t salesmen = 2)
    {
        return groupScreen(u"QXM21SXC", groups, salesmen);
    }

    Chart chart(const CaptureBuilder& capture, TypeOption type = Sales)
    {
        session.start(capture.text());
        if (type != Sales)
            session.choose(sxc, "optSales", type);
        return session.chart(sxc);
    }
};

TEST_F(SalesmenByCategory, ItsControls)
{
    session.start(screen(4).text());
    EXPECT_EQ(session.events(), opening(sxc));
    EXPECT_EQ(session.caption(sxc), u"Plotvue!");
    EXPECT_EQ(session.controlNames(sxc),
              (Texts{u"ChartFX1", u"cmdExit", u"cmdPrint", u"cmdRefresh", u"optSales"}));
    EXPECT_EQ(session.text(sxc, "cmdRefresh"), u"&Refresh");
    EXPECT_EQ(session.text(sxc, "cmdPrint"), u"&Print");
    EXPECT_EQ(session.text(sxc, "cmdExit"), u"E&xit");
    const OptionGroup types = session.options(sxc, "optSales");
    EXPECT_EQ(captions(types), (Texts{u"Sales", u"Profit", u"Volume"}));
    EXPECT_EQ(types.options[1].index, 1);
    EXPECT_EQ(types.chosen, std::vector{0});
}

TEST_F(SalesmenByCategory, SalesAreTheFirstFigureOfEachGroup)
{
    const Chart content = chart(screen(4));
    EXPECT_EQ(content.series,
              (std::vector<Numbers>{{111, 211, 0}, {121, 221, 0}, {131, 231, 0}, {141, 241, 0}}));
    EXPECT_EQ(content.titles, (std::map<int, Text>{{2, u"OCT  1999"}, {3, u"Sales"}}));
    EXPECT_FALSE(content.decimals);
}

TEST_F(SalesmenByCategory, ProfitIsTheThirdFigure)
{
    const Chart content = chart(screen(4), Profit);
    EXPECT_EQ(content.series,
              (std::vector<Numbers>{{113, 213, 0}, {123, 223, 0}, {133, 233, 0}, {143, 243, 0}}));
    EXPECT_EQ(content.titles.at(3), u"Profit");
}

TEST_F(SalesmenByCategory, VolumeIsTheSecondFigure)
{
    const Chart content = chart(screen(4), Volume);
    EXPECT_EQ(content.series,
              (std::vector<Numbers>{{112, 212, 0}, {122, 222, 0}, {132, 232, 0}, {142, 242, 0}}));
    EXPECT_EQ(content.titles.at(3), u"Volume");
}

TEST_F(SalesmenByCategory, APointASalesmanAndAnEmptyOne)
{
    EXPECT_EQ(chart(screen(4)).labels, (Texts{u"02_01", u"02_02", u""}));
}

TEST_F(SalesmenByCategory, ThreeSeriesAreChartedForFewerGroupsToo)
{
    EXPECT_EQ(chart(screen(3)).series, (std::vector<Numbers>{{111, 211, 0}, {121, 221, 0}, {131, 231, 0}}));
    session.copy(screen(2).text());
    session.press(sxc, "cmdRefresh");
    EXPECT_EQ(session.chart(sxc).series, (std::vector<Numbers>{{111, 211, 0}, {121, 221, 0}, {0, 0, 0}}));
    session.copy(screen(1).text());
    session.press(sxc, "cmdRefresh");
    EXPECT_EQ(session.chart(sxc).series, (std::vector<Numbers>{{111, 211, 0}, {0, 0, 0}, {0, 0, 0}}));
}

TEST_F(SalesmenByCategory, TheGroupsNameTheSeries)
{
    EXPECT_EQ(chart(screen(4)).legends,
              (std::map<int, Text>{{0, u"FUELS"}, {1, u"LUBES"}, {2, u"HEATING"}, {3, u"CARDLOCK"}}));
}

TEST_F(SalesmenByCategory, LegendsOfAnEarlierDrawingAreGone)
{
    chart(screen(4));
    session.copy(screen(2).text());
    session.press(sxc, "cmdRefresh");
    EXPECT_EQ(session.chart(sxc).legends, (std::map<int, Text>{{0, u"FUELS"}, {1, u"LUBES"}}));
}

TEST_F(SalesmenByCategory, TheLastNameMayGoWithoutItsSemicolon)
{
    CaptureBuilder capture = screen(2);
    capture.put(2, 32, u";FUELS;LUBES ");
    EXPECT_EQ(chart(capture).legends, (std::map<int, Text>{{0, u"FUELS"}, {1, u"LUBES "}}));
}

TEST_F(SalesmenByCategory, AnotherTypeReadsTheClipboardAgain)
{
    chart(screen(2));
    CaptureBuilder capture = screen(2);
    session.copy(capture.put(4, 1, u"9988 1;2;3;4;5;6;").put(2, 32, u";NORTH;SOUTH;").text());
    session.choose(sxc, "optSales", Profit);
    EXPECT_EQ(session.chart(sxc).series, (std::vector<Numbers>{{3, 213, 0}, {6, 223, 0}, {0, 0, 0}}));
    EXPECT_EQ(session.chart(sxc).labels, (Texts{u"99_88", u"02_02", u""}));
    EXPECT_EQ(session.chart(sxc).legends.at(1), u"SOUTH");
}

TEST_F(SalesmenByCategory, TheTypeThatIsChosenReadsAgainToo)
{
    chart(screen(2));
    session.copy(screen(2, 1).text());
    session.choose(sxc, "optSales", Sales);
    EXPECT_EQ(session.chart(sxc).labels, (Texts{u"02_01", u""}));
}

// Each field has digits or letters on both sides, so a border that is off by one changes what is read.
TEST_F(SalesmenByCategory, EveryColumn)
{
    CaptureBuilder capture(4);
    capture.put(1, 1, u"QXM21SXC")
        .put(2, 1, u"GROUPS:029SCOUNT:0000000014;FUELS;LUBES;HEATING;")
        .put(3, 1, u"UVWXYZABCDEFGHIJKL")
        .put(4, 1, u"ABCDE11;12;13;21;22;23;31;");
    const Chart content = chart(capture);
    EXPECT_EQ(content.titles.at(2), u"ABCDEFGHI");
    EXPECT_EQ(content.labels, (Texts{u"AB_CD", u""}));
    EXPECT_EQ(content.series, (std::vector<Numbers>{{11, 0}, {21, 0}, {0, 0}}));
    EXPECT_EQ(content.legends, (std::map<int, Text>{{0, u"FUELS"}, {1, u"LUBES"}}));
    session.copy(capture.put(4, 5, u"9").text());
    session.press(sxc, "cmdRefresh");
    EXPECT_EQ(session.chart(sxc).series[0][0], 11);
}

TEST_F(SalesmenByCategory, TheCountsMayStandAnywhereOnTheirLine)
{
    CaptureBuilder capture = screen(2);
    capture.put(2, 1, Text(50, u' ')).put(2, 3, u"SCOUNT:2         GROUPS: 2 ;A;B;");
    const Chart content = chart(capture);
    EXPECT_EQ(content.series, (std::vector<Numbers>{{111, 211, 0}, {121, 221, 0}, {0, 0, 0}}));
    EXPECT_EQ(content.legends, (std::map<int, Text>{{0, u"A"}, {1, u"B"}}));
}

TEST_F(SalesmenByCategory, FiguresThatALineDoesNotHaveAreZero)
{
    CaptureBuilder capture = screen(3);
    capture.put(4, 1, u"0201 5;6;7;8;                                ").put(5, 1, u"02" + Text(60, u' '));
    EXPECT_EQ(chart(capture).series, (std::vector<Numbers>{{5, 0, 0}, {8, 0, 0}, {0, 0, 0}}));
    EXPECT_EQ(session.chart(sxc).labels, (Texts{u"02_01", u"02_  ", u""}));
    EXPECT_EQ(session.events(), opening(sxc));
}

TEST_F(SalesmenByCategory, AFigureWithoutItsSemicolonIsZero)
{
    CaptureBuilder capture = screen(2, 1);
    capture.put(4, 1, Text(40, u' ')).put(4, 1, u"0201 5;6;7;8");
    EXPECT_EQ(chart(capture).series, (std::vector<Numbers>{{5, 0}, {0, 0}, {0, 0}}));
}

TEST_F(SalesmenByCategory, AFigureIsItsLeadingNumber)
{
    CaptureBuilder capture = screen(4, 1);
    capture.put(4, 1, u"0201 1,234;;; -5.25;;;N/A;;;(77);;;");
    EXPECT_EQ(chart(capture).series, (std::vector<Numbers>{{1, 0}, {-5.25, 0}, {0, 0}, {0, 0}}));
}

TEST_F(SalesmenByCategory, FourGroupsAreReadAtMost)
{
    CaptureBuilder capture = screen(4, 1);
    capture.put(2, 1, u"GROUPS:05").put(4, 1, u"0201 111;0;0;121;0;0;131;0;0;141;0;0;151;0;0;");
    EXPECT_EQ(chart(capture).series, (std::vector<Numbers>{{111, 0}, {121, 0}, {131, 0}, {141, 0}}));
}

TEST_F(SalesmenByCategory, WithoutSalesmenTheChartIsAnEmptyPoint)
{
    const Chart content = chart(screen(4, 0));
    EXPECT_EQ(content.series, (std::vector<Numbers>{{0}, {0}, {0}, {0}}));
    EXPECT_EQ(content.labels, Texts{u""});
    EXPECT_EQ(content.titles, (std::map<int, Text>{{2, u"OCT  1999"}}));
    EXPECT_EQ(content.legends.size(), 4u);
}

TEST_F(SalesmenByCategory, TheTypeIsATitleOnlyWhereAFigureIsRead)
{
    EXPECT_EQ(chart(screen(0)).titles, (std::map<int, Text>{{2, u"OCT  1999"}}));
    session.copy(screen(1, 1).text());
    session.press(sxc, "cmdRefresh");
    EXPECT_EQ(session.chart(sxc).titles.at(3), u"Sales");
}

TEST_F(SalesmenByCategory, WithoutFiguresTheTitleOfTheDrawingBeforeStays)
{
    chart(screen(2), Profit);
    session.copy(screen(2, 0).text());
    session.choose(sxc, "optSales", Volume);
    EXPECT_EQ(session.chart(sxc).titles.at(3), u"Profit");
}

TEST_F(SalesmenByCategory, WithoutAGroupLineTheChartIsAnEmptyPoint)
{
    const Chart content = chart(CaptureBuilder().put(1, 1, u"QXM21SXC"));
    EXPECT_EQ(content.series, (std::vector<Numbers>{{0}, {0}, {0}}));
    EXPECT_TRUE(content.legends.empty());
}

TEST_F(SalesmenByCategory, OnlyTheFigureChosenIsRead)
{
    CaptureBuilder capture = screen(1, 1);
    capture.put(4, 1, u"0201 5;1E999;7;");
    EXPECT_EQ(chart(capture, Profit).series[0][0], 7);
    session.events();
    session.choose(sxc, "optSales", Volume);
    EXPECT_TRUE(endsInAnError(session));
}

} // namespace
} // namespace plotvue::test
