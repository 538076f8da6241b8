#include "desktop/chart/chartaccessible.h"

#include "desktop/chart/chartwidget.h"
#include "desktop/chart/qtext.h"

#include <QAccessibleWidget>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QPointer>

#include <map>

namespace plotvue {

namespace {

class PointAccessible : public QAccessibleInterface {
public:
    PointAccessible(ChartWidget* chart, int point) : chart_(chart), point_(point) {}

    bool isValid() const override { return chart_ && point_ < chart_->points(); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(chart_); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    void setText(QAccessible::Text, const QString&) override {}
    QAccessible::Role role() const override { return QAccessible::ListItem; }

    QString text(QAccessible::Text kind) const override
    {
        if (kind != QAccessible::Name || !isValid())
            return {};
        return toQString(chart_->plotData().sentence(point_));
    }

    QRect rect() const override
    {
        if (!isValid())
            return {};
        const QRect slot = chart_->pointRect(point_);
        return {chart_->mapToGlobal(slot.topLeft()), slot.size()};
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invalid = !isValid();
        state.focusable = state.selectable = state.readOnly = true;
        state.selected = isValid() && chart_->currentPoint() == point_;
        state.focused = state.selected && chart_->hasFocus();
        return state;
    }

private:
    QPointer<ChartWidget> chart_;
    int point_;
};

class ChartAccessible : public QAccessibleWidget {
public:
    explicit ChartAccessible(ChartWidget* chart) : QAccessibleWidget(chart, QAccessible::Chart) {}
    ~ChartAccessible() override
    {
        for (const auto& [point, id] : points_)
            QAccessible::deleteAccessibleInterface(id);
    }

    int childCount() const override { return chart() ? chart()->points() : 0; }

    QAccessibleInterface* child(int point) const override
    {
        if (point < 0 || point >= childCount())
            return nullptr;
        auto known = points_.find(point);
        if (known == points_.end()) {
            auto* made = new PointAccessible(chart(), point);
            known = points_.emplace(point, QAccessible::registerAccessibleInterface(made)).first;
        }
        return QAccessible::accessibleInterface(known->second);
    }

    int indexOfChild(const QAccessibleInterface* wanted) const override
    {
        for (const auto& [point, id] : points_)
            if (QAccessible::accessibleInterface(id) == wanted)
                return point;
        return -1;
    }

    QAccessibleInterface* childAt(int x, int y) const override
    {
        return chart() ? child(chart()->pointAt(chart()->mapFromGlobal(QPoint(x, y)))) : nullptr;
    }

    QAccessibleInterface* focusChild() const override
    {
        return chart() && chart()->hasFocus() ? child(chart()->currentPoint()) : nullptr;
    }

    QString text(QAccessible::Text kind) const override
    {
        const Text titles = chart() && kind == QAccessible::Name ? titlesInOneLine(chart()->chart()) : Text();
        return titles.empty() ? QAccessibleWidget::text(kind) : toQString(titles);
    }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (chart() && chart()->contextMenuPolicy() == Qt::ActionsContextMenu)
            names += showMenuAction();
        return names;
    }

    void doAction(const QString& action) override
    {
        if (!chart() || action != showMenuAction())
            return QAccessibleWidget::doAction(action);
        const QPoint middle = chart()->rect().center();
        QContextMenuEvent event(QContextMenuEvent::Other, middle, chart()->mapToGlobal(middle));
        QCoreApplication::sendEvent(chart(), &event);
    }

private:
    ChartWidget* chart() const { return qobject_cast<ChartWidget*>(object()); }

    mutable std::map<int, QAccessible::Id> points_; // those that were requested so far
};

QAccessibleInterface* makeAccessible(const QString&, QObject* object)
{
    auto* chart = qobject_cast<ChartWidget*>(object);
    return chart ? new ChartAccessible(chart) : nullptr;
}

} // namespace

void offerChartsToAssistiveTechnology()
{
    static const bool offered = (QAccessible::installFactory(makeAccessible), true);
    Q_UNUSED(offered);
}

void announceContent(ChartWidget& chart)
{
    if (!QAccessible::isActive())
        return;
    for (int point = -1; point < chart.points(); ++point) { // -1 is the chart itself
        QAccessibleEvent event(&chart, QAccessible::NameChanged);
        event.setChild(point);
        QAccessible::updateAccessibility(&event);
    }
}

void announceCurrentPoint(ChartWidget& chart)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent event(&chart, chart.hasFocus() ? QAccessible::Focus : QAccessible::Selection);
    if (chart.currentPoint() >= 0)
        event.setChild(chart.currentPoint());
    QAccessible::updateAccessibility(&event);
}

} // namespace plotvue
