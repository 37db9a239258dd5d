#include "window/pages/ReportView.h"

#include "window/FocusFrame.h"
#include "window/To_Qt.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace Tensarix {

namespace {

constexpr int takeOverMs = 150;
constexpr int tellEveryMs = 1000; // a screen reader can't follow more
constexpr int textMargin = 4;
constexpr int describedLines = 12; // the end of the report, for a screen reader
constexpr int hintColumns = 44, hintLines = 24;

} // namespace

void Bind(ReportView* widget, ReportBox& control) {
    widget->Show_Report(control);
}

ReportView::ReportView(QWidget* parent) : QAbstractScrollArea(parent) {
    QFont courier = font();
    courier.setFamilies({QStringLiteral("Courier New"), QStringLiteral("Liberation Mono"),
                         QStringLiteral("monospace")});
    courier.setStyleHint(QFont::Monospace);
    courier.setFixedPitch(true);
    setFont(courier);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setBackgroundRole(QPalette::Base);
    viewport()->setCursor(Qt::IBeamCursor);
    timer_.setSingleShot(true);
    timer_.setInterval(takeOverMs);
    connect(&timer_, &QTimer::timeout, this, &ReportView::Flush);
    told_.setSingleShot(true);
    told_.setInterval(tellEveryMs);
    connect(&told_, &QTimer::timeout, this, &ReportView::Tell_New);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    Add_Action(QStringLiteral("&Copy"), QKeySequence::Copy, &ReportView::Copy);
    Add_Action(QStringLiteral("Select &All"), QKeySequence::SelectAll, &ReportView::Select_All);
}

ReportView::~ReportView() {
    if (box_)
        box_->Shown.OnChanged = nullptr;
}

void ReportView::Add_Action(const QString& text, QKeySequence::StandardKey key,
                            void (ReportView::*run)()) {
    auto* action = new QAction(text, this);
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, run);
    addAction(action);
}

void ReportView::Show_Report(ReportBox& box) {
    box_ = &box;
    box.Shown.OnChanged = [this] {
        if (!timer_.isActive())
            timer_.start();
    };
    Flush();
}

void ReportView::Flush() {
    timer_.stop();
    if (version_ != box_->Version()) {
        version_ = box_->Version();
        starts_.assign(1, 0);
        indexed_ = longest_ = 0;
        anchor_ = end_ = -1;
        characters_.assign(1, 0);
        toldLines_ = 0;
    }
    // Who has scrolled up to read stays there.
    const QScrollBar& bar = *verticalScrollBar();
    const bool atEnd = bar.value() == bar.maximum();
    Index_New();
    Measure();
    if (atEnd)
        verticalScrollBar()->setValue(verticalScrollBar()->maximum());
    Describe();
    Tell_New();
    viewport()->update();
}

// A line ends with a carriage return, a line feed, or both.
void ReportView::Index_New() {
    const std::string& text = box_->Text();
    while (indexed_ < text.size()) {
        const std::size_t end = text.find_first_of("\r\n", indexed_);
        if (end == std::string::npos || (text[end] == '\r' && end + 1 == text.size())) {
            indexed_ = std::min(end, text.size());
            break; // what follows may belong to it
        }
        indexed_ = end + (text.compare(end, 2, "\r\n") == 0 ? 2 : 1);
        longest_ = std::max(longest_, end - starts_.back());
        starts_.push_back(indexed_);
    }
    longest_ = std::max(longest_, text.size() - starts_.back());
}

QString ReportView::Line(int line) const {
    const std::string& text = box_->Text();
    // The text may have become shorter since the lines were counted.
    const std::size_t start = std::min(starts_[static_cast<std::size_t>(line)], text.size());
    const std::size_t end = std::min(text.find_first_of("\r\n", start), text.size());
    return To_Qt(std::string_view{text}.substr(start, end - start));
}

int ReportView::Line_Height() const {
    return fontMetrics().lineSpacing();
}

void ReportView::Measure() {
    const int page = std::max(1, (viewport()->height() - 2 * textMargin) / Line_Height());
    verticalScrollBar()->setRange(0, std::max(0, Lines() - page));
    verticalScrollBar()->setPageStep(page);
    const int width = static_cast<int>(longest_) * fontMetrics().horizontalAdvance(u'0');
    const int room = viewport()->width() - 2 * textMargin;
    horizontalScrollBar()->setRange(0, std::max(0, width - room));
    horizontalScrollBar()->setPageStep(room);
    horizontalScrollBar()->setSingleStep(fontMetrics().horizontalAdvance(u'0'));
}

void ReportView::Describe() {
    QStringList end;
    for (int line = std::max(0, Lines() - describedLines); line < Lines(); ++line)
        end.append(Line(line));
    setAccessibleDescription(end.join(QLatin1Char('\n')));
}

// The last of the lines that have come since it was done last; at most once in a while.
void ReportView::Tell_New() {
    if (!QAccessible::isActive() || told_.isActive() || toldLines_ >= Lines() - 1)
        return;
    const int first = std::max(toldLines_, Lines() - 1 - describedLines);
    QString text;
    for (int line = first; line < Lines() - 1; ++line) // the last one may still grow
        text += Line(line) + QLatin1Char('\n');
    toldLines_ = Lines() - 1;
    QAccessibleTextInsertEvent event(this, Start_Of(first), text);
    QAccessible::updateAccessibility(&event);
    told_.start();
}

void ReportView::Tell_Line_Read() {
    QAccessibleTextCursorEvent event(this, Start_Of(Line_Read()));
    QAccessible::updateAccessibility(&event);
}

