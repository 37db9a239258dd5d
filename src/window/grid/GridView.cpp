#include "window/grid/GridView.h"

#include "window/Bind.h"
#include "window/Link.h"
#include "window/grid/GridModel.h"
#include "window/grid/HeadView.h"

#include <QItemSelection>
#include <QMouseEvent>
#include <QRegularExpression>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

namespace Tensarix {

namespace {

// Heights and widths are measured for a font of this height at 96 dots per inch.
constexpr double designFontHeight = 13;
constexpr double twipsToPixel = 1.0 / 15;
constexpr int cellMargin = 12;
constexpr int leastRows = 3;
constexpr int leastRowMargin = 2; // above and below the text

} // namespace

void Bind(GridView* widget, FlexGrid& control) {
    widget->Show_Grid(control);
}

GridView::GridView(QWidget* parent) : QTableView(parent), frozen_(new QTableView(this)) {
    Prepare(*this);
    Prepare(*frozen_);
    setMouseTracking(true);
    viewport()->setMouseTracking(true);
    setVerticalScrollMode(ScrollPerItem);
    setHorizontalScrollMode(ScrollPerItem);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    horizontalHeader()->setStretchLastSection(true);

    frozen_->setFocusPolicy(Qt::NoFocus);
    frozen_->setFrameShape(QFrame::NoFrame);
    frozen_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    frozen_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    frozen_->setVerticalScrollMode(ScrollPerItem);
    frozen_->verticalHeader()->hide();
    frozen_->viewport()->setMouseTracking(true);
    frozen_->viewport()->installEventFilter(this);
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
    new FocusLink(this, grid.Focus);
}

double GridView::Twip_Scale() const {
    return twipsToPixel * std::max(1.0, fontMetrics().height() / designFontHeight);
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
    Pull_Scroll();
    Pull_Selection();
    pulling_ = false;
}

void GridView::Measure() {
    measured_ = grid_->Layout_Version();
    model_->Reset();
    Measure_Columns();
    Measure_Rows();
    Place_Frozen();
    updateGeometries();
    Fit_Contents();
}

void GridView::Show_All_Columns() {
    allColumns_ = true;
    Fit_Contents();
}

void GridView::Show_All_Rows() {
    allRows_ = true;
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Fit_Contents();
}

void GridView::Take_What_Is_Needed() {
    onlyNeeded_ = true;
    Fit_Contents();
}

int GridView::Columns_Width() const {
    int width = 2 * frameWidth();
    for (int col = 0; col < grid_->Cols(); ++col)
        width += Column_Pixels(col);
    if (verticalScrollBarPolicy() != Qt::ScrollBarAlwaysOff)
        width += verticalScrollBar()->sizeHint().width();
    return width;
}

void GridView::Fit_Contents() {
    if (allColumns_)
        setMinimumWidth(Columns_Width());
    if (onlyNeeded_)
        setMaximumWidth(Columns_Width());
    if (allRows_) {
        int height = 2 * frameWidth() + Head_Height();
        for (int row = 0; row < model_->rowCount(); ++row)
            height += rowHeight(row);
        setFixedHeight(height);
    }
    updateGeometry();
}

int GridView::Head_Height() const {
    return horizontalHeader()->isHidden() ? 0 : horizontalHeader()->height();
}

QSize GridView::sizeHint() const {
    const QSize usual = QTableView::sizeHint();
    return onlyNeeded_ ? QSize(Columns_Width(), usual.height()) : usual;
}

QSize GridView::minimumSizeHint() const {
    const int rows = leastRows * verticalHeader()->defaultSectionSize();
    return QTableView::minimumSizeHint().expandedTo({0, Head_Height() + rows});
}

void GridView::Measure_Columns() {
    const bool head = grid_->FixedRows() > 0;
    horizontalHeader()->setVisible(head);
    frozen_->horizontalHeader()->setVisible(head);
    for (int col = 0; col < grid_->Cols(); ++col) {
        const bool fixed = col < grid_->FixedCols();
        const int width = Column_Pixels(col);
        setColumnWidth(col, width);
        frozen_->setColumnWidth(col, width);
        setColumnHidden(col, fixed);
        frozen_->setColumnHidden(col, !fixed);
    }
    if (!head)
        return;
    const int height = std::max(static_cast<int>(std::lround(grid_->Row_Height(0) * Twip_Scale())),
                                horizontalHeader()->sizeHint().height());
    horizontalHeader()->setFixedHeight(height);
    frozen_->horizontalHeader()->setFixedHeight(height);
}

int GridView::Column_Pixels(int col) const {
    return std::max(static_cast<int>(std::lround(grid_->Col_Width(col) * Twip_Scale())),
                    Fitting_Width(col));
}

// The names in a fixed column are never cut, nor are the heads, or their words where they wrap, nor
// the last column, which is stretched anyway.
int GridView::Fitting_Width(int col) const {
    static const QRegularExpression words(QStringLiteral("\\s")), lines(QStringLiteral("\n"));
    const bool whole = col < grid_->FixedCols() || col == grid_->Cols() - 1;
    int width = 0;
    for (int row = 0; row < (whole ? grid_->Rows() : grid_->FixedRows()); ++row)
        for (const QString& line :
             QString::fromStdString(grid_->Text(row, col))
                 .split(row < grid_->FixedRows() && grid_->Word_Wrap() ? words : lines))
            width = std::max(width, fontMetrics().horizontalAdvance(line));
    return width == 0 ? 0 : width + cellMargin;
}

// The part of its height that a row keeps so that all show, if they can still be read then.
double GridView::Row_Squeeze() const {
    if (!onlyNeeded_ || grid_->FixedRows() >= grid_->Rows())
        return 1;
    double whole = 0;
    for (int row = grid_->FixedRows(); row < grid_->Rows(); ++row)
        whole += grid_->Row_Height(row) * Twip_Scale();
    const double part = (height() - 2 * frameWidth() - Head_Height()) / whole;
    const double least = (fontMetrics().height() + leastRowMargin) /
                         (grid_->Row_Height(grid_->FixedRows()) * Twip_Scale());
    return part >= least ? std::min(part, 1.0) : 1;
}

void GridView::Measure_Rows() {
    const double squeeze = Row_Squeeze();
    const auto pixels = [this, squeeze](int row) {
        const double height = grid_->Row_Height(row) * Twip_Scale();
        return static_cast<int>(squeeze < 1 ? std::floor(height * squeeze) : std::round(height));
    };
    const int first = grid_->FixedRows();
    if (first >= grid_->Rows())
        return;
    const int usual = pixels(first);
    for (QTableView* pane : {static_cast<QTableView*>(this), frozen_}) {
        pane->verticalHeader()->setDefaultSectionSize(usual);
        for (int row = first; row < grid_->Rows(); ++row)
            if (const int height = pixels(row); height != usual)
                pane->setRowHeight(row - first, height);
    }
}

// The fixed columns lie over the row heads, which are as wide as they are.
void GridView::Place_Frozen() {
    int width = 0;
    for (int col = 0; col < grid_->FixedCols(); ++col)
        width += frozen_->columnWidth(col);
    verticalHeader()->setVisible(width > 0);
    verticalHeader()->setFixedWidth(std::max(width, 1));
    frozen_->setVisible(width > 0);
    frozen_->setGeometry(frameWidth(), frameWidth(), width, viewport()->height() + Head_Height());
    frozen_->raise();
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
    frozen_->verticalScrollBar()->setValue(verticalScrollBar()->value());
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

bool GridView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == frozen_->viewport() && grid_)
        return Frozen_Event(event);
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
        Drag(*frozen_, static_cast<QMouseEvent*>(event));
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

bool GridView::viewportEvent(QEvent* event) {
    if (link_ && (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::Paint))
        link_->Flush();
    return QTableView::viewportEvent(event);
}

void GridView::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    if (!grid_)
        return;
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
