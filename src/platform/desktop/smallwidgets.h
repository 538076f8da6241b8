// The small widgets that the toolkit lacks.
#pragma once

#include "platform/controls.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

namespace plotvue {

// Shows text that can be selected and copied but not changed, without the frame of an input field.
class TextLine : public QLineEdit {
    Q_OBJECT

public:
    TextLine(const TextBox& declared, Shown<Text>& text, QWidget* parent);
};

// A list to read. Ctrl+C on it copies nothing, so that the clipboard keeps the captured screen.
class TextList : public QListWidget {
    Q_OBJECT

public:
    using QListWidget::QListWidget;

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

// An option that also counts as clicked when assistive technology toggles it.
class OptionButton : public QRadioButton {
    Q_OBJECT

public:
    using QRadioButton::QRadioButton;
    void showChecked(bool checked); // does not count as clicked

protected:
    void nextCheckState() override;
    void checkStateSet() override;

private:
    bool clicking_ = false;
};

// An arrow to the left in place of a caption.
class ArrowButton : public QPushButton {
    Q_OBJECT

public:
    using QPushButton::QPushButton;

protected:
    void paintEvent(QPaintEvent* event) override;
};

// A triangle that points up for gain, down for loss.
class GainLossPicture : public QWidget {
    Q_OBJECT

public:
    explicit GainLossPicture(const PictureBox& declared, QWidget* parent = nullptr);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    PictureBox::Shows shows_;
};

} // namespace plotvue
