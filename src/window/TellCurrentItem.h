// What a screen reader is told of a list or table besides what the toolkit tells.
#pragma once

#include <QAbstractItemView>
#include <QAccessible>

namespace Tensarix {

// That its current item has the keyboard.
inline void Tell_Current_Item(QAbstractItemView& view) {
    QAccessibleInterface* const table = QAccessible::queryAccessibleInterface(&view);
    const QModelIndex current = view.currentIndex();
    if (!QAccessible::isActive() || !table || !current.isValid())
        return;
    if (QAccessibleInterface* const item =
            table->tableInterface()->cellAt(current.row(), current.column())) {
        QAccessibleEvent event(item, QAccessible::Focus);
        QAccessible::updateAccessibility(&event);
    }
}

} // namespace Tensarix
