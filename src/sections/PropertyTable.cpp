#include "sections/PropertyTable.h"

#include "common/Failure.h"
#include "common/NumberText.h"
#include "measures/FeetInchFormatting.h"
#include "measures/FeetInchParsing.h"
#include "sections/Assoc_Property.h"

#include <cmath>
#include <variant>

namespace Tensarix {

namespace {

using enum PropertyKind;

constexpr std::string_view valuePattern = "0.00##  ";
constexpr std::string_view wholePattern = "#,##0";
constexpr std::string_view storedPattern = "#,##0.###############";
constexpr double littleLost = 0.01; // of the stored number
constexpr std::string_view cellEnd = "  ";

// The catalogue. Names tell the symbol; a suffix tells the layout where a symbol has several forms.
// clang-format off
namespace Catalogue {
// NOLINTBEGIN(readability-identifier-naming): by their symbols
constexpr Property W{"W", "Nominal Weight", "W", "xW", Number, "lb/ft", "Kg/m"};
constexpr Property A{"A", "Cross-Sectional Area", "A", "xA", Number, "in^2", "mm^2"};
constexpr Property d{"d", "Overall Depth of Member", "D", "xD", Length, "in.", "mm"};
constexpr Property bf{"bf", "Flange Width", "BF", "xBF", Length, "in.", "mm"};
constexpr Property tw{"tw", "Web Thickness", "TW", "xTW", Length, "in.", "mm"};
constexpr Property tf{"tf", "Flange Thickness", "TF", "xTF", Length, "in.", "mm"};
constexpr Property kdes{"kdes", "Design value of 'k' dimension as defined in the Manual", "KDES", "xKDES", Length, "in.", "mm"};
constexpr Property kdet{"kdet", "Detailing value of 'k' dimension as defined in the Manual", "KDET", "xKDET", Length, "in.", "mm"};
constexpr Property k1{"k1", "Design value of 'k1' dimension as defined in the Manual", "K1", "xK1", Length, "in.", "mm"};
constexpr Property T{"T", "Design depth between the web toes of the fillets", "D", "xD", Length, "in.", "mm", "KDET", "xKDET"};
constexpr Property bf_2tf{"bf / 2tf", "Slenderness Ratio", "BF_2TF", "BF_2TF", Ratio};
constexpr Property h_tw{"h / tw", "Slenderness Ratio", "H_TW", "H_TW", Ratio};
constexpr Property Ix{"Ix", "Moment of Inertia about the x-axis", "IX", "xIX", SecondMoment, "in^4", "mm^4"};
constexpr Property Zx{"Zx", "Plastic Section Modulus about the x-axis", "ZX", "xZX", SecondMoment, "in^3", "mm^3"};
constexpr Property Sx{"Sx", "Elastic Section Modulus about the x-axis", "SX", "xSX", SecondMoment, "in^3", "mm^3"};
constexpr Property rx{"rx", "Radius of Gyration about the x-axis", "RX", "xRX", Length, "in.", "mm"};
constexpr Property Iy{"Iy", "Moment of Inertia about the y-axis", "IY", "xIY", SecondMoment, "in^4", "mm^4"};
constexpr Property Zy{"Zy", "Plastic Section Modulus about the y-axis", "ZY", "xZY", SecondMoment, "in^3", "mm^3"};
constexpr Property Sy{"Sy", "Elastic Section Modulus about the y-axis", "SY", "xSY", SecondMoment, "in^3", "mm^3"};
constexpr Property ry{"ry", "Radius of Gyration about the y-axis", "RY", "xRY", Length, "in.", "mm"};
constexpr Property J{"J", "Torsional Moment of Inertia", "J", "xJ", SecondMoment, "in^4", "mm^4"};
constexpr Property Cw{"Cw", "Warping Constant", "CW", "xCW", SecondMoment, "in^6", "mm^6"};
constexpr Property Wno{"Wno", "Normalized Warping Function", "WNO", "xWNO", SecondMoment, "in^2", "mm^2"};
constexpr Property Sw{"Sw", "Warping Statical Moment", "SW", "xSW", SecondMoment, "in^4", "mm^4"};
constexpr Property Qf{"Qf", "Statical Moment at point in Flange", "QF", "xQF", SecondMoment, "in^3", "mm^3"};
constexpr Property Qw{"Qw", "Statical Moment at mid-depth of the Section", "QW", "xQW", SecondMoment, "in^3", "mm^3"};
constexpr std::string_view kMeaning = "Design distance from outer face of flange to web toe of fillet";
// The two profiles read different values here; the US one carries a remark.
constexpr Property k_S{"k", kMeaning, "KDET", "xKDES", Length, "in.", "mm"};
constexpr Property k{"k", kMeaning, "KDES", "xKDES", Length, "in.", "mm"};
constexpr Property k_K{"k", kMeaning, "K", "xK", Length, "in.", "mm"};
constexpr Property k_KDET{"k", kMeaning, "KDET", "xKDET", Length, "in.", "mm"};
constexpr Property x{"x", "Horizontal distance from designated member edge to centroidal axis", "X", "xX", Length, "in.", "mm"};
constexpr std::string_view eMeaning = "Horizontal distance from designated member edge to shear center";
constexpr Property e0{"e0", eMeaning, "EO", "xEO", Length, "in.", "mm"};
constexpr Property eo{"eo", eMeaning, "EO", "xEO", Length, "in.", "mm"};
constexpr std::string_view xpMeaning = "Horizontal distance from designated member edge to plastic neutral";
// Without units, and on Browse the unit cell is not written at all: it keeps what it held, with a remark.
constexpr Property xp_C{"xp", xpMeaning, "XP", "xXP", Length, "", "", "", "", false};
constexpr Property xp{"xp", xpMeaning, "XP", "xXP", Length, "in.", "mm"};
constexpr Property ro_C{"ro", "Polar radius of gyration about the shear center", "RO", "xRO", Length, "in.", "mm"};
constexpr Property ro{"ro", "Polar radius of Gyration about shear center", "RO", "xRO", Length, "in.", "mm"};
constexpr Property H{"H", "Flexural Constant", "H", "xH", Pair};
constexpr Property y{"y", "Vertical distance from designated member edge to centroidal axis", "Y", "xY", Length, "in.", "mm"};
constexpr Property yp{"yp", "Vertical distance from designated member edge to plastic neutral", "YP", "xYP", Length, "in.", "mm"};
constexpr Property d_tw{"d / tw", "Slenderness Ratio", "H_TW", "H_TW", Ratio};
constexpr Property Ht{"Ht", "Overall Depth of HSS", "HT", "xHT", Length, "in.", "mm"};
constexpr Property b{"b", "Overall width of member", "B", "xB", Length, "in.", "mm"};
// The width of a square is its depth.
constexpr Property b_Sqr{"b", "Overall width of member", "HT", "xHT", Length, "in.", "mm"};
constexpr Property tnom{"tnom", "HSS nominal wall thickness", "TNOM", "xTNOM", Length, "in.", "mm"};
constexpr Property tdes{"tdes", "HSS design wall thickness", "TDES", "xTDES", Length, "in.", "mm"};
constexpr Property tdes_Pipe{"tdes", "Pipe design wall thickness", "TDES", "xTDES", Length, "in.", "mm"};
constexpr Property b_t_Rec{"b / t", "B/t slenderness ratio for rectangular HSS", "B_T", "B_T", Ratio};
constexpr Property h_t_Rec{"h / t", "H/t slenderness ratio for rectangular HSS", "H_T", "H_T", Ratio};
constexpr Property b_t_Sqr{"b / t", "B/t slenderness ratio for square HSS", "B_T", "B_T", Ratio};
constexpr Property h_t_Sqr{"h / t", "H/t slenderness ratio for square HSS", "H_T", "H_T", Ratio};
constexpr Property C{"C", "HSS torsional constant", "C", "xC", SecondMoment, "in^3", "mm^3"};
constexpr Property I{"I", "Moment of Inertia for both axes", "IX", "xIX", SecondMoment, "in^4", "mm^4"};
constexpr Property Z{"Z", "Plastic Section Modulus for both axes", "ZX", "xZX", SecondMoment, "in^3", "mm^3"};
constexpr Property S{"S", "Elastic Section Modulus for both axes", "SX", "xSX", SecondMoment, "in^3", "mm^3"};
constexpr Property r{"r", "Radius of Gyration for both axes", "RX", "xRX", Length, "in.", "mm"};
constexpr Property OD{"OD", "HSS Outside Diameter", "OD", "xOD", Length, "in.", "mm"};
constexpr Property ID{"ID", "HSS Inside Diameter", "ID", "xID", Length, "in.", "mm"};
constexpr Property D_t{"D / t", "D/t slenderness ratio for round HSS", "D_T", "D_T", Ratio};
constexpr Property D_t_x{"D / t", "D/t slenderness ratio for round HSS", "xD_T", "xD_T", Ratio};
constexpr Property D_t_Pipe{"D / t", "D/t slenderness ratio for Pipe", "xD_T", "xD_T", Ratio};
constexpr Property t{"t", "Thickness", "T", "xT", Length, "in.", "mm"};
constexpr Property rz{"rz", "Radius of Gyration about the z-axis", "RZ", "xRZ", Length, "in.", "mm"};
constexpr std::string_view tanMeaning = "Tangent of the angle between the y-y and z-z axes for single\n    angle";
constexpr Property TanAlpha{"Tan Alpha", tanMeaning, "TAN_ALPHA", "xTAN_ALPHA", Pair};
constexpr Property TanAlpha_US{"Tan Alpha", tanMeaning, "TAN_ALPHA", "TAN_ALPHA", Pair};
constexpr std::string_view qsMeaning = "Reduction factor for slender unstiffened compression element";
constexpr Property Qs{"Qs", qsMeaning, "QS", "xQS", Pair};
constexpr Property Qs_US{"Qs", qsMeaning, "QS", "QS", Pair};
// On View All and Find.
constexpr Property Wt{"Wt", "", "W", "xW", Number, "lb/ft", "Kg/m"};
constexpr Property d_S{"d", "", "D", "xD", Number, "in.", "mm"};
// NOLINTEND(readability-identifier-naming)
} // namespace Catalogue
// clang-format on

namespace c = Catalogue;

constexpr LayoutEntry Same(const Property& everywhere) {
    return {&everywhere, &everywhere, &everywhere};
}
constexpr LayoutEntry Two(const Property& browse, const Property& tables) {
    return {&browse, &tables, &tables};
}
constexpr LayoutEntry Tables_Only(const Property& tables) {
    return {nullptr, &tables, &tables};
}

constexpr LayoutEntry weight = Two(c::W, c::Wt);

constexpr LayoutEntry entriesW[] = {
    weight,        Same(c::A),    Same(c::d),  Same(c::bf), Same(c::tw),     Same(c::tf),
    Same(c::kdes), Same(c::kdet), Same(c::k1), Same(c::T),  Same(c::bf_2tf), Same(c::h_tw),
    Same(c::Ix),   Same(c::Zx),   Same(c::Sx), Same(c::rx), Same(c::Iy),     Same(c::Zy),
    Same(c::Sy),   Same(c::ry),   Same(c::J),  Same(c::Cw), Same(c::Wno),    Same(c::Sw),
    Same(c::Qf),   Same(c::Qw)};

constexpr LayoutEntry entriesS[] = {weight,          Same(c::A),    Two(c::d, c::d_S), Same(c::bf),
                                    Same(c::tw),     Same(c::tf),   Two(c::k_S, c::k), Same(c::T),
                                    Same(c::bf_2tf), Same(c::h_tw), Same(c::Ix),       Same(c::Zx),
                                    Same(c::Sx),     Same(c::rx),   Same(c::Iy),       Same(c::Zy),
                                    Same(c::Sy),     Same(c::ry),   Same(c::J),        Same(c::Cw),
                                    Same(c::Wno),    Same(c::Sw),   Same(c::Qf),       Same(c::Qw)};

constexpr LayoutEntry entriesC[] = {
    weight,      Same(c::A),        Same(c::d),    Same(c::bf),   Same(c::tw),
    Same(c::tf), Same(c::kdes),     Same(c::kdet), Same(c::k1),   Same(c::T),
    Same(c::x),  Two(c::e0, c::eo), Same(c::xp_C), Same(c::Ix),   Same(c::Zx),
    Same(c::Sx), Same(c::rx),       Same(c::Iy),   Same(c::Zy),   Same(c::Sy),
    Same(c::ry), Same(c::J),        Same(c::Cw),   Same(c::ro_C), Same(c::H)};

// The tables of the channels number their columns wrongly: the heads fall back by two behind Zx,
// the values behind EO, and what comes later is written over what stood there. The system's users
// know these tables so; a remark on each head tells whose values stand under it.
constexpr int headColumnsC[] = {2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 13, 14,
                                15, 16, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24};
constexpr int valueColumnsC[] = {2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 13, 12,
                                 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24};

constexpr LayoutEntry entriesWT[] = {weight,
                                     Same(c::A),
                                     Same(c::d),
                                     Same(c::bf),
                                     Same(c::tw),
                                     Same(c::tf),
                                     {&c::k, &c::k_K, &c::k_KDET},
                                     Same(c::y),
                                     Same(c::yp),
                                     Same(c::bf_2tf),
                                     Same(c::h_tw),
                                     Same(c::Ix),
                                     Same(c::Zx),
                                     Same(c::Sx),
                                     Same(c::rx),
                                     Same(c::Iy),
                                     Same(c::Zy),
                                     Same(c::Sy),
                                     Same(c::ry),
                                     Same(c::J),
                                     Same(c::Cw)};

constexpr LayoutEntry entriesST[] = {
    weight,        Same(c::A),  Same(c::d),  Same(c::bf), Same(c::tw),
    Same(c::tf),   Same(c::k),  Same(c::y),  Same(c::yp), Tables_Only(c::bf_2tf),
    Same(c::d_tw), Same(c::Ix), Same(c::Zx), Same(c::Sx), Same(c::rx),
    Same(c::Iy),   Same(c::Zy), Same(c::Sy), Same(c::ry), Same(c::J),
    Same(c::Cw)};

constexpr LayoutEntry entriesHSSRec[] = {
    weight,        Same(c::A),       Same(c::Ht),      Same(c::b),  Same(c::tnom),
    Same(c::tdes), Same(c::b_t_Rec), Same(c::h_t_Rec), Same(c::Ix), Same(c::Zx),
    Same(c::Sx),   Same(c::rx),      Same(c::Iy),      Same(c::Zy), Same(c::Sy),
    Same(c::ry),   Same(c::J),       Same(c::Cw),      Same(c::C)};

constexpr LayoutEntry entriesHSSSqr[] = {
    weight,        Same(c::A),       Same(c::Ht),      Same(c::b_Sqr), Same(c::tnom),
    Same(c::tdes), Same(c::b_t_Sqr), Same(c::h_t_Sqr), Same(c::I),     Same(c::Z),
    Same(c::S),    Same(c::r),       Same(c::J),       Same(c::C)};

constexpr LayoutEntry entriesHSSRnd[] = {
    weight,     Same(c::A), Same(c::OD), Same(c::tnom), Same(c::tdes), Two(c::D_t, c::D_t_x),
    Same(c::I), Same(c::Z), Same(c::S),  Same(c::r),    Same(c::J),    Same(c::C)};

constexpr LayoutEntry entriesPipe[] = {
    weight,        Same(c::A),         Same(c::OD),       Same(c::ID),
    Same(c::tnom), Same(c::tdes_Pipe), Same(c::D_t_Pipe), Same(c::I),
    Same(c::Z),    Same(c::S),         Same(c::r),        Same(c::J)};

constexpr LayoutEntry entriesSAngle[] = {weight,
                                         Same(c::A),
                                         Same(c::d),
                                         Same(c::b),
                                         Same(c::t),
                                         Same(c::kdes),
                                         Same(c::kdet),
                                         Same(c::x),
                                         Same(c::y),
                                         Same(c::eo),
                                         Same(c::xp),
                                         Same(c::yp),
                                         Same(c::Ix),
                                         Same(c::Zx),
                                         Same(c::Sx),
                                         Same(c::rx),
                                         Same(c::Iy),
                                         Same(c::Zy),
                                         Same(c::Sy),
                                         Same(c::ry),
                                         Same(c::rz),
                                         Same(c::J),
                                         Same(c::Cw),
                                         Same(c::ro),
                                         Two(c::TanAlpha, c::TanAlpha_US),
                                         Two(c::Qs, c::Qs_US)};

constexpr LayoutEntry entriesEqDAngle[] = {
    weight,      Same(c::A),  Same(c::d),  Same(c::b),  Same(c::t),  Same(c::y), Same(c::Ix),
    Same(c::Zx), Same(c::Sx), Same(c::rx), Same(c::ry), Same(c::ro), Same(c::H), Same(c::Qs)};

constexpr LayoutEntry entriesUnEqDAngle[] = {weight,      Same(c::A),  Same(c::d),  Same(c::b),
                                             Same(c::t),  Same(c::y),  Same(c::yp), Same(c::Ix),
                                             Same(c::Zx), Same(c::Sx), Same(c::rx), Same(c::ry),
                                             Same(c::ro), Same(c::H),  Same(c::Qs)};

// A number as it is; a text is passed on unless it reads as a number.
std::string Formatted(const FieldValue& value) {
    if (std::holds_alternative<std::monostate>(value))
        throw Failure("Null");
    if (const auto* text = std::get_if<std::string>(&value)) {
        if (!Is_Numeric(*text))
            return *text;
        return Format_Number(Leading_Value(*text), valuePattern);
    }
    return Format_Number(std::get<double>(value), valuePattern);
}

} // namespace

const Layout Layouts::W{entriesW, 27, 0, 28};
const Layout Layouts::S{entriesS, 25, 0, 26};
const Layout Layouts::C{entriesC, 26, 0, 25, headColumnsC, valueColumnsC};
const Layout Layouts::WT{entriesWT, 22, 0, 23};
const Layout Layouts::ST{entriesST, 21, 0, 23, {}, {}, 1};
const Layout Layouts::HSSRec{entriesHSSRec, 20, 0, 21};
const Layout Layouts::HSSSqr{entriesHSSSqr, 15, 0, 16};
const Layout Layouts::HSSRnd{entriesHSSRnd, 14, 13, 14, {}, {}, 2};
const Layout Layouts::Pipe{entriesPipe, 14, 13, 14};
const Layout Layouts::SAngle{entriesSAngle, 27, 0, 28};
const Layout Layouts::EqDAngle{entriesEqDAngle, 15, 0, 16, {}, {}, 1};
const Layout Layouts::UnEqDAngle{entriesUnEqDAngle, 16, 0, 17, {}, {}, 2};

double Value_Number(const SectionRecordset& record, const Property& property, Profile profile) {
    const bool us = profile == Profile::US;
    const std::string_view lessTwice = us ? property.USLessTwice : property.SILessTwice;
    const double value = record.Number(us ? property.USColumn : property.SIColumn);
    return lessTwice.empty() ? value : value - 2 * record.Number(lessTwice);
}

std::string Value_Text(const SectionRecordset& record, const Property& property, Profile profile,
                       DimensionStyle style) {
    const bool us = profile == Profile::US;
    const std::string_view column = us ? property.USColumn : property.SIColumn;
    if (property.Kind == PropertyKind::Length) {
        const double value = Value_Number(record, property, profile);
        if (us && style == DimensionStyle::Imperial)
            return Length_Text(value / inchesPerFoot).append(cellEnd);
        return Format_Number(value, valuePattern);
    }
    if (property.Kind == PropertyKind::SecondMoment && !us)
        return FormatSiProperty(record.Number(column)).append(cellEnd);
    return Formatted(record.Field(column));
}

Advice Lost_Digits_Remark(const SectionRecordset& record, const Property& property, Profile profile,
                          std::string_view text) {
    const std::string_view column = profile == Profile::US ? property.USColumn : property.SIColumn;
    if (property.Kind != PropertyKind::SecondMoment ||
        std::holds_alternative<std::string>(record.Field(column)))
        return {};
    const double stored = record.Number(column);
    const double shown = Leading_Value(Replace_All(text, "x10^", "E"));
    if (General_Text(shown) == General_Text(stored))
        return {};
    const bool much = std::abs(shown - stored) > littleLost * std::abs(stored);
    const bool whole = stored == std::trunc(stored);
    std::string value = Format_Number(stored, whole ? wholePattern : storedPattern);
    value.append(" ").append(Unit_Text(property, profile));
    return much ? Advice{"Use the stored value: " + value, RemarkWeight::Caution}
                : Advice{"Stored value: " + value, RemarkWeight::Note};
}

std::string Flat_Meaning(std::string_view meaning) {
    const std::string line = Replace_All(Trim(meaning), "\n", "");
    return Replace_All(Replace_All(line, "  ", " "), "  ", " ");
}

std::string_view Unit_Text(const Property& property, Profile profile) {
    return profile == Profile::US ? property.USUnit : property.SIUnit;
}

} // namespace Tensarix
