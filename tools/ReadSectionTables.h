// Reads the section tables of data/sections, as text: no figure passes through a binary number.
#pragma once

#include <array>
#include <filesystem>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace Tensarix {

// One line for whoever keeps the tables: the file, the line, what is wrong.
class TableError final : public std::runtime_error {
  public:
    TableError(const std::string& file, std::size_t line, const std::string& what);
};

// What a column measures; the value of a length power is its exponent.
enum class Measure { Ratio = 0, Length = 1, Area = 2, Modulus = 3, Inertia = 4, Warping = 6, Mass };

struct FigureColumn {
    std::string_view Name; // in US units; the SI column has an "x" in front
    Measure Kind;
};

inline constexpr std::array figureColumns{
    FigureColumn{"W", Measure::Mass},       FigureColumn{"A", Measure::Area},
    FigureColumn{"D", Measure::Length},     FigureColumn{"HT", Measure::Length},
    FigureColumn{"OD", Measure::Length},    FigureColumn{"ID", Measure::Length},
    FigureColumn{"BF", Measure::Length},    FigureColumn{"B", Measure::Length},
    FigureColumn{"TW", Measure::Length},    FigureColumn{"TF", Measure::Length},
    FigureColumn{"T", Measure::Length},     FigureColumn{"TNOM", Measure::Length},
    FigureColumn{"TDES", Measure::Length},  FigureColumn{"KDES", Measure::Length},
    FigureColumn{"KDET", Measure::Length},  FigureColumn{"K1", Measure::Length},
    FigureColumn{"K", Measure::Length},     FigureColumn{"X", Measure::Length},
    FigureColumn{"Y", Measure::Length},     FigureColumn{"EO", Measure::Length},
    FigureColumn{"XP", Measure::Length},    FigureColumn{"YP", Measure::Length},
    FigureColumn{"BF_2TF", Measure::Ratio}, FigureColumn{"H_TW", Measure::Ratio},
    FigureColumn{"B_T", Measure::Ratio},    FigureColumn{"H_T", Measure::Ratio},
    FigureColumn{"D_T", Measure::Ratio},    FigureColumn{"IX", Measure::Inertia},
    FigureColumn{"ZX", Measure::Modulus},   FigureColumn{"SX", Measure::Modulus},
    FigureColumn{"RX", Measure::Length},    FigureColumn{"IY", Measure::Inertia},
    FigureColumn{"ZY", Measure::Modulus},   FigureColumn{"SY", Measure::Modulus},
    FigureColumn{"RY", Measure::Length},    FigureColumn{"RZ", Measure::Length},
    FigureColumn{"RO", Measure::Length},    FigureColumn{"J", Measure::Inertia},
    FigureColumn{"CW", Measure::Warping},   FigureColumn{"C", Measure::Modulus},
    FigureColumn{"WNO", Measure::Area},     FigureColumn{"SW", Measure::Inertia},
    FigureColumn{"QF", Measure::Modulus},   FigureColumn{"QW", Measure::Modulus},
    FigureColumn{"H", Measure::Ratio},      FigureColumn{"TAN_ALPHA", Measure::Ratio},
    FigureColumn{"QS", Measure::Ratio},
};

struct SectionFamily {
    std::string_view Code;
    bool MassInName; // the SI designation ends in the mass per metre
};

// In the order of the program's list of families.
inline constexpr std::array sectionFamilies{
    SectionFamily{"W", true},        SectionFamily{"M", true},
    SectionFamily{"HP", true},       SectionFamily{"S", true},
    SectionFamily{"C", true},        SectionFamily{"MC", true},
    SectionFamily{"WT", true},       SectionFamily{"MT", true},
    SectionFamily{"ST", true},       SectionFamily{"HSS-Rec", false},
    SectionFamily{"HSS-Sqr", false}, SectionFamily{"HSS-Rnd", false},
    SectionFamily{"Pipe", false},    SectionFamily{"L-Eq", false},
    SectionFamily{"L-UnEq", false},  SectionFamily{"2L-Eq", false},
    SectionFamily{"2L-UnEq", false},
};

struct SectionRow {
    const SectionFamily* Family = nullptr;
    std::string UsName, SiName;
    // By position in figureColumns; decimal text, empty for Null.
    std::array<std::string, figureColumns.size()> Us, Si;
};

// All rows in the order of the store, with the US figures as printed and those SI figures that are
// listed as exceptions. Throws TableError.
std::vector<SectionRow> Read_Section_Tables(const std::filesystem::path& folder);

} // namespace Tensarix
