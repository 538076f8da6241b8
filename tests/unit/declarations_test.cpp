// The accessible names and the shortcuts of each window.
#include "app/application.h"
#include "recording/recordingplatform.h"
#include "support/windows.h"
#include "windowfixture.h"

namespace plotvue::test {
namespace {

using Said = std::vector<std::pair<Name, TextSpan>>; // controls in order of declaration, each with its text

class Declarations : public testing::Test {
protected:
    void open(std::string_view capture)
    {
        platform.clipboard = sample(capture);
        Window* startup = test::windowNamed(app, "startup");
        startup->loaded() ? startup->controls().press("Command1") : app.start();
    }

    void openChart(std::string_view capture, Name list)
    {
        open(capture);
        test::windowNamed(app, list)->controls().clickRow("MSFlexGrid1", 1);
    }

    Said spoken(Name window)
    {
        Said said;
        forEachControl(test::windowNamed(app, window)->controls().declaration.content,
                       [&](const auto& control) {
                           if constexpr (requires { control.spokenName; })
                               if (!control.spokenName.empty())
                                   said.emplace_back(control.name, control.spokenName);
                       });
        return said;
    }

    ChartDesign chart(Name window)
    {
        ChartDesign design;
        forEachControl(test::windowNamed(app, window)->controls().declaration.content,
                       [&](const auto& control) {
                           if constexpr (std::is_same_v<std::decay_t<decltype(control)>, ChartBox>)
                               design = control.chart.design;
                       });
        return design;
    }

    // The columns with right-aligned cells.
    std::vector<int> figures(Name window)
    {
        std::vector<int> columns;
        forEachControl(test::windowNamed(app, window)->controls().declaration.content,
                       [&](const auto& control) {
                           if constexpr (requires { control.figures; })
                               columns = control.figures;
                       });
        return columns;
    }

    Said keys(Name window)
    {
        Said said;
        forEachControl(test::windowNamed(app, window)->controls().declaration.content,
                       [&](const auto& control) {
                           if constexpr (requires { control.shortcut; })
                               said.emplace_back(control.name, control.shortcut);
                       });
        return said;
    }

