#include "window/Program.h"

#include "shell/AboutFrm.h"
#include "shell/Version.h"
#include "window/ProgramStyle.h"
#include "window/To_Qt.h"
#include "window/calculator/CalcWindow.h"
#include "window/pages/AboutDialog.h"
#include "window/pages/ReportText.h"
#include "window/pages/WtCalcsDialog.h"

#include <QApplication>
#include <QIcon>

namespace Tensarix {

namespace {

constexpr int iconSizes[] = {16, 24, 32, 48, 64, 128, 256};
constexpr int typedSearchMs = 1500; // a designation is typed slower than a word

} // namespace

void Program::Prepare_Application() {
    const QString title = To_Qt(ApplicationTitle);
    QApplication::setApplicationName(title);
    QApplication::setOrganizationName(title);
    QApplication::setDesktopFileName(QStringLiteral("tensarix"));
    QApplication::setStyle(new ProgramStyle);
    QIcon icon;
    for (const int size : iconSizes)
        icon.addFile(QStringLiteral(":/pictures/tensarix-%1.png").arg(size));
    QApplication::setWindowIcon(icon);
    QApplication::setKeyboardInputInterval(typedSearchMs);
    QLocale::setDefault(QLocale::c());
    Let_Reports_Be_Read();
}

Program::Program(const Folders& folders, std::unique_ptr<Clock> clock, QByteArray activationToken)
    : instance_(std::move(activationToken)),
      clock_(std::move(clock)), machine_{settings_, clipboard_,  voice_,    messages_, *clock_,
                                         events_,   mainWindow_, instance_, folders},
      form_(machine_, *this) {}

Program::~Program() = default;

bool Program::Start() {
    while (!form_.Load()) {
        if (instance_.Other_Runs())
            return false;
        settings_.Read_Again(); // the other one has ended meanwhile
    }
    window_ = std::make_unique<ProgramWindow>(form_, events_);
    mainWindow_.Set_Widget(window_.get());
    mainWindow_.SetWindowOnTop(form_.Shared.OnTop);
    window_->show();
    instance_.On_Raise([this](const QByteArray& token) { return window_->Raise(token); });
    return true;
}

void Program::Show_CalcMainFrm() {
    CalcWindow(form_.Shared, calculator_, window_.get()).exec();
}

void Program::Show_AboutFrm() {
    AboutFrm about(form_.Shared);
    AboutDialog(about, window_.get()).exec();
}

void Program::Show_WtCalcsFrm() {
    WtCalcsFrm form(form_.Shared, savedLengths_);
    form.Load();
    WtCalcsDialog dialog(window_.get());
    Make_WtCalcs_Form(form, dialog);
    dialog.exec();
}

void Program::Show_WtCalcsFrmA() {
    WtCalcsFrmA form(form_.Shared, savedRows_);
    form.Load();
    WtCalcsDialog dialog(window_.get());
    Make_WtCalcs_FormA(form, dialog);
    dialog.exec();
}

} // namespace Tensarix
