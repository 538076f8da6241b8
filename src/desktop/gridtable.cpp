#include "desktop/displaytext.h"
#include "desktop/grid.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QProxyStyle>
#include <QScrollBar>
#include <QStyleOption>

namespace plotvue {

namespace {

constexpr int cellMargin = 8, rowPadding = 7, preferredRows = 10, minRows = 3;

// The desktop's style with wider cell margins, so that figures do not touch the text in the next column.
class RoomyStyle : public QProxyStyle {
public:
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override
    {
        // The horizontal margin of a cell; the style adds one pixel.
        return metric == PM_FocusFrameHMargin ? cellMargin - 1
                                              : QProxyStyle::pixelMetric(metric, option, widget);
    }
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override
    {
        const auto* heading = qstyleoption_cast<const QStyleOptionHeader*>(option);
        if (element != CE_Header || !heading)
            return QProxyStyle::drawControl(element, option, painter, widget);
        // CE_Header would replace the painter's clip region, so that printed headings extend beyond the
        // visible part of the table. Therefore the section and the label are drawn separately.
        painter->save();
        painter->setClipRect(heading->rect, Qt::IntersectClip);
        QProxyStyle::drawControl(CE_HeaderSection, option, painter, widget);
        QStyleOptionHeader label = *heading;
        label.version = QStyleOptionHeader::Version; // the copy holds only the fields of this version
        const int more = cellMargin - pixelMetric(PM_HeaderMargin, option, widget);
        label.rect = subElementRect(SE_HeaderLabel, option, widget).adjusted(more, 0, -more, 0);
        QProxyStyle::drawControl(CE_HeaderLabel, &label, painter, widget);
        painter->restore();
    }
};

} // namespace

GridTable::GridTable(const GridBox& declared, Property<Grid>& grid, QWidget* parent)
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
        if (!fitting_)
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

// Distributes the spare width of the viewport among the text columns in proportion to their widths.
void GridTable::fitColumns()
{
    if (widthsChosen_)
        return;
    int texts = 0;
    for (int column = 0; column < model_->columnCount(); ++column)
        texts += model_->holdsFigures(column) ? 0 : wantedWidth(column);
    const int spare = qMax(0, viewport()->width() - wantedWidth());
    fitting_ = true;
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
    fitting_ = false;
}

QSize GridTable::sizeHint() const
{
    const int edges = 2 * frameWidth();
    return {wantedWidth() + edges + verticalScrollBar()->sizeHint().width(),
            horizontalHeader()->height() + preferredRows * verticalHeader()->defaultSectionSize() + edges};
}

QSize GridTable::minimumSizeHint() const
{
    const int rows = horizontalHeader()->height() + minRows * verticalHeader()->defaultSectionSize();
    return {qMin(sizeHint().width(), 240), rows + 2 * frameWidth()};
}

void GridTable::keyPressEvent(QKeyEvent* event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && currentIndex().isValid())
        emit rowChosen(currentIndex().row() + 1);
    else
        QTableView::keyPressEvent(event);
}

void GridTable::focusInEvent(QFocusEvent* event)
{
    QTableView::focusInEvent(event);
    // Select the row that Enter would choose, so that the user can see it.
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
