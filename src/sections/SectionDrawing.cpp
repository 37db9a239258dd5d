#include "sections/SectionDrawing.h"

#include "common/Failure.h"
#include "common/NumberText.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Tensarix {

namespace {

using Drawn::CentreLine;
using Drawn::Corner;
using Drawn::Dimension;
using Drawn::Ink;
using Drawn::Mark;
using Drawn::MarkKind;
using Drawn::Outline;
using Drawn::Pattern;
using Drawn::Point;
using Drawn::Ring;
using Drawn::Side;

constexpr double millimetres = 25.4; // to the inch
constexpr double standardSlope = 1.0 / 6, slightSlope = 0.035;
constexpr double toePart = 0.5;                              // of a thickness
constexpr double webMeasuredAt = 0.2, stemMeasuredAt = 0.78; // of the depth
constexpr double legMeasuredAt = 0.7;                        // of the leg

constexpr std::string_view xAxis = "x-axis", yAxis = "y-axis";

double Flange_Slope(std::string_view type, const std::string& name) {
    if (type == "S" || type == "ST" || type == "C" || name.starts_with("MC13x") ||
        name == "MC12x10.6" || name == "MC10x8.4" || name == "MC8x8.5")
        return standardSlope;
    return type == "MC" ? slightSlope : 0;
}

// "2L8x6x1x3/8LLBB" has a gap of 3/8 in.; without a fourth size the backs touch.
double Gap_Of(const std::string& name) {
    const std::string sizes = name.substr(0, name.find_last_of("0123456789") + 1);
    if (std::count(sizes.begin(), sizes.end(), 'x') < 3)
        return 0;
    const std::string gap = sizes.substr(sizes.rfind('x') + 1);
    const std::size_t stroke = gap.find('/');
    return Leading_Value(gap) /
           (stroke == std::string::npos ? 1 : Leading_Value(gap.substr(stroke + 1)));
}

Ring Mirrored(Ring ring) {
    for (Corner& corner : ring)
        corner.At.X = -corner.At.X;
    return ring;
}

Ring Rounded_Box(double width, double height, double radius) {
    const double x = width / 2, y = height / 2;
    return {{{x, y}, radius, radius},
            {{-x, y}, radius, radius},
            {{-x, -y}, radius, radius},
            {{x, -y}, radius, radius}};
}

// One section on its way to a drawing. What fails leaves its part out.
class SectionPen {
  public:
    SectionPen(const SectionRecordset& record, const Family& family, Profile units,
               DimensionStyle style, DrawingDetail detail)
        : record_(record), family_(family), units_(units), style_(style),
          small_(detail == DrawingDetail::Small), name_(Trim(record.Text("IDE_STD_Nomenclature"))),
          unit_(units == Profile::US ? 1 : millimetres) {}

    Drawing Draw();

  private:
    double Figure(const std::string& column) const {
        return record_.Number(units_ == Profile::US ? column : "x" + column);
    }
    const Property* Row_Of(std::string_view symbol) const;
    // The number of a row, where it has one.
    double Row_Value(std::string_view symbol) const;

    void Draw_Beam();
    void Draw_Channel();
    void Draw_Tee();
    void Draw_Box();
    void Draw_Round();
    void Draw_Angle();
    void Draw_Pair();

    // What the flange of a rolled shape is like beside the web.
    struct Flange {
        double Tip = 0, Root = 0; // thickness
        double Rise = 0, Run = 0; // the fillet along web and flange
        double Toe = 0;
    };
    Flange Flange_Of(double outstand) const;

    void Measure(std::string_view symbol, Side side, Point from, Point to);
    void Measure_Ks(double halfWeb, double half);
    void Axis(std::string_view name, std::string label, Point from, Point to);
    // Lines and marks with a meaning of their own beside the outline.
    void Plastic_Axis(std::string_view name, Point from, Point to);
    void Place(MarkKind kind, std::string label, Point at);
    void Tell(const std::string& unit);

