// A window in memory.
#pragma once

#include "platform/view.h"

namespace plotvue {

class RecordingOptions : public OptionsControl {
public:
    explicit RecordingOptions(OptionsState& state) : state_(state) {}

    void addFrame(const OptionFrame& frame);
    void choose(int index); // the other options of its frame are no longer chosen

    int chosen(int frame) const override;
    void setCaption(int index, TextSpan caption) override;
    void setVisible(int index, bool visible) override;

private:
    OptionState& option(int index);

    OptionsState& state_;
    std::map<int, int> frameOf_; // by option
    int frames_ = 0;
};

class RecordingGrid : public GridControl {
public:
    explicit RecordingGrid(GridState& state) : state_(state) {}

    void setRows(int rows) override;
    void setFormat(TextSpan format) override;
    void setCell(int row, int column, TextSpan text) override;
    Text cell(int row, int column) const override;

private:
    GridState& state_;
};

class RecordingView : public View {
public:
    RecordingView(const Declaration& declaration, const Handlers& handlers, std::function<void()> close);

    void show() override { visible_ = true; }
    void hide() override { visible_ = false; }
    bool visible() const override { return visible_; }
    void setCaption(TextSpan caption) override { state_.caption = caption; }
    void setText(Name control, TextSpan text) override;
    ChartControl& chart(Name control) override { return charts_.at(control); }
    OptionsControl& options(Name group) override { return options_.at(group); }
    GridControl& grid(Name control) override { return grids_.at(control); }

    ViewState state() const override;

    void press(Name button) override { run(button, 0); }
    void choose(Name group, int index) override;
    void clickRow(Name grid, int row) override { run(grid, row); }
    void close() override;

private:
    void add(const Button& button);
    void add(const Label& label);
    void add(const TextBox& box);
    void add(const ListBox& list);
    void add(const OptionFrame& frame);
    void add(const ChartBox& chart);
    void add(const GridBox& grid);
    void add(const PictureBox&) {}
    void add(const Space&) {}
    void run(Name control, int index) const;

    ViewState state_; // but for the charts' contents
    std::map<Name, ChartControl> charts_;
    std::map<Name, RecordingOptions> options_;
    std::map<Name, RecordingGrid> grids_;
    Handlers handlers_;
    std::function<void()> close_;
    bool visible_ = false;
};

} // namespace plotvue
