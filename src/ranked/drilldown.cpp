#include "ranked/drilldown.h"

#include "ranked/listfile.h"

namespace plotvue {

Declaration DrillDownWindow::declare() const
{
    std::vector<Item> side;
    if (!design_.types.empty()) {
        OptionFrame frame{.name = "Frame1",
                          .caption = u"Data Type",
                          .spokenName = u"Data Type",
                          .group = "optSales",
                          .options = {},
                          .chosen = 0};
        for (const TextSpan caption : design_.types)
            frame.options.push_back({static_cast<int>(frame.options.size()), caption});
        side.push_back({frame});
    }
    side.push_back({Space{}, 1});
    for (const DrillDownDesign::Explanation& explanation : design_.explanations)
        side.push_back({explanation.button});
    side.push_back({Button{.name = "cmdBack",
                           .caption = u"",
                           .shortcut = u"PgUp, Alt+Left",
                           .spokenName = u"Back",
                           .picture = Button::Picture::Arrow}});
    side.push_back({Button{.name = "cmdNext", .caption = u"Down", .shortcut = u"PgDown"}});
    side.push_back({Button{.name = "cmdPrint", .caption = u"&Print", .shortcut = u"Ctrl+P"}});
    side.push_back({Button{.name = "cmdExit", .caption = u"Close", .shortcut = u"Esc"}});

    std::vector<Item> content = design_.charts;
    content.push_back(column(std::move(side)));
    return {.name = design_.window,
            .caption = design_.caption,
            .content = {Box::Direction::Row, std::move(content)},
            .width = design_.width};
}

Handlers DrillDownWindow::handlers()
{
    Handlers handlers{{"cmdBack", [this](int) { cmdBack_Click(); }},
                      {"cmdNext", [this](int) { cmdNext_Click(); }},
                      {"cmdPrint", [this](int) { cmdPrint_Click(); }},
                      {"cmdExit", [this](int) { cmdExit_Click(); }},
                      {"optSales", [this](int) { optSales_Click(); }}};
    for (const DrillDownDesign::Explanation& explanation : design_.explanations)
        handlers[explanation.button.name] = [this, &explanation](int) { explain(explanation); };
    return handlers;
}

void DrillDownWindow::drawChart()
{
    const int type = design_.types.empty() ? 0 : controls().options("optSales")->chosenIn(0);
    ListFile list(design_.analysis);
    drawn_ = list.find(readChosenRow(design_.analysis), design_.mostRecordsToDraw);
    design_.draw(controls(), drawn_, type);
}

void DrillDownWindow::explain(const DrillDownDesign::Explanation& explanation)
{
    platform().message(explanation.title, explanation.text(drawn_));
}

void DrillDownWindow::cmdBack_Click()
{
    ListFile list(design_.analysis);
    list.find(readChosenRow(design_.analysis), design_.mostRecordsToStep);
    if (list.position() == 1)
        return endOfList();
    choose(list.previous());
}

void DrillDownWindow::cmdNext_Click()
{
    const KeyValues chosen = readChosenRow(design_.analysis);
    Record next;
    try {
        ListFile list(design_.analysis);
        list.find(chosen, design_.mostRecordsToStep);
        next = list.next();
    } catch (const Failure&) {
        // Reading past the last record is how the end of the list is noticed.
        return endOfList();
    }
    choose(next);
}

void DrillDownWindow::choose(const Record& record)
{
    writeChosenRow(design_.analysis, record);
    drawChart();
}

void DrillDownWindow::endOfList()
{
    platform().message({}, u"End of list");
    unload();
}

} // namespace plotvue
