#include "window/KeysToControl.h"

#include "window/RefusedKey.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QLineEdit>

namespace Tensarix {

bool Filter_Key(const KeyFilter& filter, const QKeyEvent& event, QLineEdit& box) {
    const int character = Key_Character(event);
    if (character == 0)
        return false;
    const int kept = filter ? filter(character) : character;
    if (kept == 0)
        Answer_Refused_Key(character);
    if (kept != 0 && Is_Pad_Separator(event)) {
        box.insert(QChar(kept));
        emit box.textEdited(box.text());
        return true;
    }
    return kept == 0;
}

bool Filter_Input_Method(QWidget* widget, const KeyFilter& filter, QInputMethodEvent& event) {
    if (!filter)
        return false;
    QString kept;
    for (const QChar character : event.commitString())
        if (filter(character.unicode()) != 0)
            kept += character;
    if (kept == event.commitString())
        return false;
    QInputMethodEvent rest(event.preeditString(), event.attributes());
    rest.setCommitString(kept, event.replacementStart(), event.replacementLength());
    QCoreApplication::sendEvent(widget, &rest);
    return true;
}

} // namespace Tensarix
