#include "desktop/windowwidget.h"

#include <QCloseEvent>

namespace plotvue {

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
