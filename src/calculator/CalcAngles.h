// Angles in the unit of the calculator and the functions of angles. Both conversions take full
// turns of 360 off first, also from a value in radians or gradians, where a turn is another number:
// 400 radians count as 40, and a remark tells it.
#pragma once

#include "calculator/CalcMainFrm.h"

#include <string>

namespace Tensarix {

double FromDegrees(const CalcVariables& vars, double degrees);
double ToDegrees(const CalcVariables& vars, double angle);

// Where that makes it another angle, what it is taken at; else empty.
Advice Turns_Remark(const CalcVariables& vars, double angle);

// An angle of the calculator in radians for the library's functions, and back.
double To_Circle(const CalcVariables& vars, double angle);
double From_Circle(const CalcVariables& vars, double radians);

// Each takes and gives what its key does, and fails outside its domain.
double Sine(const CalcVariables& vars, double angle);
double Cosine(const CalcVariables& vars, double angle);
double Tangent(const CalcVariables& vars, double angle);
double Inverse_Sine(const CalcVariables& vars, double value);
double Inverse_Cosine(const CalcVariables& vars, double value);
double Inverse_Tangent(const CalcVariables& vars, double value);

// Degrees, minutes and seconds: 30.5 gives 30°30'0" (closed by a double quote).
std::string Angular_Text(double degrees);

} // namespace Tensarix
