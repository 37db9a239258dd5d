// What every page is handed: the machine, the user's settings, the read-out, the status bar.
#pragma once

#include "controls/Controls.h"
#include "platform/Machine.h"

namespace Tensarix {

struct Desk {
    explicit Desk(Machine& machine) : Host(machine), Saved(machine.Store) {}
    Desk(const Desk&) = delete;

    Machine& Host;
    Settings Saved;
    StatusBar StatBar;
    bool ReadOut = false;     // reading aloud is on
    bool OnTop = false;       // the main window stays above others
    bool GridClicked = false; // the left button went down on a grid since the last change of mode

    // The one way to speech: does nothing unless the read-out is on; an empty text silences what
    // is being spoken.
    void Say(std::string_view text) const {
        if (ReadOut)
            Host.Speech.Speak(text);
    }

    // Panel 1 when nothing is selected.
    void Show_No_Selection() {
        StatBar.Set_Panel1(" SELECTION:   None");
        StatBar.Set_Remark({});
    }
};

} // namespace Tensarix
