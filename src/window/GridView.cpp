#include "window/GridView.h"

#include "window/Bind.h"
#include "window/FocusFrame.h"
#include "window/GridModel.h"
#include "window/HeadView.h"
#include "window/KeyCodes.h"
#include "window/Link.h"

#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QItemSelection>
#include <QKeyEvent>
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
    if (!model_->Has_Size_Of_Grid() || measured_ != grid_->LayoutVersion())
        Measure();
    else
        model_->Repaint();
    Pull_Scroll();
    Pull_Selection();
    pulling_ = false;
}

void GridView::Measure() {
    measured_ = grid_->LayoutVersion();
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

void GridView::Fit_Contents() {
    if (allColumns_) {
        int width = 2 * frameWidth();
        for (int col = 0; col < grid_->Cols(); ++col)
            width += Column_Pixels(col);
        if (verticalScrollBarPolicy() != Qt::ScrollBarAlwaysOff)
            width += verticalScrollBar()->sizeHint().width();
        setMinimumWidth(width);
    }
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
    const int height = std::max(static_cast<int>(std::lround(grid_->RowHeight(0) * Twip_Scale())),
                                horizontalHeader()->sizeHint().height());
    horizontalHeader()->setFixedHeight(height);
    frozen_->horizontalHeader()->setFixedHeight(height);
}

int GridView::Column_Pixels(int col) const {
    return std::max(static_cast<int>(std::lround(grid_->ColWidth(col) * Twip_Scale())),
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
                 .split(row < grid_->FixedRows() && grid_->WordWrap() ? words : lines))
            width = std::max(width, fontMetrics().horizontalAdvance(line));
    return width == 0 ? 0 : width + cellMargin;
}

void GridView::Measure_Rows() {
    const auto pixels = [this](int row) {
        return static_cast<int>(std::lround(grid_->RowHeight(row) * Twip_Scale()));
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
    scroll(verticalScrollBar(), grid_->TopRow() - grid_->FixedRows());
    scroll(horizontalScrollBar(), grid_->LeftCol() - grid_->FixedCols());
    frozen_->verticalScrollBar()->setValue(verticalScrollBar()->value());
}

void GridView::Pull_Selection() {
    const auto [top, bottom] = std::minmax({grid_->Row(), grid_->RowSel()});
    const auto [left, right] = std::minmax({grid_->Col(), grid_->ColSel()});
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
    grid_->Set_TopRow(verticalScrollBar()->value() + grid_->FixedRows());
    grid_->Set_LeftCol(horizontalScrollBar()->value() + grid_->FixedCols());
}

void GridView::Reveal_Current() {
    link_->Flush();
    const QModelIndex end = Index(grid_->RowSel(), grid_->ColSel());
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

bool GridView::Go_To(int row, int col, bool extend) {
    const int first = grid_->OnTab ? grid_->FixedCols() : 0; // to fill in, a head is of no use
    row = std::clamp(row, grid_->FixedRows(), grid_->Rows() - 1);
    col = std::clamp(col, first, grid_->Cols() - 1);
    grid_->Go_To(row, col, extend);
    Reveal_Current();
    return true;
}

bool GridView::Move_Key(QKeyEvent* event) {
    const bool extend = (event->modifiers() & Qt::ShiftModifier) != 0;
    const bool far = (event->modifiers() & Qt::ControlModifier) != 0;
    const int row = extend ? grid_->RowSel() : grid_->Row();
    const int col = extend ? grid_->ColSel() : grid_->Col();
    const int last = grid_->Rows() - 1, end = grid_->Cols() - 1;
    const int page = std::max(1, viewport()->height() / std::max(1, rowHeight(0)) - 1);
    switch (event->key()) {
    case Qt::Key_Up:
        return Go_To(far ? 0 : row - 1, col, extend);
    case Qt::Key_Down:
        return Go_To(far ? last : row + 1, col, extend);
    case Qt::Key_Left:
        return Go_To(row, far ? 0 : col - 1, extend);
    case Qt::Key_Right:
        return Go_To(row, far ? end : col + 1, extend);
    case Qt::Key_PageUp:
        return Go_To(row - page, col, extend);
    case Qt::Key_PageDown:
        return Go_To(row + page, col, extend);
    case Qt::Key_Home:
        return Go_To(far ? 0 : row, 0, extend);
    case Qt::Key_End:
        return Go_To(far ? last : row, end, extend);
    default:
        return false;
    }
}

void GridView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        Run(grid_->OnCopy);
        return;
    }
    if (event->matches(QKeySequence::Paste)) {
        Run(grid_->OnPaste);
        return;
    }
    // The menu key comes as a context menu event; not every desktop sends one for this.
    if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier) {
        Popup_By_Key();
        return;
    }
    if (event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab) {
        Tab_Key(event);
        return;
    }
    if (!Move_Key(event))
        Edit_Key(event);
}

