#include "app/recognition.h"

#include "fuzz.h"

using namespace plotvue;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Text screen = fuzz::textOf(data, size);
    fuzz::mayFail([&] {
        const Recognised recognised = recognise(screen);
        fuzz::always(!recognised.ranked || !recognised.identifier.empty());
    });
    return 0;
}
