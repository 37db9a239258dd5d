#include "window/calculator/CalcDataDialog.h"

#include "ui_CalcDataDialog.h"
#include "window/FittingArea.h"
#include "window/calculator/CalcRows.h"

namespace Tensarix {

namespace {
constexpr int firstLines = 28;
}

CalcDataDialog::CalcDataDialog(CalcDataFrm& frm, QWidget* parent)
    : QDialog(parent), frm_(frm), ui_(std::make_unique<Ui::CalcDataDialog>()) {
    ui_->setupUi(this);
    Prepare_Rows(*ui_->ItemBox);
    Show_State();
    connect(ui_->ItemBox, &QTreeWidget::itemSelectionChanged, this,
            [this] { Do([this] { Take_Selection(); }); });
    connect(ui_->AllButton, &QPushButton::clicked, this,
            [this] { Do([this] { frm_.AllButton(); }); });
    connect(ui_->ClearButton, &QPushButton::clicked, this,
            [this] { Do([this] { frm_.ClearButton(); }); });
    connect(ui_->DeleteButton, &QPushButton::clicked, this,
            [this] { Do([this] { frm_.DeleteButton(); }); });
    connect(ui_->ExitButton, &QPushButton::clicked, this, &QDialog::reject);
    Let_Scroll(*this, {0, firstLines});
    ui_->ItemBox->setFocus();
}

CalcDataDialog::~CalcDataDialog() = default;

void CalcDataDialog::Take_Selection() {
    for (int row = 0; row < ui_->ItemBox->topLevelItemCount(); ++row)
        frm_.Toggle_Row(row, ui_->ItemBox->topLevelItem(row)->isSelected());
}

void CalcDataDialog::Show_State() {
    Show_Rows(*ui_->ItemBox, frm_.ItemBox, frm_.Selected);
    ui_->DeleteButton->setEnabled(frm_.DeleteEnabled);
}

template <typename Work>
void CalcDataDialog::Do(Work work) {
    work();
    Show_State();
}

void CalcDataDialog::done(int result) {
    frm_.ExitButton();
    QDialog::done(result);
}

} // namespace Tensarix
