#include "window/pages/ProgramWindow.h"

#include "ui_ProgramWindow.h"
#include "window/Bind.h"
#include "window/FittingArea.h"
#include "window/To_Qt.h"
#include "window/grid/PopupMenu.h"
#include "window/pages/BeamForm.h"
#include "window/pages/BrowseForm.h"
#include "window/pages/DesignForm.h"
#include "window/pages/FindForm.h"
#include "window/pages/RemarkLegend.h"
#include "window/pages/TravelKeys.h"
#include "window/pages/ViewAllForm.h"

#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QShortcut>

#include <algorithm>

namespace Tensarix {

namespace {

constexpr char tokenVariable[] = "XDG_ACTIVATION_TOKEN"; // where the toolkit looks for it
constexpr QSize firstSize{1240, 700}; // fits a screen of 1366 x 768 with its task bar

// The mode that shows is told by more than a shade.
void Show_Chosen_In_Bold(QPushButton* button) {
    QObject::connect(button, &QPushButton::toggled, button, [button](bool chosen) {
        QFont font = button->font();
        font.setBold(chosen);
        button->setFont(font);
    });
}

// A text box keeps for itself what it knows as a key of its own. The menu's keys are the menu's,
// but for the one that cuts while something is chosen to be cut.
class MenuKeys final : public QObject {
  public:
    explicit MenuKeys(QWidget& window)
        : QObject(&window), actions_(window.findChildren<QAction*>()) {
        for (auto* box : window.findChildren<QLineEdit*>())
            box->installEventFilter(this);
        for (auto* list : window.findChildren<QComboBox*>()) // asks its box by itself
            if (list->isEditable())
                list->installEventFilter(this);
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::ShortcutOverride)
            return false;
        const auto& key = *static_cast<QKeyEvent*>(event);
        const auto* list = qobject_cast<QComboBox*>(watched);
        const auto* box = list ? list->lineEdit() : qobject_cast<QLineEdit*>(watched);
        const bool cuts = key.matches(QKeySequence::Cut) && box && box->hasSelectedText();
        if (cuts || !Is_Of_Menu(key))
            return false;
        event->ignore();
        return true;
    }

  private:
    bool Is_Of_Menu(const QKeyEvent& key) const {
        return std::any_of(actions_.begin(), actions_.end(), [&key](const QAction* action) {
            return action->shortcut() == QKeySequence(key.keyCombination());
        });
    }

    QList<QAction*> actions_; // the window's own, as long as it is
};

} // namespace

ProgramWindow::ProgramWindow(MainFrm& form, DesktopEvents& events) : form_(form), events_(events) {
    Ui::ProgramWindow ui;
    ui.setupUi(this);
    setWindowTitle(To_Qt(form.Caption));
    QPushButton* const modes[] = {ui.OptButton0, ui.OptButton1, ui.OptButton2, ui.OptButton3,
                                  ui.OptButton4};
    for (std::size_t i = 0; i < form.OptButton.size(); ++i) {
        Show_Chosen_In_Bold(modes[i]);
        Bind(modes[i], form.OptButton[i]);
        const QKeySequence key(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + static_cast<int>(i)));
        modes[i]->setShortcut(key);
        modes[i]->setToolTip(key.toString(QKeySequence::NativeText));
    }
    // One page a mode, in their order.
    for (QWidget* page : {Make_Browse_Form(form.Browse, this), Make_Find_Form(form.Find, this),
                          Make_View_All_Form(form.ViewAll, this), Make_Beam_Form(form.Beam, this)})
        ui.SelectionTab->addWidget(new FittingArea(page));
    ui.SelectionTab->addWidget(Make_Design_Form(form.Design, this));
    Bind(ui.SelectionTab, form.SelectionTab);
    Make_Grid_Popup(form.mnuEdit1, form.Sections, this);
    Bind_Travel_Keys(form.Sections, this, *ui.SelectionTab);
    Make_Any_Section_Box(ui.menuBar);
    Bind(ui.StatBar, form.Shared.StatBar);
    Bind(ui.mnuCalc, form.mnuCalc);
    Bind(ui.mnuWtCalc, form.mnuWtCalc);
    Bind(ui.mnuWtCalcA, form.mnuWtCalcA);
    Bind(ui.mnuTerminate, form.mnuTerminate);
    Bind(ui.mnuOnTop, form.mnuOnTop);
    Bind(ui.mnuReadOut, form.mnuReadOut);
    Bind(ui.mnuAbout, form.mnuAbout);
    Bind(ui.mnuGuide, form.mnuGuide);
    Bind(ui.mnuCompared, form.mnuCompared);
    connect(ui.mnuRemarks, &QAction::triggered, this, [this] { RemarkLegend(this).exec(); });
    new MenuKeys(*this);
    Restore_Place();
}

// A quiet box at the right of the menu bar.
void ProgramWindow::Make_Any_Section_Box(QMenuBar* bar) {
    auto* box = new QPushButton(bar);
    box->setObjectName(QStringLiteral("AnySectionButton"));
    box->setFlat(true);
    box->setFocusPolicy(Qt::NoFocus); // it has a key, and Tab stays with the page
    Bind(box, form_.AnySectionButton);
    bar->setCornerWidget(box);
    connect(new QShortcut(Qt::CTRL | Qt::Key_K, this), &QShortcut::activated, this,
            [this] { form_.AnySectionButton.Click(); });
}

void ProgramWindow::Restore_Place() {
    const std::string saved = form_.Shared.Saved.Text(Setting::MainWindowPlace);
    if (!restoreGeometry(QByteArray::fromBase64(QByteArray::fromStdString(saved))))
        Fit_To_Screen(*this, firstSize);
}

void ProgramWindow::Tell_Refused_Key(const std::string& answer) {
    form_.Shared.StatBar.Set_Remark(answer);
}

bool ProgramWindow::Raise(const QByteArray& activationToken) {
    if (!isVisible()) // closed, and the program is about to end
        return false;
    setWindowState(windowState() & ~Qt::WindowMinimized); // maximised stays so
    raise();
    if (!activationToken.isEmpty())
        qputenv(tokenVariable, activationToken);
    activateWindow();
    qunsetenv(tokenVariable); // it is good for once
    return true;
}

void ProgramWindow::closeEvent(QCloseEvent* event) {
    form_.Shared.Saved.Save(Setting::MainWindowPlace, saveGeometry().toBase64().toStdString());
    form_.Query_Unload();
    events_.Close();
    event->accept();
}

void ProgramWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    form_.Resized();
}

void ProgramWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        form_.Activated();
}

} // namespace Tensarix
