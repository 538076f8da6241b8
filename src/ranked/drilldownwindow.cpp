#include "ranked/drilldownwindow.h"

#include "ranked/listfile.h"
#include "window/commoncontrols.h"

namespace plotvue {

Declaration DrillDownWindow::declare() const
{
    std::vector<Item> side;
    if (!design_.types.empty()) {
        std::vector<Option> options;
        for (const TextSpan caption : design_.types)
            options.push_back({static_cast<int>(options.size()), caption});
        side.push_back({dataTypeFrame(std::move(options))});
    }
    side.push_back({Space{}, 1});
    for (const MessageButton& message : design_.buttons)
        side.push_back({message.button});
    side.push_back({Button{.name = "cmdBack",
                           .caption = u"",
                           .shortcut = u"PgUp, Alt+Left",
                           .spokenName = u"Back",
                           .picture = Button::Picture::Arrow}});
    side.push_back({Button{.name = "cmdNext", .caption = u"Down", .shortcut = u"PgDown"}});
    side.push_back({printButton()});
    side.push_back({exitButton(u"Close")});

    std::vector<Item> content = design_.charts;
    content.push_back(column(std::move(side)));
    return {.name = design_.window,
            .caption = design_.screen.caption,
            .content = {Panel::Direction::Row, std::move(content)},
            .width = design_.width};
}

Handlers DrillDownWindow::handlers()
{
    Handlers handlers{{"cmdBack", [this](int) { cmdBack_Click(); }},
                      {"cmdNext", [this](int) { cmdNext_Click(); }},
                      {"cmdPrint", [this](int) { cmdPrint_Click(); }},
                      {"cmdExit", [this](int) { cmdExit_Click(); }},
                      {"optSales", [this](int) { optSales_Click(); }}};
    for (const MessageButton& message : design_.buttons)
        handlers[message.button.name] = [this, &message](int) {
            platform().message(message.title, message.text(drawn_));
        };
    return handlers;
}

EntryLines DrillDownWindow::chosenRecord() const
{
    const KeyValues chosen = readChosenRow(design_.screen.key);
    return ListFile(design_.screen).readUpTo(chosen, design_.limits.draw);
}

void DrillDownWindow::drawChart()
{
    const int type = design_.types.empty() ? 0 : controls().options("optSales")->chosenIn(0);
    drawn_ = chosenRecord();
    design_.draw(controls(), drawn_, type);
    setNotice({});
}

// Kept: a second click (docs/kept.md).
void DrillDownWindow::shownAgain()
{
    bool isDrawn = false;
    try {
        isDrawn = chosenRecord() == drawn_;
    } catch (const Failure&) {
        // The failure is reported when the user next charts an entry.
    }
    if (isDrawn)
        setNotice({});
    else if (design_.types.empty())
        setNotice(u"Another row was chosen. Close this chart and click the row again.");
    else
        setNotice(u"Another row was chosen. Choose a data type to chart it.");
}

void DrillDownWindow::listReplaced()
{
    if (visible())
        setNotice(u"The list of this chart was replaced. Close this chart.");
}

void DrillDownWindow::cmdBack_Click()
{
    const KeyValues chosen = readChosenRow(design_.screen.key);
    ListFile list(design_.screen);
    list.readUpTo(chosen, design_.limits.step);
    if (list.position() == 1)
        return endOfList();
    choose(list.previous());
}

void DrillDownWindow::cmdNext_Click()
{
    const KeyValues chosen = readChosenRow(design_.screen.key);
    EntryLines next;
    try {
        ListFile list(design_.screen);
        list.readUpTo(chosen, design_.limits.step);
        next = list.next();
    } catch (const Failure&) {
        // The chosen record was the last: the file ends too early for another one.
        // Kept: Down takes any failure for the end (docs/kept.md).
        return endOfList();
    }
    choose(next);
}

void DrillDownWindow::choose(const EntryLines& record)
{
    writeRecords(chosenRowFile, {keyOf(design_.screen.key, record[1])});
    drawChart();
}

void DrillDownWindow::endOfList()
{
    // Kept: the end of the list closes the chart (docs/kept.md).
    platform().message({}, u"End of list");
    unload();
}

} // namespace plotvue
