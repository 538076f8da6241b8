#include "ranked/ratiotexts.h"

#include <algorithm>
#include <array>

namespace plotvue {

namespace {

constexpr Ratio unknown{{}, u"Undefined Ratio", u"No information available."};

constexpr std::array ratios{
    Ratio{u"CUR ", u"Current Ratio",
          u"Ratio of short-term assets to short-term liabilities.  A quick measure of solvency."},
    Ratio{u"Q   ", u"Quick Ratio",
          u"Ratio of cash and A/R to short-term liabilities. Measures cash sufficiency."},
    Ratio{u"GP  ", u"Gross Profit Percentage",
          u"Profit percentage on sales, before deducting operating costs."},
    Ratio{u"AR  ", u"Days Receivables", u"Average number of days needed to collect A/R."},
    Ratio{u"EQ% ", u"Equity Ratio",
          u"Equity divided by assets. Measures the percentage of assets actually owned."},
    Ratio{u"SEMP", u"Sales per Employee", u"Total sales divided by employee count."},
    Ratio{u"ROE ", u"Return on Equity",
          u"Ratio of net profits to equity.  Measures the return on invested capital."},
    Ratio{u"RROE", u"Rolling Return on Equity",
          u"Ratio of net profits to equity, averaged across several months.  Measures the return on invested "
          u"capital."},
    Ratio{u"INV ", u"Inventory", u"Value of all inventory."},
    Ratio{u"AIS ", u"Average Days Inventory",
          u"Average number of days to sell as much as is currently in inventory."},
};

// Kept: names of the ratios (docs/kept.md).
constexpr std::array components{
    Ratio{u"CASS", u"Current Assets", u"Current Assets"},
    Ratio{u"TASS", u"Total Assets", u"Total Assets"},
    Ratio{u"SLS ", u"Total Sales", u"Total Sales"},
    Ratio{u"CASH", u"Total Cash", u"Total Cash"},
    Ratio{u"CLIB", u"Current Liabilities", u"Current Liabilities"},
    Ratio{u"TLIB", u"Total Liabilites", u"Total Liabilites"},
};

template <typename Table>
const Ratio& lookUp(const Table& table, TextSpan code, const Ratio& otherwise)
{
    const auto at = std::ranges::find(table, code, &Ratio::code);
    return at == table.end() ? otherwise : *at;
}

} // namespace

const Ratio& ratio(TextSpan code)
{
    return lookUp(ratios, code, unknown);
}

const Ratio& ratioOrComponent(TextSpan code)
{
    return lookUp(ratios, code, lookUp(components, code, unknown));
}

} // namespace plotvue
