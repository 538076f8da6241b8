#include "desktop/displaytext.h"
#include "desktop/grid.h"
#include "platform/gridtext.h"

#include <algorithm>

namespace plotvue {

GridModel::GridModel(const GridBox& declared, Property<Grid>& grid, QObject* parent)
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
    const std::vector<Text> headings = headingsOf(*grid_);
    return column < static_cast<int>(headings.size()) ? displayTextOnOneLine(headings[std::size_t(column)])
                                                      : QString();
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
    const auto text = [&] { return toQString(cellText(grid_->cell(index.row() + 1, index.column()))); };
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
        return toQString(cellText(toText(heading(section))));
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignVCenter | (holdsFigures(section) ? Qt::AlignRight : Qt::AlignLeft));
    return {};
}

} // namespace plotvue
