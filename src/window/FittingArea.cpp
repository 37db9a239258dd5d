#include "window/FittingArea.h"

#include <QBoxLayout>
#include <QDialog>
#include <QEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollBar>

#include <utility>

namespace Tensarix {

namespace {

constexpr double screenPart = 0.92;             // the rest is the frame's
constexpr int leastWidth = 40, leastLines = 12; // average characters

QSize Character_Size(const QWidget& widget) {
    return {widget.fontMetrics().averageCharWidth(), widget.fontMetrics().lineSpacing()};
}

} // namespace

// A column gives a part whose height follows its width the one it would like, and never less.
int FittingPage::heightForWidth(int width) const {
    if (!layout()->hasHeightForWidth())
        return -1;
    return isColumn_ ? layout()->heightForWidth(width) : layout()->minimumHeightForWidth(width);
}

void FittingPage::Let_Stack(std::vector<Row> rows) {
    rows_ = std::move(rows);
}

void FittingPage::Stack(const Row& row, bool stacked) {
    row.Parts->setDirection(stacked ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    if (row.Column)
        row.Column->setDirection(stacked ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    if (row.Parts == layout())
        isColumn_ = stacked;
    Measure_Anew(*this);
}

// The widths that were found too large decide when there is room again, so that nothing flickers.
void FittingPage::Fit_Width(int width) {
    while (!widths_.empty() && widths_.back() <= width) {
        widths_.pop_back();
        Stack(rows_[widths_.size()], false);
    }
    while (widths_.size() < rows_.size() && minimumSizeHint().width() > width) {
        widths_.push_back(minimumSizeHint().width());
        Stack(rows_[widths_.size() - 1], true);
    }
}

void Measure_Anew(QWidget& whole) {
    QList<QWidget*> parts = whole.findChildren<QWidget*>();
    parts.prepend(&whole);
    for (auto part = parts.rbegin(); part != parts.rend(); ++part) {
        (*part)->updateGeometry();
        if ((*part)->layout())
            (*part)->layout()->activate();
    }
}

FittingArea::FittingArea(QWidget* page, QWidget* parent) : QScrollArea(parent) {
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(page);
    // What lies behind shows, as it would without the area.
    page->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
}

QSize FittingArea::sizeHint() const {
    const QSize size = widget()->sizeHint();
    return size.expandedTo({0, widget()->layout()->heightForWidth(size.width())});
}

QSize FittingArea::minimumSizeHint() const {
    const QSize one = Character_Size(*this);
    return QSize(leastWidth * one.width(), leastLines * one.height()).boundedTo(sizeHint());
}

// Whether or not the bar shows: it would come and go with what it decides.
void FittingArea::Fit_Page() {
    if (auto* page = qobject_cast<FittingPage*>(widget()))
        page->Fit_Width(width() - verticalScrollBar()->sizeHint().width());
}

bool FittingArea::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest) {
        Fit_Page();
        updateGeometry();
    }
    return QScrollArea::viewportEvent(event);
}

// What shows of a grid's cell decides how it is painted.
void FittingArea::scrollContentsBy(int dx, int dy) {
    QScrollArea::scrollContentsBy(dx, dy);
    viewport()->update();
}

void FittingArea::resizeEvent(QResizeEvent* event) {
    Fit_Page();
    QScrollArea::resizeEvent(event);
    viewport()->update();
}

// The keys are for the window.
void FittingArea::keyPressEvent(QKeyEvent* event) {
    event->ignore();
}

void Fit_To_Screen(QWidget& window, QSize wanted) {
    window.resize(wanted.boundedTo(window.screen()->availableSize() * screenPart));
}

void Let_Scroll(QDialog& dialog, QSize characters) {
    const auto constraint = dialog.layout()->sizeConstraint();
    dialog.layout()->setSizeConstraint(QLayout::SetDefaultConstraint);
    auto* page = new FittingPage;
    page->setLayout(dialog.layout());
    auto* area = new FittingArea(page, &dialog);
    auto* layout = new QVBoxLayout(&dialog);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(area);
    const QSize one = Character_Size(dialog);
    const QSize least(characters.width() * one.width(), characters.height() * one.height());
    const QSize wanted = dialog.sizeHint().expandedTo(least);
    Fit_To_Screen(dialog, wanted);
    if (page->minimumSizeHint().height() > dialog.height()) // beside the contents, not over them
        Fit_To_Screen(dialog, wanted + QSize(area->verticalScrollBar()->sizeHint().width(), 0));
    if (constraint == QLayout::SetFixedSize)
        dialog.setFixedSize(dialog.size());
}

} // namespace Tensarix
