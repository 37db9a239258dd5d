#include "window/calculator/CalcHelpDialog.h"

#include "ui_CalcHelpDialog.h"
#include "window/FittingArea.h"
#include "window/To_Qt.h"
#include "window/calculator/CalcRows.h"

#include <algorithm>

namespace Tensarix {

namespace {
constexpr QSize firstSize{100, 27}; // characters and lines
}

CalcHelpDialog::CalcHelpDialog(CalcHelpFrm& frm, Voice& voice, QWidget* parent)
    : QDialog(parent), frm_(frm), voice_(voice), ui_(std::make_unique<Ui::CalcHelpDialog>()) {
    ui_->setupUi(this);
    for (const std::string& title : frm_.MenuBox)
        ui_->MenuBox->addItem(To_Qt(title));
    ui_->HBox->setPlainText(To_Qt(frm_.HBox));
    connect(ui_->MenuBox, &QListWidget::itemSelectionChanged, this, &CalcHelpDialog::Choose);
    // A click gives the text the focus; the arrow keys stay with the topics.
    connect(ui_->MenuBox, &QListWidget::itemClicked, ui_->HBox, qOverload<>(&QWidget::setFocus));
    connect(ui_->ExitButton, &QPushButton::clicked, this, &QDialog::reject);
    voice_.OnWord = [this](std::size_t at, std::size_t length) {
        frm_.Voice_Word(static_cast<int>(at), static_cast<int>(length));
        Show_Mark();
    };
    Fit_Width(*ui_->MenuBox);
    Let_Scroll(*this, firstSize);
    ui_->MenuBox->setFocus();
}

CalcHelpDialog::~CalcHelpDialog() {
    voice_.OnWord = nullptr;
}

void CalcHelpDialog::Choose() {
    const auto selected = ui_->MenuBox->selectedItems();
    if (selected.isEmpty())
        return;
    frm_.Select_Row(ui_->MenuBox->row(selected.front()));
    Show_Text();
}

void CalcHelpDialog::Show_Text() {
    ui_->HBox->setPlainText(To_Qt(frm_.HBox));
    ui_->HBox->moveCursor(QTextCursor::Start);
}

// A line end is one character of the widget, and two of the text.
void CalcHelpDialog::Show_Mark() {
    if (!frm_.Mark)
        return;
    const std::string& text = frm_.HBox;
    const auto place = [&text](std::size_t at) {
        const auto end = text.begin() + static_cast<std::ptrdiff_t>(std::min(at, text.size()));
        return static_cast<int>(
            QString::fromUtf8(text.data(), end - text.begin()).remove(QLatin1Char('\r')).size());
    };
    QTextCursor cursor = ui_->HBox->textCursor();
    cursor.setPosition(place(frm_.Mark->Start));
    cursor.setPosition(place(frm_.Mark->Start + frm_.Mark->Length), QTextCursor::KeepAnchor);
    ui_->HBox->setFocus();
    ui_->HBox->setTextCursor(cursor);
}

void CalcHelpDialog::done(int result) {
    frm_.ExitButton();
    QDialog::done(result);
}

} // namespace Tensarix
