// The controls of a window: the one model that the system sets, a person uses and a platform shows.
#pragma once

#include "platform/declaration.h"

#include <functional>

namespace plotvue {

// A value that a platform shows.
template <typename Value>
class Shown {
public:
    explicit Shown(Value value = {}) : value_(std::move(value)) {}
    Shown(const Shown&) = delete;

    const Value& operator*() const { return value_; }
    const Value* operator->() const { return &value_; }

    void set(Value value)
    {
        value_ = std::move(value);
        changed();
    }

    // Calls `change` with the value, and shows it once, however much was changed.
    template <typename Change>
    void change(const Change& change)
    {
        change(value_);
        changed();
    }

    std::function<void()> changed = [] {}; // set by whoever shows the value

private:
    Value value_;
};

// An option group in one frame or several, with one option chosen in each. Options go by their index; the
// functions throw std::out_of_range for one that the group does not have.
struct OptionGroup {
    struct Entry {
        int index;
        Text caption;
        bool visible;
        int frame; // counted from 0, from the top

        bool operator==(const Entry&) const = default;
    };
    std::vector<Entry> options; // from the top, frame after frame
    std::vector<int> chosen;    // ascending, one a frame

    int chosenIn(int frame) const;
    void choose(int index); // the frame's earlier choice is no longer chosen
    void setCaption(int index, TextSpan caption) { option(index).caption = caption; }
    void setVisible(int index, bool visible) { option(index).visible = visible; }

    bool operator==(const OptionGroup&) const = default;

private:
    Entry& option(int index);
};

// A grid of text. Rows and columns count from 0; row 0 holds the headings. The functions throw
// std::out_of_range for a cell that is not in a row under the headings.
struct Grid {
    Text format;                          // as GridBox::format
    int columns = 0, rows = 1;            // the heading row included
    std::vector<std::vector<Text>> cells; // the rows under the headings; "" where nothing was written

    void setFormat(TextSpan text);
    void setRows(int count); // the heading row included; rows that go lose their text
    void setCell(int row, int column, TextSpan text);
    const Text& cell(int row, int column) const;

    bool operator==(const Grid&) const = default;
};

// What a control does when it is used: the index of an option, the row of a grid, 0 for a button.
using Handlers = std::map<Name, std::function<void(int)>>;

// The functions throw std::out_of_range for a name that the window does not have.
class Controls {
public:
    // `close` runs when a person closes the window with its title bar.
    Controls(Declaration declaration, Handlers handlers, std::function<void()> close);
    Controls(const Controls&) = delete;

    const Declaration declaration; // what the controls were at first

    Shown<Text> caption;
    Shown<Text>& text(Name labelOrTextBox) { return texts_.at(labelOrTextBox); }
    Shown<OptionGroup>& options(Name group) { return options_.at(group); }
    Shown<Grid>& grid(Name name) { return grids_.at(name); }
    Shown<Chart>& chart(Name name) { return charts_.at(name); }

    // What a person does. A handler may unload the window, and with it these controls.
    void press(Name button) { use(button, 0); }
    void choose(Name group, int index);
    void clickRow(Name grid, int row) { use(grid, row); }
    void close();

    void disconnect(); // from now on nothing that a person does runs a handler

private:
    void add(const Label& label) { texts_.try_emplace(label.name, Text(label.text)); }
    void add(const TextBox& box) { texts_.try_emplace(box.name); }
    void add(const OptionFrame& frame);
    void add(const ChartBox& box) { charts_.try_emplace(box.name, box.chart); }
    void add(const GridBox& box);
    void use(Name control, int index);

    std::map<Name, Shown<Text>> texts_;
    std::map<Name, Shown<OptionGroup>> options_;
    std::map<Name, Shown<Grid>> grids_;
    std::map<Name, Shown<Chart>> charts_;
    Handlers handlers_;
    std::function<void()> close_;
};

} // namespace plotvue
