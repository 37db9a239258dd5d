#include "window/grid/HeadView.h"

#include "window/RemarkLook.h"
#include "window/grid/GridModel.h"

#include <QBrush>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <utility>

namespace Tensarix {

namespace {

constexpr int headMargin = 4;
constexpr int arrowWidth = 9, arrowHeight = 6;

// In the lower right corner: up for ascending, down for descending.
void Paint_Sort_Mark(QPainter& painter, const QRect& head, bool descends, const QColor& colour) {
    const QRect place(head.right() - headMargin - arrowWidth,
                      head.bottom() - headMargin - arrowHeight, arrowWidth, arrowHeight);
    QPainterPath arrow;
    arrow.moveTo(descends ? place.topLeft() : place.bottomLeft());
    arrow.lineTo(descends ? place.topRight() : place.bottomRight());
    arrow.lineTo(QPointF(place.center().x() + 0.5, descends ? place.bottom() : place.top()));
    arrow.closeSubpath();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(arrow, colour);
}

} // namespace

HeadView::HeadView(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
    setSectionsClickable(false);
    setHighlightSections(false);
}

void HeadView::mousePressEvent(QMouseEvent* event) {
    const bool atEdge = cursor().shape() == Qt::SplitHCursor;
    QHeaderView::mousePressEvent(event);
    pressed_ = event->button() == Qt::LeftButton && !atEdge
                   ? logicalIndexAt(event->position().toPoint())
                   : -1;
}

void HeadView::mouseReleaseEvent(QMouseEvent* event) {
    QHeaderView::mouseReleaseEvent(event);
    const int pressed = std::exchange(pressed_, -1);
    if (pressed >= 0 && pressed == logicalIndexAt(event->position().toPoint()))
        emit Head_Clicked(pressed);
}

QSize HeadView::sectionSizeFromContents(int section) const {
    const QString text = model()->headerData(section, Qt::Horizontal, Qt::DisplayRole).toString();
    const int flags = model()->headerData(section, Qt::Horizontal, Qt::TextAlignmentRole).toInt();
    const int width = sectionSize(section) - 2 * headMargin;
    const QSize size =
        (flags & Qt::TextWordWrap) != 0
            ? fontMetrics().boundingRect(0, 0, width, QWIDGETSIZE_MAX, flags, text).size()
            : fontMetrics().size(0, text);
    return {size.width() + 2 * headMargin, size.height() + 2 * headMargin};
}

void HeadView::paintSection(QPainter* painter, const QRect& rect, int section) const {
    const auto head = [this, section](int role) {
        return model()->headerData(section, Qt::Horizontal, role);
    };
    painter->save();
    const QVariant back = head(Qt::BackgroundRole);
    painter->fillRect(rect, back.isValid() ? back.value<QBrush>() : palette().button());
    painter->setPen(palette().color(QPalette::Mid));
    painter->drawLine(rect.topRight(), rect.bottomRight());
    painter->drawLine(rect.bottomLeft(), rect.bottomRight());
    const QVariant fore = head(Qt::ForegroundRole);
    painter->setPen(fore.isValid() ? fore.value<QBrush>().color()
                                   : palette().color(QPalette::ButtonText));
    painter->setFont(head(Qt::FontRole).value<QFont>());
    painter->drawText(rect.adjusted(headMargin, 0, -headMargin, 0),
                      head(Qt::TextAlignmentRole).toInt(), head(Qt::DisplayRole).toString());
    if (const QVariant sort = head(GridModel::SortRole); sort.isValid())
        Paint_Sort_Mark(*painter, rect, sort.toBool(), painter->pen().color());
    painter->restore();
    if (head(GridModel::RemarkRole).isValid())
        Paint_Remark_Mark(*painter, rect, RemarkWeight(head(GridModel::WeightRole).toInt()),
                          palette());
}

} // namespace Tensarix
