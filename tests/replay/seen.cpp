#include "replay/seen.h"

namespace plotvue::replay {

namespace {

struct Look {
    Controls& controls;

    Seen at(const Button& button) const { return SeenText{SeenText::Of::Button, Text(button.caption)}; }
    Seen at(const Label& label) const { return SeenText{SeenText::Of::Label, *controls.text(label.name)}; }
    Seen at(const TextBox& box) const { return SeenText{SeenText::Of::TextBox, *controls.text(box.name)}; }
    Seen at(const ListBox& list) const { return SeenList(list.items.begin(), list.items.end()); }
    Seen at(const OptionFrame& frame) const { return *controls.options(frame.group); }
    Seen at(const ChartBox& box) const { return *controls.chart(box.name); }
    Seen at(const GridBox& box) const { return *controls.grid(box.name); }
};

} // namespace

SeenWindow seenIn(Controls& controls)
{
    SeenWindow window{Text(controls.declaration.caption), *controls.notice, {}};
    forEachControl(controls.declaration.content, [&](const auto& control) {
        const Look look{controls};
        if constexpr (requires { control.group; })
            window.controls.emplace(control.group, look.at(control));
        else if constexpr (requires { look.at(control); })
            window.controls.emplace(control.name, look.at(control));
    });
    return window;
}

} // namespace plotvue::replay
