#include "platform/recording/recording.h"

namespace plotvue {

namespace {

struct Unseen : Window {
    void show() override {}
    void hide() override {}
};

} // namespace

std::unique_ptr<Window> RecordingPlatform::build(std::shared_ptr<Controls>)
{
    return std::make_unique<Unseen>();
}

double RecordingPlatform::choosePrinter(Window&)
{
    if (printer.answer == Printer::Answer::Cancel)
        throw Failure{u"The printer dialog was cancelled."};
    return printer.answer == Printer::Answer::Fail ? 1 : printer.copies;
}

void RecordingPlatform::printWindow(Window&)
{
    if (printer.answer == Printer::Answer::Fail)
        throw Failure{u"The printer does not answer."};
}

} // namespace plotvue
