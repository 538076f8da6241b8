#include "app/screens.h"
#include "fuzz.h"
#include "ranked/rankedfigures.h"

#include <algorithm>

using namespace plotvue;

namespace {

void read(const RankedScreen& screen, TextSpan capture)
{
    const RankedFigures figures = readRanked(screen, capture);
    if (!figures.accepted)
        return;
    for (const auto& [control, text] : screen.summary)
        text(figures);
    for (const RankedGrid& grid : screen.grids)
        fuzz::mayFail([&] {
            const std::vector<int> ranks = ranksIn(grid, figures);
            const int rows = std::max(figures.counts[static_cast<std::size_t>(grid.count)], 0);
            fuzz::always(ranks.size() == static_cast<std::size_t>(rows));
            fuzz::always(firstLines(ranks, screen.key, figures).size() == ranks.size());
        });
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Text capture = fuzz::textOf(data, size);
    for (const Screen& screen : screens)
        if (const auto* ranked = std::get_if<Ranked>(&screen.window))
            fuzz::mayFail([&] { read(*ranked->list, capture); });
    return 0;
}
