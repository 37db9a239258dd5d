// The 17 families. The position in the table is the one of every family list and of the settings.
#pragma once

#include "controls/Controls.h"
#include "sections/Initializers.h"

#include <array>
#include <filesystem>
#include <string>
#include <string_view>

namespace Tensarix {

struct Family {
    std::string_view Name;    // as listed
    std::string_view Type;    // code in the column TYPE
    std::string_view Picture; // empty: chosen for each section
    const PlainInitializer& Browse;
    const TableInitializer& ViewAll;
    const FindInitializer& Find;
};

inline constexpr std::array<Family, 17> allFamilies{{
    {"W-Shape", "W", "WShapeImage", WShape_Initializer, xWShape_Initializer, fWShape_Initializer},
    {"M-Shape", "M", "MShapeImage", WShape_Initializer, xWShape_Initializer, fWShape_Initializer},
    {"HP-Shape", "HP", "HPShapeImage", WShape_Initializer, xWShape_Initializer,
     fWShape_Initializer},
    {"S-Shape", "S", "SShapeImage", SShape_Initializer, xSShape_Initializer, fSShape_Initializer},
    {"C-Shape", "C", "CShapeImage", CShape_Initializer, xCShape_Initializer, fCShape_Initializer},
    {"MC-Shape", "MC", "MCShapeImage", CShape_Initializer, xCShape_Initializer,
     fCShape_Initializer},
    {"WT-Shape", "WT", "WTShapeImage", WTShape_Initializer, xWTShape_Initializer,
     fWTShape_Initializer},
    {"MT-Shape", "MT", "MTShapeImage", WTShape_Initializer, xWTShape_Initializer,
     fWTShape_Initializer},
    {"ST-Shape", "ST", "STShapeImage", STShape_Initializer, xSTShape_Initializer,
     fSTShape_Initializer},
    {"Rectangular HSS", "HSS-Rec", "HSSRecImage", HSSRec_Initializer, xHSSRec_Initializer,
     fHSSRec_Initializer},
    {"Square HSS", "HSS-Sqr", "HSSSqrImage", HSSSqr_Initializer, xHSSSqr_Initializer,
     fHSSSqr_Initializer},
    {"Round HSS", "HSS-Rnd", "HSSRndImage", HSSRnd_Initializer, xHSSRnd_Initializer,
     fHSSRnd_Initializer},
    {"Pipe", "Pipe", "PipeImage", Pipe_Initializer, xPipe_Initializer, fPipe_Initializer},
    {"Angle (Equal Legs)", "L-Eq", "SAngleImage", EqSAngle_Initializer, xSAngle_Initializer,
     fSAngle_Initializer},
    {"Angle (UnEqual Legs)", "L-UnEq", "SAngleImage", EqSAngle_Initializer, xSAngle_Initializer,
     fSAngle_Initializer},
    {"Double Angle (Equal Legs)", "2L-Eq", "DLEqImage", EqDAngle_Initializer, xEqDAngle_Initializer,
     fEqDAngle_Initializer},
    {"Double Angle (UnEqual Legs)", "2L-UnEq", "", UnEqDAngle_Initializer, xUnEqDAngle_Initializer,
     fUnEqDAngle_Initializer},
}};

inline constexpr int pipeFamily = 12;
inline constexpr int unEqualDoubleAngleFamily = 16;
inline constexpr int beamFamilies = 6; // the first ones carry beam load

// The family at a list position; fails where there is none.
const Family& Family_At(int position);
// The family of a code; fails where there is none.
const Family& Family_Of_Type(std::string_view type);

// Clears the list and adds the 17 names.
void FillFamilyList(ComboBox& combo);

// Clears the list and adds the family's designations in SEQ order; without rows it stays empty.
// If the store can't be opened it fails and leaves the list as it is.
void Init_Shape(ComboBox& combo, std::string_view type, bool useSI,
                const std::filesystem::path& programFolder);

// The same for the two lists of a screen, pairwise, so that a position is the same section in both.
void FillSizeLists(ComboBox& us, ComboBox& si, std::string_view type,
                   const std::filesystem::path& programFolder);

// "274 sections".
std::string Sections_In_Words(int count);

// The family's name as it is spoken: without its parentheses.
std::string Spoken_Family(std::string_view name);

// A blank on either side of each lower-case x: "W18x50" gives "W18 x 50".
std::string SpaceDesignation(std::string_view text);

// The picture of a double angle with unequal legs, by its US designation.
std::string_view Double_Angle_Picture(std::string_view designation);

} // namespace Tensarix
