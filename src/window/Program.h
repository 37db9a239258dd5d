// The whole program on the desktop, short of main(): the services, the main form and its window.
// The picture tour and the window tests drive it as main() does.
#pragma once

#include "calculator/CalcVariables.h"
#include "weights/WtCalcsFrm.h"
#include "weights/WtCalcsFrmA.h"
#include "window/desktop/APIModule.h"
#include "window/desktop/DesktopClipboard.h"
#include "window/desktop/IniSettings.h"
#include "window/desktop/MessageBoxes.h"
#include "window/desktop/SingleInstance.h"
#include "window/desktop/UserFolders.h"
#include "window/pages/ProgramWindow.h"

#ifdef _WIN32
#include "window/desktop/SapiVoice.h"
#else
#include "window/desktop/DesktopVoice.h"
#endif

#include <memory>

class QDialog;

namespace Tensarix {

#ifdef _WIN32
using SystemVoice = SapiVoice;
#else
using SystemVoice = DesktopVoice;
#endif

class Program final : public Dialogs {
  public:
    // Before the toolkit starts: what it is to be told through the environment.
    static void Prepare_Toolkit();

    // The token is what the desktop gave this start (Activation_Token).
    explicit Program(const Folders& folders = Program_Folders(),
                     std::unique_ptr<Clock> clock = std::make_unique<SteadyClock>(),
                     QByteArray activationToken = {});
    ~Program() override;

    // Application-wide ways: names, icon, how long a typed search goes on.
    static void Prepare_Application();

    // False: another instance runs and has been raised; nothing is shown.
    bool Start();

    MainFrm& Form() { return form_; }
    ProgramWindow& Window() { return *window_; }

    void Show_CalcMainFrm() override;
    void Show_WtCalcsFrm() override;
    void Show_WtCalcsFrmA() override;
    void Show_AboutFrm() override;
    void Show_WtCalcsFrm_Of(SectionPlace place) override;
    void Show_AnySectionFrm(AnySectionFrm& form) override;
    void Show_Guide(std::string_view chapter) override;
    void Show_Compare(bool withKeyboard) override;

  private:
    void Add_Guide_Key(QDialog& dialog, const char* chapter);

    SingleInstance instance_; // ends last, when the settings have been saved
    IniSettings settings_;
    DesktopClipboard clipboard_;
    SystemVoice voice_;
    MessageBoxes messages_;
    std::unique_ptr<Clock> clock_;
    DesktopEvents events_;
    DesktopWindow mainWindow_;
    Machine machine_;
    MainFrm form_;
    CalcVariables calculator_;  // outlives its form
    SavedLengths savedLengths_; // of the weight calculators, until the program ends
    SavedRows savedRows_;
    std::unique_ptr<ProgramWindow> window_;
};

} // namespace Tensarix
