#include "window/FocusFrame.h"

#include <QEvent>
#include <QFrame>
#include <QPainter>

namespace Tensarix {

void Show_Focus(QFrame& view, const QEvent& event) {
    if (event.type() == QEvent::FocusIn || event.type() == QEvent::FocusOut)
        view.update();
    if (event.type() != QEvent::Paint || !view.hasFocus())
        return;
    QPainter painter(&view);
    painter.setPen(view.palette().color(QPalette::Highlight));
    painter.drawRect(view.rect().adjusted(0, 0, -1, -1));
}

} // namespace Tensarix
