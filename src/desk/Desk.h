// What every page is handed: the machine, the user's settings, the read-out, the status bar.
#pragma once

#include "controls/Controls.h"
#include "platform/Machine.h"

#include <utility>

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

    // Runs some work with the read-out switched off for the time.
    template <typename Work>
    void Quietly(Work&& work) {
        const bool readOut = std::exchange(ReadOut, false);
        std::forward<Work>(work)();
        ReadOut = readOut;
    }

    // Panel 1 when nothing is selected.
    static constexpr std::string_view noSelection = " SELECTION:   None";
    void Show_No_Selection() {
        StatBar.Set_Panel1(std::string{noSelection});
        StatBar.Set_Remark({});
    }
};

} // namespace Tensarix
