// The line under the bolt table, always there: it names each row that is not to
// be used as it is. Rows in doubt are links to the row and, where unsafe, stand
// behind a sign on a tinted ground; rows that are being computed stand in
// italics. It wraps, and scrolls where it has no room.
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
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override; // leaves the line: its links aren't stops

  private:
    void Pull();
    QString In_Html() const;
    void Choose(int row);

    RowVerdicts* verdicts_ = nullptr;
    int chosen_ = 0; // the row chosen last
};

} // namespace Tensarix
