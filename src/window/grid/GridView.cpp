#include "window/grid/GridView.h"

#include "window/Bind.h"
#include "window/Link.h"
#include "window/TellCurrentItem.h"
#include "window/grid/GridModel.h"
#include "window/grid/HeadView.h"

#include <QItemSelection>
#include <QMouseEvent>
#include <QScrollBar>

#include <algorithm>

namespace Tensarix {

namespace {

// The fixed columns. What happens in the table is told of the table, not once more of these.
class FixedColumns final : public QTableView {
  public:
    using QTableView::QTableView;

    // NOLINTBEGIN(bugprone-parent-virtual-call): the table view's own tell a screen reader
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override {
        QAbstractItemView::currentChanged(current, previous);
    }
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override {
        QAbstractItemView::selectionChanged(selected, deselected);
    }
    // NOLINTEND(bugprone-parent-virtual-call)
    void dataChanged(const QModelIndex&, const QModelIndex&, const QList<int>&) override {
        viewport()->update();
    }
};

} // namespace

void Bind(GridView* widget, FlexGrid& control) {
    widget->Show_Grid(control);
}

GridView::GridView(QWidget* parent) : QTableView(parent), frozen_(new FixedColumns(this)) {
    Prepare(*this);
    Prepare(*frozen_);
    setMouseTracking(true);
    viewport()->setMouseTracking(true);
    setVerticalScrollMode(ScrollPerItem);
    setHorizontalScrollMode(ScrollPerItem);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    horizontalHeader()->setStretchLastSection(true);
    Let_Widen();

    frozen_->setFocusPolicy(Qt::NoFocus);
    frozen_->setFrameShape(QFrame::NoFrame);
    frozen_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    frozen_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    frozen_->setVerticalScrollMode(ScrollPerItem);
    frozen_->verticalHeader()->hide();
    frozen_->viewport()->setMouseTracking(true);
    frozen_->viewport()->installEventFilter(this);
    for (QTableView* pane : {static_cast<QTableView*>(this), frozen_}) {
        pane->horizontalHeader()->viewport()->setMouseTracking(true);
        pane->horizontalHeader()->viewport()->installEventFilter(this);
    }
}

GridView::~GridView() {
    if (grid_)
        grid_->BringIntoView = nullptr;
}

void GridView::Prepare(QTableView& pane) {
    pane.setHorizontalHeader(new HeadView(&pane));
    pane.setEditTriggers(NoEditTriggers);
    pane.setSelectionMode(NoSelection); // the grid itself selects
    pane.setAutoScroll(false);          // only Reveal_Current and the user scroll
    pane.setCornerButtonEnabled(false);
    pane.setWordWrap(false);
    pane.setShowGrid(false); // the delegate draws the lines
    pane.setItemDelegate(new GridDelegate(&pane));
    pane.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    pane.verticalHeader()->setMinimumSectionSize(1);
    pane.horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    pane.horizontalHeader()->setMinimumSectionSize(1);
}

// A column can be made wider with the mouse, and by a double click as wide as it needs to be.
// Nothing of it is kept.
void GridView::Let_Widen() {
    horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int col, int, int now) {
        if (!pulling_ && grid_ && now < Column_Pixels(col) && !isColumnHidden(col))
            setColumnWidth(col, Column_Pixels(col));
    });
    connect(horizontalHeader(), &QHeaderView::sectionHandleDoubleClicked, this,
            [this](int col) { resizeColumnToContents(col); });
}

void GridView::Show_Grid(FlexGrid& grid) {
    grid_ = &grid;
    model_ = new GridModel(grid, this);
    setModel(model_);
    frozen_->setModel(model_);
    frozen_->setSelectionModel(selectionModel());
    connect(verticalScrollBar(), &QScrollBar::valueChanged, frozen_->verticalScrollBar(),
            &QScrollBar::setValue);
    connect(frozen_->verticalScrollBar(), &QScrollBar::valueChanged, verticalScrollBar(),
            &QScrollBar::setValue);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &GridView::Scrolled);
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, &GridView::Scrolled);
    link_ = new Link(this, grid.Shown, [this] { Pull(); });
    grid.BringIntoView = [this] { Reveal_Current(); };
    for (QTableView* pane : {static_cast<QTableView*>(this), frozen_}) {
        auto* head = static_cast<HeadView*>(pane->horizontalHeader());
        connect(head, &HeadView::Head_Clicked, this, [this](int col) {
            if (grid_->OnHeadClick)
                grid_->OnHeadClick(col);
        });
    }
    new FocusLink(this, grid.Focus);
}

QModelIndex GridView::Index(int row, int col) const {
    return model_->index(std::max(row - grid_->FixedRows(), 0), col);
}

void GridView::Pull() {
    if (pulling_)
        return;
    pulling_ = true;
    if (!model_->Has_Size_Of_Grid() || measured_ != grid_->Layout_Version())
        Measure();
    else
        model_->Repaint();
    Widen_Columns();
    Pull_Scroll();
    Pull_Selection();
    pulling_ = false;
    if (const int marked = grid_->Marked_Col(); marked != revealed_) {
        revealed_ = marked;
        if (marked >= grid_->FixedCols())
            scrollTo(Index(grid_->Top_Row(), marked));
    }
}

void GridView::Pull_Scroll() {
    executeDelayedItemsLayout();
    // A bar that stands right is left alone: this may run just before the bar takes a new value,
    // which setting the old one would cancel.
    const auto scroll = [](QScrollBar* bar, int value) {
        if (bar->value() != value)
            bar->setValue(value);
    };
    scroll(verticalScrollBar(), grid_->Top_Row() - grid_->FixedRows());
    scroll(horizontalScrollBar(), grid_->Left_Col() - grid_->FixedCols());
    Align_Left_Column();
    frozen_->verticalScrollBar()->setValue(verticalScrollBar()->value());
}

