#include "window/pages/WtCalcsDialog.h"

#include "common/NumberText.h"
#include "ui_WtCalcsDialog.h"
#include "ui_WtCalcsDialogA.h"
#include "window/Bind.h"
#include "window/FittingArea.h"
#include "window/To_Qt.h"
#include "window/grid/CellOverlay.h"
#include "window/grid/PopupMenu.h"

namespace Tensarix {

namespace {

constexpr int firstLines = 46;

// The caption as it stands, with the key that chooses it.
QString With_Mnemonic(QString caption, char key) {
    return caption.insert(caption.indexOf(QLatin1Char(key)), QLatin1Char('&'));
}

// A button that is reached by its key takes the focus as one that is clicked: what is being edited
// is committed before the button works.
void Take_Focus_When_Pressed(QPushButton* button, char key) {
    button->setText(With_Mnemonic(button->text(), key));
    QObject::connect(button, &QPushButton::pressed, button,
                     [button] { button->setFocus(Qt::MouseFocusReason); });
}

// What both forms have.
template <typename Ui>
void Bind_Sheets(const Ui& ui, WtCalcsSheets& form, WtCalcsDialog& dialog) {
    dialog.setWindowTitle(To_Qt(weightCaption));
    Bind(ui.ShapeType, form.ShapeType);
    Bind(ui.SSTab1, ui.SSTab1Pages, form.SSTab1);
    Bind(ui.ImperialFlex, form.ImperialFlex);
    Bind(ui.MetricFlex, form.MetricFlex);
    ui.ImperialFlexFind->Find_In(form.ImperialFlex, *ui.ImperialFlex);
    ui.MetricFlexFind->Find_In(form.MetricFlex, *ui.MetricFlex);
    Make_Sheet_Popup(form.ImperialPopup, ui.ImperialFlex);
    Make_Sheet_Popup(form.MetricPopup, ui.MetricFlex);
    Lay_Over(ui.ImperialFlex, form.ImperialFlex, form.EdiTxt, QStringLiteral("EdiTxt"),
             QStringLiteral("Profile length in feet and inches"));
    Lay_Over(ui.MetricFlex, form.MetricFlex, form.EdiTxtA, QStringLiteral("EdiTxtA"),
             QStringLiteral("Profile length in metres"));
    Bind(ui.TotalLabel, form.TotalLabel);
    Bind(ui.RemarkLabel, form.RemarkLabel);
    Bind(ui.ClearButton, form.ClearButton);
    Bind(ui.ExitButton, form.ExitButton);
    Take_Focus_When_Pressed(ui.ClearButton, 'C');
    Take_Focus_When_Pressed(ui.ExitButton, 'x');
    form.Close = [&dialog] { dialog.close(); };
    ui.ImperialFlex->Show_All_Columns();
    ui.MetricFlex->Show_All_Columns();
    Let_Scroll(dialog, {0, firstLines});
}

} // namespace

void WtCalcsDialog::done(int result) {
    Run(Unload);
    QDialog::done(result);
}

void Make_WtCalcs_Form(WtCalcsFrm& form, WtCalcsDialog& dialog) {
    Ui::WtCalcsDialog ui;
    ui.setupUi(&dialog);
    ui.SSTab1->addTab(With_Mnemonic(To_Qt(WtCalcsFrm::imperialCaption), 'I'));
    ui.SSTab1->addTab(With_Mnemonic(To_Qt(WtCalcsFrm::metricCaption), 'M'));
    Bind(ui.ShapeSizeUS, form.ShapeSizeUS);
    Bind(ui.ShapeSizeSI, form.ShapeSizeSI);
    Bind_Sheets(ui, form, dialog);
    dialog.Unload = [&form] { form.Unload(); };
}

void Make_WtCalcs_FormA(WtCalcsFrmA& form, WtCalcsDialog& dialog) {
    Ui::WtCalcsDialogA ui;
    ui.setupUi(&dialog);
    ui.SSTab1->addTab(With_Mnemonic(To_Qt(WtCalcsFrmA::imperialCaption), 'U'));
    ui.SSTab1->addTab(With_Mnemonic(To_Qt(WtCalcsFrmA::metricCaption), 'E'));
    Bind_Sheets(ui, form, dialog);
    Lay_Over(ui.ImperialFlex, form.ImperialFlex, form.ShapeSizeUS, QStringLiteral("ShapeSizeUS"),
             To_Qt(Trim(WtCalcsFrmA::imperialCaption)));
    Lay_Over(ui.MetricFlex, form.MetricFlex, form.ShapeSizeSI, QStringLiteral("ShapeSizeSI"),
             To_Qt(Trim(WtCalcsFrmA::metricCaption)));
    dialog.Unload = [&form] { form.Unload(); };
}

} // namespace Tensarix
