#include "window/RemarkLook.h"

#include "window/Theme.h"
#include "window/To_Qt.h"

#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QStringList>

namespace Tensarix {

namespace {

constexpr int noteSize = 6, cautionSize = 10, selectedSize = 14; // pixels of the corner
constexpr int tipColumns = 60;
constexpr int lineWidth = 2; // of the frame around what is unsafe
constexpr int besideText = 3;

struct Grounds {
    QRgb Caution, Unsafe;
};
constexpr Grounds lightGrounds{0xFFF3C4, 0xFFC04D}, darkGrounds{0x40391B, 0x663C00};

QColor Blend(const QColor& below, const QColor& above, double part) {
    const auto mix = [part](int a, int b) { return static_cast<int>(a + (b - a) * part); };
    return {mix(below.red(), above.red()), mix(below.green(), above.green()),
            mix(below.blue(), above.blue())};
}

QColor Mark_Colour(RemarkWeight weight, const QPalette& palette, bool selected) {
    constexpr double quiet = 0.5;
    const QColor text = palette.color(selected ? QPalette::HighlightedText : QPalette::Text);
    if (weight == RemarkWeight::Note)
        return Blend(palette.color(selected ? QPalette::Highlight : QPalette::Base), text, quiet);
    return !selected                         ? text
           : weight == RemarkWeight::Caution ? lightGrounds.Caution
                                             : lightGrounds.Unsafe;
}

} // namespace

QColor Remark_Ground(RemarkWeight weight, const QPalette& palette) {
    const Grounds& grounds = Is_Dark(palette) ? darkGrounds : lightGrounds;
    switch (weight) {
    case RemarkWeight::Caution:
        return grounds.Caution;
    case RemarkWeight::Unsafe:
        return grounds.Unsafe;
    case RemarkWeight::Note:
        break;
    }
    return {};
}

QColor Current_Row_Ground(const QPalette& palette) {
    constexpr double lightly = 0.12;
    return Blend(palette.color(QPalette::Base), palette.color(QPalette::Highlight), lightly);
}

void Paint_Remark_Mark(QPainter& painter, const QRect& cell, RemarkWeight weight,
                       const QPalette& palette, bool selected) {
    const bool note = weight == RemarkWeight::Note;
    const int size = note ? noteSize : selected ? selectedSize : cautionSize;
    const QPoint corner = cell.topRight() + QPoint(1, 0);
    QPainterPath mark(corner);
    mark.lineTo(corner - QPoint(size, 0));
    mark.lineTo(corner + QPoint(0, size));
    mark.closeSubpath();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor colour = Mark_Colour(weight, palette, selected);
    painter.fillPath(mark, colour);
    if (selected && !note) { // what hides the tinted ground
        painter.setPen(QPen(colour, lineWidth));
        painter.drawRect(QRectF(cell).adjusted(1, 1, -1, -1));
    }
    painter.restore();
}

void Paint_Unsafe_Sign(QPainter& painter, const QRect& cell, const QPalette& palette) {
    const double height = qMin(cell.height() - 6, painter.fontMetrics().height());
    const QRectF place(cell.left() + 2, cell.center().y() - height / 2, height, height);
    QPainterPath sign(QPointF(place.center().x(), place.top()));
    sign.lineTo(place.bottomRight());
    sign.lineTo(place.bottomLeft());
    sign.closeSubpath();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette.color(QPalette::Text));
    painter.setBrush(Remark_Ground(RemarkWeight::Unsafe, palette));
    painter.drawPath(sign);
    QFont bold = painter.font();
    bold.setBold(true);
    bold.setPixelSize(qMax(6, static_cast<int>(height * 0.7)));
    painter.setFont(bold);
    painter.drawText(place.adjusted(0, height * 0.2, 0, 0), Qt::AlignCenter, QStringLiteral("!"));
    painter.restore();
}

QString Remark_In_Words(const std::string& remark, RemarkWeight weight) {
    const QString text = To_Qt(remark);
    const std::string_view word = Weight_Word(weight);
    return remark.empty() || weight == RemarkWeight::Note
               ? text
               : To_Qt(word) + QStringLiteral(": ") + text;
}

QString Heavy_Word(RemarkWeight weight) {
    const std::string_view word = Weight_Word(weight);
    return weight == RemarkWeight::Note ? QString() : To_Qt(word);
}

QString Tip_Text(const QString& text) {
    QStringList lines;
    for (const QString& given : text.split(QLatin1Char('\n'))) {
        QString line;
        for (const QString& word : given.split(QLatin1Char(' '))) {
            if (!line.isEmpty() && line.size() + 1 + word.size() > tipColumns) {
                lines.append(line);
                line.clear();
            }
            line += line.isEmpty() ? word : QLatin1Char(' ') + word;
        }
        lines.append(line);
    }
    return lines.join(QLatin1Char('\n'));
}

void Show_Weight(QLabel& label, RemarkWeight weight) {
    const bool heavy = weight != RemarkWeight::Note && !label.text().isEmpty();
    if (!heavy && !label.autoFillBackground())
        return; // it looks as its form has it
    QPalette palette;
    if (heavy)
        palette.setColor(label.backgroundRole(), Remark_Ground(weight, palette));
    label.setPalette(palette);
    label.setAutoFillBackground(heavy);
    label.setFrameStyle(heavy ? static_cast<int>(QFrame::Box) | QFrame::Plain : QFrame::NoFrame);
    label.setLineWidth(weight == RemarkWeight::Unsafe ? lineWidth : 1);
    if (label.wordWrap())
        label.setMargin(heavy ? besideText : 0);
}

void Show_Weight(QLineEdit& box, RemarkWeight weight) {
    QPalette palette = box.palette();
    const QPalette usual;
    palette.setColor(QPalette::Base, weight == RemarkWeight::Note ? usual.color(QPalette::Base)
                                                                  : Remark_Ground(weight, usual));
    box.setPalette(palette);
    QFont font = box.font();
    font.setUnderline(weight != RemarkWeight::Note);
    font.setItalic(weight == RemarkWeight::Unsafe);
    box.setFont(font);
}

} // namespace Tensarix
