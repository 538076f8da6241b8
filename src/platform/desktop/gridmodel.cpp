#include "platform/desktop/grid.h"
#include "platform/desktop/shown.h"

#include <algorithm>

namespace plotvue {

GridModel::GridModel(const GridBox& declared, Shown<Grid>& grid, QObject* parent)
    : QAbstractTableModel(parent),
      grid_(grid),
      figures_(declared.figures)
{
    grid.changed = [this] {
        beginResetModel();
        endResetModel();
    };
}

QString GridModel::heading(int column) const
{
    const QString heading = shownOnOneLine(grid_->format).section(u'|', column, column);
    return heading.startsWith(u'<') || heading.startsWith(u'>') ? heading.mid(1) : heading;
}

bool GridModel::holdsFigures(int column) const
{
    return std::find(figures_.begin(), figures_.end(), column) != figures_.end();
}

int GridModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : grid_->rows - 1;
}

int GridModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : grid_->columns;
}

QVariant GridModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const auto text = [&] { return shownOnOneLine(grid_->cell(index.row() + 1, index.column())).trimmed(); };
    switch (role) {
    case Qt::DisplayRole:
        return text();
    case Qt::ToolTipRole: // for a text that may not fit its column
        return text().size() > heading(index.column()).size() ? text() : QString();
    case Qt::TextAlignmentRole:
        return int(Qt::AlignVCenter | (holdsFigures(index.column()) ? Qt::AlignRight : Qt::AlignLeft));
    default:
        return {};
    }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical)
        return role == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
    if (role == Qt::DisplayRole)
        return heading(section).trimmed();
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignVCenter | (holdsFigures(section) ? Qt::AlignRight : Qt::AlignLeft));
    return {};
}

} // namespace plotvue
