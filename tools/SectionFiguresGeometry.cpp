// The figures of a section have to agree with each other: what can be computed from its dimensions,
// its parent or its single angle is computed here and compared. The tolerances are a little above
// the largest difference that the printed three digits, fillets and sloping flanges leave.
#include "SectionFigures.h"
#include "SectionShapes.h"
#include "common/NumberText.h"

#include <algorithm>
#include <cmath>
#include <iostream>
#include <sstream>

namespace Tensarix {

namespace {

double Inner(const Row& r) {
    return r("OD") - 2 * r("TDES");
}

// Rolled I-shape with fillets, after El Darwish and Johnston, "Torsion of Structural Shapes", 1965.
double Beam_Torsion(const Row& r) {
    const double tf = r("TF"), tw = r("TW"), f = Fillet_Size(r);
    const double alpha = -0.042 + 0.2204 * tw / tf + 0.1355 * f / tf -
                         0.0865 * f * tw / Square(tf) - 0.0725 * Square(tw / tf);
    const double circle = (Square(tf + f) + tw * (f + tw / 4)) / (2 * f + tf);
    return 2 * r("BF") * Cube(tf) / 3 + (r("D") - 2 * tf) * Cube(tw) / 3 +
           2 * alpha * Square(Square(circle)) - 0.42 * Square(Square(tf));
}

double Beam_A(const Row& r) {
    return Of(Beam(r)).A;
}
double Beam_Ix(const Row& r) {
    return Of(Beam(r)).Ix;
}
double Beam_Zx(const Row& r) {
    return Plastic(Beam(r), 0);
}
double Channel_X(const Row& r) {
    return Of(Channel(r)).X;
}
double Channel_Iy(const Row& r) {
    return Of(Channel(r)).Iy;
}
double Channel_Zy(const Row& r) {
    return Plastic(Channel(r), r("XP"), true);
}
double Twice_Below_Yp(const Row& r) {
    return 2 * Area_Below(Tee(r), r("YP"));
}
double Web_Ratio(const Row& r) {
    return (r("D") - 2 * r("KDES")) / r("TW");
}
double Flange_Distance(const Row& r) {
    return r("D") - r("TF");
}

// Reduction factor for the slender leg of an angle, AISC 360-05 E7, at Fy = 36 ksi: in a single
// angle and in two that stand apart (E7-10 to 12), or with the legs in contact (E7-4 to 6).
double Slender_Leg(double ratio, bool contact) {
    const double root = std::sqrt(29000.0 / 36);
    if (ratio <= (contact ? 0.56 : 0.45) * root)
        return 1;
    if (ratio < (contact ? 1.03 : 0.91) * root)
        return contact ? 1.415 - 0.74 * ratio / root : 1.34 - 0.76 * ratio / root;
    return (contact ? 0.69 : 0.53) * Square(root / ratio);
}

double Longest_Leg(const Row& r) {
    return std::max(r("D"), r("B")) / r("T");
}

// All rows by their US designation, for those that are held against another section.
std::map<std::string, const Row*> byName;

const Row& Row_Of(const std::string& name) {
    return *byName.at(name);
}

// WT22x167.5 is cut from W44x335.
const Row& Parent(const Row& r) {
    const std::size_t x = r.Us.find('x');
    const auto twice = [](const std::string& text) { return General_Text(2 * Text_Number(text)); };
    return Row_Of(r.Us.substr(0, 1) + twice(r.Us.substr(2, x - 2)) + "x" +
                  twice(r.Us.substr(x + 1)));
}

// The single angle of a double one, lying as it does there, and the gap between the backs.
struct Half {
    const Row& Single;
    bool Turned;
    double Gap;

