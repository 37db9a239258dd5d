// A report as a text for a screen reader. Nothing of it is copied but what is asked for: a report
// may have a million lines.
#include "window/pages/ReportForScreenReader.h"

#include "window/pages/ReportView.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include <algorithm>

namespace Tensarix {

namespace {

class ReportForScreenReader final : public QAccessibleWidget, public QAccessibleTextInterface {
  public:
    explicit ReportForScreenReader(ReportView* view)
        : QAccessibleWidget(view, QAccessible::EditableText), view_(*view) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface*>(this)
                                                  : QAccessibleWidget::interface_cast(type);
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = state.multiLine = state.selectableText = true;
        return state;
    }

    using QAccessibleWidget::text;
    int characterCount() const override {
        const int last = view_.Lines() - 1;
        return view_.Start_Of(last) + static_cast<int>(view_.Line(last).size());
    }
    QString text(int start, int end) const override {
        QString text;
        if (start >= end)
            return text;
        const int first = view_.Line_Of(start);
        for (int line = first; line < view_.Lines() && view_.Start_Of(line) < end; ++line)
            text += view_.Line(line) + QLatin1Char('\n');
        return text.mid(start - view_.Start_Of(first), end - start);
    }
    // By lines it is read; a character is a part of one, and so is a word.
    QString textAtOffset(int offset, QAccessible::TextBoundaryType boundary, int* start,
                         int* end) const override {
        return Piece(view_.Line_Of(offset), offset, boundary, start, end);
    }
    QString textBeforeOffset(int offset, QAccessible::TextBoundaryType boundary, int* start,
                             int* end) const override {
        return boundary == QAccessible::CharBoundary
                   ? textAtOffset(offset - 1, boundary, start, end)
                   : Piece(view_.Line_Of(offset) - 1, offset, QAccessible::LineBoundary, start,
                           end);
    }
    QString textAfterOffset(int offset, QAccessible::TextBoundaryType boundary, int* start,
                            int* end) const override {
        return boundary == QAccessible::CharBoundary
                   ? textAtOffset(offset + 1, boundary, start, end)
                   : Piece(view_.Line_Of(offset) + 1, offset, QAccessible::LineBoundary, start,
                           end);
    }

    int selectionCount() const override { return view_.Selection().first < 0 ? 0 : 1; }
    void selection(int, int* start, int* end) const override {
        const auto [first, last] = view_.Selection();
        *start = first < 0 ? 0 : view_.Start_Of(first);
        *end = first < 0 ? 0 : view_.Start_Of(last) + static_cast<int>(view_.Line(last).size());
    }
    void addSelection(int start, int end) override { setSelection(0, start, end); }
    void removeSelection(int) override { view_.Select_Lines(-1, -1); }
    void setSelection(int, int start, int end) override {
        view_.Select_Lines(view_.Line_Of(start), view_.Line_Of(std::max(start, end - 1)));
    }

    int cursorPosition() const override { return view_.Start_Of(view_.Line_Read()); }
    void setCursorPosition(int position) override { scrollToSubstring(position, position); }
    void scrollToSubstring(int start, int) override { view_.Show_Line(view_.Line_Of(start)); }
    QRect characterRect(int offset) const override {
        return view_.Line_Rect(view_.Line_Of(offset));
    }
    int offsetAtPoint(const QPoint& point) const override {
        return view_.Start_Of(view_.Line_At(view_.viewport()->mapFromGlobal(point)));
    }
    QString attributes(int, int* start, int* end) const override {
        *start = 0;
        *end = characterCount();
        return {};
    }

  private:
    QString Piece(int line, int offset, QAccessible::TextBoundaryType boundary, int* start,
                  int* end) const {
        *start = *end = -1;
        if (line < 0 || line >= view_.Lines())
            return {};
        const QString text = view_.Line(line) + QLatin1Char('\n');
        const int first = view_.Start_Of(line), at = offset - first;
        int from = 0, to = static_cast<int>(text.size());
        if (boundary == QAccessible::CharBoundary) {
            from = std::clamp(at, 0, to - 1);
            to = from + 1;
        } else if (boundary == QAccessible::WordBoundary && at >= 0 && at < to) {
            from = static_cast<int>(text.lastIndexOf(QLatin1Char(' '), at - to)) + 1;
            const auto blank = static_cast<int>(text.indexOf(QLatin1Char(' '), at));
            to = blank < 0 ? to : blank + 1;
        }
        *start = first + from;
        *end = first + to;
        return text.mid(from, to - from);
    }

    ReportView& view_;
};

QAccessibleInterface* Make_Report_Text(const QString&, QObject* object) {
    auto* view = qobject_cast<ReportView*>(object);
    return view ? new ReportForScreenReader(view) : nullptr;
}

} // namespace

void Let_Reports_Be_Read() {
    QAccessible::installFactory(Make_Report_Text);
}

} // namespace Tensarix
