#include "window/MarkStyle.h"

#include "window/Theme.h"

#include <QApplication>
#include <QStyleOptionButton>

namespace Tensarix {

namespace {

const QString mendedStyle = QStringLiteral("fusion");
constexpr int darkerBy = 150; // per cent; what the style makes of the background for the line

QPalette With_Seen_Lines(QPalette palette) {
    const QColor back = palette.color(QPalette::Window), text = palette.color(QPalette::WindowText);
    const QColor line((back.red() + text.red()) / 2, (back.green() + text.green()) / 2,
                      (back.blue() + text.blue()) / 2);
    palette.setColor(QPalette::Window, line.lighter(darkerBy));
    return palette;
}

} // namespace

MarkStyle::MarkStyle() : QProxyStyle(mendedStyle) {}

void MarkStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                              QPainter* painter, const QWidget* widget) const {
    const auto* mark = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (element != PE_IndicatorRadioButton || !mark || !Is_Dark(option->palette))
        return QProxyStyle::drawPrimitive(element, option, painter, widget);
    QStyleOptionButton seen = *mark;
    seen.palette = With_Seen_Lines(seen.palette);
    QProxyStyle::drawPrimitive(element, &seen, painter, widget);
}

void Use_Mark_Style() {
    if (QApplication::style()->name() == mendedStyle)
        QApplication::setStyle(new MarkStyle);
}

} // namespace Tensarix
