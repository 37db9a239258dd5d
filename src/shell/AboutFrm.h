// The about box: what the program is, and what its numbers are worth.
#pragma once

#include "controls/Controls.h"
#include "desk/Desk.h"

namespace Tensarix {

class AboutFrm {
  public:
    Label lblTitle, lblVersion, lblDescription, lblDisclaimer;
    Button OKButton;
    Handler OnClose; // the view's: closes the dialog

    explicit AboutFrm(Desk& desk);
    AboutFrm(const AboutFrm&) = delete;

    // The box opens: its labels are read out, each as a text of its own.
    void Load();
    // The box has been closed, in whatever way: silence.
    void Unload();

  private:
    Desk& desk_;
};

} // namespace Tensarix
