#include "window/pages/ProgramWindow.h"

#include "ui_ProgramWindow.h"
#include "window/Bind.h"
#include "window/FittingArea.h"
#include "window/RefusedKey.h"
#include "window/grid/PopupMenu.h"
#include "window/pages/BeamForm.h"
#include "window/pages/BrowseForm.h"
#include "window/pages/DesignForm.h"
#include "window/pages/FindForm.h"
#include "window/pages/ViewForm.h"

#include <QCloseEvent>
#include <QEvent>

namespace Tensarix {

namespace {

constexpr std::string_view geometrySection = "Window", geometryKey = "Geometry"; // Base64
constexpr QSize firstSize{1240, 700}; // fits a screen of 1366 x 768 with its task bar

// The mode that shows is told by more than a shade.
void Show_Chosen_In_Bold(QPushButton* button) {
    QObject::connect(button, &QPushButton::toggled, button, [button](bool chosen) {
        QFont font = button->font();
        font.setBold(chosen);
        button->setFont(font);
    });
}

} // namespace

ProgramWindow::ProgramWindow(MainFrm& form, SettingsStore& settings, DesktopEvents& events)
    : form_(form), settings_(settings), events_(events) {
    Ui::ProgramWindow ui;
    ui.setupUi(this);
    setWindowTitle(QString::fromStdString(form.Caption));
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
                          Make_View_Form(form.ViewAll, this), Make_Beam_Form(form.Beam, this)})
        ui.SelectionTab->addWidget(new FittingArea(page));
    ui.SelectionTab->addWidget(Make_Design_Form(form.Design, this));
    Bind(ui.SelectionTab, form.SelectionTab);
    Make_Grid_Popup(form.mnuEdit1, this);
    Bind(ui.StatBar, form.Shared.StatBar);
    AnswerRefusedKey = [&form](const std::string& answer) {
        form.Shared.StatBar.Set_Remark(answer);
    };
    connect(this, &QObject::destroyed, [] { AnswerRefusedKey = nullptr; });
    Bind(ui.mnuCalc, form.mnuCalc);
    Bind(ui.mnuWtCalc, form.mnuWtCalc);
    Bind(ui.mnuWtCalcA, form.mnuWtCalcA);
    Bind(ui.mnuTerminate, form.mnuTerminate);
    Bind(ui.mnuOnTop, form.mnuOnTop);
    Bind(ui.mnuReadOut, form.mnuReadOut);
    Bind(ui.mnuAbout, form.mnuAbout);
    Restore_Place();
}

void ProgramWindow::Restore_Place() {
    const std::string saved = settings_.Read(geometrySection, geometryKey).value_or("");
    if (!restoreGeometry(QByteArray::fromBase64(QByteArray::fromStdString(saved))))
        Fit_To_Screen(*this, firstSize);
}

bool ProgramWindow::Raise() {
    if (!isVisible()) // closed, and the program is about to end
        return false;
    if (isMinimized())
        showNormal();
    raise();
    activateWindow();
    return true;
}

void ProgramWindow::closeEvent(QCloseEvent* event) {
    settings_.Write(geometrySection, geometryKey, saveGeometry().toBase64().toStdString());
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
