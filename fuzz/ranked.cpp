#include "fuzz.h"
#include "ranked/rankedfigures.h"
#include "ranked/rankedscreens.h"

#include <algorithm>

using namespace plotvue;

namespace {

void read(const RankedScreen& analysis, TextSpan capture)
{
    const RankedFigures screen = readRanked(analysis, capture);
    if (!screen.accepted)
        return;
    for (const auto& [control, text] : analysis.summary)
        text(screen);
    for (const RankedGrid& grid : analysis.grids)
        fuzz::mayFail([&] {
            const std::vector<int> ranks = ranksIn(grid, screen);
            const int rows = std::max(screen.counts[static_cast<std::size_t>(grid.count)], 0);
            fuzz::always(ranks.size() == static_cast<std::size_t>(rows));
            fuzz::always(firstLines(ranks, analysis.key, screen).size() == ranks.size());
        });
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Text capture = fuzz::textOf(data, size);
    for (const RankedScreen* analysis : {&frmM2Mpft, &frmProfRank, &frmPastdue, &frmVendInv, &frmRatio})
        fuzz::mayFail([&] { read(*analysis, capture); });
    return 0;
}
