#include "desktop/windowwidget.h"

#include <QCloseEvent>

namespace plotvue {

// The child widgets refer to the controls, so they go first.
WindowWidget::~WindowWidget()
{
    qDeleteAll(findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
}

void WindowWidget::retire()
{
    controls_->disconnect();
    hide();
    deleteLater();
}

void WindowWidget::closeEvent(QCloseEvent* event)
{
    event->ignore();
    controls_->close();
}

} // namespace plotvue
