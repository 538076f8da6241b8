// The windows that the samples open, in a temporary working directory.
#pragma once

#include "app/application.h"
#include "desktop/desktopfixture.h"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QGroupBox>
#include <QRadioButton>
#include <QTemporaryDir>

#include <algorithm>
#include <filesystem>

namespace plotvue::test {

inline std::vector<std::string> samples()
{
    std::vector<std::string> names;
    for (const auto& file : std::filesystem::directory_iterator(PLOTVUE_SAMPLES))
        names.push_back(file.path().stem().string());
    std::sort(names.begin(), names.end());
    return names;
}

class SamplesTest : public DesktopTest {
protected:
    SamplesTest() : before_(std::filesystem::current_path())
    {
        std::filesystem::current_path(directory_.path().toStdString());
    }
    ~SamplesTest() override { std::filesystem::current_path(before_); }

    static QString sample(const std::string& name)
    {
        QFile file(QString::fromStdString(PLOTVUE_SAMPLES "/" + name + ".txt"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return QString::fromUtf8(file.readAll());
    }

    static void copySample(const std::string& name) { QGuiApplication::clipboard()->setText(sample(name)); }

    // The visible windows, laid out.
    std::vector<WindowWidget*> windows()
    {
        platform.settle();
        QCoreApplication::processEvents();
        std::vector<WindowWidget*> shown;
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* window = qobject_cast<WindowWidget*>(widget); window && window->isVisible())
                shown.push_back(window);
        return shown;
    }

    // Calls `look` for every combination of chosen options in the window's frames, from number `frame` on.
    template <typename Look>
    static void forEveryChoice(const WindowWidget& window, const Look& look, qsizetype frame = 0)
    {
        const auto frames = window.findChildren<QGroupBox*>();
        if (frame == frames.size())
            return look();
        for (auto* option : frames[frame]->template findChildren<QRadioButton*>()) {
            SCOPED_TRACE(option->text().toStdString());
            option->click();
            forEveryChoice(window, look, frame + 1);
        }
    }

    Application app{platform};

private:
    QTemporaryDir directory_;
    std::filesystem::path before_;
};

} // namespace plotvue::test
