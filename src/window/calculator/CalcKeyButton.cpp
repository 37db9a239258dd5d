#include "window/calculator/CalcKeyButton.h"

#include "window/Theme.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace Tensarix {

namespace {

constexpr int litMs = 140;
constexpr double cornerPart = 0.14; // of the height
constexpr double captionPart = 0.4; // of the height, where there is room
constexpr double digitPart = 0.5;   // the same for digits and operators
constexpr double wordPart = 0.27;   // of the width, so that all words of a page have one size
constexpr double maxGrowth = 2.2;   // of a caption in a large window
constexpr double sidePart = 0.86;   // of the width, for the caption

struct KeyColours {
    QColor Back, Text;
};

QColor Mix(const QColor& a, const QColor& b, double partOfB) {
    const auto mix = [partOfB](float x, float y) {
        return x + (y - x) * static_cast<float>(partOfB);
    };
    return QColor::fromRgbF(mix(a.redF(), b.redF()), mix(a.greenF(), b.greenF()),
                            mix(a.blueF(), b.blueF()));
}

constexpr QRgb warmLight = 0xFFB3402A, warmDark = 0xFFC8573F;
constexpr QRgb accentLight = 0xFF1F5FA8, accentDark = 0xFF4C8BD6;

KeyColours Colours_Of(CalcKeyRole role, const QPalette& palette) {
    const bool dark = Is_Dark(palette);
    const QColor button = palette.color(QPalette::Button),
                 text = palette.color(QPalette::ButtonText);
    const QColor accent(dark ? accentDark : accentLight), warm(dark ? warmDark : warmLight);
    const QColor lift = dark ? Mix(button, text, 0.16) : QColor(Qt::white);
    switch (role) {
    case CalcKeyRole::Digit:
        return {lift, text};
    case CalcKeyRole::Operator:
    case CalcKeyRole::Accent:
        return {Mix(button, accent, dark ? 0.42 : 0.28), text};
    case CalcKeyRole::Equals:
        return {Mix(accent, Qt::black, dark ? 0.22 : 0), Qt::white};
    case CalcKeyRole::Clear:
        return {Mix(warm, Qt::black, dark ? 0.2 : 0), Qt::white};
    case CalcKeyRole::Function:
        return {Mix(button, text, dark ? 0.07 : 0.09), text};
    case CalcKeyRole::Plain:
        break;
    }
    return {button, text};
}

bool Is_Large(CalcKeyRole role) {
    return role == CalcKeyRole::Digit || role == CalcKeyRole::Operator ||
           role == CalcKeyRole::Equals;
}

} // namespace

CalcKeyButton::CalcKeyButton(CalcKeyRole role, const QString& richCaption, QWidget* parent)
    : QAbstractButton(parent), role_(role), richCaption_(richCaption) {
    setFocusPolicy(Qt::TabFocus); // a click leaves the focus where it is
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    lit_.setSingleShot(true);
    lit_.setInterval(litMs);
    connect(&lit_, &QTimer::timeout, this, qOverload<>(&QWidget::update));
}

void CalcKeyButton::Light() {
    lit_.start();
    update();
}

double CalcKeyButton::Base_Size() const {
    const double size = QFontInfo(font()).pixelSize();
    return Is_Large(role_) ? size * 1.35 : size;
}

QSizeF CalcKeyButton::Caption_Size(double pixelSize) const {
    QFont sized = font();
    sized.setPixelSize(std::max(1, static_cast<int>(pixelSize)));
    QStaticText caption(richCaption_);
    caption.prepare({}, sized);
    return caption.size();
}

QSize CalcKeyButton::sizeHint() const {
    const double base = QFontInfo(font()).pixelSize();
    return QSize(static_cast<int>(base * 4.4),
                 static_cast<int>(base * (role_ == CalcKeyRole::Plain ? 2.2 : 3.9)));
}

QSize CalcKeyButton::minimumSizeHint() const {
    const double base = QFontInfo(font()).pixelSize();
    return QSize(static_cast<int>(std::max(base * 3, Caption_Size(base).width() / sidePart)),
                 static_cast<int>(base * (role_ == CalcKeyRole::Plain ? 1.9 : 2.5)));
}

// As large as the key allows, within bounds.
double CalcKeyButton::Fitting_Size() const {
    const double base = Base_Size();
    const double room = Is_Large(role_) ? height() * digitPart
                                        : std::min(height() * captionPart, width() * wordPart);
    const double size = std::clamp(room, base, base * maxGrowth);
    const QSizeF wanted = Caption_Size(size);
    const double fit = std::min(width() * sidePart / wanted.width(), height() / wanted.height());
    return fit < 1 ? size * fit : size;
}

void CalcKeyButton::Paint_Body(QPainter& painter, const QRectF& body) const {
    const KeyColours colours = Colours_Of(role_, palette());
    QColor back = colours.Back;
    if (Looks_Pressed())
        back = Mix(back, colours.Text, 0.3);
    else if (underMouse() && isEnabled())
        back = Mix(back, colours.Text, 0.1);
    const double corner = std::min(body.height(), body.width()) * cornerPart;
    const QColor edge = Mix(back, Qt::black, 0.3);
    if (!Looks_Pressed()) { // the foot of a raised key
        painter.setPen(Qt::NoPen);
        painter.setBrush(edge);
        painter.drawRoundedRect(body.adjusted(0, 1.5, 0, 1.5), corner, corner);
    }
    painter.setPen(QPen(edge, 1));
    painter.setBrush(back);
    painter.drawRoundedRect(body, corner, corner);
    if (!hasFocus())
        return;
    painter.setPen(QPen(colours.Text, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(body.adjusted(3, 3, -3, -3), corner, corner);
}

void CalcKeyButton::Paint_Caption(QPainter& painter, const QRectF& body) const {
    QFont sized = font();
    sized.setPixelSize(std::max(1, static_cast<int>(Fitting_Size())));
    QStaticText caption(richCaption_);
    caption.setTextOption(QTextOption(Qt::AlignHCenter));
    caption.prepare({}, sized);
    caption.setTextWidth(caption.size().width()); // which centres the lines
    painter.setFont(sized);
    painter.setPen(Colours_Of(role_, palette()).Text);
    const QPointF middle = body.center();
    painter.drawStaticText(
        QPointF(middle.x() - caption.size().width() / 2, middle.y() - caption.size().height() / 2),
        caption);
}

void CalcKeyButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QRectF body = QRectF(rect()).adjusted(1.5, 1, -1.5, -3);
    if (Looks_Pressed())
        body.translate(0, 1.5);
    Paint_Body(painter, body);
    Paint_Caption(painter, body);
}

// Enter, letters and the rest are for the calculator.
void CalcKeyButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
        event->key() == Qt::Key_Escape)
        event->ignore();
    else
        QAbstractButton::keyPressEvent(event);
}

void CalcKeyButton::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    update();
}

void CalcKeyButton::leaveEvent(QEvent* event) {
    QAbstractButton::leaveEvent(event);
    update();
}

} // namespace Tensarix
