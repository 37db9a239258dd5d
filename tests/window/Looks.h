// Where a widget stands and what it is painted with, as a line to be kept.
#pragma once

#include <QHeaderView>
#include <QImage>
#include <QWidget>

#include <map>

namespace Tensarix::Tests {

// The colours that take a twentieth of its area or more: grounds, borders, fills, and no letters.
inline QString Main_Colours(const QImage& image, const QRect& area) {
    constexpr int grain = 2, share = 20;
    std::map<QRgb, int> counts;
    int all = 0;
    const QRect inside = area & image.rect();
    for (int y = inside.top(); y <= inside.bottom(); y += grain)
        for (int x = inside.left(); x <= inside.right(); x += grain, ++all)
            ++counts[image.pixel(x, y)];
    QString text;
    for (const auto& [colour, count] : counts)
        if (count * share >= all)
            text += QLatin1Char(' ') + QString::number(colour & 0xFFFFFF, 16);
    return text;
}

// Of its rows or columns, each once where the next ones have it too.
inline QString Sizes(const QHeaderView& heads) {
    QString text;
    for (int i = 0; i < heads.count(); ++i)
        if (i == 0 || heads.sectionSize(i) != heads.sectionSize(i - 1))
            text += QStringLiteral(" %1").arg(heads.sectionSize(i));
    return text;
}

inline QString Look_Of(const QWidget& widget, const QImage& screen) {
    const QRect place{widget.mapTo(widget.window(), QPoint()), widget.size()};
    QString text = QStringLiteral("%1,%2 %3x%4")
                       .arg(widget.x())
                       .arg(widget.y())
                       .arg(widget.width())
                       .arg(widget.height());
    if (!widget.isEnabled())
        text += QStringLiteral(" disabled");
    if (widget.hasFocus())
        text += QStringLiteral(" focused");
    if (widget.focusPolicy() != Qt::NoFocus)
        text += QStringLiteral(" focus %1").arg(widget.focusPolicy());
    for (const auto& [word, size] :
         {std::pair{" least", widget.minimumSize()}, {" most", widget.maximumSize()}})
        if (size != QSize() && size != QSize(0, 0) &&
            size != QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX))
            text += QStringLiteral("%1 %2x%3")
                        .arg(QLatin1String(word))
                        .arg(size.width())
                        .arg(size.height());
    if (const auto* heads = qobject_cast<const QHeaderView*>(&widget))
        return text + Sizes(*heads);
    // What lies on it has colours of its own.
    return widget.findChild<QWidget*>() ? text : text + Main_Colours(screen, place);
}

} // namespace Tensarix::Tests