// A column on the left that has become wider has moved the first one that shows.
void GridView::Align_Left_Column() {
    QHeaderView* head = horizontalHeader();
    const int offset = head->offset();
    if (const QScrollBar* bar = horizontalScrollBar(); bar->value() < bar->maximum())
        head->setOffsetToSectionPosition(bar->value());
    else
        head->setOffsetToLastSection();
    if (head->offset() != offset)
        viewport()->update();
}

void GridView::Pull_Selection() {
    const auto [top, bottom] = std::minmax({grid_->Row(), grid_->Row_Sel()});
    const auto [left, right] = std::minmax({grid_->Col(), grid_->Col_Sel()});
    if (!model_->hasIndex(0, 0))
        return;
    selectionModel()->setCurrentIndex(Index(grid_->Row(), grid_->Col()),
                                      QItemSelectionModel::NoUpdate);
    if (bottom < grid_->FixedRows() || !grid_->Highlight())
        selectionModel()->clearSelection();
    else
        selectionModel()->select(QItemSelection(Index(top, left), Index(bottom, right)),
                                 QItemSelectionModel::ClearAndSelect);
}

void GridView::Scrolled() {
    if (pulling_ || !grid_)
        return;
    grid_->Set_Top_Row(verticalScrollBar()->value() + grid_->FixedRows());
    grid_->Set_Left_Col(horizontalScrollBar()->value() + grid_->FixedCols());
}

void GridView::Reveal_Current() {
    link_->Flush();
    const QModelIndex end = Index(grid_->Row_Sel(), grid_->Col_Sel());
    if (isColumnHidden(end.column())) {
        const int row = end.row();
        if (row < verticalScrollBar()->value())
            verticalScrollBar()->setValue(row);
        else if (rowViewportPosition(row) + rowHeight(row) > viewport()->height())
            frozen_->scrollTo(end);
        return;
    }
    scrollTo(end);
}

QRect GridView::Cell_Rect(int row, int col) const {
    const QTableView& self = *this;
    const QTableView& pane = col < grid_->FixedCols() ? *frozen_ : self;
    const QRect cell = pane.visualRect(Index(row, col));
    return {pane.viewport()->mapTo(this, cell.topLeft()), cell.size() - QSize(1, 1)}; // the lines
}

// The cell under the point of this widget, also in the fixed columns.
QModelIndex GridView::Index_At(QPoint inside) const {
    const bool fixed = frozen_->isVisible() && frozen_->geometry().contains(inside);
    const QTableView& self = *this;
    const QTableView& pane = fixed ? *frozen_ : self;
    return pane.indexAt(pane.viewport()->mapFrom(this, inside));
}

// Every move of the current cell is told once, if the keyboard is here; a block besides by what
// comes to it.
void GridView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QAbstractItemView::currentChanged(current, previous); // NOLINT(bugprone-parent-virtual-call)
    if (hasFocus())
        Tell_Current_Cell();
}

void GridView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    if (hasFocus() && grid_ &&
        (grid_->Row() != grid_->Row_Sel() || grid_->Col() != grid_->Col_Sel()))
        QTableView::selectionChanged(selected, deselected);
    else // NOLINTNEXTLINE(bugprone-parent-virtual-call)
        QAbstractItemView::selectionChanged(selected, deselected);
}

void GridView::Tell_Current_Cell() {
    untold_ = false;
    Tell_Current_Item(*this);
}

bool GridView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == frozen_->viewport() && grid_)
        return Frozen_Event(event);
    if (grid_ && (watched == horizontalHeader()->viewport() ||
                  watched == frozen_->horizontalHeader()->viewport()))
        return Head_Event(event);
    return QTableView::eventFilter(watched, event);
}

// The mouse over the fixed columns does what it does over the others.
bool GridView::Frozen_Event(QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        setFocus(Qt::MouseFocusReason);
        Press(*frozen_, static_cast<QMouseEvent*>(event));
        return true;
    case QEvent::MouseMove:
        Drag(static_cast<QMouseEvent*>(event));
        return true;
    case QEvent::MouseButtonRelease:
        Release(static_cast<QMouseEvent*>(event));
        return true;
    case QEvent::MouseButtonDblClick:
        mouseDoubleClickEvent(static_cast<QMouseEvent*>(event));
        return true;
    default:
        return false;
    }
}

// The head row answers the mouse as the cells do, and does besides what a head does.
bool GridView::Head_Event(QEvent* event) {
    const auto mouse = [event] { return static_cast<QMouseEvent*>(event); };
    if (event->type() == QEvent::MouseMove)
        Mouse_Moved(*mouse());
    else if (event->type() == QEvent::MouseButtonRelease)
        Release(mouse());
    else if (event->type() == QEvent::MouseButtonPress && mouse()->button() == Qt::LeftButton)
        grid_->Press_Beside();
    return false;
}

bool GridView::viewportEvent(QEvent* event) {
    if (link_ && (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::Paint))
        link_->Flush();
    return QTableView::viewportEvent(event);
}

void GridView::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    if (!grid_)
        return;
    if (giveWay_)
        Measure_Columns();
    if (onlyNeeded_)
        Measure_Rows();
    Place_Frozen();
}

void GridView::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (grid_ && event->type() == QEvent::FontChange)
        Measure();
}

} // namespace Tensarix
