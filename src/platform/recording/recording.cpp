#include "platform/recording/recording.h"

#include "platform/recording/recordingview.h"

namespace plotvue {

std::unique_ptr<View> RecordingPlatform::build(const Declaration& declaration, const Handlers& handlers,
                                               std::function<void()> close)
{
    return std::make_unique<RecordingView>(declaration, handlers, std::move(close));
}

double RecordingPlatform::choosePrinter(View&)
{
    if (printer.answer == Printer::Answer::Cancel)
        throw Failure{u"The printer dialog was cancelled."};
    return printer.answer == Printer::Answer::Fail ? 1 : printer.copies;
}

void RecordingPlatform::printView(View&)
{
    if (printer.answer == Printer::Answer::Fail)
        throw Failure{u"The printer does not answer."};
}

} // namespace plotvue
