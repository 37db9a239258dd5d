#include "window/drawing/DrawingView.h"

#include "window/Bind.h"
#include "window/Link.h"
#include "window/Theme.h"
#include "window/To_Qt.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>

namespace Tensarix {

namespace {

constexpr int usualWidth = 44, usualLines = 18; // average characters
constexpr double thinLine = 1, boldLine = 1.7, litLine = 2.6;
constexpr double pointingReach = 5; // pixels

QPointF To_Qt(Drawn::Point point) {
    return {point.X, point.Y};
}

QRectF To_Qt(const Drawn::Box& box) {
    return {box.Left, box.Top, box.Width(), box.Height()};
}

QVector<QPointF> To_Qt(const std::vector<Drawn::Point>& points) {
    QVector<QPointF> all;
    all.reserve(static_cast<qsizetype>(points.size()));
    for (const Drawn::Point& point : points)
        all.append(To_Qt(point));
    return all;
}

Qt::PenStyle Pen_Style(Drawn::Pattern pattern) {
    switch (pattern) {
    case Drawn::Pattern::Dashed:
        return Qt::DashLine;
    case Drawn::Pattern::DashDot:
        return Qt::DashDotLine;
    case Drawn::Pattern::Dotted:
        return Qt::DotLine;
    default:
        return Qt::SolidLine;
    }
}

// Lines are interrupted where they would run through a text.
QRegion Apart_From_Texts(const Drawn::Layout& layout, QRect whole) {
    QRegion region(whole);
    for (const Drawn::Text& text : layout.Texts)
        if (text.Crossed)
            region -= To_Qt(text.Place).toAlignedRect();
    return region;
}

} // namespace

DrawingView::DrawingView(QWidget* parent) : QWidget(parent) {
    setMouseTracking(true);
}

void DrawingView::Show_Box(DrawingBox& box) {
    box_ = &box;
    new Link(this, box.Shown, [this] { Take_Over(); });
}

void DrawingView::Take_Over() {
    if (version_ != box_->Drawing_Version()) {
        version_ = box_->Drawing_Version();
        layout_.reset();
        setAccessibleDescription(To_Qt(box_->Shows().Sentence));
    }
    update();
}

const Drawn::Layout& DrawingView::Laid_Out() {
    if (layout_)
        return *layout_;
    const QFontMetricsF metrics(font(), this);
    const auto measure = [&metrics](const std::string& words) {
        return Drawn::Size{metrics.horizontalAdvance(To_Qt(words)), metrics.height()};
    };
    const Drawn::Size view{static_cast<double>(width()), static_cast<double>(height())};
    layout_ = box_ ? Drawn::Lay_Out(box_->Shows(), view, measure) : Drawn::Layout{};
    return *layout_;
}

// Where a form has set how high it is at least, it asks for no more: the rest is what is left.
QSize DrawingView::sizeHint() const {
    const int height = minimumHeight() > 0 ? minimumHeight() : usualLines * fontMetrics().height();
    return {usualWidth * fontMetrics().averageCharWidth(), height};
}

bool DrawingView::Is_Lit(const std::string& name) const {
    return box_ && !name.empty() && name == box_->Lit();
}

void DrawingView::paintEvent(QPaintEvent*) {
    const Drawn::Layout& layout = Laid_Out();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (box_ && box_->Shows().Empty())
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, accessibleDescription());
    for (const Drawn::Fill& fill : layout.Fills)
        if (fill.Tint)
            Paint_Fill(painter, fill);
    const QRegion apart = Apart_From_Texts(layout, rect());
    const QRegion plot = layout.Plot ? apart & To_Qt(*layout.Plot).toAlignedRect() : apart;
    for (const Drawn::Stroke& stroke : layout.Strokes) {
        painter.setClipRegion(stroke.InPlot ? plot : apart);
        Paint_Stroke(painter, stroke);
    }
    painter.setClipping(false);
    for (const Drawn::Fill& fill : layout.Fills)
        if (!fill.Tint)
            Paint_Fill(painter, fill);
    for (const Drawn::Text& text : layout.Texts)
        Paint_Text(painter, text);
}

void DrawingView::Paint_Fill(QPainter& painter, const Drawn::Fill& fill) const {
    QPainterPath path;
    path.setFillRule(Qt::OddEvenFill);
    for (const std::vector<Drawn::Point>& ring : fill.Rings) {
        path.addPolygon(QPolygonF(To_Qt(ring)));
        path.closeSubpath();
    }
    painter.fillPath(path,
                     fill.Tint ? Tint_Colour(fill.In, palette()) : Ink_Colour(fill.In, palette()));
}

void DrawingView::Paint_Stroke(QPainter& painter, const Drawn::Stroke& stroke) const {
    const double usual = stroke.Width == Drawn::Weight::Bold ? boldLine : thinLine;
    QPen pen(Ink_Colour(stroke.In, palette()), Is_Lit(stroke.Name) ? litLine : usual);
    pen.setStyle(Pen_Style(stroke.Dash));
    pen.setJoinStyle(Qt::RoundJoin);
    painter.setPen(pen);
    painter.drawPolyline(QPolygonF(To_Qt(stroke.Points)));
}

// The text of a part that is lit up looks like a chosen cell.
void DrawingView::Paint_Text(QPainter& painter, const Drawn::Text& text) const {
    const QRectF place = To_Qt(text.Place);
    const bool lit = Is_Lit(text.Name);
    if (lit)
        painter.fillRect(place, palette().color(QPalette::Highlight));
    const bool plain = text.In == Drawn::Ink::Body || text.In == Drawn::Ink::Quiet;
    painter.setPen(lit     ? palette().color(QPalette::HighlightedText)
                   : plain ? palette().color(QPalette::WindowText)
                           : Ink_Colour(text.In, palette()));
    painter.drawText(place, Qt::AlignCenter | Qt::TextDontClip, To_Qt(text.Words));
}

void DrawingView::resizeEvent(QResizeEvent* event) {
    layout_.reset();
    QWidget::resizeEvent(event);
}

void DrawingView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        layout_.reset();
    update();
    QWidget::changeEvent(event);
}

void DrawingView::mouseMoveEvent(QMouseEvent* event) {
    if (box_ && box_->Tell) {
        const Drawn::Point at{event->position().x(), event->position().y()};
        const std::string name = Drawn::Name_At(Laid_Out(), at, pointingReach);
        const QString told = To_Qt(box_->Tell(name, Laid_Out().In_Drawing(at)));
        QToolTip::showText(event->globalPosition().toPoint(), told, this);
    }
    QWidget::mouseMoveEvent(event);
}

void Bind(DrawingView* widget, DrawingBox& control) {
    widget->Show_Box(control);
}

} // namespace Tensarix
