// The desktop's style with what the program needs otherwise.
#pragma once

#include <QProxyStyle>

namespace Tensarix {

class ProgramStyle final : public QProxyStyle {
    Q_OBJECT

  public:
#ifdef _WIN32 // of its own styles there the toolkit's has no dark mode
    ProgramStyle() : QProxyStyle(QStringLiteral("fusion")) {}
#endif
    // A drop-down list hangs below its box, as long as it says and with a scroll bar: one of 274
    // sections would else fill the screen.
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;
    // The toolkit's own style takes the line of a round mark from the background alone: under a
    // dark palette one that isn't chosen could not be seen.
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

} // namespace Tensarix
