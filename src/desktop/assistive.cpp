#include "desktop/assistive.h"

#include "desktop/noticeline.h"
#include "desktop/smallwidgets.h"
#include "desktop/windowwidget.h"

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
