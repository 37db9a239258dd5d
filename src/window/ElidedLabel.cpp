#include "window/ElidedLabel.h"

#include <QPainter>
#include <QStyle>

namespace Tensarix {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect place = contentsRect();
    style()->drawItemText(&painter, place, static_cast<int>(alignment()), palette(), isEnabled(),
                          fontMetrics().elidedText(text(), Qt::ElideRight, place.width()),
                          foregroundRole());
}

} // namespace Tensarix
