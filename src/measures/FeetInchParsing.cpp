#include "measures/FeetInchParsing.h"

#include "common/Failure.h"
#include "common/NumberText.h"

namespace Tensarix {

namespace {

// Which of blank and slash an inch part holds, added up: 1 blank, 2 slash.
enum class InchForm : std::uint8_t { Plain = 0, Tail = 1, Fraction = 2, Mixed = 3 };

struct InchPieces {
    InchForm Form = InchForm::Plain;
    bool InOrder = true;     // no blank behind the slash, no second slash, something ahead of it
    std::string Whole;       // ahead of the blank
    std::string Numerator;   // ahead of the slash, and behind the blank if there is one
    std::string Denominator; // behind the slash, without the inch mark
};

// All positions from 1.
std::string_view Ahead_Of(std::string_view text, std::int16_t position) {
    return text.substr(0, static_cast<std::size_t>(position - 1));
}

std::string_view Behind(std::string_view text, std::int16_t position) {
    return text.substr(static_cast<std::size_t>(position));
}

// As many characters are taken behind the slash as the trimmed text has there: a blank right
// behind the slash therefore costs the last digit, and the text is rejected
// rather than read as another length.
void Split_Fraction(InchPieces& pieces, std::string_view text, std::int16_t blank,
                    std::int16_t slash) {
    const std::string_view tail = Behind(text, slash);
    const std::string trimmed = Trim(tail);
    const std::size_t mark = trimmed.ends_with(inchMark) ? 1 : 0;
    const auto length = static_cast<std::size_t>(
        Whole_16(static_cast<double>(trimmed.size()) - static_cast<double>(mark)));
    pieces.Denominator = Trim(tail.substr(0, length));
    pieces.InOrder = slash > 1 && blank < slash && Position_Of(trimmed, slashMark) == 0;
    if (blank < slash)
        pieces.Numerator = Trim(Behind(Ahead_Of(text, slash), blank));
}

InchPieces Split_Inches(std::string_view text) {
    const std::int16_t blank = Position_Of(text, blankMark);
    const std::int16_t slash = Position_Of(text, slashMark);
    InchPieces pieces;
    pieces.Form = static_cast<InchForm>((blank >= 1 ? 1 : 0) + (slash >= 1 ? 2 : 0));
    if (blank >= 1)
        pieces.Whole = Trim(Ahead_Of(text, blank));
    if (slash >= 1)
        Split_Fraction(pieces, text, blank, slash);
    return pieces;
}

bool Is_Plain_Number(std::string_view text) {
    if (text.ends_with(inchMark))
        text.remove_suffix(1);
    return Is_Numeric(text);
}

bool Is_Fraction(const InchPieces& pieces) {
    return pieces.InOrder && Is_Numeric(pieces.Denominator) && Is_Numeric(pieces.Numerator);
}

bool Is_Inch_Piece(std::string_view text) {
    const InchPieces pieces = Split_Inches(text);
    switch (pieces.Form) {
    case InchForm::Plain:
        return Is_Plain_Number(text);
    case InchForm::Tail:
        return Is_Numeric(pieces.Whole);
    case InchForm::Fraction:
        return Is_Fraction(pieces);
    case InchForm::Mixed:
        break;
    }
    return Is_Fraction(pieces) && Is_Numeric(pieces.Whole);
}

double Fraction_Value(const InchPieces& pieces) {
    if (!pieces.InOrder)
        throw Failure("no fraction between blank and slash");
    return Finite(Leading_Value(pieces.Numerator) / Leading_Value(pieces.Denominator));
}

double Inches_Value(std::string_view text) {
    const InchPieces pieces = Split_Inches(text);
    switch (pieces.Form) {
    case InchForm::Plain:
        return Leading_Value(text);
    case InchForm::Tail:
        return Leading_Value(pieces.Whole);
    case InchForm::Fraction:
        return Fraction_Value(pieces);
    case InchForm::Mixed:
        break;
    }
    return Leading_Value(pieces.Whole) + Fraction_Value(pieces);
}

// Forms 3 and 7, whose marks have to stand in the order foot, dash, inch.
std::int16_t Check_Both_Pieces(std::int16_t code, std::string_view text, std::int16_t foot,
                               std::int16_t dash) {
    code = Check_Feet_Piece(code, text, foot);
    const std::string_view rest = Behind(text, dash);
    if (Position_Of(rest, dashMark) >= 1)
        code = formRejected;
    return code == formRejected ? code : Check_Inch_Piece(code, rest);
}

std::string_view Without_Leading_Dash(std::string_view text) {
    return text.starts_with(dashMark) ? text.substr(1) : text;
}

double Read_Form(std::int16_t code, std::string_view text) {
    switch (code) {
    case formFeet:
        return Read_Feet(text);
    case formFeetInches:
    case formFull:
        return Read_FeetInch(text);
    default:
        return Read_Inches_As_Feet(text);
    }
}

} // namespace

std::int16_t Position_Of(std::string_view text, char mark) {
    const std::size_t at = text.find(mark);
    return at == std::string_view::npos ? std::int16_t{0} : Whole_16(static_cast<double>(at) + 1);
}

bool Is_Form_Accepted(std::int16_t code) {
    return code == formInches || code == formFeet || code == formFeetInches ||
           code == formMarkedInches || code == formFull;
}

std::int16_t Check_Feet_Piece(std::int16_t code, std::string_view text, std::int16_t footPos) {
    return Is_Numeric(Ahead_Of(text, footPos)) ? code : formRejected;
}

std::int16_t Check_Inch_Piece(std::int16_t code, std::string_view text) {
    return Is_Inch_Piece(text) ? code : formRejected;
}

std::int16_t Classify_FeetInch(std::string_view text) {
    const std::string trimmed = Trim(text);
    const std::string_view copy = Without_Leading_Dash(trimmed);
    const std::int16_t foot = Position_Of(copy, footMark);
    const std::int16_t dash = Position_Of(copy, dashMark);
    const std::int16_t inch = Position_Of(copy, inchMark);
    if (foot == 1 || inch == 1)
        return formRejected;
    const auto code =
        static_cast<std::int16_t>((foot >= 1 ? 1 : 0) + (dash >= 1 ? 2 : 0) + (inch >= 1 ? 4 : 0));
    switch (code) {
    case formInches:
    case formMarkedInches:
        return Check_Inch_Piece(code, copy);
    case formFeet:
        return Check_Feet_Piece(code, copy, foot);
    case formFeetInches:
        return dash > foot ? Check_Both_Pieces(code, copy, foot, dash) : formRejected;
    case formFull:
        return inch > dash && dash > foot ? Check_Both_Pieces(code, copy, foot, dash)
                                          : formRejected;
    default:
        return code;
    }
}

double Read_Feet(std::string_view text) {
    return Leading_Value(text);
}

double Read_Inches_As_Feet(std::string_view text) {
    return Finite(Inches_Value(text)) / inchesPerFoot;
}

double Read_FeetInch(std::string_view text) {
    const std::int16_t dash = Position_Of(text, dashMark);
    return Finite(Read_Inches_As_Feet(Behind(text, dash)) + Read_Feet(text));
}

LengthValue Parse_ToFeet(std::string_view text) {
    LengthValue result{std::string{lengthError}};
    Attempt([&] {
        const std::string_view length = Without_Leading_Dash(text);
        const double sign = length.size() < text.size() ? -1 : 1;
        const std::int16_t code = Classify_FeetInch(length);
        if (Is_Form_Accepted(code))
            result = sign * Read_Form(code, length);
    });
    return result;
}

LengthValue Parse_FeetInch(std::string_view text, std::string_view unit) {
    const std::string target = Upper(unit);
    if (target == "FT")
        return Parse_ToFeet(text);
    if (target != "IN")
        return {};
    const std::optional<double> feet = Feet_Of(text);
    LengthValue result{std::string{lengthError}};
    if (feet)
        Attempt([&] { result = Finite(*feet * inchesPerFoot); });
    return result;
}

std::optional<double> Feet_Of(std::string_view text) {
    const LengthValue value = Parse_ToFeet(text);
    const double* feet = std::get_if<double>(&value);
    return feet != nullptr ? std::optional{*feet} : std::nullopt;
}

} // namespace Tensarix
