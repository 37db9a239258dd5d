#include "calculator/CalcConversions.h"

#include "calculator/CalcAngles.h"
#include "calculator/CalcCircle.h"
#include "calculator/CalcClock.h"
#include "calculator/CalcDisplay.h"
#include "calculator/CalcEntry.h"
#include "calculator/CalcFraction.h"
#include "calculator/CalcNumbers.h"
#include "common/Failure.h"
#include "common/NumberText.h"

#include <cmath>

namespace Tensarix {

namespace {

// The guard holds until the next operator, so a second press of either key does nothing.
void Begin_Conversion(CalcMainFrm& form, bool& active, std::optional<double>& operand) {
    CalcVariables& vars = form.Vars;
    if (!Direct_Key_Begins(form) || vars.Conversion.ConversionGuard)
        return;
    Finish_Fraction(form);
    if (vars.Display.ErrorLatched)
        return;
    if (!operand)
        operand =
            vars.Entry.EntryText.empty() ? Shown_Value(vars) : Leading_Value(vars.Entry.EntryText);
    active = vars.Conversion.ConversionGuard = true;
    End_Entry(vars.Entry);
}

void Complete_Polar(CalcVariables& vars) {
    ConversionState& conversion = vars.Conversion;
    const double angle = To_Circle(vars, Shown_Value(vars));
    const double radius = conversion.PolarRadius.value_or(0);
    conversion.SecondResult = vars.Pending.Running ? 0 : Finite(Circle_Sine(angle) * radius);
    conversion.PolarRadius = Finite(Circle_Cosine(angle) * radius);
    vars.Entry.EntryText = Number_Text(*conversion.PolarRadius);
}

void Complete_Rectangular(CalcVariables& vars) {
    ConversionState& conversion = vars.Conversion;
    const double y = Shown_Value(vars);
    const double x = conversion.RectX.value_or(0);
    conversion.SecondResult =
        vars.Pending.Running ? 0 : From_Circle(vars, std::atan(Finite(y / x)));
    conversion.RectX = Finite(std::pow(x * x + y * y, 0.5));
    vars.Entry.EntryText = Number_Text(*conversion.RectX);
}

} // namespace

void key_PtoR(CalcMainFrm& form) {
    Begin_Conversion(form, form.Vars.Conversion.PolarActive, form.Vars.Conversion.PolarRadius);
}

void key_RtoP(CalcMainFrm& form) {
    Begin_Conversion(form, form.Vars.Conversion.RectActive, form.Vars.Conversion.RectX);
}

bool Conversion_Pending(const ConversionState& conversion) {
    return conversion.PolarActive || conversion.RectActive;
}

void Complete_Conversions(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    if (vars.Conversion.PolarActive) {
        form.Panel.Remark = Turns_Remark(vars, Shown_Value(vars));
        Complete_Polar(vars);
    }
    if (vars.Conversion.RectActive) {
        const double x = vars.Conversion.RectX.value_or(0);
        const bool quadrantLost = !vars.Pending.Running && IsNegative(x);
        Complete_Rectangular(vars);
        if (quadrantLost)
            form.Panel.Remark = {"The angle (x-y) is half a turn off: x is negative",
                                 RemarkWeight::Caution};
    }
}

void Clear_Conversions(ConversionState& conversion) {
    conversion.PolarActive = conversion.RectActive = conversion.ConversionGuard = false;
    conversion.PolarRadius.reset();
    conversion.RectX.reset();
}

} // namespace Tensarix
