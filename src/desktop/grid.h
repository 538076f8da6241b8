// The table widget of a grid: headings from a format string, and rows that the user can choose.
#pragma once

#include "platform/controls.h"

#include <QAbstractTableModel>
#include <QTableView>

namespace plotvue {

class GridModel : public QAbstractTableModel {
    Q_OBJECT

public:
    GridModel(const GridBox& declared, Property<Grid>& grid, QObject* parent);

    // A heading including its blanks, which define the width of its column.
    QString heading(int column) const;
    bool holdsFigures(int column) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    const Property<Grid>& grid_;
    std::vector<int> figures_;
};

class GridTable : public QTableView {
    Q_OBJECT

public:
    GridTable(const GridBox& declared, Property<Grid>& grid, QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void rowChosen(int row); // on a click or Enter; the first row below the headings is 1

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    int wantedWidth(int column) const;
    int wantedWidth() const;
    void fitRows();
    void fitColumns();

    GridModel* model_;
    bool fitting_ = false;      // true while fitColumns() sets the column widths
    bool widthsChosen_ = false; // the user has dragged a column border
};

} // namespace plotvue
