// The toolkit's own style, whose round marks can't be seen under a dark palette unless they are
// chosen: it takes their line from the background alone, here it comes from the text, too.
#pragma once

#include <QProxyStyle>

namespace Tensarix {

class MarkStyle final : public QProxyStyle {
    Q_OBJECT

  public:
    MarkStyle();
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

// Under a style of the desktop's own nothing changes.
void Use_Mark_Style();

} // namespace Tensarix
