// What the beam page draws: the beam with its load, shear and moment, and the load against the
// span. Every number in them is the rules' own.
#pragma once

#include "beam/BeamRules.h"
#include "controls/Drawing.h"

#include <optional>
#include <string>
#include <string_view>

namespace Tensarix {

enum class BeamMethod { ASD9th, ASD13th, LRFD13th };
std::string_view Method_Name(BeamMethod method);
BeamLoad Beam_Load(BeamMethod method, const BeamInput& input);

// Lengths in feet, x from the left support; shear and moment to scales of their own. The reaction
// is magnified by so much (0.15: 15 %), the shear isn't. Without a load there are no numbers. Where
// another load is to be used, its numbers stand behind those of the load shown.
Drawing Beam_Under_Load(const BeamLoad& load, double magnification,
                        const std::optional<BeamLoad>& toUse);

// Kip/ft against feet: the method's own curve in its two branches, those of the others behind it,
// and the present point. Empty where the rules give no load.
Drawing Load_Against_Span(BeamMethod method, const BeamInput& input, const BeamLoad& present,
                          const std::optional<BeamLoad>& toUse);

// What the curve says at a span, in feet; empty outside of it.
std::string Load_At_Span(BeamMethod method, const BeamInput& input, double span);

} // namespace Tensarix
