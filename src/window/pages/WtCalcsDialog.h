// The two weight calculators on the screen, as modal dialogs.
#pragma once

#include "weights/WtCalcsFrm.h"
#include "weights/WtCalcsFrmA.h"

#include <QDialog>

namespace Tensarix {

// Unloads its form while everything still shows, however it is closed.
class WtCalcsDialog final : public QDialog {
  public:
    using QDialog::QDialog;
    Handler Unload;

    void done(int result) override;
};

// Lays the loaded form out in the dialog and binds it. The form must outlive the dialog.
void Make_WtCalcs_Form(WtCalcsFrm& form, WtCalcsDialog& dialog);
void Make_WtCalcs_FormA(WtCalcsFrmA& form, WtCalcsDialog& dialog);

} // namespace Tensarix
