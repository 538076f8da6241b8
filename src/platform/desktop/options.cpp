#include "platform/desktop/options.h"

#include "platform/desktop/shown.h"
#include "platform/desktop/smallwidgets.h"
#include "platform/desktop/window.h"

#include <QGroupBox>
#include <QVBoxLayout>

#include <algorithm>
#include <stdexcept>

namespace plotvue {

namespace {

constexpr int widestCaption = 28; // in average characters

// A caption from a capture may be a whole screen line: it is shown as far as the side column reaches.
void showCaption(QRadioButton& button, TextSpan caption)
{
    keepText(button, caption);
    const QString whole = shownOnOneLine(caption);
    const QFontMetrics metrics = button.fontMetrics();
    const QString fitting =
        metrics.elidedText(whole, Qt::ElideRight, widestCaption * metrics.averageCharWidth());
    button.setText(withoutMnemonic(fitting));
    button.setAccessibleName(fitting == whole ? QString() : whole);
    button.setToolTip(fitting == whole ? QString() : whole);
}

} // namespace

QGroupBox* DesktopOptions::addFrame(const OptionFrame& declared, Window& window)
{
    auto* frame = new QGroupBox(withoutMnemonic(shownOnOneLine(declared.caption)), &window);
    if (declared.caption.empty())
        frame->setAccessibleName(toQString(declared.spokenName));
    frames_.push_back(frame);
    auto* layout = new QVBoxLayout(frame);
    for (const plotvue::Option& option : declared.options) {
        auto* button = new OptionButton(frame);
        showCaption(*button, option.caption);
        button->setChecked(option.index == declared.chosen);
        // Tab is to come to the one chosen. Later on the toolkit sees to that; at first it takes the topmost.
        if (!button->isChecked())
            button->setFocusPolicy(Qt::ClickFocus);
        layout->addWidget(button);
        QObject::connect(
            button, &QRadioButton::clicked, &window,
            [&window, group = declared.group, index = option.index] { window.run(group, index); });
        options_.push_back({option.index, button});
    }
    return frame;
}

QRadioButton& DesktopOptions::button(int index) const
{
    const auto at = std::find_if(options_.begin(), options_.end(),
                                 [&](const Option& option) { return option.index == index; });
    if (at == options_.end())
        throw std::out_of_range("no such option");
    return *at->button;
}

int DesktopOptions::chosen(int frame) const
{
    const QWidget* const wanted = frames_.at(static_cast<std::size_t>(frame));
    for (const Option& option : options_)
        if (option.button->parentWidget() == wanted && option.button->isChecked())
            return option.index;
    throw std::out_of_range("no option is chosen");
}

void DesktopOptions::setCaption(int index, TextSpan caption)
{
    showCaption(button(index), caption);
}

void DesktopOptions::setVisible(int index, bool visible)
{
    QRadioButton& changed = button(index);
    changed.setVisible(visible);
    // Tab comes to the option chosen, or, while that is hidden, to the first of its frame that is not.
    QRadioButton* entry = nullptr;
    for (const Option& option : options_)
        if (option.button->parentWidget() == changed.parentWidget() && !option.button->isHidden() &&
            (!entry || option.button->isChecked()))
            entry = option.button;
    if (entry)
        entry->setFocusPolicy(Qt::StrongFocus);
}

void DesktopOptions::choose(int index)
{
    button(index).click();
}

OptionsState DesktopOptions::state() const
{
    OptionsState state;
    for (const Option& option : options_) {
        state.options.push_back({option.index, keptText(*option.button), !option.button->isHidden()});
        if (option.button->isChecked())
            state.chosen.push_back(option.index);
    }
    std::sort(state.chosen.begin(), state.chosen.end());
    return state;
}

} // namespace plotvue
