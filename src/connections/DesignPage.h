// Connection Design: the page of bolt groups and the page of weld groups, under two tabs.
#pragma once

#include "connections/BoltPage.h"
#include "connections/WeldPage.h"
#include "controls/Controls.h"
#include "desk/Desk.h"

namespace Tensarix {

inline constexpr int boltTab = 0, weldTab = 1;

class DesignPage {
  public:
    TabControl DesignSSTab;
    BoltPage Bolts;
    WeldPage Welds;

    explicit DesignPage(Desk& desk);
    DesignPage(const DesignPage&) = delete;

    // Once at start.
    void Start();
    // The mode was chosen: the status bar tells what is selected on the tab that shows.
    void Show_Selection();
    // Another mode was chosen: a search for a weld group ends.
    void Leave() { Welds.Stop_If_Running(); }
    // The window is going to close.
    void Request_Stop() { Welds.Request_Stop(); }
    void Save_Settings() const;

  private:
    void Tab_Click();

    Desk& desk_;
};

} // namespace Tensarix
