#include "fuzz.h"
#include "history/reading.h"
#include "history/screens.h"

#include <algorithm>
#include <cmath>

using namespace plotvue;

namespace {

const MonthlyScreen* const screens[] = {&frmProduct, &frmSalesman, &frmCustomerE, &frmCustP,  &frmCustP2,
                                        &frmPware,   &frmSJHIST,   &frmSite,      &frmDriver, &frmTruck,
                                        &frmCSTORE,  &frmGLarch,   &frmGLexpense, &frmActive, &frmLateCharge};

void read(const MonthlyScreen& screen, TextSpan capture)
{
    const Acceptance acceptance = accept(screen, capture);
    if (acceptance.stop || acceptance.end)
        return;
    for (const Period& period : screen.periods)
        for (const DataType& type : screen.types)
            fuzz::mayFail([&] {
                const MonthlyFigures figures =
                    readMonths(screen, capture, acceptance.identifier, period.months, type);
                fuzz::always(figures.values.size() == static_cast<std::size_t>(period.months) + 1);
                fuzz::always(figures.labels.size() == figures.values.size());
                fuzz::always(figures.second.empty() || figures.second.size() == figures.values.size());
                const auto finite = [](double value) { return std::isfinite(value); };
                fuzz::always(std::all_of(figures.values.begin(), figures.values.end(), finite));
                fuzz::always(std::all_of(figures.second.begin(), figures.second.end(), finite));
            });
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Text capture = fuzz::textOf(data, size);
    for (const MonthlyScreen* screen : screens)
        fuzz::mayFail([&] { read(*screen, capture); });
    return 0;
}
