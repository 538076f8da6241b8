#include "desktop/contextmenu.h"

#include <QAbstractScrollArea>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPointer>

namespace plotvue {

namespace {

// Opens the menu and returns at once. The toolkit would wait until the menu is closed; if assistive
// technology closed the window meanwhile, the menu would be destroyed during that wait.
class Opener : public QObject {
public:
    explicit Opener(QWidget& widget) : QObject(&widget), widget_(widget)
    {
        widget.setContextMenuPolicy(
            Qt::ActionsContextMenu); // tells assistive technology that there is a menu
        widget.installEventFilter(this);
        if (auto* scrolling = qobject_cast<QAbstractScrollArea*>(&widget))
            scrolling->viewport()->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::ContextMenu)
            open(static_cast<QContextMenuEvent*>(event)->globalPos());
        else if (event->type() == QEvent::KeyPress && isMenuKey(static_cast<QKeyEvent&>(*event)))
            open(widget_.mapToGlobal(widget_.inputMethodQuery(Qt::ImCursorRectangle).toRect().center()));
        else
            return false;
        return true;
    }

private:
    // The toolkit opens the menu on the Menu key everywhere, but on Shift+F10 only on some systems.
    static bool isMenuKey(const QKeyEvent& event)
    {
        return event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier;
    }

    void open(QPoint place)
    {
        if (menu_)
            return;
        menu_ = new QMenu(&widget_);
        menu_->setAttribute(Qt::WA_DeleteOnClose);
        menu_->addActions(widget_.actions());
        menu_->popup(place);
    }

    QWidget& widget_;
    QPointer<QMenu> menu_; // null while it is closed
};

} // namespace

QAction* addToContextMenu(QWidget& widget, const QString& text, const QList<QKeySequence>& keys,
                          Qt::ShortcutContext keysIn, const std::function<void()>& triggered)
{
    if (widget.actions().isEmpty())
        new Opener(widget); // the widget owns it
    auto* action = new QAction(text, &widget);
    action->setShortcuts(keys);
    action->setShortcutContext(keysIn);
    action->setShortcutVisibleInContextMenu(true);
    action->setAutoRepeat(false);
    QObject::connect(action, &QAction::triggered, &widget, triggered);
    widget.addAction(action);
    return action;
}

} // namespace plotvue
