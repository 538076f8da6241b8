#include "capture/utf8.h"
#include "support/capturebuilder.h"
#include "support/session.h"
#include "support/windows.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace plotvue {
namespace {

using test::CaptureBuilder;
using test::Session;
using testing::ElementsAre;
using testing::StartsWith;

constexpr const char* needData = "message Need Data: Clipboard contains no data";

// A screen with this marker that every reader can read: it has 24 lines and, for the product screen, a dash
// line and a month.
Text screen(TextSpan marker)
{
    return CaptureBuilder()
        .put(1, 1, marker)
        .put(2, 1, u"PRODUCT:0020450001DIESEL")
        .put(5, 1, u"-----")
        .put(6, 1, u"NOV99       100       200        30")
        .text();
}

Text withSales(TextSpan sales)
{
    return CaptureBuilder()
        .put(1, 1, u"QXM31H")
        .put(5, 1, u"-----")
        .put(6, 1, u"NOV99")
        .put(6, 17, sales)
        .text();
}

double newestSales(Session& session)
{
    return session.chart("frmProduct").series.at(0).at(12);
}

bool saysNothing(const std::vector<std::string>& events)
{
    return std::none_of(events.begin(), events.end(),
                        [](const std::string& event) { return event.starts_with("message Need Data"); });
}

TEST(Startup, ItsControlsSayWhatToDo)
{
    Session session;
    session.start();
    EXPECT_EQ(session.caption("startup"), u"Plot Vue!");
    EXPECT_EQ(session.text("startup", "Label1"), u"PlotVue!");
    EXPECT_EQ(session.text("startup", "Label2"), u"Supported screens:");
    EXPECT_EQ(session.text("startup", "Label3"), u"Chart your data, instantly!");
    EXPECT_EQ(session.text("startup", "Label4"), u"Version " PLOTVUE_VERSION);
    EXPECT_EQ(session.text("startup", "Label5"),
              u"Copy data to the Windows clipboard, then click Refresh to chart your data.");
    EXPECT_EQ(session.text("startup", "Command1"), u"Refresh");
    EXPECT_EQ(session.text("startup", "Command2"), u"Exit");
}

TEST(Startup, ListsTheSupportedScreens)
{
    Session session;
    session.start();
    std::vector<TextSpan> items;
    forEachControl(test::windowNamed(session.app, "startup")->controls().declaration.content,
                   [&](const auto& control) {
                       if constexpr (std::is_same_v<decltype(control), const ListBox&>)
                           items = control.items;
                   });
    EXPECT_THAT(items,
                ElementsAre(u"Sales Journal History", u"G/L History", u"G/L Expense/Volume",
                            u"Customer Sales History", u"Salesman History", u"Salesman/Category Analysis",
                            u"Product History", u"Active Customer Count", u"Prodware History",
                            u"Late Charge Analysis", u"Truck History", u"Driver History",
                            u"Cardlock Site History", u"C-Store History", u"Month2Month Profit Analysis",
                            u"Past Due A/R Analysis", u"Ranked Profit Analysis", u"Vendor Inventory Analysis",
                            u"Ratio Analysis"));
}

TEST(Startup, HasNoOtherControls)
{
    Session session;
    session.start();
    EXPECT_THAT(session.controlNames("startup"), ElementsAre(u"Command1", u"Command2", u"Label1", u"Label2",
                                                             u"Label3", u"Label4", u"Label5", u"List1"));
}

TEST(Startup, ItsLettersHaveTheirFamiliesAndSizes)
{
    struct Open : Startup {
        using Startup::declare;
        using Startup::Startup;
    };
    RecordingPlatform platform;
    const Declaration declaration = Open(platform).declare();
    std::map<Name, Font> fonts;
    forEachControl(declaration.content, [&](const auto& control) {
        if constexpr (requires { control.font; })
            fonts[control.name] = control.font;
    });
    const TextSpan sans = u"MS Sans Serif";
    EXPECT_EQ(fonts["Label1"], (Font{.family = u"Arial", .points = 48, .italic = true}));
    EXPECT_EQ(fonts["Label3"], (Font{.family = sans, .points = 9.75, .bold = true}));
    EXPECT_EQ(fonts["Label4"], Font{});
    EXPECT_EQ(fonts["Label5"], Font{.points = 12});
    EXPECT_EQ(fonts["Label2"], (Font{.family = sans, .points = 12}));
    EXPECT_EQ(fonts["List1"], (Font{.family = sans, .points = 8.25, .bold = true}));
}

TEST(Startup, ACaptureOnTheClipboardOpensItsWindowAtOnce)
{
    Session session;
    session.start(screen(u"QXM31H"));
    EXPECT_THAT(session.events(), ElementsAre("load startup", "show startup", "hide startup",
                                              "load frmProduct", "show frmProduct"));
    EXPECT_TRUE(session.visible("frmProduct"));
    EXPECT_FALSE(session.visible("startup"));
}

TEST(Startup, AnEmptyClipboardNeedsDataBeforeTheUserHasDoneAnything)
{
    Session session;
    session.start();
    EXPECT_THAT(session.events(),
                ElementsAre("load startup", "show startup", needData, "hide startup", "show startup"));
    EXPECT_TRUE(session.visible("startup"));
    EXPECT_FALSE(session.platform.over());
}

TEST(Startup, ATextWithoutMarkerNeedsDataInTheSameWords)
{
    for (const TextSpan text : {u"HELLO", u"qxm31h 10", u"\r\n", u"QXM12P2 PAGE 1", u"QXM855DH PAGE 1"}) {
        Session session;
        session.start(text);
        EXPECT_THAT(session.events(),
                    ElementsAre("load startup", "show startup", needData, "hide startup", "show startup"))
            << toUtf8(text);
    }
}

TEST(Startup, TheMessageHasATitleAndOneSentence)
{
    Session session;
    std::vector<std::pair<Text, Text>> messages;
    session.platform.listener = [&](const Event& event) {
        if (event.kind == Event::Kind::Message)
            messages.emplace_back(event.title, event.text);
    };
    session.start();
    EXPECT_THAT(messages, ElementsAre(std::pair(Text(u"Need Data"), Text(u"Clipboard contains no data"))));
}

TEST(Startup, RefreshAsksTheClipboardAgain)
{
    Session session;
    session.start();
    session.events();
    session.press("startup", "Command1");
    EXPECT_THAT(session.events(), ElementsAre(needData, "hide startup", "show startup"));
    session.copy(screen(u"QXM31H"));
    session.press("startup", "Command1");
    EXPECT_THAT(session.events(), ElementsAre("hide startup", "load frmProduct", "show frmProduct"));
}

TEST(Startup, ReadsTheClipboardOnceARecognition)
{
    Session session;
    session.start();
    EXPECT_EQ(session.platform.clipboardReads, 1);
    session.press("startup", "Command1");
    EXPECT_EQ(session.platform.clipboardReads, 2);
}

TEST(Startup, AWindowIsCreatedOnceAndShownAgainAsItWas)
{
    Session session;
    session.start(withSales(u"1000"));
    session.press("frmProduct", "cmdExit");
    session.copy(withSales(u"2000"));
    session.events();
    session.press("startup", "Command1");
    EXPECT_THAT(session.events(), ElementsAre("hide startup", "show frmProduct"));
    EXPECT_EQ(newestSales(session), 1000);
    session.press("frmProduct", "cmdRefresh");
    EXPECT_EQ(newestSales(session), 2000);
}

TEST(Startup, ExitEndsTheProcess)
{
    Session session;
    session.start();
    session.events();
    session.press("startup", "Command2");
    EXPECT_THAT(session.events(), ElementsAre("end"));
    EXPECT_TRUE(session.platform.over());
}

TEST(Startup, ExitTakesTheHiddenWindowsWithIt)
{
    Session session;
    session.start(screen(u"QXM31H"));
    session.press("frmProduct", "cmdExit");
    session.events();
    session.press("startup", "Command2");
    EXPECT_THAT(session.events(), ElementsAre("end"));
}

TEST(Startup, ItsTitleBarIsItsExit)
{
    Session session;
    session.start();
    session.events();
    session.close("startup");
    EXPECT_THAT(session.events(), ElementsAre("end"));
}

TEST(Startup, AProductScreenGoesBeforeASalesmanScreen)
{
    Session session;
    session.start(screen(u"QXM21D QXM31H"));
    EXPECT_TRUE(session.visible("frmProduct"));
}

TEST(Startup, AZeroTooFarDownIsARunTimeError)
{
    Session session;
    session.start(u"QXM12P2" + Text(32760, u' ') + u"0");
    EXPECT_THAT(session.events(), ElementsAre("load startup", "show startup", StartsWith("error ")));
    EXPECT_TRUE(session.platform.over());
}

class ServedBy : public testing::TestWithParam<std::pair<const char16_t*, const char*>> {};

TEST_P(ServedBy, ItsOwnWindow)
{
    const auto [marker, window] = GetParam();
    Session session;
    session.start(screen(marker) + u"0");
    std::vector<std::string> loads;
    for (const std::string& event : session.events())
        if (event.starts_with("load "))
            loads.push_back(event);
    EXPECT_THAT(loads, ElementsAre("load startup", std::string("load ") + window));
}

INSTANTIATE_TEST_SUITE_P(
    Screens, ServedBy,
    testing::Values(std::pair(u"QXM31H", "frmProduct"), std::pair(u"QXM21D", "frmSalesman"),
                    std::pair(u"QXM12E1", "frmCustomerE"), std::pair(u"QXM12P", "frmCustP"),
                    std::pair(u"QXM12P2", "frmCustP2"), std::pair(u"QXM32C", "frmPware"),
                    std::pair(u"CRD812H", "frmSite"), std::pair(u"QXMSJHIST", "frmSJHIST"),
                    std::pair(u"PFMEXP1", "frmGLexpense"), std::pair(u"PFMGLARCH1", "frmGLarch"),
                    std::pair(u"QXM855DH", "frmDriver"), std::pair(u"QXM855TH", "frmTruck"),
                    std::pair(u"QXMLCHIST", "frmLateCharge"), std::pair(u"QXM21SXC", "frmQXM21SXC"),
                    std::pair(u"QXM21CXS", "frmQXM21CXS"), std::pair(u"PCS05H1B", "frmCSTORE"),
                    std::pair(u"QXMACTIVE", "frmActive"), std::pair(u"TO MONTH PROFIT AN", "frmM2Mpft"),
                    std::pair(u"RANKED PAST", "frmPastdue"), std::pair(u"RANKED PROFIT AN", "frmProfRank"),
                    std::pair(u"VENDOR INVENTORY", "frmVendInv"), std::pair(u"FINANCIAL RATIO", "frmRatio")),
    [](const auto& tested) { return std::string(tested.param.second); });

class RankedCapture : public testing::TestWithParam<const char16_t*> {};

TEST_P(RankedCapture, IsSavedAsOneQuotedRecord)
{
    const Text capture = u"PAGE 1 " + Text(GetParam()) + u"ALYSIS\r\n  1 ACME, INC.   12.50\r\nEND";
    Session session;
    session.start(capture);
    EXPECT_EQ(session.file("pvuscrn.txt"), '"' + toUtf8(capture) + "\"\r\n");
    EXPECT_TRUE(saysNothing(session.events()));
}

INSTANTIATE_TEST_SUITE_P(Titles, RankedCapture,
                         testing::Values(u"TO MONTH PROFIT AN", u"RANKED PROFIT AN", u"RANKED PAST",
                                         u"VENDOR INVENTORY", u"FINANCIAL RATIO"));

TEST(ScratchFile, HoldsTheCaptureExactlyAsItWasCopied)
{
    Session session;
    session.start(u"VENDOR INVENTORY 6\" PIPE \"A\"\nCAF\u00C9\r\rX\t");
    EXPECT_EQ(session.file("pvuscrn.txt"), "\"VENDOR INVENTORY 6\" PIPE \"A\"\nCAF\xC3\x89\r\rX\t\"\r\n");
}

TEST(ScratchFile, HoldsTheLastCaptureOnly)
{
    Session session;
    std::ofstream("pvuscrn.txt") << std::string(1000, 'x');
    session.start(u"FINANCIAL RATIO");
    EXPECT_EQ(session.file("pvuscrn.txt"), "\"FINANCIAL RATIO\"\r\n");
}

TEST(ScratchFile, NoOtherScreenTouchesIt)
{
    for (const TextSpan marker :
         {u"QXM31H", u"QXM21D", u"QXM12E1", u"QXM12P2 0", u"QXMLCHIST", u"NO MARKER", u""}) {
        Session session;
        std::ofstream("pvuscrn.txt") << "old";
        session.start(screen(marker));
        EXPECT_EQ(session.file("pvuscrn.txt"), "old") << toUtf8(marker);
    }
}

TEST(ScratchFile, IsNotWrittenForAProductScreenThatNamesARankedAnalysis)
{
    Session session;
    session.start(screen(u"VENDOR INVENTORY QXM31H"));
    EXPECT_TRUE(session.visible("frmProduct"));
    EXPECT_FALSE(session.fileExists("pvuscrn.txt"));
}

TEST(ScratchFile, ThatCannotBeCreatedEndsTheProcess)
{
    Session session;
    std::filesystem::create_directory("pvuscrn.txt");
    session.start(u"FINANCIAL RATIO");
    EXPECT_THAT(session.events(), ElementsAre("load startup", "show startup", StartsWith("error ")));
    EXPECT_TRUE(session.platform.over());
}

TEST(ScratchFile, IsWrittenAgainByRefresh)
{
    Session session;
    session.start();
    EXPECT_FALSE(session.fileExists("pvuscrn.txt"));
    session.copy(u"RANKED PAST DUE");
    session.press("startup", "Command1");
    EXPECT_EQ(session.file("pvuscrn.txt"), "\"RANKED PAST DUE\"\r\n");
}

} // namespace
} // namespace plotvue