    // The figure about the horizontal axis of the pair, by the single angle's two names of it.
    double operator()(const char* upright, const char* turned) const {
        return Single(Turned ? turned : upright);
    }
};

Half Half_Of(const Row& r) {
    std::string name = r.Us.substr(1);
    const bool turned = name.ends_with("SLBB");
    if (turned || name.ends_with("LLBB"))
        name.resize(name.size() - 4);
    double gap = 0;
    if (std::count(name.begin(), name.end(), 'x') == 3) {
        gap = name.ends_with("x3/4") ? 0.75 : 0.375;
        name.resize(name.rfind('x'));
    }
    return {Row_Of(name), turned, gap};
}

double Pair_Ry(const Row& r) {
    const Half h = Half_Of(r);
    return std::hypot(h("RY", "RX"), h("X", "Y") + h.Gap / 2);
}

// From the centre of the pair to its shear centre, half a thickness from the backs.
double Pair_Offset(const Row& r) {
    return Half_Of(r)("Y", "X") - r("T") / 2;
}

double Pair_Ro(const Row& r) {
    return std::hypot(Pair_Offset(r), std::hypot(Half_Of(r)("RX", "RY"), Pair_Ry(r)));
}

struct Check {
    const char* Families;
    const char* Column;
    double Tolerance; // relative
    double (*Computed)(const Row&);
};

using R = const Row&;

const char* const every = "W M HP S C MC WT MT ST HSS-Rec HSS-Sqr HSS-Rnd Pipe L-Eq L-UnEq 2L-Eq "
                          "2L-UnEq";
const char* const twoAxes = "W M HP S C MC WT MT ST HSS-Rec L-Eq L-UnEq";
const char* const beams = "W M HP S";
const char* const tees = "WT MT ST";
const char* const angles = "L-Eq L-UnEq";
const char* const pairs = "2L-Eq 2L-UnEq";
const char* const tubes = "HSS-Rec HSS-Sqr";
const char* const rounds = "HSS-Rnd Pipe";

const Check checks[] = {
    {every, "RX", 0.0105, [](R r) { return std::sqrt(r("IX") / r("A")); }},
    {twoAxes, "RY", 0.0085, [](R r) { return std::sqrt(r("IY") / r("A")); }},

    {"W HP S WT ST", "W", 0.013, [](R r) { return 3.4 * r("A"); }},
    {"M C", "W", 0.07, [](R r) { return 3.4 * r("A"); }},
    {"MC MT", "W", 0.033, [](R r) { return 3.4 * r("A"); }},
    {angles, "W", 0.019, [](R r) { return 3.4 * r("A"); }},
    {pairs, "W", 0.006, [](R r) { return 3.4 * r("A"); }},
    {tubes, "W", 0.01, [](R r) { return 3.4 * Of(Tube(r, r("TNOM"))).A; }},
    {rounds, "W", 0.01, [](R r) { return 3.4 * pi * r("TNOM") * (r("OD") - r("TNOM")); }},

    {"W", "A", 0.006, Beam_A},
    {"HP S", "A", 0.03, Beam_A},
    {"M", "A", 0.05, Beam_A},
    {"W", "IX", 0.011, Beam_Ix},
    {"HP S", "IX", 0.03, Beam_Ix},
    {"M", "IX", 0.07, Beam_Ix},
    {"W", "ZX", 0.011, Beam_Zx},
    {"HP S", "ZX", 0.031, Beam_Zx},
    {"M", "ZX", 0.065, Beam_Zx},
    {"W M HP", "IY", 0.015, [](R r) { return Of(Beam(r)).Iy; }},
    {"S", "IY", 0.045, [](R r) { return Of(Beam(r)).Iy; }},
    {"W HP", "ZY", 0.012, [](R r) { return Plastic(Beam(r), 0, true); }},
    {"M S", "ZY", 0.03, [](R r) { return Plastic(Beam(r), 0, true); }},
    {"W M HP S C MC", "SX", 0.01, [](R r) { return 2 * r("IX") / r("D"); }},
    {"W M HP S WT MT ST", "SY", 0.012, [](R r) { return 2 * r("IY") / r("BF"); }},
    {"W M HP S WT MT ST", "BF_2TF", 0.01, [](R r) { return r("BF") / (2 * r("TF")); }},
    {"W", "H_TW", 0.023, Web_Ratio},
    {"M HP S MC", "H_TW", 0.125, Web_Ratio},
    {"C", "H_TW", 0.19, Web_Ratio},
    {"W", "J", 0.012, Beam_Torsion},
    {"HP S", "J", 0.165, Beam_Torsion},
    {"M", "J", 0.33, Beam_Torsion},
    {beams, "CW", 0.014, [](R r) { return r("IY") * Square(Flange_Distance(r)) / 4; }},
    {beams, "WNO", 0.007, [](R r) { return r("BF") * Flange_Distance(r) / 4; }},
    {beams, "SW", 0.02, [](R r) { return r("TF") * Square(r("BF")) * Flange_Distance(r) / 16; }},
    {beams, "QF", 0.015, [](R r) { return r("TF") * Flange_Distance(r) * (r("BF") - r("TW")) / 4; }},
    {"W HP S", "QW", 0.04, [](R r) { return r("ZX") / 2; }},
    {"M", "QW", 0.11, [](R r) { return r("ZX") / 2; }},

    {"C MC", "A", 0.02, [](R r) { return Of(Channel(r)).A; }},
    {"C MC", "IX", 0.018, [](R r) { return Of(Channel(r)).Ix; }},
    {"C MC", "ZX", 0.022, [](R r) { return Plastic(Channel(r), 0); }},
    {"C", "X", 0.015, Channel_X},
    {"MC", "X", 0.05, Channel_X},
    {"C", "IY", 0.04, Channel_Iy},
    {"MC", "IY", 0.1, Channel_Iy},
    {"C", "ZY", 0.012, Channel_Zy},
    {"MC", "ZY", 0.05, Channel_Zy},
    {"C MC", "SY", 0.01, [](R r) { return r("IY") / (r("BF") - r("X")); }},
    {"C MC", "J", 0.26, Channel_Torsion},
    {"C MC", "EO", 0.007,
     [](R r) {
         const double b = r("BF") - r("TW") / 2;
         return 3 * Square(b) * r("TF") / (6 * b * r("TF") + Flange_Distance(r) * r("TW")) -
                r("TW") / 2;
     }},
    {"C MC", "CW", 0.03,
     [](R r) {
         const double b = r("BF") - r("TW") / 2, h = Flange_Distance(r);
         const double flange = b * r("TF"), web = h * r("TW");
         return Square(h * b) * flange / 12 * (2 * web + 3 * flange) / (web + 6 * flange);
     }},
    {"C MC", "RO", 0.003,
     [](R r) { return std::sqrt(Square(r("X") + r("EO")) + (r("IX") + r("IY")) / r("A")); }},
    {"C MC", "H", 0.006, [](R r) { return 1 - Square((r("X") + r("EO")) / r("RO")); }},

    {"WT ST", "Y", 0.01, [](R r) { return Of(Tee(r)).Y; }},
    {"MT", "Y", 0.05, [](R r) { return Of(Tee(r)).Y; }},
    {"WT", "IX", 0.015, [](R r) { return Of(Tee(r)).Ix; }},
    {"MT ST", "IX", 0.04, [](R r) { return Of(Tee(r)).Ix; }},
    {"WT", "ZX", 0.01, [](R r) { return Plastic(Tee(r), r("YP")); }},
    {"MT ST", "ZX", 0.04, [](R r) { return Plastic(Tee(r), r("YP")); }},
    // The plastic axes halve the area.
    {"WT", "A", 0.011, Twice_Below_Yp},
    {"MT", "A", 0.1, Twice_Below_Yp},
    {"ST", "A", 0.044, Twice_Below_Yp},
    {"L-Eq", "A", 0.017, [](R r) { return 2 * Area_Below(Angle(r), r("YP")); }},
    {"L-UnEq", "A", 0.042, [](R r) { return 2 * Area_Below(Angle(r), r("YP")); }},
    {angles, "A", 0.018, [](R r) { return 2 * Area_Below(Angle(r), r("XP"), true); }},
    {"C MC", "A", 0.06, [](R r) { return 2 * Area_Below(Channel(r), r("XP"), true); }},

    {"WT MT ST L-Eq L-UnEq 2L-Eq 2L-UnEq", "SX", 0.012,
     [](R r) { return r("IX") / (r("D") - r("Y")); }},
    {tees, "D", 0.005, [](R r) { return Parent(r)("D") / 2; }},
    {"WT ST", "A", 0.005, [](R r) { return Parent(r)("A") / 2; }},
    {"MT", "A", 0.025, [](R r) { return Parent(r)("A") / 2; }},
    {tees, "IY", 0.006, [](R r) { return Parent(r)("IY") / 2; }},
    {tees, "ZY", 0.008, [](R r) { return Parent(r)("ZY") / 2; }},
    {tees, "J", 0.04, [](R r) { return Parent(r)("J") / 2; }},
    {tees, "BF", 0, [](R r) { return Parent(r)("BF"); }},
    {tees, "TF", 0, [](R r) { return Parent(r)("TF"); }},
    {tees, "TW", 0, [](R r) { return Parent(r)("TW"); }},
    {"WT MT", "H_TW", 0.046, [](R r) { return Parent(r)("H_TW") / 2; }},
    {"ST", "H_TW", 0.01, [](R r) { return r("D") / r("TW"); }},
    {tees, "K", 0, [](R r) { return r("KDES"); }},
    {tees, "CW", 0.015,
     [](R r) {
         return Cube(r("BF") * r("TF")) / 144 +
                Cube((r("D") - r("TF") / 2) * r("TW")) / 36;
     }},

    {tubes, "A", 0.006, [](R r) { return Of(Tube(r)).A; }},
    {tubes, "IX", 0.006, [](R r) { return Of(Tube(r)).Ix; }},
    {tubes, "ZX", 0.006, [](R r) { return Plastic(Tube(r), 0); }},
    {tubes, "SX", 0.006, [](R r) { return 2 * r("IX") / r("HT"); }},
    {tubes, "B_T", 0.006, [](R r) { return r("B") / r("TDES") - 3; }},
    {tubes, "H_T", 0.006, [](R r) { return r("HT") / r("TDES") - 3; }},
    {tubes, "J", 0.03, Tube_Torsion},
    {tubes, "C", 0.006,
     [](R r) {
         const double t = r("TDES");
         return 2 * (r("B") - t) * (r("HT") - t) * t - 4.5 * (4 - pi) * Cube(t);
     }},
    {"HSS-Rec", "IY", 0.007, [](R r) { return Of(Tube(r)).Iy; }},
    {"HSS-Rec", "ZY", 0.006, [](R r) { return Plastic(Tube(r), 0, true); }},
    {"HSS-Rec", "SY", 0.006, [](R r) { return 2 * r("IY") / r("B"); }},
    {"HSS-Rec HSS-Sqr HSS-Rnd Pipe", "TDES", 0.007, [](R r) { return 0.93 * r("TNOM"); }},

    {rounds, "A", 0.005, [](R r) { return pi * r("TDES") * (r("OD") - r("TDES")); }},
    {rounds, "IX", 0.022,
     [](R r) { return pi / 64 * (Square(Square(r("OD"))) - Square(Square(Inner(r)))); }},
    {rounds, "ZX", 0.005, [](R r) { return (Cube(r("OD")) - Cube(Inner(r))) / 6; }},
    {rounds, "SX", 0.022, [](R r) { return 2 * r("IX") / r("OD"); }},
    {rounds, "J", 0.0055, [](R r) { return 2 * r("IX"); }},
    {rounds, "D_T", 0.005, [](R r) { return r("OD") / r("TDES"); }},
    {"Pipe", "ID", 0.003, [](R r) { return r("OD") - 2 * r("TNOM"); }},
    {"HSS-Rnd", "C", 0.01, [](R r) { return 2 * r("SX"); }},

    {angles, "A", 0.005, [](R r) { return Of(Angle(r)).A; }},
    {angles, "X", 0.027, [](R r) { return Of(Angle(r)).X; }},
    {angles, "Y", 0.027, [](R r) { return Of(Angle(r)).Y; }},
    {angles, "IX", 0.027, [](R r) { return Of(Angle(r)).Ix; }},
    {angles, "IY", 0.027, [](R r) { return Of(Angle(r)).Iy; }},
    {angles, "ZX", 0.04, [](R r) { return Plastic(Angle(r), r("YP")); }},
    {angles, "ZY", 0.04, [](R r) { return Plastic(Angle(r), r("XP"), true); }},
    {angles, "XP", 0.02, [](R r) { return r("A") / (2 * r("D")); }},
    {angles, "SY", 0.01, [](R r) { return r("IY") / (r("B") - r("X")); }},
    {angles, "RZ", 0.027,
     [](R r) {
         const Properties p = Of(Angle(r));
         return std::sqrt(Least_Inertia(p) / p.A);
     }},
    {angles, "TAN_ALPHA", 0.012,
     [](R r) {
         const Properties p = Of(Angle(r));
         return std::tan(std::atan2(2 * std::abs(p.Ixy), p.Ix - p.Iy) / 2);
     }},
    {angles, "EO", 0.003, [](R r) { return r("T") / 2; }},
    {angles, "RO", 0.01,
     [](R r) {
         return std::sqrt(Square(r("X") - r("EO")) + Square(r("Y") - r("EO")) +
                          (r("IX") + r("IY")) / r("A"));
     }},
    {angles, "J", 0.17, [](R r) { return Of(Angle(r)).A * Square(r("T")) / 3; }},
    {angles, "CW", 0.005,
     [](R r) {
         return Cube(r("T")) / 36 * (Cube(r("D") - r("T") / 2) + Cube(r("B") - r("T") / 2));
     }},
    {angles, "QS", 0.007, [](R r) { return Slender_Leg(Longest_Leg(r), false); }},

    {pairs, "A", 0.017, [](R r) { return 2 * Half_Of(r).Single("A"); }},
    {pairs, "W", 0.017, [](R r) { return 2 * Half_Of(r).Single("W"); }},
    {pairs, "Y", 0, [](R r) { return Half_Of(r)("Y", "X"); }},
    {pairs, "IX", 0.006, [](R r) { return 2 * Half_Of(r)("IX", "IY"); }},
    {pairs, "ZX", 0.006, [](R r) { return 2 * Half_Of(r)("ZX", "ZY"); }},
    {pairs, "SX", 0.006, [](R r) { return 2 * Half_Of(r)("SX", "SY"); }},
    {pairs, "RY", 0.007, Pair_Ry},
    {pairs, "RO", 0.005, Pair_Ro},
    {pairs, "H", 0.004, [](R r) { return 1 - Square(Pair_Offset(r) / Pair_Ro(r)); }},
    {"2L-UnEq", "YP", 0.025, [](R r) { return Half_Of(r)("YP", "XP"); }},
    {pairs, "QS", 0.001,
     [](R r) {
         return Half_Of(r).Gap == 0 ? Slender_Leg(r("B") / r("T"), true)
                                    : Slender_Leg(Longest_Leg(r), false);
     }},
};

class Largest {
  public:
    void Take(double deviation, const std::string& at) {
        ++cases_;
        if (deviation > value_) {
            value_ = deviation;
            at_ = at;
        }
    }
    void Print(const std::string& check) const {
        std::cout << check << ": " << cases_ << " cases, largest " << value_ << " at " << at_
                  << '\n';
    }

  private:
    double value_ = 0;
    int cases_ = 0;
    std::string at_;
};

Largest Deviations(const Check& check, const std::vector<Row>& rows, Faults& faults) {
    Largest deviation;
    for (const Row& row : rows) {
        const double figure = row(check.Column), computed = check.Computed(row);
        deviation.Take(std::abs(figure / computed - 1), row.Us);
        faults.Expect(std::abs(figure - computed) <= check.Tolerance * computed,
                      row.Us + ": " + check.Column + " " + General_Text(figure) + ", computed " +
                          General_Text(computed));
    }
    return deviation;
}

} // namespace

void Check_Figures_With_Each_Other(const FigureRows& rows, Faults& faults, bool printDeviations) {
    for (const auto& [family, list] : rows)
        for (const Row& row : list)
            byName[row.Us] = &row;
    std::cout.precision(2);
    for (const Check& check : checks) {
        std::istringstream families{check.Families};
        for (std::string family; families >> family;) {
            const Largest deviation = Deviations(check, rows.at(family), faults);
            if (printDeviations)
                deviation.Print(std::string{check.Column} + " of " + family + ", check " +
                                std::to_string(&check - checks + 1));
        }
    }
}

} // namespace Tensarix
