// From the text of a length, as a detailer writes it on a drawing (12'-6 3/8"), to a number.
//
// Three marks carry the grammar: ' behind the feet, - between feet and inches, " behind the inches.
// Only the first of each counts. A text without marks is inches. The readers take a text as it
// stands, while the classifier trims its copy; so callers trim first: ' 5' reads as 0, ' 6 1/2'
// as 61/2 inches, and '1/2 ' as no length. Pages trim (docs/validation.md, lengths).
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace Tensarix {

inline constexpr char footMark = '\'';
inline constexpr char inchMark = '"';
inline constexpr char dashMark = '-';
inline constexpr char blankMark = ' ';
inline constexpr char slashMark = '/';

inline constexpr int inchesPerFoot = 12;

// Stands in place of a number where the text is no length.
inline constexpr std::string_view lengthError = "*ERROR*";

// The marks of a text, added up: 1 foot, 2 dash, 4 inch.
inline constexpr std::int16_t formInches = 0;       // 6 1/2
inline constexpr std::int16_t formFeet = 1;         // 5'
inline constexpr std::int16_t formFeetInches = 3;   // 5'-6 1/2
inline constexpr std::int16_t formMarkedInches = 4; // 6 1/2"
inline constexpr std::int16_t formFull = 7;         // 5'-6 1/2"
inline constexpr std::int16_t formRejected = 100;   // the marks may do, the text doesn't

// Nothing, a number, or lengthError.
using LengthValue = std::variant<std::monostate, double, std::string>;

// Unit "FT" gives feet, "IN" inches, in either case of letters; any other gives nothing, unread.
// lengthError where the text is no length. Never fails, never rounds.
LengthValue Parse_FeetInch(std::string_view text, std::string_view unit);

// The number of feet, or lengthError. Never fails. A leading dash turns the sign of all that
// follows; a second one stays in the number, so that "--5" is plus 5 inches.
LengthValue Parse_ToFeet(std::string_view text);

// The number of feet; none where the text is no length.
std::optional<double> Feet_Of(std::string_view text);

// The form of a text, which is trimmed and loses one leading dash first. Fails where a mark first
// stands beyond position 32767.
std::int16_t Classify_FeetInch(std::string_view text);

// True for the five forms that are lengths; the dash between feet and inches is compulsory.
bool Is_Form_Accepted(std::int16_t code);

// The code, or formRejected where what stands ahead of the foot mark (at footPos, from 1) is no
// number. What stands behind the mark isn't looked at, so "5'6" and "5''''" are 5 feet; the box
// then shows the length it took.
std::int16_t Check_Feet_Piece(std::int16_t code, std::string_view text, std::int16_t footPos);

// The code, or formRejected where the text is no inch part: 6, 1/2, or 6 1/2, the inch mark
// allowed behind it. What follows a blank without a slash isn't looked at and drops out.
std::int16_t Check_Inch_Piece(std::int16_t code, std::string_view text);

// The readers give feet. They expect what the classifier has passed; what they can't read fails.
double Read_Feet(std::string_view text);
double Read_Inches_As_Feet(std::string_view text);
double Read_FeetInch(std::string_view text);

// The first position of a mark, from 1; 0: none. Positions are 16-bit: beyond 32767 it fails.
std::int16_t Position_Of(std::string_view text, char mark);

} // namespace Tensarix
