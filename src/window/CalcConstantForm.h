// The dialog of the calculator's constants.
#pragma once

#include "calculator/CalcConstants.h"

#include <QDialog>

#include <memory>

namespace Ui {
class CalcConstantForm;
}

namespace Tensarix {

class CalcConstantForm final : public QDialog {
    Q_OBJECT

  public:
    CalcConstantForm(CalcConstantFrm& frm, QWidget* parent);
    ~CalcConstantForm() override;

    void done(int result) override;

  private:
    void Show_State();
    void Apply();

    CalcConstantFrm& frm_;
    std::unique_ptr<Ui::CalcConstantForm> ui_;
};

} // namespace Tensarix
