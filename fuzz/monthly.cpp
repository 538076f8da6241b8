#include "app/screens.h"
#include "fuzz.h"
#include "history/monthlyreader.h"

#include <algorithm>
#include <cmath>

using namespace plotvue;

namespace {

void read(const MonthlyScreen& screen, TextSpan capture)
{
    const Acceptance acceptance = accept(screen, capture);
    if (acceptance.stop || acceptance.end)
        return;
    for (const Period& period : screen.periods)
        for (const DataType& type : screen.types)
            fuzz::mayFail([&] {
                const MonthlyFigures series =
                    readMonths(screen, capture, acceptance.identifier, period.months, type);
                fuzz::always(series.values.size() == static_cast<std::size_t>(period.months) + 1);
                fuzz::always(series.labels.size() == series.values.size());
                fuzz::always(series.second.empty() || series.second.size() == series.values.size());
                const auto finite = [](double value) { return std::isfinite(value); };
                fuzz::always(std::all_of(series.values.begin(), series.values.end(), finite));
                fuzz::always(std::all_of(series.second.begin(), series.second.end(), finite));
            });
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Text capture = fuzz::textOf(data, size);
    for (const Screen& screen : screens)
        if (const auto* monthly = std::get_if<const MonthlyScreen*>(&screen.window))
            fuzz::mayFail([&] { read(**monthly, capture); });
    return 0;
}
