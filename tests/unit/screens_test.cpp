// What every supported screen must have.
#include "app/recognition.h"
#include "app/screens.h"
#include "capture/utf8.h"
#include "monthlyscreens.h"
#include "rankedfixture.h"
#include "support/capturebuilder.h"
#include "support/session.h"
#include "support/windows.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <numeric>
#include <set>

namespace plotvue::test {
namespace {

const std::filesystem::path samples = PLOTVUE_SAMPLES;

std::map<const Screen*, std::vector<std::string>> samplesOfScreens()
{
    std::map<const Screen*, std::vector<std::string>> result;
    for (const auto& entry : std::filesystem::directory_iterator(samples)) {
        const std::string name = entry.path().stem().string();
        result[recognise(sample(name))].push_back(name);
    }
    return result;
}

std::string nameOf(const Screen& screen)
{
    return toUtf8(screen.marker);
}

TEST(Screens, HaveOneSampleEach)
{
    auto found = samplesOfScreens();
    for (const Screen& screen : screens)
        EXPECT_EQ(found[&screen].size(), 1u) << nameOf(screen);
    EXPECT_TRUE(found[nullptr].empty()) << found[nullptr].front();
}

TEST(Screens, AreOpenedByTheirSamples)
{
    for (const auto& [screen, names] : samplesOfScreens())
        for (const std::string& name : names) {
            Session session;
            session.start(sample(name));
            EXPECT_TRUE(screen && test::windowOf(session.app, *screen).visible()) << name;
            EXPECT_FALSE(session.platform.over()) << name;
        }
}

TEST(Screens, RequireTheirOwnMarkers)
{
    for (const Screen& screen : screens) {
        const auto* monthly = std::get_if<const MonthlyScreen*>(&screen.window);
        EXPECT_TRUE(!monthly || (*monthly)->words.back().word == screen.marker) << nameOf(screen);
    }
}

TEST(Screens, HaveASupportedRowEachWithoutAGap)
{
    std::map<int, TextSpan> rows;
    for (const Screen& screen : screens) {
        const auto& [number, caption] = screen.supported;
        EXPECT_EQ(rows.emplace(number, caption).first->second, caption);
    }
    EXPECT_EQ(rows.begin()->first, 1);
    EXPECT_EQ(rows.rbegin()->first, static_cast<int>(rows.size()));
}

// Each index once.
void expectOrder(std::vector<int> order, std::size_t count, const Screen& screen)
{
    std::ranges::sort(order);
    std::vector<int> indexes(count);
    std::iota(indexes.begin(), indexes.end(), 0);
    EXPECT_EQ(order, indexes) << nameOf(screen);
}

TEST(Screens, HaveEveryOptionOfAMonthlyWindowInItsOrder)
{
    for (const Screen& screen : screens)
        if (const auto* monthly = std::get_if<const MonthlyScreen*>(&screen.window)) {
            const MonthlyScreen& described = **monthly;
            expectOrder(described.periodOrder, described.periods.size(), screen);
            if (described.types.size() > 1 || !described.typeOrder.empty())
                expectOrder(described.typeOrder, described.types.size(), screen);
        }
}

TEST(Screens, HaveAKeyInTheColumnsOfEveryRankedGrid)
{
    for (const Screen& screen : screens)
        if (const auto* ranked = std::get_if<Ranked>(&screen.window)) {
            EXPECT_FALSE(ranked->list->key.parts.empty()) << nameOf(screen);
            for (const RankedGrid& grid : ranked->list->grids)
                for (const KeyPart& part : ranked->list->key.parts)
                    EXPECT_LT(part.gridColumn, static_cast<int>(grid.columns.size())) << nameOf(screen);
        }
}

TEST(Screens, HaveTheNameOfTheListInTheirDrillDown)
{
    for (const Screen& screen : screens)
        if (const auto* ranked = std::get_if<Ranked>(&screen.window)) {
            EXPECT_EQ(ranked->drillDown->window, std::string(ranked->list->window) + "A");
            EXPECT_EQ(&ranked->drillDown->screen, ranked->list);
        }
}

TEST(Screens, HaveExpectationsInTheTestsOfTheirKind)
{
    // groupcxs_test.cpp and groupsxc_test.cpp hold the expectations of these two.
    std::set<Name> expected{"frmQXM21CXS", "frmQXM21SXC"};
    for (const ExpectedScreen& screen : monthlyScreens())
        expected.insert(screen.window);
    for (const ThreeEntries& screen : everyRankedScreen())
        expected.insert(screen.list);
    Session session;
    for (const Screen& screen : screens)
        EXPECT_TRUE(expected.contains(test::windowOf(session.app, screen).name())) << nameOf(screen);
}

} // namespace
} // namespace plotvue::test
