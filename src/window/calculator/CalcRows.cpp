#include "window/calculator/CalcRows.h"

#include "window/To_Qt.h"

#include <QFontMetrics>
#include <QHeaderView>
#include <QListWidget>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTreeWidget>

#include <algorithm>

namespace Tensarix {

namespace {

constexpr double nameWidth = 50, valueWidth = 180; // points
constexpr double pointsPerInch = 72;

void Keep_Count(QTreeWidget& list, int count) {
    while (list.topLevelItemCount() > count)
        delete list.takeTopLevelItem(list.topLevelItemCount() - 1);
    while (list.topLevelItemCount() < count)
        list.addTopLevelItem(new QTreeWidgetItem);
}

} // namespace

void Prepare_Rows(QTreeWidget& list) {
    const double pixels = list.logicalDpiX() / pointsPerInch;
    const QFontMetrics metrics(list.font());
    const int name = std::max(static_cast<int>(nameWidth * pixels),
                              metrics.horizontalAdvance(QStringLiteral("Data-0000  ")));
    list.setColumnCount(2);
    list.header()->setMinimumSectionSize(1);
    list.setColumnWidth(0, name);
    const int value =
        std::max(static_cast<int>(valueWidth * pixels),
                 metrics.horizontalAdvance(QStringLiteral("=  -0.00000000000000E-000  ")));
    list.setMinimumWidth(name + value);
}

void Fit_Width(QListWidget& list) {
    list.setMinimumWidth(list.sizeHintForColumn(0) + list.verticalScrollBar()->sizeHint().width() +
                         2 * list.frameWidth());
}

void Show_Rows(QTreeWidget& list, const std::vector<CalcRow>& rows,
               const std::vector<bool>& selected) {
    const QSignalBlocker quiet(list);
    Keep_Count(list, static_cast<int>(rows.size()));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        QTreeWidgetItem& item = *list.topLevelItem(static_cast<int>(i));
        item.setText(0, To_Qt(rows[i].Name));
        item.setText(1, To_Qt(rows[i].Value));
        if (item.isSelected() != selected[i])
            item.setSelected(selected[i]);
    }
}

} // namespace Tensarix
