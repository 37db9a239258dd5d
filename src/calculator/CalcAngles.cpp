#include "calculator/CalcAngles.h"

#include "calculator/CalcCircle.h"
#include "calculator/CalcEntry.h"
#include "calculator/CalcNumbers.h"
#include "common/Failure.h"
#include "common/NumberText.h"

#include <cmath>

namespace Tensarix {

namespace {

constexpr int zeroPlaces = 10; // how near a zero of sine or cosine counts as one
constexpr int tangentPlaces = 15;

double Without_Turns(double angle) {
    return angle - std::trunc(angle / 360) * 360;
}

double Degrees_Per_Radian() {
    return 180 / calcPi;
}

bool Is_One_Of(const CalcVariables& vars, double angle, double degrees, double orDegrees,
               int places) {
    return Equal_To_Decimals(angle, FromDegrees(vars, degrees), places) ||
           Equal_To_Decimals(angle, FromDegrees(vars, orDegrees), places);
}

// An odd multiple of 90 degrees.
bool Is_Upright(const CalcVariables& vars, double angle) {
    const double rest = std::fmod(std::abs(ToDegrees(vars, angle)), 180);
    return Equal_To_Decimals(rest, 90, tangentPlaces);
}

} // namespace

double FromDegrees(const CalcVariables& vars, double degrees) {
    const double rest = Without_Turns(degrees);
    switch (vars.Conversion.Angle) {
    case AngleMode::RadianMode:
        return rest * calcPi / 180;
    case AngleMode::GradianMode:
        return rest * 200 / 180;
    case AngleMode::DegreeMode:
        break;
    }
    return rest;
}

double ToDegrees(const CalcVariables& vars, double angle) {
    const double rest = Without_Turns(angle);
    switch (vars.Conversion.Angle) {
    case AngleMode::RadianMode:
        return rest * 180 / calcPi;
    case AngleMode::GradianMode:
        return rest * 180 / 200;
    case AngleMode::DegreeMode:
        break;
    }
    return rest;
}

double To_Circle(const CalcVariables& vars, double angle) {
    return ToDegrees(vars, angle) / Degrees_Per_Radian();
}

double From_Circle(const CalcVariables& vars, double radians) {
    return FromDegrees(vars, Degrees_Per_Radian() * radians);
}

Advice Turns_Remark(const CalcVariables& vars, double angle) {
    if (vars.Conversion.Angle == AngleMode::DegreeMode || std::abs(angle) < 360)
        return {};
    return {"Taken at " + Number_Text(Without_Turns(angle)) + ": turns of 360 go off in any unit",
            RemarkWeight::Caution};
}

double Sine(const CalcVariables& vars, double angle) {
    if (Is_One_Of(vars, angle, 180, 360, zeroPlaces))
        return 0;
    return Snap14(Circle_Sine(To_Circle(vars, angle)));
}

double Cosine(const CalcVariables& vars, double angle) {
    if (Is_One_Of(vars, angle, 90, 270, zeroPlaces))
        return 0;
    return Snap14(Circle_Cosine(To_Circle(vars, angle)));
}

double Tangent(const CalcVariables& vars, double angle) {
    if (Is_One_Of(vars, angle, 90, 270, tangentPlaces) || Is_Upright(vars, angle))
        throw Failure("tangent of a right angle");
    if (Is_One_Of(vars, angle, 180, 360, tangentPlaces))
        return 0;
    const double circle = To_Circle(vars, angle);
    return Snap14(Finite(Circle_Sine(circle) / Circle_Cosine(circle)));
}

double Inverse_Sine(const CalcVariables& vars, double value) {
    if (std::abs(value) == 1)
        return FromDegrees(vars, 90 * value);
    return From_Circle(vars, std::atan(Finite(value / std::sqrt(1 - value * value))));
}

double Inverse_Cosine(const CalcVariables& vars, double value) {
    if (value == 1)
        return 0;
    if (value == -1)
        return FromDegrees(vars, 180);
    const double angle = std::atan(Finite(-value / std::sqrt(1 - value * value)));
    return Snap12(From_Circle(vars, angle + 2 * std::atan(1.0)));
}

double Inverse_Tangent(const CalcVariables& vars, double value) {
    return From_Circle(vars, std::atan(value));
}

std::string Angular_Text(double degrees) {
    const double whole = std::trunc(degrees);
    const double minutes = (degrees - whole) * 60;
    const double seconds = std::abs((minutes - std::trunc(minutes)) * 60);
    const double rounded = Leading_Value(Format_Number(seconds, "0.000#"));
    // The sign stands with the whole degrees alone: -0.5 reads 0°30'0", and a remark tells it.
    return Number_Text(Without_Turns(whole)) + "°" + Number_Text(std::trunc(std::abs(minutes))) +
           "'" + Number_Text(rounded) + "\"";
}

} // namespace Tensarix
