// The model of a window's controls. The application sets their values, the user operates them and a platform
// displays them.
#pragma once

#include "platform/declaration.h"

#include <functional>
#include <set>

namespace plotvue {

// The value of a control, and the callback that displays it.
template <typename Value>
class Property {
public:
    explicit Property(Value value = {}) : value_(std::move(value)) {}
    Property(const Property&) = delete;

    const Value& operator*() const { return value_; }
    const Value* operator->() const { return &value_; }

    void set(Value value)
    {
        value_ = std::move(value);
        changed();
    }

    // Applies `change` to the value, then displays it once.
    template <typename Change>
    void change(const Change& change)
    {
        change(value_);
        changed();
    }

    std::function<void()> changed = [] {}; // set by the widget that displays the value

private:
    Value value_;
};

// An option group in one or more frames. In each frame one option is chosen. The functions throw
// std::out_of_range for an option or frame that the group does not have.
struct OptionGroup {
    struct Entry {
        int index;
        Text caption;
        bool visible;
        int frame; // number of the frame, from 0 at the top

        bool operator==(const Entry&) const = default;
    };
    std::vector<Entry> options; // from top to bottom, frame by frame
    std::vector<int> chosen;    // indexes in ascending order, one per frame

    int chosenIn(int frame) const;
    void choose(int index); // deselects the other options of its frame
    void setCaption(int index, TextSpan caption) { option(index).caption = caption; }
    void setVisible(int index, bool visible) { option(index).visible = visible; }

    bool operator==(const OptionGroup&) const = default;

private:
    Entry& option(int index);
};

// A table of text. Rows and columns are counted from 0; row 0 is the heading row, whose text is in `format`.
// setCell and cell throw std::out_of_range for row 0 and for a cell that does not exist.
struct Grid {
    Text format;                          // as GridBox::format
    int columns = 0, rows = 1;            // including the heading row
    std::vector<std::vector<Text>> cells; // the rows below the headings; "" where nothing was written

    void setFormat(TextSpan text);
    void setRows(int count); // including the heading row; removed rows lose their text
    void setCell(int row, int column, TextSpan text);
    const Text& cell(int row, int column) const;

    bool operator==(const Grid&) const = default;
};

// Learns what the user does with the controls of a window. May unload the window and so destroy the controls.
class ControlsOwner {
public:
    // `index` is that of the chosen option, the row of the grid, or 0 for a button.
    virtual void operated(Name control, int index) = 0;
    virtual void closed() = 0; // by the title bar

protected:
    ~ControlsOwner() = default;
};

// Functions throw std::out_of_range for a control that the window does not have.
class Controls {
public:
    // The owner must outlive the controls, or disconnect() them.
    Controls(Declaration declaration, ControlsOwner& owner);
    Controls(const Controls&) = delete;

    const Declaration declaration; // the initial state of the controls

    Property<Text>& text(Name labelOrTextBox) { return texts_.at(labelOrTextBox); }
    Property<OptionGroup>& options(Name group) { return options_.at(group); }
    Property<Grid>& grid(Name name) { return grids_.at(name); }
    Property<Chart>& chart(Name name) { return charts_.at(name); }

    // The notice, one line above the content. Empty: the window shows what was last asked for.
    Property<Text> notice;

    // The chosen options of each group, as OptionGroup::chosen.
    std::map<Name, std::vector<int>> chosenOptions() const;

    // User actions.
    void press(Name button);
    void choose(Name group, int index); // Kept: the option that is chosen already (docs/kept.md).
    void clickRow(Name grid, int row);
    void close();

    void disconnect() { owner_ = nullptr; } // from now on, the owner learns of no user action

private:
    void add(const Button& button) { buttons_.insert(button.name); }
    void add(const Label& label) { texts_.try_emplace(label.name, Text(label.text)); }
    void add(const TextBox& box) { texts_.try_emplace(box.name); }
    void add(const ListBox&) {}
    void add(const OptionFrame& frame);
    void add(const ChartBox& box) { charts_.try_emplace(box.name, box.chart); }
    void add(const GridBox& box);
    void add(const PictureBox&) {}
    void operate(Name control, int index);

    std::set<Name> buttons_;
    std::map<Name, Property<Text>> texts_;
    std::map<Name, Property<OptionGroup>> options_;
    std::map<Name, Property<Grid>> grids_;
    std::map<Name, Property<Chart>> charts_;
    ControlsOwner* owner_;
};

} // namespace plotvue
