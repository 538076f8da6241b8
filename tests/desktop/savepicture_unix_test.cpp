// "Save Picture…" through the toolkit's dialog, and failures of the file system.
#include "capture/failure.h"
#include "desktop/chartsample.h"
#include "desktop/displaytext.h"
#include "desktop/savepicture.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QImage>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <csignal>
#include <functional>
#include <gtest/gtest.h>
#include <sys/resource.h>

namespace plotvue {

namespace {

class SavePicture : public testing::Test {
protected:
    SavePicture() : handler_(std::signal(SIGXFSZ, SIG_IGN)) {}
    ~SavePicture() override { std::signal(SIGXFSZ, handler_); }

    // Calls `act` with the next dialog of this class, as soon as it is open.
    template <typename Dialog>
    void once(const std::function<void(Dialog&)>& act)
    {
        auto* timer = new QTimer(&chart);
        QObject::connect(timer, &QTimer::timeout, &chart, [timer, act] {
            if (auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget())) {
                delete timer;
                act(*dialog);
            }
        });
        timer->start(1);
    }

    // Opens the dialog to save the picture, types this name into it and presses Save.
    void saveAs(const QString& name, const QString& filter = {})
    {
        once<QFileDialog>([&](QFileDialog& dialog) {
            if (!filter.isEmpty()) {
                dialog.selectNameFilter(filter);
                emit dialog.filterSelected(filter); // as when the user selects it
            }
            proposed = dialog.findChild<QLineEdit*>()->text();
            begunIn = dialog.directory().absolutePath();
            dialog.findChild<QLineEdit*>()->setText(name);
            dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
        });
        savePicture(chart, folder);
    }

    void answer(QMessageBox::StandardButton button)
    {
        once<QMessageBox>([button](QMessageBox& box) { box.button(button)->click(); });
    }

    QByteArray contentOf(const QString& name) const
    {
        QFile file(place.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    void put(const QString& name, const QByteArray& content)
    {
        QFile file(place.filePath(name));
        file.open(QIODevice::WriteOnly);
        file.write(content);
    }

    QStringList files() const { return QDir(place.path()).entryList(QDir::Files | QDir::Hidden); }

    // The sentence of the failure to write the picture there; empty if it is written.
    Text failure(const QString& name)
    {
        try {
            writePicture(chart, place.filePath(name));
        } catch (const Failure& failed) {
            return failed.sentence;
        }
        return {};
    }

    ShownChart chart;
    QTemporaryDir place;
    QString folder = place.path(), proposed, begunIn;

private:
    void (*handler_)(int);
};

TEST_F(SavePicture, ProposesAPngWithTheTitlesAsItsName)
{
    saveAs("x.png");
    EXPECT_EQ(proposed, "Sales, Product 4711.png");
    EXPECT_EQ(begunIn, place.path());
    EXPECT_EQ(QImage(place.filePath("x.png")).size(), QSize(1200, 800));
}

TEST_F(SavePicture, FollowsTheExtensionThatIsTyped)
{
    saveAs("a.pdf");
    EXPECT_TRUE(contentOf("a.pdf").startsWith("%PDF-"));
    saveAs("b.PNG", "PDF document (*.pdf)");
    EXPECT_TRUE(contentOf("b.PNG").startsWith("\x89PNG"));
}

TEST_F(SavePicture, AddsTheExtensionOfTheChosenFilter)
{
    saveAs("a");
    saveAs("b", "PDF document (*.pdf)");
    saveAs("Sales 1.5", "PDF document (*.pdf)");
    EXPECT_EQ(files(), QStringList({"a.png", "b.pdf", "Sales 1.5.pdf"}));
    EXPECT_TRUE(contentOf("b.pdf").startsWith("%PDF-"));
}

TEST_F(SavePicture, ChangesTheExtensionWithTheFilter)
{
    once<QFileDialog>([this](QFileDialog& dialog) {
        auto& types = *dialog.findChild<QComboBox*>("fileTypeCombo");
        types.setCurrentIndex(1);
        emit types.activated(1); // as when the user selects it
        proposed = dialog.findChild<QLineEdit*>()->text();
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
    });
    savePicture(chart, folder);
    EXPECT_EQ(proposed, "Sales, Product 4711.pdf");
    EXPECT_TRUE(contentOf(proposed).startsWith("%PDF-"));
}

TEST_F(SavePicture, AsksBeforeItReplacesAFile)
{
    put("a.png", "older");
    put("v1.5.png", "older");
    for (const QString name : {"a.png", "a", "v1.5"}) {
        once<QMessageBox>([&](QMessageBox& box) {
            box.button(QMessageBox::No)->click();
            once<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
        });
        saveAs(name);
    }
    EXPECT_EQ(contentOf("a.png"), "older");
    EXPECT_EQ(contentOf("v1.5.png"), "older");
    for (const QString name : {"a", "v1.5"}) {
        answer(QMessageBox::Yes);
        saveAs(name);
        EXPECT_TRUE(contentOf(name + ".png").startsWith("\x89PNG"));
    }
    EXPECT_EQ(files(), QStringList({"a.png", "v1.5.png"}));
}

TEST_F(SavePicture, WritesNothingIfTheDialogIsCancelled)
{
    once<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
    savePicture(chart, folder);
    EXPECT_EQ(files(), QStringList());
    EXPECT_EQ(folder, place.path());
}

TEST_F(SavePicture, BeginsWhereThePictureBeforeWasSaved)
{
    QDir(place.path()).mkdir("inner");
    saveAs("inner/a.png");
    EXPECT_EQ(folder, place.filePath("inner"));
    saveAs("b.png");
    EXPECT_EQ(begunIn, place.filePath("inner"));
    EXPECT_TRUE(contentOf("inner/b.png").startsWith("\x89PNG"));
}

TEST_F(SavePicture, BeginsInTheUsersFolderOtherwise)
{
    folder.clear();
    saveAs(place.filePath("a.png"));
    EXPECT_EQ(QDir(begunIn), QDir::home()) << "where there is no folder for pictures";
    EXPECT_EQ(folder, place.path());
}

TEST_F(SavePicture, NamesTheFileAndTheReasonIfItCannotBeWritten)
{
    EXPECT_EQ(failure("missing/a.png"), u"The picture cannot be saved as " +
                                            toText(place.filePath("missing/a.png")) +
                                            u" (No such file or directory).");
    EXPECT_EQ(failure("a.png"), u"");
}

TEST_F(SavePicture, LeavesTheOlderFileIfItCannotBeWrittenToItsEnd)
{
    put("a.png", "older");
    put("a.pdf", "older");
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{100, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    const Text png = failure("a.png"), pdf = failure("a.pdf");
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_TRUE(png.ends_with(u" (File too large).")) << toQString(png).toStdString();
    EXPECT_TRUE(pdf.ends_with(u" (File too large).")) << toQString(pdf).toStdString();
    EXPECT_EQ(contentOf("a.png"), "older");
    EXPECT_EQ(contentOf("a.pdf"), "older");
    EXPECT_EQ(files(), QStringList({"a.pdf", "a.png"}));
}

} // namespace

} // namespace plotvue
