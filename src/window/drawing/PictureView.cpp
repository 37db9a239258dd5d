#include "window/drawing/PictureView.h"

#include "window/Theme.h"

#include <QEvent>
#include <QPainter>

namespace Tensarix {

PictureView::PictureView(QWidget* parent) : QWidget(parent) {
    renderer_.setAspectRatioMode(Qt::KeepAspectRatio);
}

void PictureView::Show_Picture(const std::string& name) {
    const QString wanted = QString::fromStdString(name);
    if (wanted == name_)
        return;
    name_ = wanted;
    Load();
}

void PictureView::Load() {
    renderer_.load(name_.isEmpty() ? QByteArray() : Picture_Text(name_, palette()));
    renderer_.setAspectRatioMode(Qt::KeepAspectRatio);
    update();
}

QSize PictureView::sizeHint() const {
    return {330, 300};
}

void PictureView::paintEvent(QPaintEvent*) {
    if (!renderer_.isValid())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer_.render(&painter, rect());
}

void PictureView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange)
        Load();
    QWidget::changeEvent(event);
}

} // namespace Tensarix
