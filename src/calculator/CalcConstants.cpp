#include "calculator/CalcConstants.h"

#include "calculator/CalcDisplay.h"
#include "calculator/CalcEntry.h"
#include "calculator/CalcFraction.h"
#include "common/NumberText.h"

#include <algorithm>

namespace Tensarix {

namespace {

constexpr auto exact = Exactness::Exact, cut = Exactness::Cut, rounded = Exactness::Rounded,
               measured = Exactness::Measured, nominal = Exactness::Nominal;

// NIST Special Publication 811, Appendix B; the values of SI units that are exact stand there in
// bold.
constexpr std::string_view factorSource = "NIST SP 811 (2008)";
// NIST SP 961, May 2019.
constexpr std::string_view physicsSource = "CODATA 2018";
// E and G as in its symbols; weight and expansion as in the general tables of the Manual that
// contains it.
constexpr std::string_view steelSource = "AISC 360-05 (2005)", manualSource = "AISC Manual (2005)";

constexpr CalcConstant constants[] = {
    // What a designer keys most comes first.
    {"29000", "ksi", "E, modulus of elasticity of steel", steelSource, nominal},
    {"11200", "ksi", "G, shear modulus of elasticity of steel", steelSource, nominal},
    {"490", "lb/ft3", "weight of steel", manualSource, nominal},
    {"200000", "MPa", "E, modulus of elasticity of steel", steelSource, nominal},
    {"77200", "MPa", "G, shear modulus of elasticity of steel", steelSource, nominal},
    {"7850", "kg/m3", "density of steel", "customary", nominal},
    {"0.3", "", "Poisson's ratio of steel", "customary", nominal},
    {"0.0000065", "per degF", "thermal expansion of steel", manualSource, nominal},
    {"0.0000117", "per degC", "thermal expansion of steel", "from the value per degF", nominal},

    {"25.4", "mm/in", "length, inches to millimetres", factorSource, exact},
    {"0.3048", "m/ft", "length, feet to metres", factorSource, exact},
    {"4.4482216", "kN/kip", "force, kips to kilonewtons", factorSource, rounded},
    {"6.894757", "MPa/ksi", "stress, ksi to megapascals", factorSource, rounded},
    {"1.355818", "(kN m)/(kip ft)", "moment, kip-feet to kilonewton metres", factorSource, rounded},
    {"1.488164", "(kg/m)/(lb/ft)", "mass per length, lb/ft to kg/m", factorSource, rounded},
    {"14.59390", "(N/m)/(lb/ft)", "force per length, lb/ft to N/m", factorSource, rounded},
    {"47.88026", "Pa/psf", "load per area, psf to pascals", factorSource, rounded},
    {"14.59390", "(kN/m)/(kip/ft)", "force per length, kip/ft to kN/m", factorSource, rounded},
    {"0.1129848", "(kN m)/(kip in)", "moment, kip-inches to kilonewton metres", factorSource,
     rounded},
    {"645.16", "mm2/in2", "area, square inches to square millimetres", factorSource, exact},
    {"0.09290304", "m2/ft2", "area, square feet to square metres", factorSource, exact},
    {"16387.064", "mm3/in3", "section modulus, in3 to mm3", factorSource, exact},
    {"416231.4256", "mm4/in4", "moment of inertia, in4 to mm4", factorSource, exact},
    {"0.45359237", "kg/lb", "mass, pounds to kilograms", factorSource, exact},
    {"4.882428", "(kg/m2)/(lb/ft2)", "mass per area, lb/ft2 to kg/m2", factorSource, rounded},
    {"16.01846", "(kg/m3)/(lb/ft3)", "density, lb/ft3 to kg/m3", factorSource, rounded},

    {"299792458", "m/s", "c, speed of light in vacuum", physicsSource, exact},
    {"6.62607015E-34", "J s", "h, Planck constant", physicsSource, exact},
    {"1.054571817E-34", "J s", "h/2pi, reduced Planck constant", physicsSource, cut},
    {"1.602176634E-19", "C", "e, elementary charge", physicsSource, exact},
    {"1.380649E-23", "J/K", "k, Boltzmann constant", physicsSource, exact},
    {"6.02214076E+23", "per mol", "N_A, Avogadro constant", physicsSource, exact},
    {"8.314462618", "J/(mol K)", "R, molar gas constant", physicsSource, cut},
    {"96485.33212", "C/mol", "F, Faraday constant", physicsSource, cut},
    {"5.670374419E-08", "W/(m2 K4)", "sigma, Stefan-Boltzmann constant", physicsSource, cut},
    {"9.80665", "m/s2", "g, standard acceleration of gravity", physicsSource, exact},
    {"101325", "Pa", "atm, standard atmosphere", physicsSource, exact},
    {"6.67430E-11", "m3/(kg s2)", "G, Newtonian constant of gravitation", physicsSource, measured},
    {"9.1093837015E-31", "kg", "m_e, electron mass", physicsSource, measured},
    {"1.67262192369E-27", "kg", "m_p, proton mass", physicsSource, measured},
    {"1.67492749804E-27", "kg", "m_n, neutron mass", physicsSource, measured},
    {"1.66053906660E-27", "kg", "u, atomic mass constant", physicsSource, measured},
    {"8.8541878128E-12", "F/m", "epsilon_0, vacuum electric permittivity", physicsSource, measured},
    {"1.25663706212E-06", "N/A2", "mu_0, vacuum magnetic permeability", physicsSource, measured},
    {"376.730313668", "ohm", "Z_0, characteristic impedance of vacuum", physicsSource, measured},
    {"7.2973525693E-03", "", "alpha, fine-structure constant", physicsSource, measured},
    {"10973731.568160", "per m", "R_inf, Rydberg constant", physicsSource, measured},
    {"5.29177210903E-11", "m", "a_0, Bohr radius", physicsSource, measured},
    {"2.8179403262E-15", "m", "r_e, classical electron radius", physicsSource, measured},
    {"9.2740100783E-24", "J/T", "mu_B, Bohr magneton", physicsSource, measured},
    {"5.0507837461E-27", "J/T", "mu_N, nuclear magneton", physicsSource, measured},
    {"2.067833848E-15", "Wb", "Phi_0, magnetic flux quantum", physicsSource, cut},
    {"2.897771955E-03", "m K", "b, Wien wavelength displacement constant", physicsSource, cut},
    {"2.241396954E-02", "m3/mol", "V_m, molar volume of ideal gas at 273.15 K and 101.325 kPa",
     physicsSource, cut},
};

constexpr std::string_view exactnessTexts[] = {"exact", "exact, cut to the digits printed",
                                               "rounded", "measured", "nominal"};

} // namespace

std::span<const CalcConstant> Constants() {
    return constants;
}

std::string Constant_Text(const CalcConstant& constant) {
    std::string text{constant.Number};
    if (!constant.Unit.empty())
        text.append(" ").append(constant.Unit);
    return text.append(" : ").append(constant.Name);
}

std::string Constant_Origin(const CalcConstant& constant) {
    return std::string{constant.Source}.append(": ").append(
        exactnessTexts[static_cast<std::size_t>(constant.Exact)]);
}

void Key_Constant(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    CalcConstantFrm dialog(vars.Memory);
    if (form.Host.Show_Constants)
        form.Host.Show_Constants(dialog);
    if (vars.Memory.ConstantPick.empty())
        return;
    Drop_Fraction(vars.Entry);
    vars.Conversion.SexaCount.reset();
    End_Entry(vars.Entry);
    Show_Result(form, Leading_Value(vars.Memory.ConstantPick));
}

CalcConstantFrm::CalcConstantFrm(MemoryState& memory) : memory_(memory) {
    memory_.ConstantPick.clear();
    for (const CalcConstant& each : constants)
        ConstantBox.push_back(Constant_Text(each));
}

void CalcConstantFrm::Select_Row(int row) {
    if (row < 0 || row >= static_cast<int>(ConstantBox.size()))
        return;
    Selected = row;
    OKEnabled = true;
    ConstLab = "Constant No. " + Format_Number(row + 1, "000");
    TextBox1 = ConstantBox[static_cast<std::size_t>(row)];
    Origin = Constant_Origin(constants[row]);
}

void CalcConstantFrm::OKButton() {
    if (!OKEnabled)
        return;
    memory_.ConstantPick = ConstantBox[static_cast<std::size_t>(Selected)];
    Closed = true;
}

void CalcConstantFrm::ExitButton() {
    memory_.ConstantPick.clear();
    Closed = true;
}

} // namespace Tensarix
