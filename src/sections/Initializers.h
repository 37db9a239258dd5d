// The named initializers: twelve layouts, each in the plain form for Browse, the x form for View
// All and the f form for Find. Each is an entry point into the property table.
#pragma once

#include "sections/BrowseGrid.h"
#include "sections/FindSearch.h"
#include "sections/TableGrid.h"

namespace Tensarix {

inline constexpr PlainInitializer WShape_Initializer{Layouts::W};
inline constexpr PlainInitializer SShape_Initializer{Layouts::S};
inline constexpr PlainInitializer CShape_Initializer{Layouts::C};
inline constexpr PlainInitializer WTShape_Initializer{Layouts::WT};
inline constexpr PlainInitializer STShape_Initializer{Layouts::ST};
inline constexpr PlainInitializer HSSRec_Initializer{Layouts::HSSRec};
inline constexpr PlainInitializer HSSSqr_Initializer{Layouts::HSSSqr};
inline constexpr PlainInitializer HSSRnd_Initializer{Layouts::HSSRnd};
inline constexpr PlainInitializer Pipe_Initializer{Layouts::Pipe, true};
inline constexpr PlainInitializer EqSAngle_Initializer{Layouts::SAngle};
inline constexpr PlainInitializer EqDAngle_Initializer{Layouts::EqDAngle};
inline constexpr PlainInitializer UnEqDAngle_Initializer{Layouts::UnEqDAngle};

inline constexpr TableInitializer xWShape_Initializer{Layouts::W};
inline constexpr TableInitializer xSShape_Initializer{Layouts::S};
inline constexpr TableInitializer xCShape_Initializer{Layouts::C};
inline constexpr TableInitializer xWTShape_Initializer{Layouts::WT};
inline constexpr TableInitializer xSTShape_Initializer{Layouts::ST};
inline constexpr TableInitializer xHSSRec_Initializer{Layouts::HSSRec};
inline constexpr TableInitializer xHSSSqr_Initializer{Layouts::HSSSqr};
inline constexpr TableInitializer xHSSRnd_Initializer{Layouts::HSSRnd};
inline constexpr TableInitializer xPipe_Initializer{Layouts::Pipe};
inline constexpr TableInitializer xSAngle_Initializer{Layouts::SAngle};
inline constexpr TableInitializer xEqDAngle_Initializer{Layouts::EqDAngle};
inline constexpr TableInitializer xUnEqDAngle_Initializer{Layouts::UnEqDAngle};

inline constexpr FindInitializer fWShape_Initializer{Layouts::W};
inline constexpr FindInitializer fSShape_Initializer{Layouts::S};
inline constexpr FindInitializer fCShape_Initializer{Layouts::C};
inline constexpr FindInitializer fWTShape_Initializer{Layouts::WT};
inline constexpr FindInitializer fSTShape_Initializer{Layouts::ST};
inline constexpr FindInitializer fHSSRec_Initializer{Layouts::HSSRec};
inline constexpr FindInitializer fHSSSqr_Initializer{Layouts::HSSSqr};
inline constexpr FindInitializer fHSSRnd_Initializer{Layouts::HSSRnd};
inline constexpr FindInitializer fPipe_Initializer{Layouts::Pipe};
inline constexpr FindInitializer fSAngle_Initializer{Layouts::SAngle};
inline constexpr FindInitializer fEqDAngle_Initializer{Layouts::EqDAngle};
inline constexpr FindInitializer fUnEqDAngle_Initializer{Layouts::UnEqDAngle};

} // namespace Tensarix
