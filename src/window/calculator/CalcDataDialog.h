// The dialog in which numbers are taken out of the calculator's data list.
#pragma once

#include "calculator/CalcStatistics.h"

#include <QDialog>

#include <memory>

namespace Ui {
class CalcDataDialog;
}

namespace Tensarix {

class CalcDataDialog final : public QDialog {
    Q_OBJECT

  public:
    CalcDataDialog(CalcDataFrm& frm, QWidget* parent);
    ~CalcDataDialog() override;

    void done(int result) override;

  private:
    void Show_State();
    void Take_Selection();
    template <typename Work>
    void Do(Work work);

    CalcDataFrm& frm_;
    std::unique_ptr<Ui::CalcDataDialog> ui_;
};

} // namespace Tensarix
