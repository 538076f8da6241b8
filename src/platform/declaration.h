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
    TextSpan shortcut{};   // "F5"; several apart by ", "
    TextSpan spokenName{}; // where the caption does not say it; also the tooltip
    enum class Picture { None, Arrow } picture = Picture::None;
};

struct Font {
    TextSpan family{}; // asked for; where the desktop lacks it, and where it is empty: the desktop's own
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

// One frame of an option group. Frames of the same group name are one control with one chosen option a frame.
struct OptionFrame {
    Name name;
    TextSpan caption;    // empty: an untitled frame
    TextSpan spokenName; // where the caption does not say it
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
    TextSpan format; // headings apart by "|", which may begin with "<" or ">"; blanks pad the widths
    std::vector<int> figures{}; // columns whose cells are figures, right-aligned
};

struct PictureBox { // says gain or loss beside a grid
    Name name;
    TextSpan spokenName;
    enum class Shows { Gain, Loss } shows;
};

struct Item;

struct Box {
    enum class Direction { Row, Column } direction;
    std::vector<Item> items;
};

struct Space {}; // takes what is left over

struct Item {
    std::variant<Button, Label, TextBox, ListBox, OptionFrame, ChartBox, GridBox, PictureBox, Box, Space>
        what;
    int stretch = 0; // share of the room left over; 0: its own size only
};

struct Declaration {
    Name name; // "frmProduct"
    TextSpan caption;
    Box content;
    // Of the client area when it first opens, in device-independent pixels, in letters of 10 points; in
    // larger ones it is larger in proportion.
    int width = 1000, height = 600;
};

Item row(std::vector<Item> items, int stretch = 0);
Item column(std::vector<Item> items, int stretch = 0);

// Calls `visit` with every control in the declaration, in the order in which they stand.
template <typename Visitor>
void forEachControl(const Box& box, Visitor&& visit)
{
    for (const Item& item : box.items) {
        if (const Box* inner = std::get_if<Box>(&item.what))
            forEachControl(*inner, visit);
        else
            std::visit(visit, item.what);
    }
}

} // namespace plotvue
