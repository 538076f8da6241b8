#include "app/recognition.h"

#include "fuzz.h"

using namespace plotvue;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Text text = fuzz::textOf(data, size);
    fuzz::mayFail([&] {
        const Screen* screen = recognise(text);
        fuzz::always(!screen || holds(text, screen->marker));
    });
    return 0;
}
