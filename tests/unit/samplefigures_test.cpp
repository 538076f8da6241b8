// Every figure of a sample is shown somewhere: in a chart, a list, a text or a message. So these tests notice
// a field that is forgotten in the description of a new screen.
#include "capture/number.h"
#include "support/capturebuilder.h"
#include "support/windows.h"
#include "windowfixture.h"

#include <cmath>
#include <filesystem>
#include <regex>
#include <set>
#include <sstream>

namespace plotvue::test {
namespace {

// Opens a sample, makes every choice and every click, and collects what is shown.
class Tour {
public:
    explicit Tour(const std::string& sampleName)
    {
        session_.start(sample(sampleName));
        for (const auto& window : session_.app.windows)
            if (window->visible())
                use(window->name());
    }

    bool shows(const std::string& figure) const
    {
        return values_.contains(std::abs(leadingNumberWithoutCommas(fromUtf8(figure)))) ||
               texts_.find(figure) != std::string::npos;
    }

private:
    Controls& controls(Name window) { return windowNamed(session_.app, window)->controls(); }

    void use(Name window)
    {
        chooseAndLook(window, controls(window).chosenOptions(), {});
        forEachControl(controls(window).declaration.content, [&]<typename Kind>(const Kind& control) {
            if constexpr (std::is_same_v<Kind, Button>)
                if (!std::set<Name>{"cmdExit", "cmdBack", "cmdNext", "cmdRefresh"}.contains(control.name))
                    session_.press(window, control.name);
            if constexpr (std::is_same_v<Kind, GridBox>)
                useRows(window, control.name);
        });
        for (const std::string& event : session_.events())
            texts_ += event + '\n';
    }

    // Clicks every row and uses the window that it opens. In a group window, a row opens none.
    void useRows(Name list, Name grid)
    {
        const std::string drillDown = std::string(list) + "A";
        if (!windowNamed(session_.app, drillDown))
            return;
        for (int row = 1; row < session_.grid(list, grid).rows; ++row) {
            session_.clickRow(list, grid, row);
            use(drillDown);
            session_.press(drillDown, "cmdExit");
        }
    }

    // Looks at the window once for every combination of the options in its groups.
    void chooseAndLook(Name window, const std::map<Name, std::vector<int>>& groups, std::set<Name> chosen)
    {
        for (const auto& [group, first] : groups)
            if (chosen.insert(group).second) {
                const OptionGroup options = session_.options(window, group);
                for (const OptionGroup::Entry& option : options.options)
                    if (option.visible) {
                        session_.choose(window, group, option.index);
                        chooseAndLook(window, groups, chosen);
                    }
                return;
            }
        look(window);
    }

    void look(Name window)
    {
        forEachControl(controls(window).declaration.content, [&]<typename Kind>(const Kind& control) {
            if constexpr (std::is_same_v<Kind, ChartBox>)
                for (const auto& series : controls(window).chart(control.name)->series)
                    for (const double value : series)
                        values_.insert(std::abs(value));
            if constexpr (std::is_same_v<Kind, GridBox>)
                for (const Texts& row : controls(window).grid(control.name)->cells)
                    for (const Text& cell : row) {
                        texts_ += toUtf8(cell) + '\n';
                        values_.insert(std::abs(leadingNumber(cell)));
                    }
            if constexpr (std::is_same_v<Kind, Label> || std::is_same_v<Kind, TextBox>)
                texts_ += toUtf8(session_.text(window, control.name)) + '\n';
        });
    }

    Session session_;
    std::set<double> values_; // absolute values of the figures in charts and lists
    std::string texts_;
};

std::vector<std::string> sampleNames()
{
    std::vector<std::string> names; // all but glhistory, which frmglarch_test.cpp tests
    for (const auto& entry : std::filesystem::directory_iterator(PLOTVUE_SAMPLES))
        if (const std::string name = entry.path().stem().string(); name != "glhistory")
            names.push_back(name);
    return names;
}

// Lines that no window shows: totals, and the month in progress of the screen whose window leaves it out.
const std::regex leftOut("^(LAST 12 FULL MONTHS|12 MONTHS BEFORE|.*YTD|Mprofit|OCT99   24,759.55)");
// The ranked profit window leaves out losses. They are the last lines of its sample.
const std::regex loss("^P: +-");

class Samples : public testing::TestWithParam<std::string> {};

// What counts as a figure: a number with a decimal point, and on the lines V, S and P of a ranked screen any
// number.
TEST_P(Samples, AreShownWithEveryFigure)
{
    const std::regex figure(R"([0-9][0-9,]*\.[0-9]+)"), month("[0-9]+"), months("^[VSP]  ");
    const Tour tour(GetParam());
    std::istringstream lines(toUtf8(sample(GetParam())));
    for (std::string line; std::getline(lines, line) && !std::regex_search(line, loss);) {
        if (std::regex_search(line, leftOut))
            continue;
        const std::regex& wanted = std::regex_search(line, months) ? month : figure;
        for (std::sregex_iterator found(line.begin(), line.end(), wanted), end; found != end; ++found)
            EXPECT_TRUE(tour.shows(found->str())) << found->str() << " of " << line;
    }
}

INSTANTIATE_TEST_SUITE_P(Every, Samples, testing::ValuesIn(sampleNames()),
                         [](const auto& tested) { return tested.param; });

} // namespace
} // namespace plotvue::test
