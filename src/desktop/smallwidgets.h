// Small widgets that the toolkit does not provide.
#pragma once

#include "platform/controls.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

namespace plotvue {

// Read-only text that can be selected and copied, without the frame of an input field.
class TextLine : public QLineEdit {
    Q_OBJECT

public:
    TextLine(const TextBox& declared, Property<Text>& text, QWidget* parent);

signals:
    void copyKeyPressed();

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

// A read-only list. Ctrl+C does nothing, so that the captured screen stays on the clipboard.
class TextList : public QListWidget {
    Q_OBJECT

public:
    using QListWidget::QListWidget;

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

// A radio button that also emits clicked() when assistive technology toggles it.
class OptionButton : public QRadioButton {
    Q_OBJECT

public:
    using QRadioButton::QRadioButton;
    void showChecked(bool checked); // does not emit clicked()

protected:
    void nextCheckState() override;
    void checkStateSet() override;

private:
    bool clicking_ = false;
};

// A button with an arrow to the left instead of a caption.
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
    PictureBox::Symbol symbol_;
};

} // namespace plotvue
