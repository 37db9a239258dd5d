#include "window/calculator/CalcConstantDialog.h"

#include "ui_CalcConstantDialog.h"
#include "window/FittingArea.h"
#include "window/To_Qt.h"
#include "window/calculator/CalcRows.h"

namespace Tensarix {

namespace {
constexpr int firstLines = 30;
}

CalcConstantDialog::CalcConstantDialog(CalcConstantFrm& frm, QWidget* parent)
    : QDialog(parent), frm_(frm), ui_(std::make_unique<Ui::CalcConstantDialog>()) {
    ui_->setupUi(this);
    for (const std::string& row : frm_.ConstantBox)
        ui_->ConstantBox->addItem(To_Qt(row));
    Show_State();
    connect(ui_->ConstantBox, &QListWidget::itemSelectionChanged, this, [this] {
        for (const QListWidgetItem* item : ui_->ConstantBox->selectedItems())
            frm_.Select_Row(ui_->ConstantBox->row(item));
        Show_State();
    });
    connect(ui_->ConstantBox, &QListWidget::itemDoubleClicked, ui_->OKButton, &QPushButton::click);
    connect(ui_->OKButton, &QPushButton::clicked, this, &CalcConstantDialog::Apply);
    connect(ui_->ExitButton, &QPushButton::clicked, this, &QDialog::reject);
    Fit_Width(*ui_->ConstantBox);
    Let_Scroll(*this, {0, firstLines});
    ui_->ConstantBox->setFocus();
}

CalcConstantDialog::~CalcConstantDialog() = default;

void CalcConstantDialog::Show_State() {
    ui_->ConstLab->setText(To_Qt(frm_.ConstLab));
    ui_->TextBox1->setText(To_Qt(frm_.TextBox1));
    ui_->TextBox1->setCursorPosition(0);
    ui_->OriginLab->setText(To_Qt(frm_.Origin));
    ui_->OKButton->setEnabled(frm_.OKEnabled);
}

void CalcConstantDialog::Apply() {
    frm_.OKButton();
    if (frm_.Closed)
        QDialog::done(Accepted);
}

// Left by the frame, Escape or "Exit".
void CalcConstantDialog::done(int result) {
    frm_.ExitButton();
    QDialog::done(result);
}

} // namespace Tensarix
