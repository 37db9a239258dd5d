#include "window/ProgramStyle.h"

#include "window/Theme.h"

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

int ProgramStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* data) const {
    return hint == SH_ComboBox_Popup ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
    const auto* mark = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (element != PE_IndicatorRadioButton || !mark || !Is_Dark(option->palette) ||
        baseStyle()->name() != mendedStyle)
        return QProxyStyle::drawPrimitive(element, option, painter, widget);
    QStyleOptionButton seen = *mark;
    seen.palette = With_Seen_Lines(seen.palette);
    QProxyStyle::drawPrimitive(element, &seen, painter, widget);
}

} // namespace Tensarix
