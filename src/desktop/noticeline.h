// A line of text with a symbol above the content of a window, for a notice. It is hidden while there is none.
#pragma once

#include "platform/controls.h"

#include <QWidget>

namespace plotvue {

class NoticeLine : public QWidget {
    Q_OBJECT

public:
    NoticeLine(Property<Text>& notice, QWidget* parent);

    QString text() const { return text_; }
    QRect textBox() const;          // beside the symbol, in widget coordinates
    int maxHeight(int width) const; // of any notice

    QSize sizeHint() const override { return {0, height()}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void showNotice(const QString& text);
    // Sets the height for the current width. If a layout knew that the height depends on the width, the size
    // of the whole window would depend on it, too.
    void fitHeight();

    QString text_;
};

} // namespace plotvue
