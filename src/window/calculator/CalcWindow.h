// The scientific calculator on the screen: panel, pages and pad; keyboard and clipboard.
#pragma once

#include "calculator/CalcKeys.h"
#include "desk/Desk.h"
#include "window/calculator/CalcKeyLayout.h"

#include <QDialog>

#include <map>
#include <memory>

class QEventLoop;
class QGridLayout;

namespace Ui {
class CalcWindow;
}

namespace Tensarix {

class CalcResultsDialog;

class CalcWindow final : public QDialog {
    Q_OBJECT

  public:
    // Opens the calculator, which keeps its state in vars; closing the form closes it.
    CalcWindow(const Desk& desk, CalcVariables& vars, QWidget* parent);
    ~CalcWindow() override;

    const CalcMainFrm& Calculator() const { return calc_; }
    // A click on the key of that name.
    void Press_Key(std::string_view name);

    void done(int result) override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    CalcHost Make_Host();
    void Add_Dialogs(CalcHost& host);
    void Make_Keys(CalcPage page);
    CalcKeyButton* Make_Button(const CalcKey& key, const CalcKeyLook& look, QWidget* parent);
    void Make_Modes();
    QGridLayout& Grid_Of(CalcPage page);
    void Colour_Panel();
    void Show_Panel();
    void Run(const CalcKey& key);
    // Whatever the calculator does: afterwards the panel shows it.
    template <typename Work>
    void Do(Work work);
    void Type(const CalcKey& key);
    void Copy();
    void Paste();
    bool Clock_Yield();
    void Put_Beside(QDialog& dialog) const;
    void Fit_Font();
    void Open_Dialog(QDialog& dialog);
    void Toggle_Results();
    void Show_Help();

    const Desk& desk_;
    CalcMainFrm calc_;
    std::unique_ptr<Ui::CalcWindow> ui_;
    std::map<std::string_view, CalcKeyButton*> buttons_; // by the name of the key
    CalcResultsDialog* results_ = nullptr;               // beside the calculator while it is open
    QEventLoop* clockLoop_ = nullptr;                    // in which the running clock waits
    bool showing_ = false;                               // the panel is being shown
    bool closed_ = false;
};

} // namespace Tensarix
