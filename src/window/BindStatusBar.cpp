// The three areas of the status bar, and the key that shows them whole.
#include "window/Bind.h"

#include "window/ElidedLabel.h"
#include "window/Link.h"
#include "window/MouseWatch.h"
#include "window/RemarkLook.h"
#include "window/To_Qt.h"

#include <QShortcut>
#include <QStatusBar>
#include <QToolTip>

namespace Tensarix {

void Bind(QStatusBar* widget, StatusBar& control) {
    const auto panel = [widget](const char* name, const char* description, int stretch) {
        auto* label = new ElidedLabel(widget);
        label->setObjectName(QLatin1String(name));
        label->setAccessibleDescription(QLatin1String(description)); // its name is its text
        widget->addWidget(label, stretch);
        label->setMouseTracking(true); // else the bar doesn't learn of a mouse over it
        return label;
    };
    QLabel* panel1 = panel("Panel1", "Selection", 5);
    QLabel* remark = panel("RemarkPanel", "Remark", 3);
    QLabel* count = panel("CountPanel", "Count", 0);
    new Link(widget, control.Shown, [panel1, remark, count, &control] {
        panel1->setText(To_Qt(control.Panel1()));
        panel1->setToolTip(Tip_Text(panel1->text().trimmed()));
        remark->setText(Remark_In_Words(control.Remark(), control.Remark_Weight()));
        remark->setToolTip(Tip_Text(remark->text()));
        Show_Weight(*remark, control.Remark_Weight());
        remark->setVisible(!remark->text().isEmpty()); // leaves its room to the selection
        count->setText(To_Qt(control.Count()));
        QFont font = count->font();
        font.setUnderline(static_cast<bool>(control.Count_Leads_To()));
        count->setFont(font);
        count->setCursor(font.underline() ? Qt::PointingHandCursor : Qt::ArrowCursor);
        count->setMinimumWidth(count->sizeHint().width()); // short, and never cut
    });
    Watch_Click(count, [&control] {
        const Handler leadsTo = control.Count_Leads_To(); // which may change itself
        Run(leadsTo);
    });
    Watch_Mouse(widget, [&control] { Run(control.OnMouseMove); });
    // Where the bar cuts a text, its tool tip has it whole: here is the key for that.
    auto* whole = new QShortcut(Qt::CTRL | Qt::Key_F1, widget);
    QObject::connect(whole, &QShortcut::activated, widget, [widget, panel1, remark] {
        const QString texts = panel1->toolTip() + QLatin1Char('\n') + remark->toolTip();
        QToolTip::showText(panel1->mapToGlobal(QPoint(0, 0)), texts.trimmed(), widget);
    });
}

} // namespace Tensarix
