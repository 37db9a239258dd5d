// The line under the bolt table, always there: it names each row that is not to be used as it is.
// Rows in doubt are links to the row and, where unsafe, stand behind a sign on a tinted ground;
// rows that are being computed stand in italics. It wraps, and scrolls where it has no room.
#pragma once

#include "connections/RowVerdicts.h"

#include <QTextBrowser>

namespace Tensarix {

class VerdictLine : public QTextBrowser {
    Q_OBJECT

  public:
    explicit VerdictLine(QWidget* parent = nullptr);
    // Once. The verdicts must outlive the widget.
    void Show_Verdicts(RowVerdicts& verdicts);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void Pull();
    QString In_Html() const;

    RowVerdicts* verdicts_ = nullptr;
};

} // namespace Tensarix
