// A grid of text: headings from a format string, rows that can be chosen.
#pragma once

#include "platform/controls.h"

#include <QAbstractTableModel>
#include <QTableView>

namespace plotvue {

class GridModel : public QAbstractTableModel {
    Q_OBJECT

public:
    GridModel(const GridBox& declared, Shown<Grid>& grid, QObject* parent);

    // A heading with the blanks that pad it to the width that its column is to have.
    QString heading(int column) const;
    bool holdsFigures(int column) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    const Shown<Grid>& grid_;
    std::vector<int> figures_;
};

class GridTable : public QTableView {
    Q_OBJECT

public:
    GridTable(const GridBox& declared, Shown<Grid>& grid, QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void rowChosen(int row); // clicked, or Enter on it; 1 is the first under the headings

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
    bool fitted_ = false;       // while the sections are being fitted
    bool widthsChosen_ = false; // by a person, who has dragged a border
};

} // namespace plotvue
