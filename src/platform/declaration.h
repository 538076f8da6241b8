// A window as data: its controls, captions and arrangement, one nested value that any platform builds.
// Names and captions must outlive the window (literals do).
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
    TextSpan shortcut{};   // "F5"; several are separated by ", "
    TextSpan spokenName{}; // for a caption that does not say it; also the tooltip
    enum class Picture { None, Arrow } picture = Picture::None;
};

struct Font {
    TextSpan family{}; // where it is empty or the desktop lacks it, the desktop's own is used
    double points = 0; // 0: the desktop's own size
    bool bold = false, italic = false;
    bool operator==(const Font&) const = default;
};

struct Label {
    Name name;
    TextSpan text{};
    Font font{};
};

struct TextBox { // shows text, takes none
    Name name;
    TextSpan spokenName;
};

struct ListBox { // for display only
    Name name;
    TextSpan spokenName;
    std::vector<TextSpan> items;
    Font font{};
};

struct Option {
    int index;
    TextSpan caption;
};

// One frame of an option group. Frames with the same group are one control, with one option chosen in each.
struct OptionFrame {
    Name name;
    TextSpan caption;    // empty: an untitled frame
    TextSpan spokenName; // for a caption that does not say it
    Name group;
    std::vector<Option> options; // from the top
    int chosen;                  // index chosen when the window opens
};

struct ChartBox {
    Name name;
    Chart chart{}; // what it shows at first
};

struct GridBox {
    Name name;
    TextSpan spokenName;
    TextSpan format; // headings separated by "|", each with blanks as wide as its column is to be; "<" or ">"
                     // before a heading is not shown
    std::vector<int> figures{}; // columns whose cells are figures, right-aligned
};

struct PictureBox { // says gain or loss beside a grid
    Name name;
    TextSpan spokenName;
    enum class Shows { Gain, Loss } shows;
};

struct Item;

struct Panel { // a row or a column of items
    enum class Direction { Row, Column } direction;
    std::vector<Item> items;
};

struct Space {}; // takes the room that is left over

struct Item {
    std::variant<Button, Label, TextBox, ListBox, OptionFrame, ChartBox, GridBox, PictureBox, Panel, Space>
        what;
    int stretch = 0; // its share of the room that is left over; 0: none
};

struct Declaration {
    Name name; // "frmProduct"
    TextSpan caption;
    Panel content;
    // Of the client area when the window first opens, in device-independent pixels, where the desktop's
    // letters have 10 points; larger in proportion where they are larger.
    int width = 1000, height = 600;
};

Item row(std::vector<Item> items, int stretch = 0);
Item column(std::vector<Item> items, int stretch = 0);

// Calls `visit` with every control in the declaration, in their order.
template <typename Visitor>
void forEachControl(const Panel& panel, Visitor&& visit)
{
    for (const Item& item : panel.items) {
        if (const Panel* inner = std::get_if<Panel>(&item.what))
            forEachControl(*inner, visit);
        else
            std::visit(visit, item.what);
    }
}

} // namespace plotvue
