// The help of the calculator: topics, their texts, and the word that is being read out.
#pragma once

#include "calculator/CalcHelpModule.h"
#include "platform/Machine.h"

#include <QDialog>

#include <memory>

namespace Ui {
class CalcHelpForm;
}

namespace Tensarix {

class CalcHelpForm final : public QDialog {
    Q_OBJECT

  public:
    CalcHelpForm(CalcHelpFrm& frm, Voice& voice, QWidget* parent);
    ~CalcHelpForm() override;

    void done(int result) override;

  private:
    void Choose();
    void Show_Text();
    void Show_Mark();

    CalcHelpFrm& frm_;
    Voice& voice_;
    std::unique_ptr<Ui::CalcHelpForm> ui_;
};

} // namespace Tensarix
