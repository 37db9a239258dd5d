// The profile of a section as a drawing, to scale, from the figures of its row in the store: in
// inches, or in millimetres under SI.
//
// A dimension is drawn for each length that is tabulated, under the symbol and with the value of
// its property row, and carries the row's symbol as its name. The centre lines have the names
// "x-axis" and "y-axis"; that of the weak axis of an angle has the name of its row, "Tan Alpha".
//
// What no table has: the toes of sloped flanges and of angles are rounded by half of their
// thickness; the corners of hollow sections by two design walls outside and one inside, as their
// tabulated properties are computed; the fillets of a pair of angles follow d / 16 + 1/8 in., as
// those of single angles do. The inner faces of the flanges of S, ST, C and some of the MC-shapes
// rise by one in six, those of the other MC-shapes by two degrees.
#pragma once

#include "controls/Drawing.h"
#include "sections/FamilyTable.h"

#include <filesystem>
#include <string>

namespace Tensarix {

// Small: the outline with its overall measures alone.
enum class DrawingDetail { Full, Small };

// The current row of the record, which is of that family. Empty where a figure that the outline
// needs is missing.
Drawing Draw_Section(const SectionRecordset& record, const Family& family, Profile units,
                     DimensionStyle style, DrawingDetail detail);

// One read: the section of that US designation or, for pipes, SI one. Empty without such a section.
Drawing Read_Section_Drawing(int familyPosition, const std::string& name, const SectionView& view,
                             DrawingDetail detail);

} // namespace Tensarix
