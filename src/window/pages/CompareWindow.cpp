#include "window/pages/CompareWindow.h"

#include "ui_CompareWindow.h"
#include "window/Bind.h"
#include "window/FittingArea.h"
#include "window/To_Qt.h"
#include "window/drawing/DrawingView.h"
#include "window/grid/GridView.h"
#include "window/pages/TravelKeys.h"

#include <QAbstractScrollArea>
#include <QHeaderView>
#include <QScreen>
#include <QShortcut>

#include <algorithm>

namespace Tensarix {

namespace {

constexpr QSize firstSize{150, 44}; // characters and lines

// Keeps each drawing over the column of its section. All views have one size, so that all drawings
// have one scale.
class DrawingsOverColumns final : public QObject {
  public:
    DrawingsOverColumns(ComparePage& page, QWidget* row, GridView* table)
        : QObject(row), page_(page), row_(row), area_(new QAbstractScrollArea(row)),
          note_(new QLabel(row)), table_(table) {
        area_->setFrameShape(QFrame::NoFrame);
        area_->setFocusPolicy(Qt::NoFocus);
        area_->viewport()->setAutoFillBackground(false);
        note_->setText(QStringLiteral("At one scale"));
        note_->setAlignment(Qt::AlignCenter);
        for (DrawingBox& drawing : page.Drawings) {
            views_.append(new DrawingView(area_->viewport()));
            Bind(views_.last(), drawing);
        }
        table->viewport()->installEventFilter(this);
        row->installEventFilter(this);
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == (watched == row_ ? QEvent::Resize : QEvent::Paint))
            Place();
        return false;
    }

  private:
    void Place();

    ComparePage& page_;
    QWidget* row_;
    QAbstractScrollArea* area_; // cuts them where the table cuts its columns
    QLabel* note_;
    GridView* table_;
    QList<DrawingView*> views_;
};

void DrawingsOverColumns::Place() {
    const auto cell = [this](int col) { return table_->Cell_Rect(1, firstComparedCol + col); };
    const int count = static_cast<int>(page_.Sections().size()), height = row_->height();
    const int fixed = table_->viewport()->x();
    note_->setGeometry(0, 0, fixed, height);
    note_->setVisible(count > 0);
    area_->setGeometry(fixed, 0, table_->viewport()->width(), height);
    int width = area_->width();
    for (int col = 0; col < count; ++col)
        width = std::min(width, cell(col).width());
    for (int col = 0; col < views_.size(); ++col) {
        DrawingView& view = *views_[col];
        view.setVisible(col < count);
        if (col >= count)
            continue;
        const int middle = cell(col).center().x() - fixed;
        view.setGeometry(middle - width / 2, 0, width, height);
        view.setAccessibleName(QStringLiteral("Drawing of ") +
                               To_Qt(page_.CompareFlex.Text(0, firstComparedCol + col)));
    }
}

} // namespace

CompareWindow::CompareWindow(ComparePage& page, const Settings& saved, QWidget* parent)
    : QDialog(parent), saved_(saved) {
    Ui::CompareWindow ui;
    ui.setupUi(this);
    table_ = ui.CompareFlex;
    Bind(ui.CompareProfile1, page.CompareProfile1);
    Bind(ui.CompareProfile2, page.CompareProfile2);
    Bind(ui.CompareFlex, page.CompareFlex);
    ui.CompareFlex->horizontalHeader()->setStretchLastSection(false); // numbers side by side
    new DrawingsOverColumns(page, ui.DrawingRow, ui.CompareFlex);
    Bind(ui.CellLabel, page.CellLabel);
    Bind(ui.RemarkLabel, page.RemarkLabel);
    Bind(ui.CountLabel, page.CountLabel);
    Bind(ui.RemoveButton, page.RemoveButton);
    Bind(ui.CopyButton, page.CopyButton);
    connect(new QShortcut(Compare_Key(), this), &QShortcut::activated, this,
            [this] { parentWidget()->activateWindow(); });
    Let_Scroll(*this, firstSize);
    Restore_Place();
}

CompareWindow::~CompareWindow() {
    if (isVisible())
        Save_Place();
}

void CompareWindow::Restore_Place() {
    const std::string place = saved_.Text(Setting::ComparePlace);
    if (restoreGeometry(QByteArray::fromBase64(QByteArray::fromStdString(place))))
        return;
    const QRect beside = parentWidget()->frameGeometry(), room = screen()->availableGeometry();
    move(std::max(std::min(beside.right(), room.right() - width()), room.left()), beside.top());
}

void CompareWindow::Save_Place() const {
    saved_.Save(Setting::ComparePlace, saveGeometry().toBase64().toStdString());
}

void CompareWindow::Come_Up(bool withKeyboard) {
    setAttribute(Qt::WA_ShowWithoutActivating, !withKeyboard);
    show();
    raise();
    if (withKeyboard) {
        activateWindow();
        table_->setFocus(Qt::ShortcutFocusReason);
    } else {
        parentWidget()->activateWindow(); // for desktops that activate whatever opens
    }
}

void CompareWindow::hideEvent(QHideEvent* event) {
    Save_Place();
    QDialog::hideEvent(event);
}

} // namespace Tensarix
