#include "chart/figurestable.h"
#include "platform/gridtext.h"
#include "recording/recordingplatform.h"
#include "replay/player.h"

namespace plotvue::replay {

namespace {

class RecordingStage : public Stage {
public:
    Platform& platform() override { return platform_; }
    EventSource& events() override { return platform_; }
    void setClipboard(const Text& text) override { platform_.clipboard = text; }

    void setPrinter(PrinterAnswer answer) override
    {
        using Answer = RecordingPlatform::Printer::Answer;
        platform_.printer.copies = answer.copies;
        platform_.printer.answer = answer.kind == PrinterAnswer::Kind::Accept ? Answer::Accept
                                   : answer.kind == PrinterAnswer::Kind::Fail ? Answer::Fail
                                                                              : Answer::Cancel;
    }

    SeenWindow look(const Window& window) override { return seenIn(window.controls()); }
    void press(const Window& window, Name button) override { window.controls().press(button); }
    void choose(const Window& window, Name group, int index) override
    {
        window.controls().choose(group, index);
    }
    void clickRow(const Window& window, Name grid, int row) override
    {
        window.controls().clickRow(grid, row);
    }
    void close(const Window& window) override { window.controls().close(); }

    void copy(const Window& window, Name name) override
    {
        const Seen seen = seenIn(window.controls()).controls.find(name)->second;
        const auto* grid = std::get_if<Grid>(&seen);
        platform_.run([&] {
            platform_.copy(grid ? rowsTable(*grid) : figuresTable(PlotData(std::get<Chart>(seen)), u'.'));
        });
    }

private:
    RecordingPlatform platform_;
};

} // namespace

std::unique_ptr<Stage> recordingStage()
{
    return std::make_unique<RecordingStage>();
}

} // namespace plotvue::replay
