// A window on the desktop. Its widgets are made when they are first needed: for a control, or to be seen.
#pragma once

#include "platform/desktop/windowbuilder.h"

namespace plotvue {

class Stage;

class DesktopView : public View {
public:
    DesktopView(Stage& stage, const Declaration& declaration, const Handlers& handlers,
                std::function<void()> close);
    ~DesktopView() override;
    DesktopView(const DesktopView&) = delete;

    // What is wanted; the desktop sees it when the stage settles.
    void show() override;
    void hide() override;
    bool visible() const override { return wanted_; }
    void settle();

    void setCaption(TextSpan caption) override;
    void setText(Name control, TextSpan text) override;
    ChartControl& chart(Name control) override { return controls().charts.at(control); }
    OptionsControl& options(Name group) override { return controls().options.at(group); }
    GridControl& grid(Name control) override;

    ViewState state() const override;

    void press(Name button) override;
    void choose(Name group, int index) override { controls().options.at(group).choose(index); }
    void clickRow(Name grid, int row) override;
    void close() override;

    Window& window() const;
    bool isBuilt() const { return window_ != nullptr; }

private:
    void keepPlace() const;
    void takePlace() const;
    Controls& controls() const;

    Stage& stage_;
    Declaration declaration_;
    Handlers handlers_;
    std::function<void()> close_;
    mutable Window* window_ = nullptr; // goes by itself once it is retired
    mutable Controls controls_;
    bool wanted_ = false, raise_ = false;
};

} // namespace plotvue
