#include "window/pages/IconList.h"

#include "common/Failure.h"
#include "window/Link.h"
#include "window/TellCurrentItem.h"
#include "window/Theme.h"
#include "window/To_Qt.h"

#include <QEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>

namespace Tensarix {

namespace {

constexpr int iconPixels = 36;
constexpr double penWidth = 4.6; // of iconSide

QPixmap Icon(const std::vector<Drawn::Line>& lines, const QPalette& palette, qreal ratio) {
    QPixmap icon(QSize(iconPixels, iconPixels) * ratio);
    icon.setDevicePixelRatio(ratio);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(
        QPen(Ink_Colour(Drawn::Ink::Body, palette), penWidth, Qt::SolidLine, Qt::RoundCap));
    painter.scale(iconPixels / iconSide, iconPixels / iconSide);
    painter.translate(iconSide / 2, iconSide / 2);
    for (const Drawn::Line& line : lines)
        painter.drawLine(QPointF(line.From.X, -line.From.Y), QPointF(line.To.X, -line.To.Y));
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
            addItem(To_Qt(list_->Item(i).Text));
        Draw_Icons();
    }
    setCurrentRow(list_->Selected_Item() - 1);
    setEnabled(list_->Enabled());
}

void IconList::Draw_Icons() {
    for (int i = 0; i < count(); ++i) {
        const std::vector<Drawn::Line>& lines = list_->Item(i + 1).Icon;
        QIcon icon(Icon(lines, palette(), devicePixelRatioF()));
        QPalette chosen = palette();
        chosen.setColor(QPalette::Base, palette().color(QPalette::Highlight));
        icon.addPixmap(Icon(lines, chosen, devicePixelRatioF()), QIcon::Selected);
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

void IconList::focusInEvent(QFocusEvent* event) {
    QListWidget::focusInEvent(event);
    QMetaObject::invokeMethod( // after the list itself has been told
        this,
        [this] {
            if (hasFocus())
                Tell_Current_Item(*this);
        },
        Qt::QueuedConnection);
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
