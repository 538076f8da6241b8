// The small widgets that the toolkit lacks.
#pragma once

#include "platform/declaration.h"

#include <QLineEdit>
#include <QPushButton>

namespace plotvue {

// Shows text that can be selected and copied, and does not look as if it took any.
class TextLine : public QLineEdit {
    Q_OBJECT

public:
    explicit TextLine(const TextBox& declared, QWidget* parent = nullptr);
    void show(TextView text);
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
