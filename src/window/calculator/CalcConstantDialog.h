// The dialog of the calculator's constants.
#pragma once

#include "calculator/CalcConstants.h"

#include <QDialog>

#include <memory>

namespace Ui {
class CalcConstantDialog;
}

namespace Tensarix {

class CalcConstantDialog final : public QDialog {
    Q_OBJECT

  public:
    CalcConstantDialog(CalcConstantFrm& frm, QWidget* parent);
    ~CalcConstantDialog() override;

    void done(int result) override;

  private:
    void Show_State();
    void Apply();

    CalcConstantFrm& frm_;
    std::unique_ptr<Ui::CalcConstantDialog> ui_;
};

} // namespace Tensarix
