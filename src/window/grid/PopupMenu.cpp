#include "window/grid/PopupMenu.h"

#include "window/Bind.h"
#include "window/grid/GridView.h"
#include "window/pages/TravelKeys.h"

#include <QMenu>

namespace Tensarix {

namespace {

// By mode.
constexpr const char* gridNames[modeCount] = {"ShapeFlex", "fShapeFlex", "xShapeFlex", "zShapeFlex",
                                              "cFlex"};

QAction* Add_Item(QMenu& menu, const char* name, MenuItem& item) {
    QAction* action = menu.addAction(QString{});
    action->setObjectName(QLatin1String(name));
    Bind(action, item);
    return action;
}

// Their keys belong to the window: here they are only told.
void Add_Travel(QMenu& menu, GridPopup& popup, Travel& travel) {
    QList<QAction*> group{menu.addSeparator()};
    for (const TravelKey& key : Travel_Keys()) {
        QAction* action = Add_Item(menu, key.Name, travel.*key.Item);
        action->setShortcut(key.Key);
        action->setShortcutVisibleInContextMenu(true);
        group.append(action);
    }
    QObject::connect(&menu, &QMenu::aboutToShow, &menu, [group, &popup] {
        for (QAction* action : group)
            action->setVisible(popup.Shown_Mode() != Mode::Connection);
    });
}

} // namespace

QMenu* Make_Grid_Popup(GridPopup& popup, Travel& travel, QWidget* window) {
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
    Add_Travel(*menu, popup, travel);
    popup.OnOpen = [menu, window, &popup] {
        const auto mode = static_cast<std::size_t>(popup.Shown_Mode());
        if (const auto* grid = window->findChild<GridView*>(QLatin1String(gridNames[mode])))
            menu->popup(grid->Popup_Point());
    };
    QObject::connect(menu, &QObject::destroyed, [&popup] { popup.OnOpen = nullptr; });
    return menu;
}

QMenu* Make_Sheet_Popup(SheetPopup& popup, GridView* grid) {
    auto* menu = new QMenu(grid);
    menu->setObjectName(grid->objectName() + QStringLiteral("Menu"));
    const auto add = [menu](const char* name, MenuItem& item, const QKeySequence& key) {
        QAction* action = Add_Item(*menu, name, item);
        action->setShortcut(key);
        action->setShortcutVisibleInContextMenu(true);
    };
    add("mnuUndo", popup.mnuUndo, QKeySequence::Undo);
    menu->addSeparator();
    add("mnuCopy", popup.mnuCopy, QKeySequence::Copy);
    add("mnuPaste", popup.mnuPaste, QKeySequence::Paste);
    menu->addSeparator();
    add("mnuSelectAll", popup.mnuSelectAll, QKeySequence::SelectAll);
    add("mnuCopyAll", popup.mnuCopyAll, {});
    popup.OnOpen = [menu, grid] { menu->popup(grid->Popup_Point()); };
    QObject::connect(menu, &QObject::destroyed, [&popup] { popup.OnOpen = nullptr; });
    return menu;
}

} // namespace Tensarix
