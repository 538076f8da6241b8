// Measures how long it takes to recognise a capture and to read its figures, compared with one plain search
// through the same text.
#include "reading.h"

#include "app/recognition.h"
#include "app/screens.h"
#include "captures.h"
#include "history/monthlyreader.h"
#include "rounds.h"

#include <memory>

namespace plotvue {

namespace {

constexpr TextSpan absentMarker = u"QXM99Z"; // has the length of the shortest marker

// Keeps the compiler from removing calculations whose result is not used.
volatile std::size_t result;

void search(const Text& text)
{
    result = text.find(absentMarker);
}

void recogniseAndRead(const Text& capture, int months)
{
    result = recognise(capture) != nullptr;
    const Acceptance acceptance = accept(frmProduct, capture);
    result =
        readMonths(frmProduct, capture, acceptance.identifier, months, frmProduct.types[0]).values.size();
}

Case capture(int months)
{
    const auto text = std::make_shared<const Text>(sampleCapture("product.txt"));
    constexpr int times = 100; // per run
    const auto repeat = [text](auto&& what) {
        for (int i = 0; i < times; ++i)
            what(*text);
    };
    return {.name = "recognise and read " + std::to_string(months) + " months",
            .unit = "us",
            .nanosecondsAUnit = microseconds * times,
            .run = [=] { repeat([=](const Text& each) { recogniseAndRead(each, months); }); },
            .referenceName = "plain search",
            .reference = [=] { repeat(search); }};
}

Case foreign(const std::string& size, std::size_t characters)
{
    const auto text = std::make_shared<const Text>(foreignText(characters));
    const int times = characters < 1 << 20 ? 100 : 1;
    const auto repeat = [text, times](auto&& what) {
        for (int i = 0; i < times; ++i)
            what(*text);
    };
    return {.name = "recognise nothing in " + size,
            .unit = "ns/char",
            .nanosecondsAUnit = nanoseconds * times * double(characters),
            .run = [=] { repeat([](const Text& each) { result = recognise(each) != nullptr; }); },
            .referenceName = "plain search",
            .reference = [=] { repeat(search); }};
}

} // namespace

void measureReading(int rounds)
{
    measure(capture(13), rounds);
    measure(capture(25), rounds);
    measure(foreign("2 KB", 2 << 10), rounds);
    measure(foreign("64 KB", 64 << 10), rounds);
    measure(foreign("2 MB", 2 << 20), rounds);
    measure(foreign("64 MB", 64 << 20), rounds);
}

} // namespace plotvue
