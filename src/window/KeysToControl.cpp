#include "window/KeysToControl.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QLineEdit>

namespace Tensarix {

void Answer_Refused_Key(QWidget& widget, int character) {
    if (character <= Keys::Blank || character > '~')
        return;
    const std::string answer =
        character == ',' ? "Type the decimal point as ."
                         : std::string{"No place here for "} + static_cast<char>(character);
    for (QWidget* around = &widget; around; around = around->parentWidget())
        if (auto* const window = dynamic_cast<RefusedKeyWindow*>(around)) {
            window->Tell_Refused_Key(answer);
            return;
        }
}

bool Filter_Key(const KeyFilter& filter, const QKeyEvent& event, QLineEdit& box) {
    const int character = Key_Character(event);
    if (character == 0)
        return false;
    const int kept = filter ? filter(character) : character;
    if (kept == 0)
        Answer_Refused_Key(box, character);
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
