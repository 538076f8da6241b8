#include "platform/desktop/grid.h"
#include "platform/desktop/shown.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QProxyStyle>
#include <QScrollBar>
#include <QStyleOption>

namespace plotvue {

namespace {

constexpr int cellMargin = 8, rowPadding = 7, rowsAtFirst = 10, rowsAtLeast = 3;

// The desktop's style with more air between the columns: figures would run into the text beside them.
class RoomyStyle : public QProxyStyle {
public:
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override
    {
        // Of a cell; the style adds one.
        return metric == PM_FocusFrameHMargin ? cellMargin - 1
                                              : QProxyStyle::pixelMetric(metric, option, widget);
    }
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override
    {
        const auto* heading = qstyleoption_cast<const QStyleOptionHeader*>(option);
        if (element != CE_Header || !heading)
            return QProxyStyle::drawControl(element, option, painter, widget);
        // In its parts: the whole would clip to itself in place of what is in sight, which shows in print.
        painter->save();
        painter->setClipRect(heading->rect, Qt::IntersectClip);
        QProxyStyle::drawControl(CE_HeaderSection, option, painter, widget);
        QStyleOptionHeader label = *heading;
        label.version = QStyleOptionHeader::Version; // not a later one, of which this is no copy
        const int more = cellMargin - pixelMetric(PM_HeaderMargin, option, widget);
        label.rect = subElementRect(SE_HeaderLabel, option, widget).adjusted(more, 0, -more, 0);
        QProxyStyle::drawControl(CE_HeaderLabel, &label, painter, widget);
        painter->restore();
    }
};

} // namespace

GridTable::GridTable(const GridBox& declared, Shown<Grid>& grid, QWidget* parent)
    : QTableView(parent),
      model_(new GridModel(declared, grid, this))
{
    setModel(model_);
    setAccessibleName(toQString(declared.spokenName));
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setAlternatingRowColors(true);
    auto* roomy = new RoomyStyle;
    roomy->setParent(this);
    setStyle(roomy);
    horizontalHeader()->setStyle(roomy);
    setShowGrid(false);
    setWordWrap(false);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);

    connect(this, &QTableView::clicked, this,
            [this](const QModelIndex& at) { emit rowChosen(at.row() + 1); });
    connect(model_, &GridModel::modelReset, this, &GridTable::fitColumns);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this] {
        if (!fitted_)
            widthsChosen_ = true;
    });
    fitRows();
    fitColumns();
}

int GridTable::wantedWidth(int column) const
{
    const QString heading = model_->heading(column);
    return horizontalHeader()->fontMetrics().horizontalAdvance(heading) + 2 * cellMargin;
}

int GridTable::wantedWidth() const
{
    int sum = 0;
    for (int column = 0; column < model_->columnCount(); ++column)
        sum += wantedWidth(column);
    return sum;
}

void GridTable::fitRows()
{
    const int height = fontMetrics().height() + rowPadding;
    verticalHeader()->setDefaultSectionSize(height);
    horizontalHeader()->setFixedHeight(height + 2);
}

// What the viewport has to spare goes to the columns of text, in proportion to their widths.
void GridTable::fitColumns()
{
    if (widthsChosen_)
        return;
    int texts = 0;
    for (int column = 0; column < model_->columnCount(); ++column)
        texts += model_->holdsFigures(column) ? 0 : wantedWidth(column);
    const int spare = qMax(0, viewport()->width() - wantedWidth());
    fitted_ = true;
    int left = spare, textsLeft = texts;
    for (int column = 0; column < model_->columnCount(); ++column) {
        int width = wantedWidth(column);
        if (!model_->holdsFigures(column)) {
            const int more = textsLeft > 0 ? left * width / textsLeft : 0;
            textsLeft -= width;
            left -= more;
            width += more;
        }
        setColumnWidth(column, width);
    }
    fitted_ = false;
}

QSize GridTable::sizeHint() const
{
    const int edges = 2 * frameWidth();
    return {wantedWidth() + edges + verticalScrollBar()->sizeHint().width(),
            horizontalHeader()->height() + rowsAtFirst * verticalHeader()->defaultSectionSize() + edges};
}

QSize GridTable::minimumSizeHint() const
{
    const int rows = horizontalHeader()->height() + rowsAtLeast * verticalHeader()->defaultSectionSize();
    return {qMin(sizeHint().width(), 240), rows + 2 * frameWidth()};
}

void GridTable::keyPressEvent(QKeyEvent* event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && currentIndex().isValid())
        emit rowChosen(currentIndex().row() + 1);
    else if (event->matches(QKeySequence::Copy))
        event->ignore(); // the clipboard holds the screen that the rows are from
    else
        QTableView::keyPressEvent(event);
}

void GridTable::focusInEvent(QFocusEvent* event)
{
    QTableView::focusInEvent(event);
    // The row that Enter would take is to be seen.
    const bool clicked = event->reason() == Qt::MouseFocusReason;
    if (!clicked && !selectionModel()->hasSelection() && model_->rowCount() > 0)
        selectRow(qMax(0, currentIndex().row()));
}

void GridTable::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    fitColumns();
}

void GridTable::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        fitRows();
        fitColumns();
    }
}

} // namespace plotvue