    Session directory; // its directory holds the small files
    RecordingPlatform platform;
    Application app{platform};
};

TEST_F(Declarations, OfTheStart)
{
    open("product");
    EXPECT_EQ(spoken("startup"), (Said{{"List1", u"Supported screens"}}));
    EXPECT_EQ(keys("startup"), (Said{{"Command1", u"F5"}, {"Command2", u"Esc"}}));
}

TEST_F(Declarations, OfAMonthlyScreen)
{
    open("product");
    EXPECT_EQ(spoken("frmProduct"), (Said{{"Frame2", u"Months"}, {"Frame1", u"Data Type"}}));
    EXPECT_EQ(keys("frmProduct"),
              (Said{{"cmdPrint", u"Ctrl+P"}, {"cmdRefresh", u"F5"}, {"cmdExit", u"Esc"}}));
}

TEST_F(Declarations, OfTheSecondSeries)
{
    open("product");
    EXPECT_EQ(chart("frmProduct").projection, 1);
    EXPECT_EQ(chart("frmProduct").legends, (std::map<int, TextSpan>{{1, u"Projected"}}));
    open("latecharge"); // here the second series shows what was lost
    EXPECT_EQ(chart("frmLateCharge").projection, -1);
    EXPECT_EQ(chart("frmLateCharge").legends, (std::map<int, TextSpan>{{0, u"Paid"}, {1, u"Lost"}}));
    open("glhistory");
    EXPECT_EQ(chart("frmGLarch").projection, -1);
    EXPECT_TRUE(chart("frmGLarch").legends.empty());
}

TEST_F(Declarations, OfTheGroupScreens)
{
    const Said usual{{"cmdPrint", u"Ctrl+P"}, {"cmdRefresh", u"F5"}, {"cmdExit", u"Esc"}};
    open("salesmencategories");
    EXPECT_EQ(spoken("frmQXM21SXC"), (Said{{"Frame1", u"Data Type"}}));
    EXPECT_EQ(keys("frmQXM21SXC"), usual);
    open("categoriessalesmen");
    EXPECT_EQ(spoken("frmQXM21CXS"),
              (Said{{"MSFlexGrid1", u"Figures charted"}, {"Frame1", u"Data Type"}, {"Frame2", u"Groups"}}));
    EXPECT_EQ(keys("frmQXM21CXS"), usual);
}

TEST_F(Declarations, OfFiguresInLists)
{
    open("categoriessalesmen");
    EXPECT_EQ(figures("frmQXM21CXS"), std::vector{1});
    open("monthtomonth");
    EXPECT_EQ(figures("frmM2Mpft"), (std::vector{0, 1, 2}));
    open("profitrank");
    EXPECT_EQ(figures("frmProfRank"), (std::vector{0, 1, 2}));
    open("pastdue");
    EXPECT_EQ(figures("frmPastdue"), (std::vector{0, 1, 5, 6}));
    open("vendors");
    EXPECT_EQ(figures("frmVendInv"), (std::vector{0, 1, 4}));
    open("ratios");
    EXPECT_EQ(figures("frmRatio"), (std::vector{2, 3}));
}

TEST_F(Declarations, OfTheMonthToMonthWindows)
{
    openChart("monthtomonth", "frmM2Mpft");
    EXPECT_EQ(spoken("frmM2Mpft"), (Said{{"txtHeader", u"Analysis"},
                                         {"txtL2", u"Summary"},
                                         {"txtL3", u"Sales"},
                                         {"Picture1", u"Gains"},
                                         {"MSFlexGrid1", u"Gains"},
                                         {"Picture2", u"Losses"},
                                         {"MSFlexGrid2", u"Losses"}}));
    EXPECT_EQ(keys("frmM2Mpft"), (Said{{"cmdPrint", u"Ctrl+P"}, {"cmdExit", u"Esc"}}));
    EXPECT_EQ(spoken("frmM2MpftA"), (Said{{"Frame1", u"Data Type"}, {"cmdBack", u"Back"}}));
    EXPECT_EQ(keys("frmM2MpftA"), (Said{{"cmdBack", u"PgUp, Alt+Left"},
                                        {"cmdNext", u"PgDown"},
                                        {"cmdPrint", u"Ctrl+P"},
                                        {"cmdExit", u"Esc"}}));
}

TEST_F(Declarations, OfTheOtherLists)
{
    open("profitrank");
    EXPECT_EQ(spoken("frmProfRank"), (Said{{"txtHeader", u"Analysis"},
                                           {"txtL2", u"Summary"},
                                           {"txtL3", u"Sales"},
                                           {"MSFlexGrid1", u"Profits"}}));
    open("pastdue");
    EXPECT_EQ(spoken("frmPastdue"), (Said{{"MSFlexGrid1", u"Past-due customers"}}));
    open("vendors");
    EXPECT_EQ(spoken("frmVendInv"),
              (Said{{"txtHeader", u"Analysis"}, {"txtHeader2", u"Summary"}, {"MSFlexGrid1", u"Inventory"}}));
    EXPECT_EQ(keys("frmVendInv"), (Said{{"cmdTips", u"F1"}, {"cmdPrint", u"Ctrl+P"}, {"cmdExit", u"Esc"}}));
}

TEST_F(Declarations, OfTheRatioWindows)
{
    openChart("ratios", "frmRatio");
    EXPECT_EQ(spoken("frmRatio"), (Said{{"MSFlexGrid1", u"Ratios"}}));
    EXPECT_EQ(keys("frmRatioA"), (Said{{"cmdFormula", u"Alt+F"},
                                       {"cmdNote", u"Alt+N"},
                                       {"cmdBack", u"PgUp, Alt+Left"},
                                       {"cmdNext", u"PgDown"},
                                       {"cmdPrint", u"Ctrl+P"},
                                       {"cmdExit", u"Esc"}}));
}

} // namespace
} // namespace plotvue::test
