// The small widgets that the toolkit lacks.
#pragma once

#include "platform/controls.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

namespace plotvue {

// Shows text that can be selected and copied, and does not look as if it took any.
class TextLine : public QLineEdit {
    Q_OBJECT

public:
    TextLine(const TextBox& declared, Shown<Text>& text, QWidget* parent);
};

// A list to be read: its rows cannot be copied over the screen that the clipboard holds.
class TextList : public QListWidget {
    Q_OBJECT

public:
    using QListWidget::QListWidget;

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

// An option that is clicked when assistive technology toggles it, too.
class OptionButton : public QRadioButton {
    Q_OBJECT

public:
    using QRadioButton::QRadioButton;
    void showChecked(bool checked); // which is no click

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
