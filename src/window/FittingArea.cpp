#include "window/FittingArea.h"

#include <QDialog>
#include <QEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>

namespace Tensarix {

namespace {

constexpr double screenPart = 0.92;             // the rest is the frame's
constexpr int leastWidth = 40, leastLines = 12; // average characters

QSize Character_Size(const QWidget& widget) {
    return {widget.fontMetrics().averageCharWidth(), widget.fontMetrics().lineSpacing()};
}

} // namespace

int FittingPage::heightForWidth(int width) const {
    return layout()->hasHeightForWidth() ? layout()->minimumHeightForWidth(width) : -1;
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

bool FittingArea::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::viewportEvent(event);
}

// What shows of a grid's cell decides how it is painted.
void FittingArea::scrollContentsBy(int dx, int dy) {
    QScrollArea::scrollContentsBy(dx, dy);
    viewport()->update();
}

void FittingArea::resizeEvent(QResizeEvent* event) {
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
