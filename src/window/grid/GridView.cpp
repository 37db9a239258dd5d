#include "window/grid/GridView.h"

#include "common/NumberText.h"
#include "window/Bind.h"
#include "window/Link.h"
#include "window/TellCurrentItem.h"
#include "window/To_Qt.h"
#include "window/grid/GridModel.h"
#include "window/grid/HeadView.h"

#include <QItemSelection>
#include <QMouseEvent>
#include <QRegularExpression>
#include <QScrollBar>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <set>

namespace Tensarix {

namespace {

// Heights and widths are measured for a font of this height at 96 dots per inch.
constexpr double designFontHeight = 13;
constexpr double twipsToPixel = 1.0 / 15;
constexpr int cellMargin = 12;
constexpr int leastRows = 3;
constexpr int leastRowMargin = 2; // above and below the text

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

// With the widest digit for each: a column of numbers has few of these.
std::string Pattern(std::string text) {
    std::replace_if(text.begin(), text.end(), Is_Digit, '0');
    return text;
}

bool Has_Digit(const std::string& text) {
    return text.find_first_of("0123456789") != std::string::npos;
}

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

void GridView::Measure() {
    measured_ = grid_->Layout_Version();
    Find_Fitting_Widths();
    model_->Reset();
    Measure_Columns();
    Measure_Rows();
    Place_Frozen();
    updateGeometries();
    frozen_->doItemsLayout(); // else its bar still ends where it did, and holds the other one back
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

void GridView::Let_Columns_Give_Way() {
    giveWay_ = true;
    Fit_Contents();
}

// Of frame and bar.
int GridView::Room_Around() const {
    const bool bar = verticalScrollBarPolicy() != Qt::ScrollBarAlwaysOff;
    return 2 * frameWidth() + (bar ? verticalScrollBar()->sizeHint().width() : 0);
}

int GridView::Columns_Width() const {
    int width = Room_Around();
    for (int col = 0; col < grid_->Cols(); ++col)
        width += Usual_Pixels(col);
    return width;
}

// With columns that have given way as far as they can.
int GridView::Least_Width() const {
    return std::accumulate(fittingWidths_.begin(), fittingWidths_.end(), Room_Around());
}

void GridView::Fit_Contents() {
    if (allColumns_)
        setMinimumWidth(Columns_Width());
    if (giveWay_)
        setMinimumWidth(Least_Width());
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

int GridView::Usual_Pixels(int col) const {
    return std::max(static_cast<int>(std::lround(grid_->Col_Width(col) * Twip_Scale())),
                    fittingWidths_[static_cast<std::size_t>(col)]);
}

int GridView::Column_Pixels(int col) const {
    const int usual = Usual_Pixels(col), least = fittingWidths_[static_cast<std::size_t>(col)];
    const int whole = Columns_Width(), narrowest = Least_Width();
    if (!giveWay_ || width() >= whole)
        return usual;
    const double part = static_cast<double>(width() - narrowest) / (whole - narrowest);
    return least + static_cast<int>((usual - least) * std::max(0.0, part));
}

void GridView::Find_Fitting_Widths() {
    fitted_ = grid_->Texts_Version();
    fittingWidths_.clear();
    for (int col = 0; col < grid_->Cols(); ++col)
        fittingWidths_.push_back(Fitting_Width(col));
}

// What is never cut: a number, wherever it stands, the names in a fixed column, the heads, or their
// words where they wrap, and the last column, which is stretched anyway.
int GridView::Fitting_Width(int col) const {
    static const QRegularExpression words(QStringLiteral("\\s")), lines(QStringLiteral("\n"));
    const bool whole = col < grid_->FixedCols() || col == grid_->Cols() - 1;
    std::set<std::pair<std::string, bool>> measured; // texts, and whether they are bold
    int width = 0;
    for (int row = 0; row < grid_->Rows(); ++row) {
        const bool head = row < grid_->FixedRows();
        const std::string& text = grid_->Text(row, col);
        const CellStyle& style = grid_->Style(row, col);
        if (text.empty() || !(whole || head || Has_Digit(text)) ||
            !measured.emplace(Pattern(text), style.Bold).second)
            continue;
        const QFontMetrics metrics(Cell_Font(font(), style));
        for (const QString& line :
             To_Qt(Pattern(text)).split(head && grid_->Word_Wrap() ? words : lines))
            width = std::max(width, metrics.horizontalAdvance(line));
    }
    return width == 0 ? 0 : width + cellMargin;
}

// The part of its height that a row keeps so that all show, if they can still be read then.
double GridView::Row_Squeeze() const {
    if (!onlyNeeded_ || grid_->FixedRows() >= grid_->Rows())
        return 1;
    double whole = 0;
    for (int row = grid_->FixedRows(); row < grid_->Rows(); ++row)
        whole += grid_->Row_Height(row) * Twip_Scale();
    const bool bar = Columns_Width() > width() && !giveWay_;
    const int room = height() - 2 * frameWidth() - Head_Height() -
                     (bar ? horizontalScrollBar()->sizeHint().height() : 0);
    const double part = room / whole;
    const double least = (fontMetrics().height() + leastRowMargin) /
                         (grid_->Row_Height(grid_->FixedRows()) * Twip_Scale());
    return part >= least ? std::min(part, 1.0) : 1;
}

// New texts in the same cells may need more room.
void GridView::Widen_Columns() {
    if (fitted_ == grid_->Texts_Version())
        return;
    const std::vector<int> before = fittingWidths_;
    Find_Fitting_Widths();
    bool wider = giveWay_ && fittingWidths_ != before;
    if (wider)
        Measure_Columns();
    for (int col = 0; col < grid_->Cols(); ++col) {
        QTableView* pane = this;
        if (col < grid_->FixedCols())
            pane = frozen_;
        const int width = Column_Pixels(col);
        if (pane->columnWidth(col) < width) {
            pane->setColumnWidth(col, width);
            wider = true;
        }
    }
    if (wider) {
        Place_Frozen();
        Fit_Contents();
    }
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
