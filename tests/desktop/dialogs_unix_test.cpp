// A dialog is gone when it is closed. On Windows the dialogs are the system's own.
#include "desktop/chartsample.h"
#include "desktop/desktopfixture.h"
#include "desktop/printing.h"
#include "desktop/savepicture.h"

#include <QDialog>
#include <QTimer>

#include <functional>

namespace plotvue {

namespace {

class Dialogs : public testing::Test {
protected:
    // Calls `open` twice and closes each dialog that it opens. Returns how many were seen, and expects that
    // none is left.
    static int opened(const std::function<void()>& open)
    {
        int count = 0;
        QTimer closing;
        QObject::connect(&closing, &QTimer::timeout, &closing, [&count] {
            if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                ++count;
                dialog->reject();
            }
        });
        closing.start(1);
        open();
        open();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const QWidgetList left = QApplication::topLevelWidgets();
        for (const QWidget* widget : left)
            EXPECT_EQ(qobject_cast<const QDialog*>(widget), nullptr) << widget->metaObject()->className();
        return count;
    }

    ShownChart window;
};

TEST_F(Dialogs, OfPrintersAreGoneAfterwards)
{
    Printing printing;
    EXPECT_EQ(opened([&] { EXPECT_THROW(printing.choose(window), Failure); }), 2);
}

TEST_F(Dialogs, OfPicturesAreGoneAfterwards)
{
    QString folder;
    EXPECT_EQ(opened([&] { savePicture(window, folder); }), 2);
}

TEST_F(Dialogs, OfMessagesAreGoneAfterwards)
{
    DesktopPlatform platform;
    EXPECT_EQ(opened([&] { platform.message(u"Need Data", u"Clipboard contains no data"); }), 2);
}

} // namespace

} // namespace plotvue
