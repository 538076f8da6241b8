#include "app/startup.h"

#include "app/recognition.h"
#include "files/exchange.h"

namespace plotvue {

namespace {

constexpr TextSpan sansSerif = u"MS Sans Serif";

// The captions from the first row to the last. Screens that share a row have the same caption.
std::vector<TextSpan> supportedScreens()
{
    std::map<int, TextSpan> rows;
    for (const Screen& screen : screens)
        rows[screen.supported.number] = screen.supported.caption;
    std::vector<TextSpan> captions;
    for (const auto& [number, caption] : rows)
        captions.push_back(caption);
    return captions;
}

} // namespace

Declaration Startup::declare() const
{
    // Kept: spellings of the caption, names of controls, the Windows clipboard (docs/kept.md).
    return {.name = "startup",
            .caption = u"Plot Vue!",
            .content = {Panel::Direction::Row,
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
                                          .items = supportedScreens(),
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
    show();
    const Screen* screen = IdentifyScreen();
    Window& window = screen ? *windows.at(screen) : *this;
    hide();
    window.show();
}

void Startup::ReloadScreen()
{
    setNotice({});
    show();
    Form_Load();
}

const Screen* Startup::IdentifyScreen()
{
    const Text text = platform().clipboardText();
    const Screen* screen = recognise(text);
    // Kept: no data though text was copied (docs/kept.md).
    if (!screen)
        platform().message(u"Need Data", u"Clipboard contains no data");
    else if (screen->ranked())
        writeRecords(scratchFile, {{text}});
    return screen;
}

} // namespace plotvue
