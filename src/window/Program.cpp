#include "window/Program.h"

#include "common/Failure.h"
#include "shell/AboutFrm.h"
#include "shell/Version.h"
#include "window/ProgramStyle.h"
#include "window/To_Qt.h"
#include "window/calculator/CalcWindow.h"
#include "window/pages/AboutDialog.h"
#include "window/pages/AnySectionDialog.h"
#include "window/pages/CompareWindow.h"
#include "window/pages/GuideWindow.h"
#include "window/pages/ReportForScreenReader.h"
#include "window/pages/WtCalcsDialog.h"

#include <QApplication>
#include <QIcon>
#include <QShortcut>

namespace Tensarix {

namespace {

constexpr int iconSizes[] = {16, 24, 32, 48, 64, 128, 256};
constexpr int typedSearchMs = 1500; // a designation is typed slower than a word

} // namespace

void Program::Prepare_Toolkit() {
#ifdef _WIN32 // its palette follows the system's dark mode, which newer toolkits do by themselves
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "windows:darkmode=2");
#endif
}

void Program::Prepare_Application() {
    const QString title = To_Qt(applicationTitle);
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

void Program::Show_AnySectionFrm(AnySectionFrm& form) {
    AnySectionDialog dialog(form, window_.get());
    Add_Guide_Key(dialog, "Any section at once");
    dialog.exec();
}

void Program::Show_Guide(std::string_view chapter) {
    GuideWindow::Open(machine_.Places.Program, To_Qt(chapter), window_.get());
}

void Program::Show_Compare(bool withKeyboard) {
    auto* compare = window_->findChild<CompareWindow*>(QString(), Qt::FindDirectChildrenOnly);
    if (!compare) {
        compare = new CompareWindow(form_.Compare, form_.Shared.Saved, window_.get());
        Add_Guide_Key(*compare, "Compare: sections side by side");
    }
    compare->Come_Up(withKeyboard);
}

void Program::Add_Guide_Key(QDialog& dialog, const char* chapter) {
    QObject::connect(new QShortcut(Qt::Key_F1, &dialog), &QShortcut::activated, &dialog,
                     [this, &dialog, chapter] {
                         GuideWindow::Open(machine_.Places.Program, To_Qt(chapter), &dialog);
                     });
}

void Program::Show_WtCalcsFrm() {
    Show_WtCalcsFrm_Of({});
}

void Program::Show_WtCalcsFrm_Of(SectionPlace place) {
    WtCalcsFrm form(form_.Shared, savedLengths_);
    form.Load();
    if (place != SectionPlace{}) {
        Attempt([&] { form.ShapeType.Select(place.Family); });
        Attempt([&] { form.ShapeSizeUS.Select(place.Position); });
    }
    WtCalcsDialog dialog(window_.get());
    Make_WtCalcs_Form(form, dialog);
    Add_Guide_Key(dialog, "Weights, type 1: one section, many lengths");
    dialog.exec();
}

void Program::Show_WtCalcsFrmA() {
    WtCalcsFrmA form(form_.Shared, savedRows_);
    form.Load();
    WtCalcsDialog dialog(window_.get());
    Make_WtCalcs_FormA(form, dialog);
    Add_Guide_Key(dialog, "Weights, type 2: a section for each row");
    dialog.exec();
}

} // namespace Tensarix
