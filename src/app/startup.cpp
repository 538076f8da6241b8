#include "app/startup.h"

#include "app/recognition.h"
#include "ranked/exchange.h"

#include <algorithm>

namespace plotvue {

namespace {

constexpr TextSpan sansSerif = u"MS Sans Serif";

const std::vector<TextSpan> supportedScreens{
    u"Sales Journal History",
    u"G/L History",
    u"G/L Expense/Volume",
    u"Customer Sales History",
    u"Salesman History",
    u"Salesman/Category Analysis",
    u"Product History",
    u"Active Customer Count",
    u"Prodware History",
    u"Late Charge Analysis",
    u"Truck History",
    u"Driver History",
    u"Cardlock Site History",
    u"C-Store History",
    u"Month2Month Profit Analysis",
    u"Past Due A/R Analysis",
    u"Ranked Profit Analysis",
    u"Vendor Inventory Analysis",
    u"Ratio Analysis",
};

} // namespace

Declaration Startup::declare() const
{
    return {.name = "startup",
            .caption = u"Plot Vue!",
            .content = {Box::Direction::Row,
                        {column({{Label{.name = "Label1",
                                        .text = u"PlotVue!",
                                        .font = {.family = u"Arial", .points = 48, .italic = true}}},
                                 {Label{.name = "Label3",
                                        .text = u"Chart your data, instantly!",
                                        .font = {.family = sansSerif, .points = 9.75, .bold = true}}},
                                 {Label{.name = "Label4", .text = u"Version " PLOTVUE_VERSION}},
                                 {Space{}, 1},
                                 {Label{.name = "Label5",
                                        .text = u"Copy data to the Windows clipboard, then click Refresh to "
                                                u"chart your data.",
                                        .font = {.points = 12}}},
                                 {Space{}, 1},
                                 row({{Button{.name = "Command1", .caption = u"Refresh", .shortcut = u"F5"}},
                                      {Button{.name = "Command2", .caption = u"Exit", .shortcut = u"Esc"}},
                                      {Space{}, 1}})},
                                1),
                         column({{Label{.name = "Label2",
                                        .text = u"Supported screens:",
                                        .font = {.family = sansSerif, .points = 12}}},
                                 {ListBox{.name = "List1",
                                          .spokenName = u"Supported screens",
                                          .items = supportedScreens,
                                          .font = {.family = sansSerif, .points = 8.25, .bold = true}},
                                  1}})}},
            .width = 640,
            .height = 430};
}

Handlers Startup::handlers()
{
    return {{"Command1", [this](int) { Command1_Click(); }}, {"Command2", [this](int) { Command2_Click(); }}};
}

void Startup::Form_Load()
{
    Show();
    Form& window = windowFor(IdentifyScreen());
    Hide();
    window.Show();
}

void Startup::ReloadScreen()
{
    Show();
    Form_Load();
}

Text Startup::IdentifyScreen()
{
    const Text screen = platform().clipboardText();
    const Recognised recognised = recognise(screen);
    if (recognised.ranked)
        writeRecords(scratchFile, {{Text(screen)}});
    if (recognised.identifier.empty())
        platform().message(u"Need Data", u"Clipboard contains no data");
    return Text(recognised.identifier);
}

Form& Startup::windowFor(TextSpan identifier)
{
    const auto serves = [&](const Dispatch& dispatch) { return dispatch.identifier == identifier; };
    const auto at = std::find_if(dispatchTable.begin(), dispatchTable.end(), serves);
    return at == dispatchTable.end() ? *this : *at->window;
}

} // namespace plotvue