int ReportView::Start_Of(int line) const {
    while (static_cast<int>(characters_.size()) <= line) {
        const auto last = static_cast<int>(characters_.size()) - 1;
        characters_.push_back(characters_.back() + static_cast<int>(Line(last).size()) + 1);
    }
    return characters_[static_cast<std::size_t>(line)];
}

int ReportView::Line_Of(int character) const {
    Start_Of(Lines() - 1);
    const auto behind = std::upper_bound(characters_.begin() + 1, characters_.end(), character);
    return static_cast<int>(behind - characters_.begin()) - 1;
}

QRect ReportView::Line_Rect(int line) const {
    const int y = textMargin + (line - verticalScrollBar()->value()) * Line_Height();
    return {viewport()->mapToGlobal(QPoint(0, y)), QSize(viewport()->width(), Line_Height())};
}

std::pair<int, int> ReportView::Selection() const {
    return std::minmax({anchor_, end_});
}

void ReportView::Select_Lines(int first, int last) {
    anchor_ = first;
    end_ = last;
    viewport()->update();
}

int ReportView::Line_Read() const {
    return anchor_ < 0 ? verticalScrollBar()->value() : std::min(end_, Lines() - 1);
}

void ReportView::Show_Line(int line) {
    QScrollBar& bar = *verticalScrollBar();
    bar.setValue(std::clamp(bar.value(), line - bar.pageStep() + 1, line));
}

QSize ReportView::sizeHint() const {
    return {hintColumns * fontMetrics().horizontalAdvance(u'0') +
                verticalScrollBar()->sizeHint().width(),
            hintLines * Line_Height()};
}

void ReportView::paintEvent(QPaintEvent*) {
    QPainter painter(viewport());
    const int height = Line_Height();
    const auto [first, last] = std::minmax({anchor_, end_});
    int y = textMargin;
    for (int line = verticalScrollBar()->value(); line < Lines() && y < viewport()->height();
         ++line, y += height) {
        const bool selected = anchor_ >= 0 && line >= first && line <= last;
        if (selected)
            painter.fillRect(0, y, viewport()->width(), height, palette().highlight());
        painter.setPen(palette().color(selected ? QPalette::HighlightedText : QPalette::Text));
        painter.drawText(textMargin - horizontalScrollBar()->value(), y + fontMetrics().ascent(),
                         Line(line));
    }
}

void ReportView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    const bool atEnd = verticalScrollBar()->value() == verticalScrollBar()->maximum();
    Measure();
    if (atEnd)
        verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

void ReportView::changeEvent(QEvent* event) {
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange && box_)
        Measure();
}

// Whoever looks at it with the keyboard or the mouse has all of it.
bool ReportView::event(QEvent* event) {
    switch (event->type()) {
    case QEvent::FocusIn:
    case QEvent::ShortcutOverride:
    case QEvent::ContextMenu:
        if (timer_.isActive())
            Flush();
        break;
    default:
        break;
    }
    const bool done = QAbstractScrollArea::event(event);
    Show_Focus(*this, *event);
    return done;
}

void ReportView::keyPressEvent(QKeyEvent* event) {
    const int before = Line_Read();
    if ((event->modifiers() & Qt::ShiftModifier) == 0 || !Select_Key(event->key()))
        Scroll_Key(event);
    if (Line_Read() != before)
        Tell_Line_Read();
}

void ReportView::Scroll_Key(QKeyEvent* event) {
    if (event->key() == Qt::Key_Home)
        verticalScrollBar()->setValue(0);
    else if (event->key() == Qt::Key_End)
        verticalScrollBar()->setValue(verticalScrollBar()->maximum());
    else
        QAbstractScrollArea::keyPressEvent(event);
}

// Selects as a drag of the mouse does, beginning with the first line in view.
bool ReportView::Select_Key(int key) {
    QScrollBar& bar = *verticalScrollBar();
    const int at = anchor_ < 0 ? bar.value() : end_, page = bar.pageStep();
    const std::pair<int, int> moves[] = {{Qt::Key_Up, at - 1},        {Qt::Key_Down, at + 1},
                                         {Qt::Key_PageUp, at - page}, {Qt::Key_PageDown, at + page},
                                         {Qt::Key_Home, 0},           {Qt::Key_End, Lines() - 1}};
    const auto* const move =
        std::find_if(std::begin(moves), std::end(moves),
                     [key](const std::pair<int, int>& entry) { return entry.first == key; });
    if (move == std::end(moves))
        return false;
    if (anchor_ < 0)
        anchor_ = at;
    end_ = std::clamp(move->second, 0, Lines() - 1);
    Show_Line(end_);
    viewport()->update();
    return true;
}

int ReportView::Line_At(const QPoint& point) const {
    const int line = verticalScrollBar()->value() + (point.y() - textMargin) / Line_Height();
    return std::clamp(line, 0, Lines() - 1);
}

void ReportView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    anchor_ = end_ = Line_At(event->position().toPoint());
    viewport()->update();
}

void ReportView::mouseMoveEvent(QMouseEvent* event) {
    if ((event->buttons() & Qt::LeftButton) == 0 || anchor_ < 0)
        return;
    end_ = Line_At(event->position().toPoint());
    viewport()->update();
}

void ReportView::Select_All() {
    Flush();
    anchor_ = 0;
    end_ = Lines() - 1;
    viewport()->update();
}

void ReportView::Copy() {
    if (anchor_ < 0)
        return;
    const auto [first, last] = std::minmax({anchor_, end_});
    QStringList lines;
    for (int line = first; line <= std::min(last, Lines() - 1); ++line)
        lines.append(Line(line));
    QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

} // namespace Tensarix
