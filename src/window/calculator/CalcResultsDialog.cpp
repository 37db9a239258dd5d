#include "window/calculator/CalcResultsDialog.h"

#include "calculator/CalcResults.h"
#include "ui_CalcResultsDialog.h"
#include "window/FittingArea.h"
#include "window/To_Qt.h"
#include "window/calculator/CalcRows.h"

#include <QKeyEvent>

#include <utility>

namespace Tensarix {

namespace {
constexpr QSize firstSize{40, 26}; // characters and lines
}

CalcResultsDialog::CalcResultsDialog(const std::vector<CalcResult>& results, Taker use, Taker copy,
                                     QWidget* parent)
    : QDialog(parent), results_(results), use_(std::move(use)), copy_(std::move(copy)),
      ui_(std::make_unique<Ui::CalcResultsDialog>()) {
    ui_->setupUi(this);
    connect(ui_->ResultBox, &QListWidget::itemActivated, ui_->UseButton, &QPushButton::click);
    connect(ui_->UseButton, &QPushButton::clicked, this, [this] { Hand_To(use_); });
    connect(ui_->CopyButton, &QPushButton::clicked, this, [this] { Hand_To(copy_); });
    connect(ui_->ExitButton, &QPushButton::clicked, this, &QDialog::reject);
    Show_Results();
    Let_Scroll(*this, firstSize);
    ui_->ResultBox->setFocus();
}

CalcResultsDialog::~CalcResultsDialog() = default;

// New ones come in at the top.
void CalcResultsDialog::Show_Results() {
    QListWidget& list = *ui_->ResultBox;
    const int known = list.count();
    const int chosen = list.currentRow();
    const auto newest = results_.empty() ? QString() : To_Qt(Result_Text(results_[0]));
    const bool same = known == static_cast<int>(results_.size()) &&
                      (known == 0 || list.item(0)->text() == newest);
    if (!same) {
        list.clear();
        for (const CalcResult& result : results_)
            list.addItem(To_Qt(Result_Text(result)));
        list.setCurrentRow(chosen < 0 ? 0 : std::min(chosen + 1, list.count() - 1));
    }
    Fit_Width(list);
    for (QPushButton* button : {ui_->UseButton, ui_->CopyButton})
        button->setEnabled(list.count() > 0);
}

void CalcResultsDialog::Hand_To(const Taker& taker) {
    const int row = ui_->ResultBox->currentRow();
    if (row >= 0 && row < static_cast<int>(results_.size()))
        taker(results_[static_cast<std::size_t>(row)].Value);
}

void CalcResultsDialog::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy))
        ui_->CopyButton->click();
    else
        QDialog::keyPressEvent(event);
}

} // namespace Tensarix
