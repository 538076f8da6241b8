#include "platform/desktop/grid.h"
#include "platform/desktop/shown.h"

#include <algorithm>

namespace plotvue {

GridModel::GridModel(const GridBox& declared, QObject* parent)
    : QAbstractTableModel(parent),
      figures_(declared.figures)
{
    setFormat(declared.format);
    setRows(1);
}

void GridModel::setRows(int rows)
{
    beginResetModel();
    rows_ = rows;
    cells_.resize(static_cast<std::size_t>(std::max(rows - 1, 0)),
                  std::vector<Text>(static_cast<std::size_t>(columns_)));
    endResetModel();
}

void GridModel::setFormat(TextSpan format)
{
    beginResetModel();
    format_ = format;
    columns_ = columnsOf(format);
    for (std::vector<Text>& row : cells_)
        row.resize(static_cast<std::size_t>(columns_));
    endResetModel();
}

void GridModel::setCell(int row, int column, TextSpan text)
{
    cells_.at(static_cast<std::size_t>(row) - 1).at(static_cast<std::size_t>(column)) = text;
    const QModelIndex changed = index(row - 1, column);
    emit dataChanged(changed, changed);
}

Text GridModel::cell(int row, int column) const
{
    return cells_.at(static_cast<std::size_t>(row) - 1).at(static_cast<std::size_t>(column));
}

GridState GridModel::state() const
{
    return {format_, columns_, rows_, cells_};
}

QString GridModel::heading(int column) const
{
    const QString heading = shownOnOneLine(format_).section(u'|', column, column);
    return heading.startsWith(u'<') || heading.startsWith(u'>') ? heading.mid(1) : heading;
}

bool GridModel::holdsFigures(int column) const
{
    return std::find(figures_.begin(), figures_.end(), column) != figures_.end();
}

int GridModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(cells_.size());
}

int GridModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : columns_;
}

QVariant GridModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const auto text = [&] { return shownOnOneLine(cell(index.row() + 1, index.column())).trimmed(); };
    switch (role) {
    case Qt::DisplayRole:
        return text();
    case Qt::ToolTipRole: // of what hardly fits its column
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