    const SectionRecordset& record_;
    const Family& family_;
    Profile units_;
    DimensionStyle style_;
    bool small_;
    std::string name_;
    double unit_; // of the drawing, to the inch
    Drawing drawing_;
};

Drawing SectionPen::Draw() {
    const std::string_view type = family_.Type;
    if (type == "C" || type == "MC")
        Draw_Channel();
    else if (type == "WT" || type == "MT" || type == "ST")
        Draw_Tee();
    else if (type == "HSS-Rec" || type == "HSS-Sqr")
        Draw_Box();
    else if (type == "HSS-Rnd" || type == "Pipe")
        Draw_Round();
    else if (type == "L-Eq" || type == "L-UnEq")
        Draw_Angle();
    else if (type == "2L-Eq" || type == "2L-UnEq")
        Draw_Pair();
    else
        Draw_Beam();
    const std::string unit = units_ == Profile::US ? "in." : "mm";
    if (!small_)
        drawing_.ScaleUnit = unit;
    Tell(unit);
    return std::move(drawing_);
}

const Property* SectionPen::Row_Of(std::string_view symbol) const {
    for (const LayoutEntry& entry : family_.Browse.Rows.Entries)
        if (entry.Browse && entry.Browse->Symbol == symbol)
            return entry.Browse;
    return nullptr;
}

double SectionPen::Row_Value(std::string_view symbol) const {
    const Property* row = Row_Of(symbol);
    if (!row)
        throw Failure("no such row");
    return Value_Number(record_, *row, units_);
}

SectionPen::Flange SectionPen::Flange_Of(double outstand) const {
    const double tf = Figure("TF"), half = Flange_Slope(family_.Type, name_) * outstand / 2;
    Flange flange{tf - half, tf + half};
    flange.Rise = std::max(Figure("KDES") - flange.Root, 0.0);
    flange.Run = flange.Rise;
    Attempt([&] { flange.Run = std::max(Figure("K1") - Figure("TW") / 2, 0.0); });
    flange.Run = std::min(flange.Run, outstand);
    flange.Toe = half > 0 ? toePart * flange.Tip : 0;
    return flange;
}

// The middle of the section is the zero.
void SectionPen::Draw_Beam() {
    const double d = Figure("D"), bf = Figure("BF"), tw = Figure("TW"), tf = Figure("TF");
    const double x = bf / 2, y = d / 2, web = tw / 2;
    const Flange f = Flange_Of(x - web);
    drawing_.Add(Outline{{{{{-x, y}},
                           {{x, y}},
                           {{x, y - f.Tip}, f.Toe, f.Toe},
                           {{web, y - f.Root}, f.Run, f.Rise},
                           {{web, f.Root - y}, f.Rise, f.Run},
                           {{x, f.Tip - y}, f.Toe, f.Toe},
                           {{x, -y}},
                           {{-x, -y}},
                           {{-x, f.Tip - y}, f.Toe, f.Toe},
                           {{-web, f.Root - y}, f.Run, f.Rise},
                           {{-web, y - f.Root}, f.Rise, f.Run},
                           {{-x, y - f.Tip}, f.Toe, f.Toe}}}});
    Axis(xAxis, "X", {-x, 0}, {x, 0});
    Axis(yAxis, "Y", {0, -y}, {0, y});
    Measure("d", Side::Left, {-x, y}, {-x, -y});
    Measure("bf", Side::Above, {-x, y}, {x, y});
    Measure("tw", Side::Inside, {-web, webMeasuredAt * d}, {web, webMeasuredAt * d});
    const double halfway = -(x + web) / 2;
    Measure("tf", Side::Inside, {halfway, -y}, {halfway, tf - y});
    Measure_Ks(web, x);
    Attempt([&] { Measure("k1", Side::Below, {0, -y}, {Row_Value("k1"), f.Root - y}); });
}

// From the back of the web and the middle of the depth.
void SectionPen::Draw_Channel() {
    const double d = Figure("D"), bf = Figure("BF"), tw = Figure("TW"), tf = Figure("TF");
    const double y = d / 2;
    const Flange f = Flange_Of(bf - tw);
    drawing_.Add(Outline{{{{{0, y}},
                           {{bf, y}},
                           {{bf, y - f.Tip}, f.Toe, f.Toe},
                           {{tw, y - f.Root}, f.Run, f.Rise},
                           {{tw, f.Root - y}, f.Rise, f.Run},
                           {{bf, f.Tip - y}, f.Toe, f.Toe},
                           {{bf, -y}},
                           {{0, -y}}}}});
    const double x = Figure("X"), shear = Figure("EO"), plastic = Figure("XP");
    Axis(xAxis, "X", {-shear, 0}, {bf, 0});
    Axis(yAxis, "Y", {x, -y}, {x, y});
    Plastic_Axis("xp", {plastic, -y}, {plastic, y});
    Place(MarkKind::Cross, "C.G.", {x, 0});
    Place(MarkKind::Hollow, "S.C.", {-shear, 0});
    Measure("d", Side::Left, {0, y}, {0, -y});
    Measure("xp", Side::Above, {0, y}, {plastic, y});
    Measure("bf", Side::Above, {0, y}, {bf, y});
    Measure("tw", Side::Inside, {0, webMeasuredAt * d}, {tw, webMeasuredAt * d});
    Measure("tf", Side::Inside, {(bf + tw) / 2, -y}, {(bf + tw) / 2, tf - y});
    Measure_Ks(tw, bf);
    Measure("x", Side::Below, {0, -y}, {x, -y});
    Measure("e0", Side::Below, {-shear, 0}, {0, -y});
    Attempt([&] { Measure("k1", Side::Below, {0, -y}, {Row_Value("k1"), f.Root - y}); });
}

// At the right of beams and channels: kdes or k above, kdet below, and T between.
void SectionPen::Measure_Ks(double halfWeb, double half) {
    const double y = Figure("D") / 2;
    for (const std::string_view symbol : {"kdes", "k"})
        Attempt([&] { Measure(symbol, Side::Right, {half, y}, {halfWeb, y - Row_Value(symbol)}); });
    Attempt([&] {
        const double depth = Row_Value("T") / 2;
        Measure("T", Side::Right, {halfWeb, depth}, {halfWeb, -depth});
    });
    Attempt([&] { Measure("kdet", Side::Right, {halfWeb, Row_Value("kdet") - y}, {half, -y}); });
}

// From the middle of the outer face of the flange, the stem downward.
void SectionPen::Draw_Tee() {
    const double d = Figure("D"), bf = Figure("BF"), tw = Figure("TW"), tf = Figure("TF");
    const double x = bf / 2, web = tw / 2;
    const Flange f = Flange_Of(x - web);
    drawing_.Add(Outline{{{{{-x, 0}},
                           {{x, 0}},
                           {{x, -f.Tip}, f.Toe, f.Toe},
                           {{web, -f.Root}, f.Run, f.Rise},
                           {{web, -d}},
                           {{-web, -d}},
                           {{-web, -f.Root}, f.Rise, f.Run},
                           {{-x, -f.Tip}, f.Toe, f.Toe}}}});
    const double y = Figure("Y"), plastic = Figure("YP");
    Axis(xAxis, "X", {-x, -y}, {x, -y});
    Axis(yAxis, "Y", {0, -d}, {0, 0});
    Plastic_Axis("yp", {-x, -plastic}, {x, -plastic});
    Place(MarkKind::Cross, "C.G.", {0, -y});
    Measure("bf", Side::Above, {-x, 0}, {x, 0});
    Measure("y", Side::Left, {-x, 0}, {-x, -y});
    Measure("d", Side::Left, {-x, 0}, {-web, -d});
    Measure("tw", Side::Inside, {-web, -stemMeasuredAt * d}, {web, -stemMeasuredAt * d});
    Measure("tf", Side::Inside, {-(x + web) / 2, -tf}, {-(x + web) / 2, 0});
    Measure("yp", Side::Right, {x, 0}, {x, -plastic});
    Attempt([&] { Measure("k", Side::Right, {x, 0}, {web, -Row_Value("k")}); });
}

void SectionPen::Draw_Box() {
    const double height = Figure("HT"), width = Figure("B"), wall = Figure("TDES");
    drawing_.Add(Outline{{Rounded_Box(width, height, 2 * wall),
                          Rounded_Box(width - 2 * wall, height - 2 * wall, wall)}});
    const double x = width / 2, y = height / 2;
    Axis(xAxis, "X", {-x, 0}, {x, 0});
    Axis(yAxis, "Y", {0, -y}, {0, y});
    Measure("Ht", Side::Left, {-x, y}, {-x, -y});
    Measure("b", Side::Above, {-x, y}, {x, y});
    Measure("tdes", Side::Inside, {x - wall, webMeasuredAt * height}, {x, webMeasuredAt * height});
}

void SectionPen::Draw_Round() {
    const double radius = Figure("OD") / 2, wall = Figure("TDES"), bore = radius - wall;
    drawing_.Add(Outline{
        {Rounded_Box(2 * radius, 2 * radius, radius), Rounded_Box(2 * bore, 2 * bore, bore)}});
    Axis(xAxis, "X", {-radius, 0}, {radius, 0});
    Axis(yAxis, "Y", {0, -radius}, {0, radius});
    Measure("tdes", Side::Right, {0, radius}, {0, bore});
    Attempt([&] {
        const double inside = Row_Value("ID") / 2;
        Measure("ID", Side::Left, {0, inside}, {0, -inside});
    });
    Measure("OD", Side::Left, {0, radius}, {0, -radius});
}

// From the heel, the legs upward and to the right.
void SectionPen::Draw_Angle() {
    const double d = Figure("D"), b = Figure("B"), t = Figure("T");
    const double fillet = std::max(Figure("KDES") - t, 0.0), toe = toePart * t;
    drawing_.Add(Outline{{{{{0, 0}},
                           {{b, 0}},
                           {{b, t}, toe, toe},
                           {{t, t}, fillet, fillet},
                           {{t, d}, toe, toe},
                           {{0, d}}}}});
    const double x = Figure("X"), y = Figure("Y"), xp = Figure("XP"), yp = Figure("YP");
    Axis(xAxis, "X", {b, y}, {0, y});
    Axis(yAxis, "Y", {x, d}, {x, 0});
    Attempt([&] {
        const double slant = std::atan(Figure("TAN_ALPHA"));
        const Point up{-std::sin(slant), std::cos(slant)};
        const double above = x / -up.X, below = y / up.Y;
        Axis("Tan Alpha", "Z", {x + above * up.X, y + above * up.Y},
             {x - below * up.X, y - below * up.Y});
    });
    Plastic_Axis("xp", {xp, 0}, {xp, d});
    Plastic_Axis("yp", {0, yp}, {b, yp});
    Place(MarkKind::Cross, "C.G.", {x, y});
    Place(MarkKind::Hollow, "S.C.", {t / 2, t / 2});
    Measure("t", Side::Inside, {0, legMeasuredAt * d}, {t, legMeasuredAt * d});
    Measure("yp", Side::Left, {0, 0}, {0, yp});
    Measure("d", Side::Left, {0, 0}, {0, d});
    Measure("xp", Side::Above, {0, d}, {xp, d});
    Measure("x", Side::Above, {0, d}, {x, d});
    Attempt([&] { Measure("kdes", Side::Right, {b, 0}, {t, Row_Value("kdes")}); });
    Measure("y", Side::Right, {b, 0}, {b, y});
    Attempt([&] { Measure("eo", Side::Below, {0, 0}, {Row_Value("eo"), t / 2}); });
    Attempt([&] { Measure("kdet", Side::Below, {0, 0}, {Row_Value("kdet"), t}); });
    Measure("b", Side::Below, {0, 0}, {b, 0});
}

// From the middle between the backs and the upper faces of the outstanding legs.
void SectionPen::Draw_Pair() {
    const double d = Figure("D"), b = Figure("B"), t = Figure("T"), toe = toePart * t;
    const double back = Gap_Of(name_) * unit_ / 2, tip = back + b;
    const double fillet = (std::max(d, b) / 16 + unit_ / 8);
    const Ring right{{{back, 0}},
                     {{tip, 0}},
                     {{tip, -t}, toe, toe},
                     {{back + t, -t}, fillet, fillet},
                     {{back + t, -d}, toe, toe},
                     {{back, -d}}};
    drawing_.Add(Outline{{Mirrored(right)}});
    drawing_.Add(Outline{{right}});
    const double y = Figure("Y");
    Axis(xAxis, "X", {-tip, -y}, {tip, -y});
    Axis(yAxis, "Y", {0, 0}, {0, -d}); // its label below: the back of a leg is measured above
    Attempt([&] {
        const double plastic = Row_Value("yp");
        Plastic_Axis("yp", {-tip, -plastic}, {tip, -plastic});
        Measure("yp", Side::Right, {tip, 0}, {tip, -plastic});
    });
    Place(MarkKind::Cross, {}, {0, -y}); // there is no room between the backs
    Measure("y", Side::Left, {-tip, 0}, {-tip, -y});
    Measure("d", Side::Left, {-tip, 0}, {-back - t, -d});
    Measure("b", Side::Above, {back, 0}, {tip, 0});
    const double middle = back + legMeasuredAt * b;
    Measure("t", Side::Inside, {middle, -t}, {middle, 0});
}

void SectionPen::Measure(std::string_view symbol, Side side, Point from, Point to) {
    constexpr std::string_view overall[] = {"d", "bf", "Ht", "b", "OD"};
    const bool isOverall =
        std::find(std::begin(overall), std::end(overall), symbol) != std::end(overall);
    if (small_ && !isOverall)
        return;
    Attempt([&] {
        const Property* row = Row_Of(symbol);
        if (!row)
            return;
        drawing_.Add(Dimension{from, to, side, std::string{symbol},
                               Trim(Value_Text(record_, *row, units_, style_)), isOverall},
                     Ink::Measure, std::string{symbol});
    });
}

void SectionPen::Axis(std::string_view name, std::string label, Point from, Point to) {
    if (!small_)
        drawing_.Add(CentreLine{from, to, std::move(label)}, Ink::Axis, std::string{name});
}

void SectionPen::Plastic_Axis(std::string_view name, Point from, Point to) {
    if (!small_)
        drawing_.Add(CentreLine{from, to, {}, Pattern::Dashed}, Ink::Result, std::string{name});
}

void SectionPen::Place(MarkKind kind, std::string label, Point at) {
    if (!small_)
        drawing_.Add(Mark{at, kind, std::move(label)}, Ink::Result);
}

// "W18x50 to scale: d = 18.00 in., bf = 7.50 in."
void SectionPen::Tell(const std::string& unit) {
    std::string text = units_ == Profile::US ? name_ : Trim(record_.Text("xIDE_STD_Nomenclature"));
    text += " to scale";
    std::string_view before = ": ";
    const bool withUnit = units_ == Profile::SI || style_ == DimensionStyle::Decimal;
    for (const Drawn::Part& part : drawing_.Parts)
        if (const auto* dimension = std::get_if<Dimension>(&part.What)) {
            text.append(before).append(dimension->Symbol).append(" = ").append(dimension->Value);
            if (withUnit)
                text.append(" ").append(unit);
            before = ", ";
        }
    drawing_.Sentence = text;
}

} // namespace

Drawing Draw_Section(const SectionRecordset& record, const Family& family, Profile units,
                     DimensionStyle style, DrawingDetail detail) {
    Drawing drawing;
    Attempt([&] { drawing = SectionPen(record, family, units, style, detail).Draw(); });
    return drawing;
}

Drawing Read_Section_Drawing(int familyPosition, const std::string& name, const SectionView& view,
                             DrawingDetail detail) {
    Drawing drawing;
    Attempt([&] {
        const Family& family = Family_At(familyPosition);
        const SectionRead read(view.ProgramFolder, familyPosition == pipeFamily
                                                       ? Query_By_SI_Name(name)
                                                       : Query_By_US_Label(name));
        drawing = Draw_Section(read.Records, family, view.Units, view.Style, detail);
    });
    return drawing;
}

} // namespace Tensarix
