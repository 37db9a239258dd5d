// Shows one drawing, as large as fits, crisp at any scale and in the colours of the theme.
#pragma once

#include <QPixmap>
#include <QSvgRenderer>
#include <QWidget>

#include <string>

namespace Tensarix {

class PictureView : public QWidget {
    Q_OBJECT

  public:
    explicit PictureView(QWidget* parent = nullptr);

    // An empty name shows nothing.
    void Show_Picture(const std::string& name);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void Load();

    QString name_;
    QSvgRenderer renderer_;
};

} // namespace Tensarix
