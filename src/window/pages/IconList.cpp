#include "window/pages/IconList.h"

#include "common/Failure.h"
#include "window/Link.h"
#include "window/Theme.h"

#include <QEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSvgRenderer>

namespace Tensarix {

namespace {

constexpr int iconPixels = 36;

QPixmap Icon(const QString& name, const QPalette& palette, qreal ratio) {
    QPixmap icon(QSize(iconPixels, iconPixels) * ratio);
    icon.setDevicePixelRatio(ratio);
    icon.fill(Qt::transparent);
    QSvgRenderer drawing(Picture_Text(name, palette));
    QPainter painter(&icon);
    drawing.render(&painter, QRectF(0, 0, iconPixels, iconPixels));
    return icon;
}

} // namespace

void Bind(IconList* widget, ListView& control) {
    widget->Show_List(control);
}

IconList::IconList(QWidget* parent) : QListWidget(parent) {
    setIconSize(QSize(iconPixels, iconPixels));
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void IconList::Show_List(ListView& list) {
    list_ = &list;
    auto* link = new Link(this, list.Shown, [this] { Pull(); });
    connect(this, &QListWidget::currentRowChanged, link, [this](int row) { Chosen(row); });
    connect(this, &QListWidget::itemClicked, link, [this] { Clicked(currentRow()); });
}

void IconList::Pull() {
    const QSignalBlocker quiet(this);
    if (count() != list_->Count()) {
        clear();
        for (int i = 1; i <= list_->Count(); ++i)
            addItem(QString::fromStdString(list_->Item(i).Text));
        Draw_Icons();
    }
    setCurrentRow(list_->Selected_Item() - 1);
    setEnabled(list_->Enabled());
}

void IconList::Draw_Icons() {
    for (int i = 0; i < count(); ++i) {
        const QString name = QString::fromStdString(list_->Item(i + 1).Icon);
        QIcon icon(Icon(name, palette(), devicePixelRatioF()));
        QPalette chosen = palette();
        chosen.setColor(QPalette::Base, palette().color(QPalette::Highlight));
        icon.addPixmap(Icon(name, chosen, devicePixelRatioF()), QIcon::Selected);
        item(i)->setIcon(icon);
    }
}

void IconList::Chosen(int row) {
    chosenByPress_ = true;
    Attempt([&] { list_->Click(row + 1); });
}

// The press has chosen it already, unless it was the current one.
void IconList::Clicked(int row) {
    if (!chosenByPress_)
        Attempt([&] { list_->Click(row + 1); });
    chosenByPress_ = false;
}

void IconList::keyPressEvent(QKeyEvent* event) {
    QListWidget::keyPressEvent(event);
    chosenByPress_ = false; // no click follows
    if (event->key() == Qt::Key_Space)
        Clicked(currentRow());
}

QSize IconList::sizeHint() const {
    const int width =
        sizeHintForColumn(0) + 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
    return {width, count() * sizeHintForRow(0) + 2 * frameWidth()};
}

void IconList::changeEvent(QEvent* event) {
    QListWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && list_)
        Draw_Icons();
}

} // namespace Tensarix
