#include "window/pages/AboutDialog.h"

#include "ui_AboutDialog.h"
#include "window/Bind.h"
#include "window/FittingArea.h"

#include <QApplication>
#include <QIcon>

namespace Tensarix {

namespace {

constexpr int iconSize = 64;
constexpr double titleScale = 1.8; // of the desktop's font
constexpr int lineLength = 66;     // average characters

} // namespace

AboutDialog::AboutDialog(AboutFrm& form, QWidget* parent) : QDialog(parent) {
    Ui::AboutDialog ui;
    ui.setupUi(this);
    ui.Icon->setPixmap(
        QApplication::windowIcon().pixmap(QSize(iconSize, iconSize), devicePixelRatioF()));
    QFont title = ui.lblTitle->font();
    title.setPointSizeF(title.pointSizeF() * titleScale);
    ui.lblTitle->setFont(title);
    for (QLabel* label : {ui.lblDescription, ui.lblDisclaimer})
        label->setMinimumWidth(label->fontMetrics().averageCharWidth() * lineLength);
    Bind(ui.lblTitle, form.lblTitle);
    Bind(ui.lblVersion, form.lblVersion);
    Bind(ui.lblDescription, form.lblDescription);
    Bind(ui.lblDisclaimer, form.lblDisclaimer);
    Bind(ui.OKButton, form.OKButton);
    form.OnClose = [this] { accept(); };
    connect(this, &QDialog::finished, this, [&form] { form.Unload(); });
    form.Load();
    Let_Scroll(*this);
    ui.OKButton->setFocus();
}

} // namespace Tensarix
