// A FlexGrid as a table model: the grid's fixed row is the head, the rows below it are the rows.
#pragma once

#include "controls/FlexGrid.h"

#include <QAbstractTableModel>
#include <QFont>
#include <QStyledItemDelegate>

class QWidget;

namespace Tensarix {

class GridModel final : public QAbstractTableModel {
    Q_OBJECT

  public:
    enum {
        RemarkRole = Qt::UserRole,
        WeightRole,    // of the remark, a number
        UnsafeRowRole, // of a cell in the fixed columns: something in its row is unsafe
        SortRole       // of a head: whether the sorting by it descends
    };

    GridModel(const FlexGrid& grid, QWidget* view);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    // The grid has another size.
    void Reset();
    // Cells have changed.
    void Repaint();
    bool Has_Size_Of_Grid() const;

  private:
    QVariant Cell(int row, int col, int role) const;
    QVariant Ground(int row, int col) const;
    QString Description(int row, int col) const;
    bool Has_Unsafe(int row) const;
    QVariant Sorted_Head(int col, int role) const;

    const FlexGrid& grid_;
    QWidget* view_;
    int rows_ = 0, cols_ = 0;
};

Qt::Alignment Shown_Alignment(Alignment alignment);

// The font of the view, as the cell wants it.
QFont Cell_Font(QFont font, const CellStyle& style);

// Paints a cell, with the looks of its remark.
class GridDelegate final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};

} // namespace Tensarix
