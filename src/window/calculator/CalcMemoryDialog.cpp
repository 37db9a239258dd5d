#include "window/calculator/CalcMemoryDialog.h"

#include "ui_CalcMemoryDialog.h"
#include "window/FittingArea.h"
#include "window/To_Qt.h"
#include "window/calculator/CalcRows.h"

namespace Tensarix {

namespace {

constexpr int firstLines = 30;

// The caption with its accelerator marked.
QString With_Accelerator(const std::string& caption, char accelerator) {
    QString text = To_Qt(caption);
    const qsizetype at = text.indexOf(QLatin1Char(accelerator), 0, Qt::CaseInsensitive);
    return at < 0 ? text : text.insert(at, QLatin1Char('&'));
}

} // namespace

CalcMemoryDialog::CalcMemoryDialog(CalcMemoryFrm& frm, QWidget* parent)
    : QDialog(parent), frm_(frm), ui_(std::make_unique<Ui::CalcMemoryDialog>()) {
    ui_->setupUi(this);
    Prepare_Rows(*ui_->ItemBox);
    Show_Texts();
    Show_State();
    Connect();
    Let_Scroll(*this, {0, firstLines});
    ui_->ItemBox->setFocus();
}

CalcMemoryDialog::~CalcMemoryDialog() = default;

void CalcMemoryDialog::Show_Texts() {
    setWindowTitle(To_Qt(frm_.Title));
    ui_->PromptLab->setText(To_Qt(frm_.Prompt));
    ui_->OKButton->setText(With_Accelerator(frm_.OkCaption, frm_.Accelerator));
    ui_->DescFrame->setTitle(To_Qt(frm_.FrameCaption));
    ui_->DescBox->setAccessibleName(ui_->DescFrame->title());
    ui_->DescBox->setReadOnly(frm_.DescriptionLocked);
    ui_->DeleteFrame->setVisible(frm_.DeleteFrame);
    ui_->ItemBox->setSelectionMode(frm_.DeleteFrame ? QAbstractItemView::ExtendedSelection
                                                    : QAbstractItemView::SingleSelection);
}

void CalcMemoryDialog::Connect() {
    connect(ui_->ItemBox, &QTreeWidget::itemSelectionChanged, this,
            [this] { Do([this] { Take_Selection(); }); });
    connect(ui_->DescBox, &QLineEdit::textEdited, this,
            [this](const QString& text) { frm_.DescBox = text.toStdString(); });
    connect(ui_->SelectAllButton, &QPushButton::clicked, this,
            [this] { Do([this] { frm_.SelectAllButton(); }); });
    connect(ui_->CLRButton, &QPushButton::clicked, this,
            [this] { Do([this] { frm_.CLRButton(); }); });
    connect(ui_->OKButton, &QPushButton::clicked, this,
            [this] { Do([this] { frm_.OKButton(); }); });
    connect(ui_->ExitButton, &QPushButton::clicked, this, &QDialog::reject);
    if (!frm_.DeleteFrame)
        connect(ui_->ItemBox, &QTreeWidget::itemDoubleClicked, ui_->OKButton, &QPushButton::click);
}

void CalcMemoryDialog::Take_Selection() {
    QTreeWidget& list = *ui_->ItemBox;
    for (int row = 0; row < list.topLevelItemCount(); ++row) {
        const bool selected = list.topLevelItem(row)->isSelected();
        if (frm_.DeleteFrame)
            frm_.Toggle_Row(row, selected);
        else if (selected)
            frm_.Select_Row(row);
    }
}

void CalcMemoryDialog::Show_State() {
    Show_Rows(*ui_->ItemBox, frm_.ItemBox, frm_.Selected);
    if (const QString text = To_Qt(frm_.DescBox); ui_->DescBox->text() != text)
        ui_->DescBox->setText(text);
    ui_->OKButton->setEnabled(frm_.OKEnabled);
}

template <typename Work>
void CalcMemoryDialog::Do(Work work) {
    work();
    if (frm_.Closed)
        QDialog::done(Accepted);
    else
        Show_State();
}

// Left by the frame, Escape or "Exit".
void CalcMemoryDialog::done(int result) {
    frm_.ExitButton();
    QDialog::done(result);
}

} // namespace Tensarix
