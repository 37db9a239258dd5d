#include "calculator/CalcHelpModule.h"

#include "common/NumberText.h"

#include <array>
#include <utility>

namespace Tensarix {

namespace {

constexpr std::string_view lineEnd = "\r\n";
constexpr std::string_view firstText = "Select a menu option to see a brief description.";
constexpr std::string_view authorRow = "About the Author";
constexpr std::string_view speechPause = " :::: ";
constexpr int lastIndex = 21;

struct TopicText {
    std::string_view Title, Body;
};

// Bodies with plain line feeds. The Overview is one line without signs that are spoken as words:
// so the mark follows the voice exactly.
constexpr TopicText topics[] = {
    {"Overview",
     "The Tensarix Scientific Calculator is a simulation of a hand-held scientific calculator. It "
     "stands beside your other work: key a calculation in the order in which it is written, and "
     "read the result on the panel. It keeps its entry, its memories and its data while it is "
     "closed, and it remembers the memories and the data for the next time."},
    {"Calculator Capabilities",
     "A.) Performs the following  mathematical operations in accordance with the following "
     "calculation priority sequence:\n"
     "\n"
     "     1.) functions\n"
     "     2.) polar to rectangular,\n"
     "         rectangular to polar\n"
     "     3.) exponential\n"
     "     4.) multiplication\n"
     "     5.) division\n"
     "     6.) addition\n"
     "     7.) subtraction\n"
     "\n"
     "B.) Performs the following scientific functions:\n"
     "\n"
     "     1.) Trigonometric:\n"
     "          a.) Sine\n"
     "          b.) Cosine\n"
     "          c.) Tangent\n"
     "\n"
     "     2.) Inverse-trigonometric:\n"
     "          a.) Arc-Sine\n"
     "          b.) Arc-Cosine\n"
     "          c.) Arc-Tangent\n"
     "\n"
     "     3.) Hyperbolic:\n"
     "          a.) Hyperbolic Sine\n"
     "          b.) Hyperbolic Cosine\n"
     "          c.) Hyperbolic Tangent\n"
     "\n"
     "     4.) Inverse Hyperbolic:\n"
     "          a.) Inverse Hyperbolic Sine\n"
     "          b.) Inverse Hyperbolic Cosine\n"
     "          c.) Inverse Hyperbolic Tangent"},
    {"Mode Settings", "Picking the 'mode' tab specify desired calculation modes.\n"
                      "\n"
                      "1.) Display Modes\n"
                      "2.) Angle Specification Modes"},
    {"Display Modes",
     "a.) Scientific display mode:\n"
     "     Use this mode to show each result as a mantissa and an exponent, with the number of "
     "decimals that is set for the mantissa.\n"
     "\n"
     "b.) Fix mode:\n"
     "     Use this mode to show each result with a fixed number of decimals.\n"
     "\n"
     "c.) Normal mode:\n"
     "     Results are normally displayed with a maximum of 15 significant digits, and "
     "exponential display is automatically performed for any number less than 0.01(10^-2) or "
     "greater than 10 billion (10^10). An exponential display has a maximum of fifteen significant "
     "digits for mantissa and two digits for exponent."},
    {"Angle Specification Modes",
     "a.) DEGREE mode:\n"
     "     Use this mode to specify the unit of angular measurement as degrees.\n"
     "\n"
     "b.) RADIAN mode:\n"
     "     Use this mode to specify the unit of angular measurement as radians.\n"
     "\n"
     "c.) GRADIAN mode:\n"
     "     Use this mode to specify the unit of angular measurement as gradians."},
    {"Numeric keys",
     "Pick any of the numeric keys to enter a value. Press '.' to enter a decimal point.\n"
     "\n"
     "Values are entered from left to right. You cannot enter a value that is more than 15 digits "
     "long. Any numeric key pressed after the 15th digit is ignored."},
    {"Arithmetic Operation keys",
     "Pick these keys in the same order as they appear in the formula to perform arithmetic "
     "operations. Press '=' to display the final result.\n"
     "\n"
     "Below are the available arithmetic keys with their corresponding descriptions:\n"
     "\n"
     "a.) 'x^y'    - Power key:\n"
     "     Press this key to raise x to the y power.\n"
     "b.) 'root'   - Power root key:\n"
     "     Press this key to raise x to the 1/y power.\n"
     "c.) 'x'      - Multiplication key:\n"
     "     Press this key to perform multiplication.\n"
     "d.) '/'      - Division key:\n"
     "     Press this key to perform division.\n"
     "e.) '+'      - Addition key:\n"
     "     Press this key to perform addition.\n"
     "f.) '-'      - Subtraction key:\n"
     "     Press this key to perform subtraction."},
};

// In this order: the quoted slash goes before the bare one.
constexpr std::pair<std::string_view, std::string_view> spokenForms[] = {
    {"\r\n", ":::"},     {"^", " TO THE POWER "}, {"'/'", "SLASH"},  {"/", " OVER "},
    {"'.'", " PERIOD "}, {"'='", " EQUAL "},      {"'-'", " DASH "},
};

std::string About_Text(std::string_view version) {
    return "Tensarix Scientific Calculator, version " + std::string{version} +
           std::string{lineEnd} + "Free software under the MIT License";
}

} // namespace

CalcHelpTopic HelpTopic(int index) {
    if (index < 1 || index > static_cast<int>(std::size(topics)))
        return {};
    const TopicText& topic = topics[index - 1];
    return {std::string{topic.Title}, Replace_All(topic.Body, "\n", lineEnd)};
}

std::string Help_Speech(std::string_view title, std::string_view body) {
    std::string speech{body};
    for (const auto& [piece, spoken] : spokenForms)
        speech = Replace_All(speech, piece, spoken);
    return std::string{title}.append(speechPause).append(speech);
}

CalcHelpFrm::CalcHelpFrm(std::string version, bool readOut,
                         std::function<void(std::string_view)> speak)
    : HBox(firstText), version_(std::move(version)), readOut_(readOut), speak_(std::move(speak)) {
    for (int index = 1; index <= lastIndex; ++index)
        if (const std::string title = HelpTopic(index).Title; !Trim(title).empty())
            MenuBox.push_back(title);
    MenuBox.emplace_back(authorRow);
}

void CalcHelpFrm::Select_Row(int row) {
    if (row < 0 || row >= static_cast<int>(MenuBox.size()))
        return;
    const std::string& title = MenuBox[static_cast<std::size_t>(row)];
    Selected = row;
    HBox = title == authorRow ? About_Text(version_) : HelpTopic(row + 1).Body;
    HBoxFocused = true;
    Mark.reset();
    if (readOut_ && speak_)
        speak_(Help_Speech(title, HBox));
}

// The mark drifts behind the first replaced sign, so only the first topic has it.
void CalcHelpFrm::Voice_Word(int position, int length) {
    if (Selected != 0)
        return;
    const int behindTitle = position - static_cast<int>(MenuBox.front().size());
    const int start = behindTitle - static_cast<int>(speechPause.size());
    if (behindTitle - 3 < 1 || start < 0 || length < 0)
        return;
    HBoxFocused = true;
    Mark = TextMark{static_cast<std::size_t>(start), static_cast<std::size_t>(length)};
}

void CalcHelpFrm::ExitButton() {
    if (readOut_ && speak_)
        speak_({});
    Closed = true;
}

} // namespace Tensarix
