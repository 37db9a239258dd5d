// The help texts of the calculator, and the dialog CalcHelpFrm that shows and speaks them.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Tensarix {

struct CalcHelpTopic {
    std::string Title, Body; // lines end in carriage return and line feed
};

// Index 1 to 19, of which 8 to 19 are reserved; an empty topic for every other index.
CalcHelpTopic HelpTopic(int index);

// What is spoken for a topic: the title, a pause, and the body in pronounceable form.
std::string Help_Speech(std::string_view title, std::string_view body);

// A run of characters in HBox.
struct TextMark {
    std::size_t Start = 0, Length = 0;
};

// What the dialog shows, and what its controls do.
struct CalcHelpFrm {
    // The version of the program; the read-out flag; and the speech service, which drops what it is
    // saying and says the text (may be missing).
    CalcHelpFrm(std::string version, bool readOut, std::function<void(std::string_view)> speak);

    std::vector<std::string> MenuBox;
    int Selected = -1;
    std::string HBox;
    bool HBoxFocused = false; // with the cursor at the start, or the mark
    std::optional<TextMark> Mark;
    bool Closed = false;

    void Select_Row(int row);
    // The word that the voice begins to say: its position in the spoken text, from 0.
    void Voice_Word(int position, int length);
    void ExitButton();

  private:
    std::string version_;
    bool readOut_;
    std::function<void(std::string_view)> speak_;
};

} // namespace Tensarix
