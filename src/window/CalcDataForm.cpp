#include "window/CalcDataForm.h"

#include "ui_CalcDataForm.h"
#include "window/CalcRows.h"
#include "window/FittingArea.h"

namespace Tensarix {

namespace {
constexpr int firstLines = 28;
}

CalcDataForm::CalcDataForm(CalcDataFrm& frm, QWidget* parent)
    : QDialog(parent), frm_(frm), ui_(std::make_unique<Ui::CalcDataForm>()) {
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

CalcDataForm::~CalcDataForm() = default;

void CalcDataForm::Take_Selection() {
    for (int row = 0; row < ui_->ItemBox->topLevelItemCount(); ++row)
        frm_.Toggle_Row(row, ui_->ItemBox->topLevelItem(row)->isSelected());
}

void CalcDataForm::Show_State() {
    Show_Rows(*ui_->ItemBox, frm_.ItemBox, frm_.Selected);
    ui_->DeleteButton->setEnabled(frm_.DeleteEnabled);
}

template <typename Work>
void CalcDataForm::Do(Work work) {
    work();
    Show_State();
}

void CalcDataForm::done(int result) {
    frm_.ExitButton();
    QDialog::done(result);
}

} // namespace Tensarix
