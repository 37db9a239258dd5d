#include "window/calculator/CalcDigits.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Tensarix {

namespace {

QFont Fixed_Font(double pixelSize) {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPixelSize(std::max(1, static_cast<int>(pixelSize)));
    font.setBold(true);
    return font;
}

// Of a character in the font, for a font of one pixel.
struct CharacterSize {
    double Width, Height;
};

CharacterSize Character_Size() {
    constexpr double sample = 100;
    const QFontMetricsF metrics(Fixed_Font(sample));
    return {metrics.horizontalAdvance(QLatin1Char('0')) / sample, metrics.height() / sample};
}

} // namespace

CalcDigits::CalcDigits(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void CalcDigits::Set_Room(int characters, double leastSize) {
    characters_ = characters;
    leastSize_ = leastSize;
    updateGeometry();
}

QSize CalcDigits::minimumSizeHint() const {
    const CharacterSize one = Character_Size();
    const double size = QFontInfo(font()).pixelSize() * leastSize_;
    return QSize(static_cast<int>(std::ceil(one.Width * size * characters_)),
                 static_cast<int>(std::ceil(one.Height * size)));
}

double CalcDigits::Full_Size(const QSize& place) const {
    const CharacterSize one = Character_Size();
    const auto length = std::max<qsizetype>(characters_, text().size());
    return std::min(place.width() / (one.Width * static_cast<double>(length)),
                    place.height() / one.Height);
}

void CalcDigits::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const double fontSize = Full_Size(size());
    painter.setFont(Fixed_Font(fontSize));
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect().translated(0, static_cast<int>(-raise_ * fontSize)),
                     static_cast<int>(alignment()) | Qt::TextSingleLine, text());
}

} // namespace Tensarix
