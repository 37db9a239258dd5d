#include "connections/DesignPage.h"

#include "common/Failure.h"

namespace Tensarix {

DesignPage::DesignPage(Desk& desk) : Bolts(desk), Welds(desk), desk_(desk) {
    DesignSSTab.OnChange = [this] { Tab_Click(); };
}

void DesignPage::Start() {
    Bolts.Start();
    desk_.Show_No_Selection();
    Welds.Initialize_WeldRoutines();
}

void DesignPage::Show_Selection() {
    desk_.Show_No_Selection();
    if (DesignSSTab.Tab() == weldTab)
        Attempt([this] { desk_.StatBar.Set_Panel1(Welds.Selection_Text()); });
}

void DesignPage::Tab_Click() {
    Show_Selection();
    if (DesignSSTab.Tab() == boltTab)
        Welds.Stop_If_Running();
}

void DesignPage::Save_Settings() const {
    Bolts.Save_Settings();
    Welds.Save_Settings();
}

} // namespace Tensarix
