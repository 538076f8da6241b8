// What all monthly windows do alike, seen on the product window: how many copies are printed, and failures.
#include "app/screens.h"
#include "history/monthlyreader.h"
#include "support/chartwindow.h"

#include <gmock/gmock.h>

namespace plotvue::test {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

class HistoryWindowTest : public testing::Test, public ChartWindow {
protected:
    HistoryWindowTest() : ChartWindow("frmProduct", "product") { open(); }

    Events printed(int copies)
    {
        session.platform.printer = {RecordingPlatform::Printer::Answer::Accept, copies};
        session.press(window, "cmdPrint");
        EXPECT_FALSE(session.platform.over());
        return session.events();
    }
};

TEST_F(HistoryWindowTest, ACopyCountBelowOneOrBeyond16BitsPrintsNothing)
{
    for (const int copies : {0, -1, -32768, 32768, 40000, -32769})
        EXPECT_EQ(printed(copies), Events{}) << copies;
}

TEST_F(HistoryWindowTest, TheLargestCopyCountIsPrinted)
{
    EXPECT_EQ(printed(32767).size(), 32767u);
}

TEST_F(HistoryWindowTest, PrintingDoesNotReadTheClipboard)
{
    session.copy(u"");
    session.platform.clipboardReads = 0;
    EXPECT_EQ(printed(1), Events{"print frmProduct"});
    EXPECT_EQ(session.platform.clipboardReads, 0);
}

TEST_F(HistoryWindowTest, AnotherScreenOfTheSameKindIsCharted)
{
    EXPECT_EQ(refresh(CaptureBuilder(screen).put(2, 9, u"OTHERITEM ")), Events{});
    EXPECT_EQ(title(2), u"Product: OTHERITEM  DIESEL FUEL NO. 2 LOW SULFUR");
}

TEST_F(HistoryWindowTest, AFailureWhileLoadingShowsNoWindow)
{
    ChartWindow failing(window, screen);
    EXPECT_THAT(
        failing.open(failing.screen.put(6, 1, u"XXX")),
        ElementsAre("load startup", "show startup", "hide startup", "load frmProduct", StartsWith("error ")));
}

TEST_F(HistoryWindowTest, UpToEighteenMonthsHaveLongLabels)
{
    const Text capture = screen.text();
    const auto newestLabel = [&](int months) {
        return readMonths(frmProduct, capture, 1, months, frmProduct.types[0]).labels.at(months - 1);
    };
    EXPECT_EQ(newestLabel(18), u"OCT99");
    EXPECT_EQ(newestLabel(19), u"O99");
}

} // namespace
} // namespace plotvue::test
