#include "window/pages/VerdictLine.h"

#include "window/FocusFrame.h"
#include "window/Link.h"
#include "window/RemarkLook.h"
#include "window/To_Qt.h"

#include <QEvent>
#include <QKeyEvent>

namespace Tensarix {

namespace {

constexpr int lines = 2;
constexpr int mostShown = 200; // more can't be read in two lines

} // namespace

VerdictLine::VerdictLine(QWidget* parent) : QTextBrowser(parent) {
    setOpenLinks(false);
    setTabChangesFocus(true);
    connect(this, &QTextBrowser::anchorClicked, this,
            [this](const QUrl& row) { Choose(row.toString().toInt()); });
}

void VerdictLine::Choose(int row) {
    chosen_ = row;
    if (verdicts_ && verdicts_->OnChoose)
        verdicts_->OnChoose(row);
}

bool VerdictLine::event(QEvent* event) {
    const bool handled = QTextBrowser::event(event);
    Show_Focus(*this, *event);
    return handled;
}

void VerdictLine::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter || !verdicts_ || verdicts_->Rows().empty()) {
        QTextBrowser::keyPressEvent(event);
        return;
    }
    const auto& rows = verdicts_->Rows();
    const auto next = rows.upper_bound(chosen_);
    Choose(next == rows.end() ? rows.begin()->first : next->first);
}

bool VerdictLine::focusNextPrevChild(bool next) {
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): a text browser's own goes from link to link
    return QWidget::focusNextPrevChild(next);
}

void VerdictLine::Show_Verdicts(RowVerdicts& verdicts) {
    verdicts_ = &verdicts;
    new Link(this, verdicts.Shown, [this] { Pull(); });
}

void VerdictLine::Pull() {
    const int margin = static_cast<int>(document()->documentMargin());
    setFixedHeight(lines * fontMetrics().lineSpacing() + 2 * (frameWidth() + margin));
    setHtml(In_Html());
    setAccessibleDescription(To_Qt(verdicts_->Text()));
}

QString VerdictLine::In_Html() const {
    const auto& rows = verdicts_->Rows();
    if (rows.empty())
        return To_Qt(verdicts_->Otherwise()).toHtmlEscaped();
    const QString ink = palette().color(QPalette::Text).name();
    const QString ground = Remark_Ground(RemarkWeight::Unsafe, palette()).name();
    QString html;
    int count = 0;
    for (const auto& [row, verdict] : rows) {
        if (++count > mostShown)
            return html + QStringLiteral("...");
        const QString words =
            QStringLiteral("Row %1: %2.").arg(row).arg(To_Qt(verdict.Words).toHtmlEscaped());
        const QString link =
            QStringLiteral("<a href='%1' style='color:%2'>%3</a>").arg(row).arg(ink, words);
        if (verdict.Computing)
            html += QStringLiteral("<i>%1</i> ").arg(words);
        else if (verdict.Weight == RemarkWeight::Unsafe)
            html += QStringLiteral("<span style='background-color:%1'>&#9888;&nbsp;%2</span> ")
                        .arg(ground, link);
        else
            html += link + QLatin1Char(' ');
    }
    return html;
}

void VerdictLine::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    const bool look = event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange;
    if (look && verdicts_)
        Pull();
}

} // namespace Tensarix
