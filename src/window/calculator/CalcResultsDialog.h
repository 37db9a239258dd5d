// The last results of the calculator, beside it: one goes into the display, or is copied.
#pragma once

#include "calculator/CalcVariables.h"

#include <QDialog>

#include <functional>
#include <memory>

namespace Ui {
class CalcResultsDialog;
}

namespace Tensarix {

class CalcResultsDialog final : public QDialog {
    Q_OBJECT

  public:
    using Taker = std::function<void(double value)>;

    CalcResultsDialog(const std::vector<CalcResult>& results, Taker use, Taker copy,
                      QWidget* parent);
    ~CalcResultsDialog() override;

    // The list as it is now; the chosen result stays chosen while it is there.
    void Show_Results();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void Hand_To(const Taker& taker);

    const std::vector<CalcResult>& results_;
    Taker use_, copy_;
    std::unique_ptr<Ui::CalcResultsDialog> ui_;
};

} // namespace Tensarix
