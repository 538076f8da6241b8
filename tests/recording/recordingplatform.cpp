#include "recording/recordingplatform.h"

namespace plotvue {

namespace {

struct Unseen : NativeWindow {
    void show() override {}
    void hide() override {}
};

} // namespace

std::unique_ptr<NativeWindow> PlatformInMemory::build(std::shared_ptr<Controls>)
{
    return std::make_unique<Unseen>();
}

int PlatformInMemory::choosePrinter(NativeWindow&)
{
    if (printer.answer == Printer::Answer::Cancel)
        throw Failure{u"The printer dialog was cancelled."};
    return printer.answer == Printer::Answer::Fail ? 1 : printer.copies;
}

void PlatformInMemory::print(NativeWindow&)
{
    if (printer.answer == Printer::Answer::Fail)
        throw Failure{u"The printer does not answer."};
}

} // namespace plotvue
