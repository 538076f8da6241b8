#include "recording/recordingplatform.h"

namespace plotvue {

namespace {

struct Unseen : NativeWindow {
    void show() override {}
    void hide() override {}
};

} // namespace

std::unique_ptr<NativeWindow> RecordingPlatform::build(std::shared_ptr<Controls>)
{
    return std::make_unique<Unseen>();
}

int RecordingPlatform::choosePrinter(NativeWindow&)
{
    if (printer.answer == Printer::Answer::Cancel)
        throw Failure{u"The printer dialog was cancelled."};
    return printer.answer == Printer::Answer::Fail ? 1 : printer.copies;
}

void RecordingPlatform::printWindow(NativeWindow&)
{
    if (printer.answer == Printer::Answer::Fail)
        throw Failure{u"The printer does not answer."};
}

} // namespace plotvue
