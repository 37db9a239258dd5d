#include "calculator/CalcConversions.h"

#include "calculator/CalcAngles.h"
#include "calculator/CalcDisplay.h"
#include "calculator/CalcEntry.h"
#include "calculator/CalcFraction.h"
#include "calculator/CalcText.h"
#include "common/Failure.h"
#include "common/NumberText.h"

#include <cmath>

namespace Tensarix {

namespace {

// The guard holds until the next operator, so a second press of either key does nothing.
void Begin_Conversion(CalcMainFrm& form, bool CalcVariables::*flag,
                      std::optional<double> CalcVariables::*operand) {
    CalcVariables& vars = form.Vars;
    if (!Direct_Key_Begins(form) || vars.ConversionGuard)
        return;
    Finish_Fraction(form);
    if (vars.ErrorLatched)
        return;
    if (!(vars.*operand))
        vars.*operand = vars.EntryText.empty() ? Shown_Value(vars) : Leading_Value(vars.EntryText);
    vars.*flag = vars.ConversionGuard = true;
    End_Entry(vars);
}

void Complete_Polar(CalcVariables& vars) {
    const double angle = To_Circle(vars, Shown_Value(vars));
    const double radius = vars.PolarRadius.value_or(0);
    vars.SecondResult = vars.Running ? 0 : Finite(std::sin(angle) * radius);
    vars.PolarRadius = Finite(std::cos(angle) * radius);
    vars.EntryText = Number_Text(*vars.PolarRadius);
}

void Complete_Rectangular(CalcVariables& vars) {
    const double y = Shown_Value(vars);
    const double x = vars.RectX.value_or(0);
    vars.SecondResult = vars.Running ? 0 : From_Circle(vars, std::atan(Finite(y / x)));
    vars.RectX = Finite(std::pow(x * x + y * y, 0.5));
    vars.EntryText = Number_Text(*vars.RectX);
}

} // namespace

void key_PtoR(CalcMainFrm& form) {
    Begin_Conversion(form, &CalcVariables::PolarActive, &CalcVariables::PolarRadius);
}

void key_RtoP(CalcMainFrm& form) {
    Begin_Conversion(form, &CalcVariables::RectActive, &CalcVariables::RectX);
}

bool Conversion_Pending(const CalcVariables& vars) {
    return vars.PolarActive || vars.RectActive;
}

void Complete_Conversions(CalcMainFrm& form) {
    if (form.Vars.PolarActive) {
        form.Panel.Remark = Turns_Remark(form.Vars, Shown_Value(form.Vars));
        Complete_Polar(form.Vars);
    }
    if (form.Vars.RectActive) {
        const bool quadrantLost = !form.Vars.Running && IsNegative(form.Vars.RectX.value_or(0));
        Complete_Rectangular(form.Vars);
        if (quadrantLost)
            form.Panel.Remark = "The angle (x-y) is half a turn off: x is negative";
    }
}

void Clear_Conversions(CalcVariables& vars) {
    vars.PolarActive = vars.RectActive = vars.ConversionGuard = false;
    vars.PolarRadius.reset();
    vars.RectX.reset();
}

} // namespace Tensarix
