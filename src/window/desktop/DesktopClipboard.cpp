#include "window/desktop/DesktopClipboard.h"

#include "window/To_Qt.h"

#include <QClipboard>
#include <QGuiApplication>

namespace Tensarix {

void DesktopClipboard::Clear() {
    QGuiApplication::clipboard()->clear();
}

void DesktopClipboard::Set_Text(std::string_view text) {
    QGuiApplication::clipboard()->setText(To_Qt(text));
}

std::string DesktopClipboard::Text() {
    return QGuiApplication::clipboard()->text().toStdString();
}

} // namespace Tensarix
