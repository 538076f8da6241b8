#include "platform/desktop/desktopview.h"

#include "platform/desktop/grid.h"
#include "platform/desktop/shown.h"
#include "platform/desktop/smallwidgets.h"
#include "platform/desktop/stage.h"
#include "platform/desktop/window.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QWindow>

#include <stdexcept>

namespace plotvue {

DesktopView::DesktopView(Stage& stage, const Declaration& declaration, const Handlers& handlers,
                         std::function<void()> close)
    : stage_(stage),
      declaration_(declaration),
      handlers_(handlers),
      close_(std::move(close))
{
    stage_.enter(*this);
}

DesktopView::~DesktopView()
{
    stage_.leave(*this);
    if (!window_)
        return;
    if (window_->isVisible())
        keepPlace();
    window_->retire();
}

void DesktopView::show()
{
    wanted_ = raise_ = true;
    stage_.settleLater();
}

void DesktopView::hide()
{
    wanted_ = false;
    stage_.settleLater();
}

void DesktopView::settle()
{
    const bool seen = window_ && window_->isVisible();
    if (wanted_ && raise_ && window().isMinimized())
        window().setWindowState(window().windowState() & ~Qt::WindowMinimized);
    if (wanted_ && !seen) {
        takePlace();
        window().show();
        // Each widget asks to be painted; said before the display asks for the whole, both are one painting.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateLater);
    } else if (wanted_ && raise_) {
        window_->raise();
        window_->activateWindow();
    } else if (!wanted_ && seen) {
        keepPlace();
        window_->hide();
    }
    raise_ = false;
}

void DesktopView::keepPlace() const
{
    stage_.places[declaration_.name] = window_->geometry().topLeft();
}

void DesktopView::takePlace() const
{
    const auto place = stage_.places.find(declaration_.name);
    if (place == stage_.places.end() || window().windowState() != Qt::WindowNoState)
        return;
    // Said to the native window if there is one: a widget that stands there already would not pass it on, and
    // the window manager would find a place of its own.
    if (QWindow* native = window().windowHandle())
        native->setPosition(place->second);
    else
        window().setGeometry(QRect(place->second, window().size()));
}

Window& DesktopView::window() const
{
    controls();
    return *window_;
}

Controls& DesktopView::controls() const
{
    if (!window_) {
        window_ = new Window(handlers_, close_);
        controls_ = buildControls(declaration_, *window_);
    }
    return controls_;
}

void DesktopView::setCaption(TextSpan caption)
{
    window().setWindowTitle(toQString(caption));
}

void DesktopView::setText(Name control, TextSpan text)
{
    const auto label = controls().labels.find(control);
    if (label == controls_.labels.end()) {
        controls_.texts.at(control)->show(text);
        return;
    }
    keepText(*label->second, text);
    label->second->setText(shown(text));
}

GridControl& DesktopView::grid(Name control)
{
    return controls().grids.at(control)->gridModel();
}

ViewState DesktopView::state() const
{
    ViewState state;
    const auto put = [&state](Name name, ControlState control) {
        state.controls.emplace(name, std::move(control));
    };
    state.caption = toText(window().windowTitle());
    for (const auto& [name, button] : controls_.buttons)
        put(name, ButtonState{toText(button->text())});
    for (const auto& [name, label] : controls_.labels)
        put(name, LabelState{keptText(*label)});
    for (const auto& [name, line] : controls_.texts)
        put(name, TextBoxState{keptText(*line)});
    for (const auto& [name, list] : controls_.lists) {
        ListState items;
        for (int row = 0; row < list->count(); ++row)
            items.items.push_back(toText(list->item(row)->text()));
        put(name, std::move(items));
    }
    for (const auto& [name, grid] : controls_.grids)
        put(name, grid->gridModel().state());
    for (const auto& [name, options] : controls_.options)
        put(name, options.state());
    for (const auto& [name, chart] : controls_.charts)
        put(name, chart.shown());
    return state;
}

void DesktopView::press(Name button)
{
    controls().buttons.at(button)->click();
}

void DesktopView::clickRow(Name grid, int row)
{
    GridTable& table = *controls().grids.at(grid);
    const QModelIndex at = table.model()->index(row - 1, 0);
    if (!at.isValid())
        throw std::out_of_range("no such row");
    table.setCurrentIndex(at);
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(&table, &enter);
}

void DesktopView::close()
{
    QCloseEvent event;
    QCoreApplication::sendEvent(&window(), &event);
}

} // namespace plotvue
