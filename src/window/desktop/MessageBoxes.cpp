#include "window/desktop/MessageBoxes.h"

#include "window/To_Qt.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QMessageBox>
#include <QShortcut>
#include <QTimer>

namespace Tensarix {

namespace {

QMessageBox::Icon Box_Icon(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::Stop:
        return QMessageBox::Critical;
    case MessageIcon::Exclamation:
        return QMessageBox::Warning;
    case MessageIcon::Information:
        break;
    }
    return QMessageBox::Information;
}

// The box of a check that a mouse press set off has taken the release: the button would stay down.
void Let_Go_Of_Buttons() {
    if (QGuiApplication::mouseButtons() != Qt::NoButton)
        return;
    for (QWidget* widget : QApplication::allWidgets())
        if (auto* button = qobject_cast<QAbstractButton*>(widget))
            button->setDown(false);
}

QMessageBox::StandardButton Ask(std::string_view text, std::string_view title, MessageIcon icon,
                                QMessageBox::StandardButtons buttons) {
    QMessageBox box(Box_Icon(icon), To_Qt(title), To_Qt(text), buttons,
                    QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    const QShortcut copy(QKeySequence::Copy, &box);
    QObject::connect(&copy, &QShortcut::activated, &box,
                     [&box] { QGuiApplication::clipboard()->setText(box.text()); });
    const auto answer = static_cast<QMessageBox::StandardButton>(box.exec());
    QTimer::singleShot(0, qApp, Let_Go_Of_Buttons); // the press is handled before
    return answer;
}

} // namespace

void MessageBoxes::Show(std::string_view text, std::string_view title, MessageIcon icon) {
    Ask(text, title, icon, QMessageBox::Ok);
}

bool MessageBoxes::Ask_Yes_No(std::string_view text, std::string_view title, MessageIcon icon) {
    return Ask(text, title, icon, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

} // namespace Tensarix
