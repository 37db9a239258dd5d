// The five modes; a mode's number is that of its button and of its tab.
#pragma once

namespace Tensarix {

enum class Mode { Browse, Find, ViewAll, BeamLoad, Connection };
inline constexpr int modeCount = 5;

} // namespace Tensarix
