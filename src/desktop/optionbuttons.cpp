#include "desktop/optionbuttons.h"

#include "desktop/displaytext.h"

#include <QGroupBox>
#include <QVBoxLayout>

namespace plotvue {

namespace {

constexpr int maxCaption = 28; // in average characters

// Elides a caption to the width of the side column. A caption from a capture may be as long as a screen line.
void showCaption(QRadioButton& button, TextSpan caption)
{
    const QString whole = displayTextOnOneLine(caption);
    const QFontMetrics metrics = button.fontMetrics();
    const QString fitting =
        metrics.elidedText(whole, Qt::ElideRight, maxCaption * metrics.averageCharWidth());
    button.setText(withoutMnemonic(fitting));
    button.setAccessibleName(fitting == whole ? QString() : whole);
    button.setToolTip(fitting == whole ? QString() : whole);
}

} // namespace

OptionButtons::OptionButtons(Controls& controls, Name group, QObject* parent)
    : QObject(parent),
      controls_(controls),
      group_(group)
{
    controls.options(group).changed = [this] { show(); };
}

QGroupBox* OptionButtons::addFrame(const OptionFrame& declared, QWidget* parent)
{
    auto* frame = new QGroupBox(withoutMnemonic(displayTextOnOneLine(declared.caption)), parent);
    if (declared.caption.empty())
        frame->setAccessibleName(toQString(declared.spokenName));
    auto* layout = new QVBoxLayout(frame);
    for (const Option& option : declared.options) {
        auto* button = new OptionButton(frame);
        layout->addWidget(button);
        // Not a tab stop yet: show() makes one option of each frame the tab stop. Otherwise the first Tab
        // would reach the topmost option instead of the chosen one.
        button->setFocusPolicy(Qt::ClickFocus);
        connect(button, &QRadioButton::clicked, this,
                [this, index = option.index] { controls_.choose(group_, index); });
        buttons_.push_back(button);
    }
    if (buttons_.size() == controls_.options(group_)->options.size())
        show();
    return frame;
}

void OptionButtons::show()
{
    const OptionGroup& group = *controls_.options(group_);
    // The tab stop of each frame: its chosen option, or the first visible one if that is hidden.
    std::map<int, OptionButton*> tabStops;
    for (std::size_t i = 0; i < buttons_.size(); ++i) {
        const OptionGroup::Entry& option = group.options[i];
        OptionButton& button = *buttons_[i];
        const bool chosen = group.chosenIn(option.frame) == option.index;
        showCaption(button, option.caption);
        if (button.isChecked() != chosen)
            button.showChecked(chosen);
        const bool hidden = button.isHidden() && button.testAttribute(Qt::WA_WState_ExplicitShowHide);
        if (hidden == option.visible)
            button.setVisible(option.visible);
        if (option.visible && (chosen || !tabStops.contains(option.frame)))
            tabStops[option.frame] = &button;
    }
    for (const auto& [frame, button] : tabStops)
        button->setFocusPolicy(Qt::StrongFocus);
}

} // namespace plotvue
