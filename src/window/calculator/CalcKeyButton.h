// A key of the calculator: painted, with its caption typeset, in the colour of its group.
#pragma once

#include <QAbstractButton>
#include <QStaticText>
#include <QTimer>

namespace Tensarix {

enum class CalcKeyRole { Digit, Operator, Equals, Clear, Function, Accent, Plain };

class CalcKeyButton final : public QAbstractButton {
    Q_OBJECT

  public:
    // The caption is rich text; text() stays what a screen reader and a mnemonic need.
    CalcKeyButton(CalcKeyRole role, const QString& richCaption, QWidget* parent);

    // Shows the key pressed for a moment, as when its character was typed.
    void Light();
    bool Is_Lit() const { return lit_.isActive(); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    QSizeF Caption_Size(double pixelSize) const;
    double Fitting_Size() const;
    double Base_Size() const;
    void Paint_Body(QPainter& painter, const QRectF& body) const;
    void Paint_Caption(QPainter& painter, const QRectF& body) const;
    bool Looks_Pressed() const { return isDown() || Is_Lit(); }

    CalcKeyRole role_;
    QString richCaption_;
    QTimer lit_;
};

} // namespace Tensarix
