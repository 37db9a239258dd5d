// A remark tells what the text beside it doesn't, and is never a part of that text. It weighs more
// or less for whoever goes on to use the number.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace Tensarix {

enum class RemarkWeight : std::uint8_t {
    Note,    // how to read it: digits lost, a text left from before
    Caution, // the number isn't what its name says
    Unsafe   // who designs with it errs to the unsafe side, and the right number is known
};

// The weight as it is told to who doesn't see how the remark looks.
constexpr std::string_view Weight_Word(RemarkWeight weight) {
    constexpr std::string_view words[] = {"Note", "Caution", "Unsafe"};
    return words[static_cast<std::size_t>(weight)];
}

// What a routine has to say beside its result; nothing if the text is empty.
struct Advice {
    std::string Text;
    RemarkWeight Weight = RemarkWeight::Note;

    bool operator==(const Advice&) const = default;
};

} // namespace Tensarix
