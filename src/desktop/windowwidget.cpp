#include "desktop/windowwidget.h"

#include <QCloseEvent>

namespace plotvue {

// The child widgets refer to the controls, so they are destroyed before them.
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
