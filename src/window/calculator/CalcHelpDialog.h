// The help of the calculator: topics, their texts, and the word that is being read out.
#pragma once

#include "calculator/CalcHelpModule.h"
#include "platform/Machine.h"

#include <QDialog>

#include <memory>

namespace Ui {
class CalcHelpDialog;
}

namespace Tensarix {

class CalcHelpDialog final : public QDialog {
    Q_OBJECT

  public:
    CalcHelpDialog(CalcHelpFrm& frm, Voice& voice, QWidget* parent);
    ~CalcHelpDialog() override;

    void done(int result) override;

  private:
    void Choose();
    void Show_Text();
    void Show_Mark();

    CalcHelpFrm& frm_;
    Voice& voice_;
    std::unique_ptr<Ui::CalcHelpDialog> ui_;
};

} // namespace Tensarix
