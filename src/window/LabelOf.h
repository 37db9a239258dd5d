// What a screen reader calls a list or an option: on this desktop the name of either is its text,
// so that what it stands for has to come from a label beside it.
#pragma once

#include <QLabel>

namespace Tensarix {

// A label that is heard and not seen, for a widget that has none of its own. Its text may change.
inline QLabel* Label_Of(QWidget* widget, const QString& text = {}) {
    auto* label = new QLabel(text, widget->parentWidget());
    label->setBuddy(widget);
    label->hide();
    return label;
}

} // namespace Tensarix
