#include "window/grid/FindBar.h"

#include "ui_FindBar.h"
#include "window/To_Qt.h"
#include "window/grid/GridView.h"

#include <QKeyEvent>
#include <QShortcut>

namespace Tensarix {

namespace {

// "W18x50, Zx [in^3]: 101.00", for who does not see the table.
QString In_Words(const FlexGrid& grid, const FoundCell& cell) {
    QStringList words;
    if (cell.Col > 0)
        words.append(To_Qt(grid.Text(cell.Row, 0)).simplified());
    if (grid.FixedRows() > 0)
        words.append(To_Qt(grid.Text(0, cell.Col)).simplified());
    words.removeAll(QString());
    const QString text = To_Qt(grid.Text(cell.Row, cell.Col)).simplified();
    return words.isEmpty() ? text : words.join(QStringLiteral(", ")) + QStringLiteral(": ") + text;
}

} // namespace

FindBar::FindBar(QWidget* parent) : QWidget(parent), ui_(std::make_unique<Ui::FindBar>()) {
    ui_->setupUi(this);
    hide();
}

FindBar::~FindBar() = default;

void FindBar::Find_In(FlexGrid& grid, GridView& view) {
    grid_ = &grid;
    view_ = &view;
    setTabOrder(view_, ui_->FindBox);
    ui_->FindBox->setAccessibleName(QStringLiteral("Find in the table: ") + view.accessibleName());
    connect(ui_->FindBox, &QLineEdit::textChanged, this, [this] { Go(SearchWay::Here); });
    const auto key = [this](const QKeySequence& sequence, const auto& act) {
        connect(new QShortcut(sequence, parentWidget(), nullptr, nullptr,
                              Qt::WidgetWithChildrenShortcut),
                &QShortcut::activated, this, act);
    };
    key(QKeySequence::Find, [this] { Open(); });
    key(Qt::Key_F3, [this] { Go(SearchWay::Next); });
    key(Qt::SHIFT | Qt::Key_F3, [this] { Go(SearchWay::Previous); });
}

void FindBar::Open() {
    show();
    ui_->FindBox->setFocus(Qt::ShortcutFocusReason);
    ui_->FindBox->selectAll();
}

void FindBar::Go(SearchWay way) {
    const std::string typed = ui_->FindBox->text().toStdString();
    const int count = Count_Rows_With(*grid_, typed);
    QString found = count == 1 ? QStringLiteral("1 row") : QStringLiteral("%1 rows").arg(count);
    ui_->FoundLabel->setText(typed.empty() ? QString()
                             : count == 0  ? QStringLiteral("no row")
                                           : found);
    if (const std::optional<FoundCell> cell = Find_Cell(*grid_, typed, way)) {
        grid_->Go_To(cell->Row, cell->Col, false);
        Run(grid_->BringIntoView);
        found += QStringLiteral("; ") + In_Words(*grid_, *cell);
    }
    ui_->FindBox->setAccessibleDescription(count == 0 ? ui_->FoundLabel->text() : found);
}

void FindBar::Close() {
    hide();
    view_->setFocus(Qt::ShortcutFocusReason);
}

void FindBar::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        Go((event->modifiers() & Qt::ShiftModifier) != 0 ? SearchWay::Previous : SearchWay::Next);
    else if (event->key() == Qt::Key_Escape)
        Close();
    else
        event->ignore();
}

} // namespace Tensarix
