#include "fuzz.h"
#include "group/groupreader.h"

#include <algorithm>

using namespace plotvue;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Text capture = fuzz::textOf(data, size);
    fuzz::mayFail([&] {
        const GroupFigures figures = readGroups(capture, std::vector<bool>(maxGroups * valuesPerGroup, true));
        fuzz::always(figures.salesmen.size() <= 23);
        fuzz::always(figures.names.size() == static_cast<std::size_t>(std::max(figures.groups, 0)));
        for (const Salesman& salesman : figures.salesmen)
            fuzz::always(salesman.values.size() <= maxGroups * valuesPerGroup);
    });
    return 0;
}
