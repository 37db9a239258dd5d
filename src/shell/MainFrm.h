// The main window without a toolkit: start-up, the five modes, the menu, the end.
#pragma once

#include "beam/BeamPage.h"
#include "connections/DesignPage.h"
#include "controls/Controls.h"
#include "desk/Desk.h"
#include "sections/BrowsePage.h"
#include "sections/ComparePage.h"
#include "sections/FindPage.h"
#include "sections/ViewAllPage.h"
#include "shell/Dialogs.h"
#include "shell/GridPopup.h"
#include "shell/Modes.h"
#include "shell/Travel.h"

#include <array>
#include <functional>
#include <string>

namespace Tensarix {

class MainFrm {
  public:
    Desk Shared;
    std::string Caption;

    std::array<OptionButton, modeCount> OptButton;
    TabControl SelectionTab;

    BrowsePage Browse;
    FindPage Find;
    ViewAllPage ViewAll;
    BeamPage Beam;
    DesignPage Design;
    ComparePage Compare; // in a window of its own

    GridPopup mnuEdit1; // of the pages' grids
    Travel Sections;    // from page to page

    MenuItem mnuCalc, mnuWtCalc, mnuWtCalcA, mnuTerminate;
    MenuItem mnuOnTop, mnuReadOut;
    MenuItem mnuAbout;
    MenuItem mnuGuide; // at the chapter of the page in view
    MenuItem mnuCompared;
    Button AnySectionButton;

    MainFrm(Machine& machine, Dialogs& dialogs);
    MainFrm(const MainFrm&) = delete;

    // False: another instance ran and was asked to come up. This one has to end, without a window,
    // unless the other has ended instead.
    bool Load();
    // The guard: raises the instance that runs, or tells that it doesn't answer.
    void Launcher();
    // Reads the settings, selects the first mode and fills each page, in this fixed order.
    void StartUp();
    // The window is going to close: settings are saved.
    void Query_Unload();
    // The window has another size, or has become the active one.
    void Resized();
    void Activated();
    // The field that finds any section; then shows what was chosen there.
    void Find_Any_Section();
    // Weight calculator type 1 with this section chosen.
    void Show_Weights_Of(SectionPlace place);
    // Puts the section beside those that are compared already, or goes to its column there.
    void Compare_Section(SectionPlace place);
    // The head of the guide's chapter on the page in view.
    std::string_view Guide_Chapter() const;

  private:
    void Wire_Menu();
    void Start_Flags();
    void Start_Options();
    void Start_Families();
    void OptButton_Click(int index);
    void Show_Count();
    void Open_Dialog(const std::function<void()>& show);
    void SetWindowOnTop(bool onTop);
    void Tell_Who_Decides();
    void Tell_No_Voice();
    void mnuOnTop_Click();
    void mnuReadOut_Click();
    void Save_Families() const;
    void Save_Sizes() const;
    void Save_Options() const;
    void Save_Span() const;

    Dialogs& dialogs_;
    bool onTopRefused_ = false; // the desktop decides itself which window is above
    bool toldWhoDecides_ = false, toldNoVoice_ = false;
};

} // namespace Tensarix
