#include "window/grid/PopupMenu.h"

#include "window/Bind.h"
#include "window/grid/GridView.h"

#include <QMenu>

namespace Tensarix {

namespace {

// By mode.
constexpr const char* gridNames[ModeCount] = {"ShapeFlex", "fShapeFlex", "xShapeFlex", "zShapeFlex",
                                              "cFlex"};

void Add_Item(QMenu& menu, const char* name, MenuItem& item) {
    QAction* action = menu.addAction(QString{});
    action->setObjectName(QLatin1String(name));
    Bind(action, item);
}

} // namespace

QMenu* Make_Grid_Popup(GridPopup& popup, QWidget* window) {
    auto* menu = new QMenu(window);
    menu->setObjectName(QStringLiteral("mnuEdit1"));
    Add_Item(*menu, "mnuCopySelection1a", popup.mnuCopySelection1a);
    menu->addSeparator();
    Add_Item(*menu, "mnuCopySelection1b", popup.mnuCopySelection1b);
    menu->addSeparator();
    Add_Item(*menu, "mnuCopySelection1c", popup.mnuCopySelection1c);
    menu->addSeparator();
    Add_Item(*menu, "mnuCopySelection1d", popup.mnuCopySelection1d);
    menu->addSeparator();
    Add_Item(*menu, "mnuDummyExit", popup.mnuDummyExit);
    popup.OnOpen = [menu, window, &popup] {
        const auto mode = static_cast<std::size_t>(popup.Shown_Mode());
        if (const auto* grid = window->findChild<GridView*>(QLatin1String(gridNames[mode])))
            menu->popup(grid->Popup_Point());
    };
    QObject::connect(menu, &QObject::destroyed, [&popup] { popup.OnOpen = nullptr; });
    return menu;
}

} // namespace Tensarix
