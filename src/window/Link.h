// A widget's line to its control. The control says that it has changed; the widget takes over its
// state once per turn of the event loop, and in any case before it handles the user's next input,
// so that it never acts on what is no longer so.
#pragma once

#include "controls/FocusPoint.h"

#include <QObject>
#include <QWidget>

#include <functional>

namespace Tensarix {

class Link : public QObject {
  public:
    Link(QWidget* widget, View& view, std::function<void()> pull);
    ~Link() override;

    // Something more to take over after the rest; done at once for the first time.
    void Also(std::function<void()> pull);
    // Takes over the state now, if it has changed.
    void Flush();
    // Does something first, during which nothing is taken over.
    void Flush_After(const std::function<void()>& work);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Mark();

    View& view_;
    std::function<void()> pull_;
    bool due_ = false, held_ = false;
};

// Gives focus changes of the widget to the control, and those of the control to the widget. A
// window that loses the desktop's attention keeps its focus.
class FocusLink : public QObject {
  public:
    FocusLink(QWidget* widget, FocusPoint& point);
    ~FocusLink() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    FocusPoint& point_;
};

} // namespace Tensarix
