// How wide the columns of a grid are and how high its rows, and how large that makes the view.
#include "common/NumberText.h"
#include "window/To_Qt.h"
#include "window/grid/GridModel.h"
#include "window/grid/GridView.h"

#include <QHeaderView>
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
constexpr int cellMargin = 12, wordMargin = 10; // the latter of a word of a head that wraps
constexpr int leastRows = 3;
constexpr int leastRowMargin = 2; // above and below the text

// With the widest digit for each: a column of numbers has few of these.
std::string Pattern(std::string text) {
    std::replace_if(text.begin(), text.end(), Is_Digit, '0');
    return text;
}

bool Has_Digit(const std::string& text) {
    return text.find_first_of("0123456789") != std::string::npos;
}

} // namespace

double GridView::Twip_Scale() const {
    return twipsToPixel * std::max(1.0, fontMetrics().height() / designFontHeight);
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
        const bool wraps = head && grid_->Word_Wrap();
        const int margin = wraps ? wordMargin : cellMargin;
        for (const QString& line : To_Qt(Pattern(text)).split(wraps ? words : lines))
            width = std::max(width, metrics.horizontalAdvance(line) + margin);
    }
    return width;
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

} // namespace Tensarix
