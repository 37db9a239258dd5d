#include "window/KeyCodes.h"

#include "controls/Controls.h"

#include <QKeyEvent>

namespace Tensarix {

int Key_Code(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Backspace:
        return Keys::Backspace;
    case Qt::Key_Tab:
        return Keys::Tab;
    case Qt::Key_Backtab:
        return Keys::BackTab;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Keys::Enter;
    case Qt::Key_Escape:
        return Keys::Escape;
    case Qt::Key_Left:
        return Keys::Left;
    case Qt::Key_Up:
        return Keys::Up;
    case Qt::Key_Right:
        return Keys::Right;
    case Qt::Key_Down:
        return Keys::Down;
    case Qt::Key_Delete:
        return Keys::Delete;
    case Qt::Key_F2:
        return Keys::F2;
    default:
        return 0;
    }
}

int Key_Character(const QKeyEvent& event) {
    if (Is_Pad_Separator(event))
        return '.';
    switch (const int code = Key_Code(event)) {
    case Keys::Backspace:
    case Keys::Tab:
    case Keys::Enter:
    case Keys::Escape:
        return code;
    case Keys::Delete:
        return 0; // though the desktop gives it a character
    default:
        break;
    }
    const bool command =
        (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
    const QString text = event.text();
    if (command || text.size() != 1 || text.at(0).unicode() < Keys::Blank)
        return 0;
    return text.at(0).unicode();
}

bool Is_Pad_Separator(const QKeyEvent& event) {
    return (event.modifiers() & Qt::KeypadModifier) != 0 &&
           (event.key() == Qt::Key_Comma || event.text() == QLatin1String(",") ||
            event.text() == QString(QChar(0x066B)));
}

} // namespace Tensarix
