#include "recording/recordingplatform.h"
#include "window/window.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdexcept>

namespace plotvue {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A window whose button runs the test's code.
class AnyWindow : public Window {
public:
    explicit AnyWindow(Platform& platform) : Window(platform) {}

    std::function<void()> onLoad = [] {};
    std::function<void()> onClick = [] {};
    Text afterClick;

    Name name() const override { return "frmAny"; }
    void print() { printWindow(); }

protected:
    Declaration declare() const override
    {
        return {.name = "frmAny",
                .caption = u"Any",
                .content = {Panel::Direction::Row, {{Button{.name = "cmdAny", .caption = u"&Any"}}}}};
    }
    Handlers handlers() override
    {
        return {{"cmdAny", [this, own = Text(u"a text of the handler's own")](int) {
                     onClick();
                     afterClick = own;
                 }}};
    }
    void Form_Load() override { onLoad(); }
    void wayOut() override { hide(); }
};

class Windows : public testing::Test {
protected:
    Windows()
    {
        platform.listener = [this](const Event& event) {
            kinds.push_back(event.kind);
            last = event.text;
        };
    }

    std::vector<Event::Kind> kinds;
    Text last;
    RecordingPlatform platform;
    AnyWindow window{platform};
};

using enum Event::Kind;

TEST_F(Windows, AreLoadedWhenTheyAreFirstShown)
{
    EXPECT_FALSE(window.loaded());
    EXPECT_THROW(window.controls(), std::out_of_range);
    window.show();
    EXPECT_TRUE(window.loaded());
    EXPECT_TRUE(window.visible());
    EXPECT_THAT(kinds, ElementsAre(Load, Show));
}

TEST_F(Windows, AreBuiltHidden)
{
    bool visible = true;
    window.onLoad = [&] { visible = window.visible(); };
    window.show();
    EXPECT_FALSE(visible);
}

TEST_F(Windows, CanBeLoadedAgainByTheirOwnButton)
{
    window.show();
    window.onClick = [this] {
        window.unload();
        window.show();
    };
    window.controls().press("cmdAny");
    EXPECT_EQ(window.afterClick, u"a text of the handler's own"); // the running handler was not destroyed
    EXPECT_THAT(kinds, ElementsAre(Load, Show, Hide, Unload, Load, Show));
}

TEST_F(Windows, AreNotLoadedAgainWhenTheyAreShownAgain)
{
    window.show();
    window.hide();
    window.show();
    EXPECT_THAT(kinds, ElementsAre(Load, Show, Hide, Show));
}

TEST_F(Windows, SendNoEventIfNothingChanges)
{
    window.hide();
    EXPECT_THAT(kinds, IsEmpty());
    window.show();
    window.show();
    window.hide();
    window.hide();
    EXPECT_THAT(kinds, ElementsAre(Load, Show, Hide));
}

TEST_F(Windows, ThatHideThemselvesWhileTheyLoadStayHidden)
{
    window.onLoad = [this] { window.hide(); };
    window.show();
    EXPECT_TRUE(window.loaded());
    EXPECT_FALSE(window.visible());
    EXPECT_THAT(kinds, ElementsAre(Load));
    window.show();
    EXPECT_TRUE(window.visible());
}

TEST_F(Windows, AreLoadedAgainAfterTheyWereUnloaded)
{
    window.show();
    window.unload();
    EXPECT_FALSE(window.loaded());
    EXPECT_FALSE(window.visible());
    window.show();
    EXPECT_THAT(kinds, ElementsAre(Load, Show, Hide, Unload, Load, Show));
}

TEST_F(Windows, ThatWereNeverLoadedAreNotUnloaded)
{
    window.unload();
    EXPECT_THAT(kinds, IsEmpty());
}

TEST_F(Windows, MayUnloadThemselvesInAHandler)
{
    window.onClick = [this] { window.unload(); };
    window.show();
    window.controls().press("cmdAny");
    EXPECT_FALSE(window.loaded());
    EXPECT_FALSE(platform.over());
}

TEST_F(Windows, RunTheirExitHandlerWhenClosed)
{
    window.show();
    window.controls().close();
    EXPECT_THAT(kinds, ElementsAre(Load, Show, Hide));
}

TEST_F(Windows, EndTheProcess)
{
    bool after = false;
    window.onClick = [&] {
        platform.end();
        after = true;
    };
    window.show();
    window.controls().press("cmdAny");
    EXPECT_THAT(kinds, ElementsAre(Load, Show, End));
    EXPECT_TRUE(platform.over());
    EXPECT_FALSE(after);
}

TEST_F(Windows, ReportARunTimeErrorWithItsSentence)
{
    window.onClick = [] { throw Failure{u"It does not fit."}; };
    window.show();
    window.controls().press("cmdAny");
    EXPECT_EQ(kinds.back(), Error);
    EXPECT_EQ(last, u"It does not fit.");
    EXPECT_TRUE(platform.over());
}

TEST_F(Windows, ReportAProgramErrorAndEnd)
{
    window.onClick = [] { throw std::out_of_range("no such control"); };
    window.show();
    window.controls().press("cmdAny");
    EXPECT_EQ(kinds.back(), Error);
    EXPECT_TRUE(holds(last, u"no such control"));
    EXPECT_TRUE(platform.over());
}

TEST_F(Windows, ReportALackOfMemory)
{
    window.onClick = [] { throw std::bad_alloc(); };
    window.show();
    window.controls().press("cmdAny");
    EXPECT_EQ(kinds.back(), Error);
    EXPECT_TRUE(platform.over());
}

TEST_F(Windows, SpinIfAReaderNeverReturns)
{
    window.onClick = [] { throw TooFewLines{}; };
    window.show();
    window.controls().press("cmdAny");
    EXPECT_EQ(kinds.back(), Wait);
    EXPECT_TRUE(platform.over());
}

TEST_F(Windows, RunNoHandlerAfterTheEnd)
{
    const std::function<void()> endings[] = {[] { throw EndOfProcess{}; }, [] { throw TooFewLines{}; },
                                             [] { throw Failure{u"It does not fit."}; }};
    for (const auto& ending : endings) {
        RecordingPlatform other;
        int ran = 0;
        other.run([&] { ++ran; });
        other.run([&] { ++ran; });
        EXPECT_EQ(ran, 2);
        other.run(ending);
        EXPECT_TRUE(other.over());
        other.run([&] { ++ran; });
        EXPECT_EQ(ran, 2);
    }
}

TEST_F(Windows, AreNotShownIfTheirLoadFails)
{
    window.onLoad = [] { throw Failure{u"It does not fit."}; };
    platform.run([this] { window.show(); });
    EXPECT_THAT(kinds, ElementsAre(Load, Error));
    EXPECT_FALSE(window.visible());
}

TEST_F(Windows, PrintOncePerCopy)
{
    window.show();
    kinds.clear();
    platform.printer = {RecordingPlatform::Printer::Answer::Accept, 2};
    window.print();
    EXPECT_THAT(kinds, ElementsAre(Print, Print));
}

TEST_F(Windows, SendAnEventWithTheTitleOfAMessage)
{
    Text title;
    platform.listener = [&](const Event& event) { title = event.title; };
    platform.message(u"Title", u"Text");
    EXPECT_EQ(title, u"Title");
}

} // namespace
} // namespace plotvue