// From cell to cell while there is one to fill in; with Control out of the table at once.
void GridView::Tab_Key(QKeyEvent* event) {
    const bool back =
        event->key() == Qt::Key_Backtab || (event->modifiers() & Qt::ShiftModifier) != 0;
    if ((event->modifiers() & Qt::ControlModifier) != 0)
        // NOLINTNEXTLINE(bugprone-parent-virtual-call): an item view's own goes from cell to cell
        QAbstractScrollArea::focusNextPrevChild(!back);
    else if (!grid_->OnTab || !grid_->OnTab(back))
        event->ignore();
}

void GridView::Edit_Key(QKeyEvent* event) {
    const bool had = hasFocus();
    const int character = Key_Character(*event);
    if (const int code = Key_Code(*event); code != 0 && grid_->OnKeyDown)
        grid_->OnKeyDown(code);
    if (character != 0 && grid_->OnKeyPress)
        grid_->OnKeyPress(character);
    if (!had || hasFocus()) {
        event->ignore(); // the window's own shortcuts and default buttons
        return;
    }
    // A list that the key has opened searches for what is typed, from the first character on.
    if (auto* list = qobject_cast<QComboBox*>(QApplication::focusWidget());
        list && character > Keys::Blank)
        QCoreApplication::sendEvent(list, event);
    event->accept();
}

// What can be typed into an editable grid is no shortcut.
bool GridView::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && grid_ && grid_->OnKeyPress) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        if (Key_Character(key) >= Keys::Blank || Key_Code(key) == Keys::Delete) {
            event->accept();
            return true;
        }
    }
    const bool done = QTableView::event(event);
    Show_Focus(*this, *event);
    return done;
}

// Who comes by the keyboard sees where he is.
void GridView::focusInEvent(QFocusEvent* event) {
    QTableView::focusInEvent(event);
    const bool byKey = event->reason() == Qt::TabFocusReason ||
                       event->reason() == Qt::BacktabFocusReason ||
                       event->reason() == Qt::ShortcutFocusReason;
    if (byKey && grid_ && grid_->OnKeyPress)
        Reveal_Current();
}

void GridView::mousePressEvent(QMouseEvent* event) {
    Press(*this, event);
}
void GridView::mouseMoveEvent(QMouseEvent* event) {
    Drag(*this, event);
}
void GridView::mouseReleaseEvent(QMouseEvent* event) {
    Release(event);
}

void GridView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        Run(grid_->OnDblClick);
}

void GridView::Press(QTableView& pane, QMouseEvent* event) {
    const QModelIndex index = pane.indexAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || !index.isValid())
        return;
    const int row = index.row() + grid_->FixedRows();
    if ((event->modifiers() & Qt::ShiftModifier) != 0) {
        grid_->Extend_To(row, index.column());
        Run(grid_->OnMouseDown);
    } else {
        grid_->Press(row, index.column());
    }
    link_->Flush();
}

void GridView::Drag(QTableView& pane, QMouseEvent* event) {
    const QPoint inside = mapFromGlobal(event->globalPosition().toPoint());
    if (grid_->OnMouseMove)
        grid_->OnMouseMove(inside.x() / Twip_Scale());
    const QModelIndex index = pane.indexAt(event->position().toPoint());
    if ((event->buttons() & Qt::LeftButton) == 0 || !index.isValid())
        return;
    grid_->Extend_To(index.row() + grid_->FixedRows(), index.column());
}

void GridView::Release(QMouseEvent* event) {
    if (event->button() != Qt::RightButton)
        return;
    popupPoint_ = event->globalPosition().toPoint();
    Run(grid_->OnPopup);
}

void GridView::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Keyboard)
        Popup_By_Key();
    // The mouse opens the popup when its button comes up.
}

void GridView::Popup_By_Key() {
    popupPoint_ = mapToGlobal(Cell_Rect(grid_->Row(), grid_->Col()).center());
    Run(grid_->OnPopup);
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
    if (grid_)
        Place_Frozen();
}

void GridView::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (grid_ && event->type() == QEvent::FontChange)
        Measure();
}

} // namespace Tensarix
