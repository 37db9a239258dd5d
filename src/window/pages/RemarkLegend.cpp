#include "window/pages/RemarkLegend.h"

#include "window/FittingArea.h"
#include "window/RemarkLook.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>

namespace Tensarix {

namespace {

constexpr int wordsWidth = 52; // average characters
constexpr int cellMargin = 4;  // pixels

struct Entry {
    RemarkWeight Weight;
    const char* Name;
    const char* Words;
};
constexpr Entry entries[] = {
    {RemarkWeight::Note, "Note",
     "How to read the number: digits that are lost, a text left from before."},
    {RemarkWeight::Caution, "Caution",
     "The number isn't what its name says, or it could not be checked."},
    {RemarkWeight::Unsafe, "Unsafe",
     "Whoever designs with this number is on the unsafe side. The remark, and the line beside the "
     "table, give the number to use instead."},
};

// A row of a table with a number of that weight, as it looks there.
QPixmap Cells(RemarkWeight weight, const QWidget& widget) {
    const QFontMetrics metrics = widget.fontMetrics();
    const QPalette& palette = widget.palette();
    const int height = 2 * metrics.lineSpacing(), digits = metrics.horizontalAdvance("00000");
    const QRect number(0, 0, digits, height), value(digits, 0, 2 * digits, height);
    QPixmap pixmap(QSize(3 * digits + 1, height) * widget.devicePixelRatioF());
    pixmap.setDevicePixelRatio(widget.devicePixelRatioF());
    pixmap.fill(palette.color(QPalette::Base));
    QPainter painter(&pixmap);
    painter.setFont(widget.font());
    const bool note = weight == RemarkWeight::Note;
    if (!note)
        painter.fillRect(value, Remark_Ground(weight, palette));
    painter.setPen(palette.color(QPalette::Text));
    painter.drawRect(number.adjusted(0, 0, 0, -1));
    painter.drawRect(value.adjusted(0, 0, 0, -1));
    const bool sign = weight == RemarkWeight::Unsafe;
    const Qt::Alignment beside = sign ? Qt::AlignRight | Qt::AlignVCenter : Qt::AlignCenter;
    const auto side = static_cast<int>(beside.toInt());
    painter.drawText(number.adjusted(0, 0, -cellMargin, 0), side, QStringLiteral("3"));
    painter.drawText(value, Qt::AlignCenter, QStringLiteral("3.000"));
    Paint_Remark_Mark(painter, value, weight, palette);
    if (sign)
        Paint_Unsafe_Sign(painter, number, palette);
    return pixmap;
}

} // namespace

RemarkLegend::RemarkLegend(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("RemarkLegend"));
    setWindowTitle(QStringLiteral("Remarks"));
    auto* layout = new QGridLayout(this);
    int row = 0;
    for (const Entry& entry : entries) {
        auto* picture = new QLabel(this);
        picture->setPixmap(Cells(entry.Weight, *this));
        picture->setAccessibleName(QStringLiteral("How it looks"));
        layout->addWidget(picture, row, 0);
        auto* words = new QLabel(
            QStringLiteral("%1: %2").arg(QLatin1String(entry.Name), QLatin1String(entry.Words)),
            this);
        words->setWordWrap(true);
        words->setMinimumWidth(wordsWidth * words->fontMetrics().averageCharWidth());
        layout->addWidget(words, row++, 1);
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    layout->addWidget(buttons, row, 0, 1, 2);
    Let_Scroll(*this);
}

} // namespace Tensarix
