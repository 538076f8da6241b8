#include "groupfixture.h"

namespace plotvue::test {
namespace {

constexpr int firstGroup = 3, total = 7;

class CategoriesBySalesman : public testing::Test {
protected:
    Session session;

    CaptureBuilder screen(std::size_t groups, std::size_t salesmen = 2)
    {
        return groupScreen(u"QXM21CXS", groups, salesmen);
    }

    // The chart after an option was chosen in each of the two frames.
    Chart chart(TypeOption type, int group)
    {
        session.choose(cxs, "optSales", type);
        session.choose(cxs, "optSales", group);
        return session.chart(cxs);
    }
};

TEST_F(CategoriesBySalesman, ItsControls)
{
    session.start(screen(4).text());
    EXPECT_EQ(session.events(), opening(cxs));
    EXPECT_EQ(session.caption(cxs), u"Plotvue!");
    EXPECT_EQ(session.controlNames(cxs),
              (Texts{u"ChartFX1", u"MSFlexGrid1", u"cmdExit", u"cmdPrint", u"cmdRefresh", u"optSales"}));
    EXPECT_EQ(session.text(cxs, "cmdRefresh"), u"&Refresh");
    EXPECT_EQ(session.text(cxs, "cmdPrint"), u"&Print");
    EXPECT_EQ(session.text(cxs, "cmdExit"), u"E&xit");
    const OptionGroup options = session.options(cxs, "optSales");
    EXPECT_EQ(captions(options),
              (Texts{u"Sales", u"Profit", u"Volume", u"FUELS", u"LUBES", u"HEATING", u"CARDLOCK", u"Total"}));
    for (std::size_t i = 0; i < options.options.size(); ++i)
        EXPECT_EQ(options.options[i].index, static_cast<int>(i));
}

TEST_F(CategoriesBySalesman, OpensWithTheTotalOfSales)
{
    session.start(screen(4).text());
    EXPECT_EQ(session.options(cxs, "optSales").chosen, (std::vector{0, total}));
    const Chart content = session.chart(cxs);
    EXPECT_EQ(content.series, (std::vector<Numbers>{{111 + 121 + 131 + 141, 211 + 221 + 231 + 241, 0}}));
    EXPECT_EQ(content.labels, (Texts{u"02_01", u"02_02", u""}));
    EXPECT_EQ(content.titles, (std::map<int, Text>{{2, u"OCT  1999"}, {3, u"Sales - ALL"}}));
    EXPECT_FALSE(content.decimals);
    EXPECT_TRUE(content.legends.empty());
}

// On this screen, the second figure of a group is the profit and the third the volume.
TEST_F(CategoriesBySalesman, EveryTypeOfEveryGroup)
{
    session.start(screen(4).text());
    const TextSpan types[] = {u"Sales - ", u"Profit - ", u"Volume - "};
    const TextSpan groups[] = {u"FUELS", u"LUBES", u"HEATING", u"CARDLOCK"};
    for (int type = Sales; type <= Volume; ++type)
        for (int group = 0; group < 4; ++group) {
            const Chart content = chart(static_cast<TypeOption>(type), firstGroup + group);
            const double place = 10 * (group + 1) + type + 1;
            EXPECT_EQ(content.series, (std::vector<Numbers>{{100 + place, 200 + place, 0}})) << type << group;
            EXPECT_EQ(content.titles.at(3), Text(types[type]) + Text(groups[group]));
        }
}

TEST_F(CategoriesBySalesman, ATotalAddsTheSameFigureOfEveryGroup)
{
    session.start(screen(4).text());
    const Chart profit = chart(Profit, total);
    EXPECT_EQ(profit.series, (std::vector<Numbers>{{112 + 122 + 132 + 142, 212 + 222 + 232 + 242, 0}}));
    EXPECT_EQ(profit.titles.at(3), u"Profit - ALL");
    const Chart volume = chart(Volume, total);
    EXPECT_EQ(volume.series, (std::vector<Numbers>{{113 + 123 + 133 + 143, 213 + 223 + 233 + 243, 0}}));
    EXPECT_EQ(volume.titles.at(3), u"Volume - ALL");
}

TEST_F(CategoriesBySalesman, TheTotalOfTwoGroupsIsTheirs)
{
    CaptureBuilder capture = screen(2, 1);
    capture.put(4, 1, u"0201 1;2;4;8;16;32;64;128;256;512;1024;2048;");
    session.start(capture.text());
    EXPECT_EQ(chart(Sales, total).series, (std::vector<Numbers>{{1 + 8, 0}}));
    EXPECT_EQ(chart(Profit, total).series, (std::vector<Numbers>{{2 + 16, 0}}));
    EXPECT_EQ(chart(Volume, total).series, (std::vector<Numbers>{{4 + 32, 0}}));
}

TEST_F(CategoriesBySalesman, FourGroupsAreReadAtMost)
{
    session.start(screen(4).text());
    const OptionGroup ofFour = session.options(cxs, "optSales");
    for (const std::size_t groups : {5u, 6u}) {
        session.copy(screen(groups).text());
        const Chart all = chart(Profit, total);
        EXPECT_EQ(all.series, (std::vector<Numbers>{{112 + 122 + 132 + 142, 212 + 222 + 232 + 242, 0}}));
        EXPECT_EQ(all.titles.at(3), u"Profit - ALL");
        EXPECT_EQ(captions(session.options(cxs, "optSales")), captions(ofFour)) << "\"Total\" keeps its name";
        const Chart fourth = chart(Sales, firstGroup + 3);
        EXPECT_EQ(fourth.series, (std::vector<Numbers>{{141, 241, 0}}));
        EXPECT_EQ(fourth.titles.at(3), u"Sales - CARDLOCK");
        EXPECT_EQ(session.grid(cxs).cells, (std::vector<Texts>{{u"02_01", u"141"}, {u"02_02", u"241"}}));
    }
}

TEST_F(CategoriesBySalesman, TheGridListsWhatIsCharted)
{
    session.start(screen(4).text());
    Grid grid = session.grid(cxs);
    EXPECT_EQ(grid.format, u"<Sales Rep|>Sales - ALL");
    EXPECT_EQ(grid.columns, 2);
    EXPECT_EQ(grid.rows, 3);
    EXPECT_EQ(grid.cells, (std::vector<Texts>{{u"02_01", u"504"}, {u"02_02", u"904"}}));
    chart(Volume, firstGroup + 1);
    grid = session.grid(cxs);
    EXPECT_EQ(grid.format, u"<Sales Rep|>Volume - LUBES");
    EXPECT_EQ(grid.cells, (std::vector<Texts>{{u"02_01", u"123"}, {u"02_02", u"223"}}));
}

TEST_F(CategoriesBySalesman, TheGridHasPlainNumbers)
{
    CaptureBuilder capture = screen(1, 4);
    capture.put(4, 1, u"0201 1234567.5 ;0;0;")
        .put(5, 1, u"0202 -12.25 ;0;0;")
        .put(6, 1, u"0203 1,5;0;0;")
        .put(7, 1, u"0204 ;0;0;    ");
    session.start(capture.text());
    EXPECT_EQ(session.grid(cxs).cells,
              (std::vector<Texts>{
                  {u"02_01", u"1234567.5"}, {u"02_02", u"-12.25"}, {u"02_03", u"1"}, {u"02_04", u"0"}}));
}

TEST_F(CategoriesBySalesman, TheGridShrinksAndGrowsWithTheScreen)
{
    session.start(screen(4, 3).text());
    EXPECT_EQ(session.grid(cxs).rows, 4);
    session.copy(screen(4, 1).text());
    session.press(cxs, "cmdRefresh");
    EXPECT_EQ(session.grid(cxs).cells, (std::vector<Texts>{{u"02_01", u"504"}}));
    session.copy(screen(4, 23).text());
    session.press(cxs, "cmdRefresh");
    EXPECT_EQ(session.grid(cxs).rows, 24);
    session.copy(screen(4, 0).text());
    session.press(cxs, "cmdRefresh");
    EXPECT_EQ(session.grid(cxs).rows, 1);
    EXPECT_EQ(session.chart(cxs).series, std::vector<Numbers>{{0}});
    EXPECT_EQ(session.chart(cxs).titles.at(3), u"Sales - ALL");
}

TEST_F(CategoriesBySalesman, OptionsWithoutAGroupAreHidden)
{
    session.start(screen(3).text());
    OptionGroup options = session.options(cxs, "optSales");
    EXPECT_TRUE(options.options[5].visible);
    EXPECT_FALSE(options.options[6].visible);
    EXPECT_EQ(options.options[6].caption, u"");
    EXPECT_TRUE(options.options[7].visible);
    session.copy(screen(2).text());
    session.press(cxs, "cmdRefresh");
    options = session.options(cxs, "optSales");
    EXPECT_EQ(captions(options),
              (Texts{u"Sales", u"Profit", u"Volume", u"FUELS", u"LUBES", u"", u"", u"Total"}));
    EXPECT_FALSE(options.options[5].visible);
    session.copy(screen(4).text());
    session.press(cxs, "cmdRefresh");
    options = session.options(cxs, "optSales");
    EXPECT_TRUE(options.options[5].visible);
    EXPECT_TRUE(options.options[6].visible);
    EXPECT_EQ(options.options[6].caption, u"CARDLOCK");
}

TEST_F(CategoriesBySalesman, ARowOfTheGridOpensNothing)
{
    session.start(screen(4).text());
    session.events();
    session.clickRow(cxs, "MSFlexGrid1", 1);
    EXPECT_EQ(session.events(), Events{});
}

TEST_F(CategoriesBySalesman, AChosenGroupThatTheScreenDoesNotHaveIsNothing)
{
    session.start(screen(4).text());
    chart(Profit, firstGroup + 3);
    session.copy(screen(3).text());
    session.press(cxs, "cmdRefresh");
    EXPECT_EQ(session.chart(cxs).series, (std::vector<Numbers>{{0, 0, 0}}));
    EXPECT_EQ(session.chart(cxs).titles.at(3), u"Profit - ");
}

TEST_F(CategoriesBySalesman, TheTwoChoicesAreIndependent)
{
    session.start(screen(4).text());
    session.choose(cxs, "optSales", Profit);
    EXPECT_EQ(session.options(cxs, "optSales").chosen, (std::vector{1, total}));
    CaptureBuilder capture = screen(4, 1);
    session.copy(capture.put(4, 1, u"7766 1;2;3;4;5;6;7;8;9;10;11;12;").text());
    session.choose(cxs, "optSales", firstGroup + 2);
    EXPECT_EQ(session.options(cxs, "optSales").chosen, (std::vector{1, firstGroup + 2}));
    EXPECT_EQ(session.chart(cxs).series, (std::vector<Numbers>{{8, 0}}));
    EXPECT_EQ(session.chart(cxs).labels, (Texts{u"77_66", u""}));
    EXPECT_EQ(session.chart(cxs).titles.at(3), u"Profit - HEATING");
}

// Each field has digits or letters on both sides, so a border that is off by one changes what is read.
TEST_F(CategoriesBySalesman, EveryColumn)
{
    CaptureBuilder capture(4);
    capture.put(1, 1, u"QXM21CXS")
        .put(2, 1, u"GROUPS:029SCOUNT:0000000014;FUELS;LUBES;HEATING;")
        .put(3, 1, u"UVWXYZABCDEFGHIJKL")
        .put(4, 1, u"ABCD911;12;13;200;22;23;3000;");
    session.start(capture.text());
    EXPECT_EQ(session.chart(cxs).titles.at(2), u"ABCDEFGHI");
    EXPECT_EQ(session.chart(cxs).labels, (Texts{u"AB_CD", u""}));
    EXPECT_EQ(session.chart(cxs).series, (std::vector<Numbers>{{211, 0}}));
    EXPECT_EQ(session.grid(cxs).cells, (std::vector<Texts>{{u"AB_CD", u"211"}}));
}

TEST_F(CategoriesBySalesman, MissingFiguresCountAsZero)
{
    CaptureBuilder capture = screen(3, 3);
    capture.put(4, 1, u"0201 5;6;7;8;                                ")
        .put(5, 1, u"0202" + Text(40, u' '))
        .put(6, 1, u"0203 5;6;7;8                                 ");
    session.start(capture.text());
    EXPECT_EQ(session.chart(cxs).series, (std::vector<Numbers>{{13, 0, 5, 0}}));
    EXPECT_EQ(session.events(), opening(cxs));
}

TEST_F(CategoriesBySalesman, ASumBeyondADoubleIsARunTimeError)
{
    CaptureBuilder capture = screen(2, 1);
    session.start(capture.put(4, 1, u"0201 1E308;0;0;1E308;0;0;").text());
    EXPECT_TRUE(endsInAnError(session));
}

} // namespace
} // namespace plotvue::test
