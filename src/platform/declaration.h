// A window described as data: its controls, captions and arrangement in one nested value, from which every
// platform builds the window. Names and captions are not copied, so they must outlive the window (string
// literals do).
#pragma once

#include "chart/chart.h"

#include <map>
#include <string_view>
#include <variant>
#include <vector>

namespace plotvue {

using Name = std::string_view;

struct Button {
    Name name;
    TextSpan caption;      // "&" marks the mnemonic
    TextSpan shortcut{};   // for example "F5"; several are separated by ", "
    TextSpan spokenName{}; // accessible name, if the caption is not clear enough; also the tooltip
    enum class Picture { None, Arrow } picture = Picture::None;
};

struct Font {
    TextSpan family{}; // if empty or not installed, the desktop's default family is used
    double points = 0; // 0: the desktop's default size
    bool bold = false, italic = false;
    bool operator==(const Font&) const = default;
};

struct Label {
    Name name;
    TextSpan text{};
    Font font{};
};

struct TextBox { // read-only text
    Name name;
    TextSpan spokenName;
};

struct ListBox { // read-only; no item can be selected
    Name name;
    TextSpan spokenName;
    std::vector<TextSpan> items;
    Font font{};
};

struct Option {
    int index;
    TextSpan caption;
};

// One frame of an option group. Frames with the same `group` form one control; one option is chosen in each
// frame.
struct OptionFrame {
    Name name;
    TextSpan caption;    // empty: an untitled frame
    TextSpan spokenName; // accessible name, if the caption is empty
    Name group;
    std::vector<Option> options; // from top to bottom
    int chosen;                  // index of the option that is chosen when the window opens
};

struct ChartBox {
    Name name;
    Chart chart{}; // the initial content
};

struct GridBox {
    Name name;
    TextSpan spokenName;
    // Headings separated by "|"; the length of each, including blanks, sets the width of its column; a
    // leading "<" or ">" is not displayed.
    TextSpan format;
    std::vector<int> figures{}; // columns of figures, which are right-aligned
};

struct PictureBox { // a symbol for gain or loss beside a grid
    Name name;
    TextSpan spokenName;
    enum class Symbol { Gain, Loss } symbol;
};

struct Item;

struct Panel { // a row or a column of items
    enum class Direction { Row, Column } direction;
    std::vector<Item> items;
};

struct Space {}; // takes up the remaining space

struct Item {
    std::variant<Button, Label, TextBox, ListBox, OptionFrame, ChartBox, GridBox, PictureBox, Panel, Space>
        what;
    int stretch = 0; // its share of the remaining space; 0: none
};

struct Declaration {
    Name name; // for example "frmProduct"
    TextSpan caption;
    Panel content;
    // The initial size of the client area in device-independent pixels, for a desktop font of 10 points. A
    // larger font enlarges it in proportion.
    int width = 1000, height = 600;
};

Item row(std::vector<Item> items, int stretch = 0);
Item column(std::vector<Item> items, int stretch = 0);

// Calls `visit` with each control of the panel and its inner panels, in order of declaration. `visit` must
// take every kind of control.
template <typename Visitor>
void forEachControl(const Panel& panel, Visitor&& visit)
{
    const auto visitItem = [&visit]<typename What>(const What& what) {
        if constexpr (std::is_same_v<What, Panel>)
            forEachControl(what, visit);
        else if constexpr (!std::is_same_v<What, Space>)
            visit(what);
    };
    for (const Item& item : panel.items)
        std::visit(visitItem, item.what);
}

} // namespace plotvue
