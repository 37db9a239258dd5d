#include "window/pages/AnySectionDialog.h"

#include "ui_AnySectionDialog.h"
#include "window/Bind.h"
#include "window/FittingArea.h"
#include "window/To_Qt.h"

#include <QKeyEvent>
#include <QShortcut>

namespace Tensarix {

namespace {

constexpr int firstCharacters = 84, firstLines = 22;

bool Moves_In_List(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return event.modifiers() == Qt::NoModifier || event.modifiers() == Qt::KeypadModifier;
    default:
        return false;
    }
}

} // namespace

AnySectionDialog::AnySectionDialog(AnySectionFrm& form, QWidget* parent) : QDialog(parent) {
    Ui::AnySectionDialog ui;
    ui.setupUi(this);
    list_ = ui.FoundFlex;
    // The keyboard stays in the box, and the page's focus where it was: a cell that is being edited
    // goes on when this closes.
    connect(ui.SearchBox, &QLineEdit::textChanged, this,
            [&form](const QString& text) { form.SearchBox.Set_Text(text.toStdString()); });
    form.OnCurrent = [&form, box = ui.SearchBox] {
        box->setAccessibleDescription(To_Qt(form.Current_Text()));
    };
    Bind(ui.FoundFlex, form.FoundFlex);
    ui.FoundFlex->Show_All_Columns();
    Bind(ui.FoundLabel, form.FoundLabel);
    Bind(ui.BrowseButton, form.BrowseButton);
    Bind(ui.BeamButton, form.BeamButton);
    Bind(ui.CancelButton, form.CancelButton);
    form.Close = [this] { close(); };
    ui.SearchBox->installEventFilter(this);
    for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter})
        connect(new QShortcut(Qt::CTRL | enter, this), &QShortcut::activated, this,
                [&form] { form.BeamButton.Click(); });
    Let_Scroll(*this, {firstCharacters, firstLines});
    ui.SearchBox->setFocus();
}

bool AnySectionDialog::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && Moves_In_List(*static_cast<QKeyEvent*>(event))) {
        QCoreApplication::sendEvent(list_, event);
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace Tensarix
