// Shows a report that grows by thousands of lines a second: only the lines in view are ever laid
// out, and what is new is taken over a few times a second. Whole lines can be selected and copied.
#pragma once

#include "controls/ReportBox.h"

#include <QAbstractScrollArea>
#include <QTimer>

#include <vector>

namespace Tensarix {

class ReportView : public QAbstractScrollArea {
    Q_OBJECT

  public:
    explicit ReportView(QWidget* parent = nullptr);
    ~ReportView() override;

    // Once, by Bind.
    void Show_Report(ReportBox& box);
    // Takes over at once what is new.
    void Flush();
    int Lines() const { return static_cast<int>(starts_.size()); }
    // Without its line break.
    QString Line(int line) const;
    // Characters of the report before the line, a line break being one.
    int Start_Of(int line) const;
    // The line in which the character stands; the nearest there is.
    int Line_Of(int character) const;
    int Line_At(const QPoint& point) const; // in the viewport
    QRect Line_Rect(int line) const;        // on the screen
    // First and last of the selected lines; -1: none are.
    std::pair<int, int> Selection() const;
    void Select_Lines(int first, int last);
    // The line at which the reader is: the moving end of what is selected, else the first in view.
    int Line_Read() const;
    void Show_Line(int line);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

  private:
    void Add_Action(const QString& text, QKeySequence::StandardKey key, void (ReportView::*run)());
    void Index_New();
    void Measure();
    void Describe();
    void Tell_New();
    void Tell_Line_Read();
    void Copy();
    void Select_All();
    bool Select_Key(int key);
    void Scroll_Key(QKeyEvent* event);
    int Line_Height() const;

    ReportBox* box_ = nullptr;
    QTimer timer_, told_;
    std::vector<std::size_t> starts_;        // of the lines, in the box's text
    mutable std::vector<int> characters_{0}; // Start_Of, as far as was asked for
    int toldLines_ = 0;
    std::size_t indexed_ = 0; // so much of the text
    std::size_t longest_ = 0; // bytes of a line
    unsigned version_ = ~0u;
    int anchor_ = -1, end_ = -1; // the selected lines; -1: none
};

void Bind(ReportView* widget, ReportBox& control);

} // namespace Tensarix
