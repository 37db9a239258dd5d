// The dialog of the calculator's memory registers.
#pragma once

#include "calculator/CalcMemoryFrm.h"

#include <QDialog>

#include <memory>

namespace Ui {
class CalcMemoryDialog;
}

namespace Tensarix {

class CalcMemoryDialog final : public QDialog {
    Q_OBJECT

  public:
    CalcMemoryDialog(CalcMemoryFrm& frm, QWidget* parent);
    ~CalcMemoryDialog() override;

    void done(int result) override;

  private:
    void Show_Texts();
    void Connect();
    void Show_State();
    void Take_Selection();
    template <typename Work>
    void Do(Work work);

    CalcMemoryFrm& frm_;
    std::unique_ptr<Ui::CalcMemoryDialog> ui_;
};

} // namespace Tensarix
