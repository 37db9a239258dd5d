// Property symbols, units and descriptions in a form that a voice can pronounce. None of these
// fails.
#pragma once

#include <string>
#include <string_view>

namespace Tensarix {

// A single symbol, or a value. A length with a foot or inch mark is read in words (lengthError
// where it has no reading); what is no symbol comes back as it stands, but for powers of ten.
std::string Speak_Symbol(std::string_view text);

// The value of a cell: a number in its general text, anything else as Speak_Symbol has it.
std::string Speak_Value(std::string_view text);

// Plural where the leading number of the value is above 1. A unit that isn't known is silent.
std::string Speak_Unit(std::string_view unit, std::string_view value);

// A description, word by word: each word that happens to be a symbol is read as one, so "a" reads
// "AREA" there too. Foot marks become blanks.
std::string Speak_Phrase(std::string_view text);

} // namespace Tensarix
