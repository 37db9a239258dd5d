#include "window/KeysToControl.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QLineEdit>

#include <utility>

namespace Tensarix {

void Answer_Refused_Key(QWidget& widget, int character) {
    if (character <= Keys::Blank || character > '~')
        return;
    std::string answer = "Type the decimal point as .";
    if (character != ',')
        answer = std::string{"No place here for "} + static_cast<char>(character);
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

// A filter looks at the text as it is: each character is sent alone, once the ones before it stand
// there.
bool Filter_Input_Method(QWidget* widget, const KeyFilter& filter, QInputMethodEvent& event) {
    const QString& text = event.commitString();
    if (!filter || text.isEmpty() || (text.size() == 1 && filter(text.at(0).unicode()) != 0))
        return false;
    int start = event.replacementStart(), length = event.replacementLength();
    for (const QChar character : text) {
        QInputMethodEvent one;
        one.setCommitString(text.size() > 1 ? QString(character) : QString(),
                            std::exchange(start, 0), std::exchange(length, 0));
        QCoreApplication::sendEvent(widget, &one);
    }
    QInputMethodEvent rest(event.preeditString(), event.attributes());
    QCoreApplication::sendEvent(widget, &rest);
    return true;
}

} // namespace Tensarix
