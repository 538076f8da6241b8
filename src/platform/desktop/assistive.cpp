#include "platform/desktop/assistive.h"

#include "platform/desktop/noticeline.h"
#include "platform/desktop/smallwidgets.h"
#include "platform/desktop/windowwidget.h"

#include <QAccessibleWidget>

namespace plotvue {

namespace {

QAccessibleInterface* makeAccessible(const QString&, QObject* object)
{
    if (auto* window = qobject_cast<WindowWidget*>(object))
        return new QAccessibleWidget(window, QAccessible::Window);
    if (auto* picture = qobject_cast<GainLossPicture*>(object))
        return new QAccessibleWidget(picture, QAccessible::Graphic);
    if (auto* notice = qobject_cast<NoticeLine*>(object))
        return new QAccessibleWidget(notice, QAccessible::AlertMessage);
    return nullptr;
}

} // namespace

void offerWindowsToAssistiveTechnology()
{
    static const bool offered = (QAccessible::installFactory(makeAccessible), true);
    Q_UNUSED(offered);
}

} // namespace plotvue
