#include "fuzz.h"
#include "group/groupreader.h"

#include <algorithm>

using namespace plotvue;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Text capture = fuzz::textOf(data, size);
    fuzz::mayFail([&] {
        const GroupFigures screen = readGroups(capture, std::vector<bool>(maxGroups * valuesPerGroup, true));
        fuzz::always(screen.salesmen.size() <= 23);
        fuzz::always(screen.names.size() == static_cast<std::size_t>(std::max(screen.groups, 0)));
        for (const Salesman& salesman : screen.salesmen)
            fuzz::always(salesman.values.size() <= maxGroups * valuesPerGroup);
    });
    return 0;
}
