#include "window/grid/GridModel.h"

#include "window/RemarkLook.h"
#include "window/Theme.h"
#include "window/To_Qt.h"

#include <QAbstractScrollArea>
#include <QBrush>
#include <QPainter>
#include <QWidget>

#include <algorithm>

namespace Tensarix {

namespace {

// A table without a head is names and their values.
QString Unseen_Head(bool fixed) {
    return fixed ? QStringLiteral("Name") : QStringLiteral("Value");
}

// What is cut off a number makes another one: in a cell that reaches over the edge of what shows of
// the view, the text ends before it, with an ellipsis.
QRect Place_In_View(const QStyleOptionViewItem& option) {
    QRect place = option.rect;
    if (const auto* view = qobject_cast<const QAbstractScrollArea*>(option.widget))
        place.setRight(
            std::min(place.right(), view->viewport()->visibleRegion().boundingRect().right()));
    return place;
}

} // namespace

QFont Cell_Font(QFont font, const CellStyle& style) {
    if (style.Tahoma)
        font.setFamilies({QStringLiteral("Tahoma"), font.family(), QStringLiteral("sans-serif")});
    font.setBold(style.Bold);
    return font;
}

Qt::Alignment Shown_Alignment(Alignment alignment) {
    const Qt::Alignment horizontal = alignment == Alignment::Left     ? Qt::AlignLeft
                                     : alignment == Alignment::Centre ? Qt::AlignHCenter
                                                                      : Qt::AlignRight;
    return horizontal | Qt::AlignVCenter;
}

GridModel::GridModel(const FlexGrid& grid, QWidget* view)
    : QAbstractTableModel(view), grid_(grid), view_(view) {}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : cols_;
}

bool GridModel::Has_Size_Of_Grid() const {
    return rows_ == grid_.Rows() - grid_.FixedRows() && cols_ == grid_.Cols();
}

void GridModel::Reset() {
    beginResetModel();
    rows_ = grid_.Rows() - grid_.FixedRows();
    cols_ = grid_.Cols();
    endResetModel();
}

void GridModel::Repaint() {
    if (rows_ > 0 && cols_ > 0)
        emit dataChanged(index(0, 0), index(rows_ - 1, cols_ - 1));
    if (grid_.FixedRows() > 0)
        emit headerDataChanged(Qt::Horizontal, 0, cols_ - 1);
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    const int row = index.row() + grid_.FixedRows();
    if (!index.isValid() || row >= grid_.Rows() || index.column() >= grid_.Cols())
        return {};
    return Cell(row, index.column(), role);
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    const bool head = orientation == Qt::Horizontal;
    const int row = head ? 0 : section + grid_.FixedRows();
    const int col = head ? section : 0;
    if (row >= grid_.Rows() || col >= grid_.Cols())
        return {};
    if (head && grid_.FixedRows() == 0)
        return role == Qt::DisplayRole ? QVariant(Unseen_Head(col < grid_.FixedCols()))
                                       : QVariant();
    if (head && col == grid_.Sort_Col())
        if (QVariant sorted = Sorted_Head(col, role); sorted.isValid())
            return sorted;
    return Cell(row, col, role);
}

// What the mark in the head tells, in words, before its remark.
QVariant GridModel::Sorted_Head(int col, int role) const {
    if (role == SortRole)
        return grid_.Sort_Descends();
    if (role != Qt::ToolTipRole && role != Qt::AccessibleDescriptionRole)
        return {};
    QString sorted = grid_.Sort_Descends() ? QStringLiteral("Sorted, the largest first")
                                           : QStringLiteral("Sorted, the smallest first");
    const QString remark = Cell(0, col, role).toString();
    return remark.isEmpty() ? sorted : sorted + QStringLiteral("\n") + remark;
}

QVariant GridModel::Cell(int row, int col, int role) const {
    const CellStyle& style = grid_.Style(row, col);
    switch (role) {
    case Qt::DisplayRole:
        return To_Qt(grid_.Text(row, col));
    case Qt::TextAlignmentRole: {
        const bool wraps = row < grid_.FixedRows() && grid_.Word_Wrap();
        if (col < grid_.FixedCols() && Has_Unsafe(row)) // beside its sign
            return QVariant(Qt::AlignRight | Qt::AlignVCenter);
        return static_cast<int>(Shown_Alignment(style.Align).toInt()) |
               (wraps ? Qt::TextWordWrap : 0);
    }
    case Qt::FontRole:
        return Cell_Font(view_->font(), style);
    case Qt::ForegroundRole:
        if (style.Fore != Colours::Standard)
            return QBrush(Shown_Colour(style.Fore, view_->palette()));
        return {};
    case Qt::BackgroundRole:
        return Ground(row, col);
    case Qt::ToolTipRole:
        return Tip_Text(Description(row, col));
    case Qt::AccessibleDescriptionRole:
        return Description(row, col);
    case RemarkRole:
        if (const std::string remark = grid_.Told_Of(row, col).Text; !remark.empty())
            return To_Qt(remark);
        return {};
    case WeightRole:
        return static_cast<int>(grid_.Told_Of(row, col).Weight);
    case UnsafeRowRole:
        return col < grid_.FixedCols() && Has_Unsafe(row);
    default:
        return {};
    }
}

QVariant GridModel::Ground(int row, int col) const {
    const CellStyle& style = grid_.Style(row, col);
    const bool head = row < grid_.FixedRows();
    if (const RemarkWeight weight = grid_.Told_Of(row, col).Weight;
        weight != RemarkWeight::Note && !head)
        return QBrush(Remark_Ground(weight, view_->palette()));
    if (style.Back != Colours::Standard)
        return QBrush(Shown_Colour(style.Back, view_->palette()));
    if (col == grid_.Marked_Col())
        return QBrush(Tint_Colour(Drawn::Ink::Measure, view_->palette()));
    if (row == grid_.Row() && !head && grid_.Highlight())
        return QBrush(Current_Row_Ground(view_->palette()));
    return {};
}

// The cell with the row's name tells what its sign shows.
QString GridModel::Description(int row, int col) const {
    const Advice told = grid_.Told_Of(row, col);
    if (told.Text.empty() && col < grid_.FixedCols() && Has_Unsafe(row))
        return QStringLiteral("Unsafe: a number in this row");
    return Remark_In_Words(told.Text, told.Weight);
}

bool GridModel::Has_Unsafe(int row) const {
    for (int col = 0; row >= grid_.FixedRows() && col < grid_.Cols(); ++col)
        if (grid_.Remark_Weight(row, col) == RemarkWeight::Unsafe)
            return true;
    return false;
}

void GridDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    QStyleOptionViewItem shown = option;
    shown.rect = Place_In_View(option);
    QStyledItemDelegate::paint(painter, shown, index);
    // The view's own grid lines can't be seen under many a dark theme.
    painter->setPen(Grid_Line_Colour(option.palette));
    painter->drawLine(option.rect.topRight(), option.rect.bottomRight());
    painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    if (index.data(GridModel::RemarkRole).isValid())
        Paint_Remark_Mark(*painter, option.rect,
                          RemarkWeight(index.data(GridModel::WeightRole).toInt()), option.palette,
                          option.state.testFlag(QStyle::State_Selected));
    if (index.data(GridModel::UnsafeRowRole).toBool())
        Paint_Unsafe_Sign(*painter, option.rect, option.palette);
}

} // namespace Tensarix
