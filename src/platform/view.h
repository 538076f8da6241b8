// One built window: what the system does with its controls, what a person does with them, what they show.
#pragma once

#include "platform/chartcontrol.h"
#include "platform/declaration.h"

#include <functional>
#include <string>

namespace plotvue {

// An option group; options go by their index.
class OptionsControl {
public:
    virtual ~OptionsControl() = default;
    // The option chosen in a frame of the group; frames count from 0, in their order on the window.
    virtual int chosen(int frame = 0) const = 0;
    virtual void setCaption(int index, TextSpan caption) = 0;
    virtual void setVisible(int index, bool visible) = 0;
};

// A grid of text; row 0 holds the headings, columns count from 0.
class GridControl {
public:
    virtual ~GridControl() = default;
    virtual void setRows(int rows) = 0; // heading row included; rows that go lose their text
    virtual void setFormat(TextSpan format) = 0;
    virtual void setCell(int row, int column, TextSpan text) = 0;
    virtual Text cell(int row, int column) const = 0; // "" where nothing was written
};

// Columns of a grid: as many as its format string has headings.
int columnsOf(TextSpan format);

struct ButtonState {
    Text caption;
};
struct LabelState {
    Text text;
};
struct TextBoxState {
    Text text;
};
struct ListState {
    std::vector<Text> items;
};
struct OptionState {
    int index;
    Text caption;
    bool visible;
};
struct OptionsState {
    std::vector<int> chosen;          // ascending, one a frame
    std::vector<OptionState> options; // as they stand on the window, frame after frame
};
struct GridState {
    Text format;
    int columns = 0, rows = 0;            // heading row included
    std::vector<std::vector<Text>> cells; // the rows under the heading row
};
using ControlState =
    std::variant<ButtonState, LabelState, TextBoxState, ListState, OptionsState, GridState, ChartContent>;

struct ViewState {
    Text caption;
    std::map<std::string, ControlState, std::less<>> controls; // picture boxes and frames are none
};

// What a control does when it is used: the index of an option, the row of a grid, 0 for a button.
using Handlers = std::map<Name, std::function<void(int)>>;

// A built window begins hidden. Names, option indices, rows and columns that it does not hold are a mistake
// in the program: whatever is done with them throws std::out_of_range.
class View {
public:
    virtual ~View() = default;

    virtual void show() = 0;
    virtual void hide() = 0;
    virtual bool visible() const = 0;
    virtual void setCaption(TextSpan caption) = 0;
    virtual void setText(Name control, TextSpan text) = 0; // labels and text boxes
    virtual ChartControl& chart(Name control) = 0;
    virtual OptionsControl& options(Name group) = 0;
    virtual GridControl& grid(Name control) = 0;

    virtual ViewState state() const = 0; // read back from the controls

    // As a person does it; the handlers run.
    virtual void press(Name button) = 0;
    virtual void choose(Name group, int index) = 0;
    virtual void clickRow(Name grid, int row) = 0;
    virtual void close() = 0; // with the title bar
};

} // namespace plotvue
