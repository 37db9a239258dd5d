// The whole property catalogue and the twelve layouts as the user sees them, cell by cell: symbols,
// meanings, units, and from which column each value comes. The store is a copy in which every
// figure of a section is another number.
#include "PlainStore.h"
#include "StandIns.h"
#include "common/NumberText.h"
#include "measures/FeetInchFormatting.h"
#include "sections/BrowsePage.h"

#include <algorithm>
#include <map>
#include <sstream>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

// Symbol on the screen, meaning (# breaks the line), US and SI column, kind (Number, Length, Power
// of ten, Mere number, Ratio), units.
constexpr const char* catalogue = R"(
W|W|Nominal Weight|W|xW|N|lb/ft|Kg/m
A|A|Cross-Sectional Area|A|xA|N|in^2|mm^2
d|d|Overall Depth of Member|D|xD|L|in.|mm
bf|bf|Flange Width|BF|xBF|L|in.|mm
tw|tw|Web Thickness|TW|xTW|L|in.|mm
tf|tf|Flange Thickness|TF|xTF|L|in.|mm
kdes|kdes|Design value of 'k' dimension as defined in the Manual|KDES|xKDES|L|in.|mm
kdet|kdet|Detailing value of 'k' dimension as defined in the Manual|KDET|xKDET|L|in.|mm
k1|k1|Design value of 'k1' dimension as defined in the Manual|K1|xK1|L|in.|mm
T|T|Design depth between the web toes of the fillets|D-2KDET|xD-2xKDET|L|in.|mm
bf/2tf|bf / 2tf|Slenderness Ratio|BF_2TF|BF_2TF|R||
h/tw|h / tw|Slenderness Ratio|H_TW|H_TW|R||
Ix|Ix|Moment of Inertia about the x-axis|IX|xIX|P|in^4|mm^4
Zx|Zx|Plastic Section Modulus about the x-axis|ZX|xZX|P|in^3|mm^3
Sx|Sx|Elastic Section Modulus about the x-axis|SX|xSX|P|in^3|mm^3
rx|rx|Radius of Gyration about the x-axis|RX|xRX|L|in.|mm
Iy|Iy|Moment of Inertia about the y-axis|IY|xIY|P|in^4|mm^4
Zy|Zy|Plastic Section Modulus about the y-axis|ZY|xZY|P|in^3|mm^3
Sy|Sy|Elastic Section Modulus about the y-axis|SY|xSY|P|in^3|mm^3
ry|ry|Radius of Gyration about the y-axis|RY|xRY|L|in.|mm
J|J|Torsional Moment of Inertia|J|xJ|P|in^4|mm^4
Cw|Cw|Warping Constant|CW|xCW|P|in^6|mm^6
Wno|Wno|Normalized Warping Function|WNO|xWNO|P|in^2|mm^2
Sw|Sw|Warping Statical Moment|SW|xSW|P|in^4|mm^4
Qf|Qf|Statical Moment at point in Flange|QF|xQF|P|in^3|mm^3
Qw|Qw|Statical Moment at mid-depth of the Section|QW|xQW|P|in^3|mm^3
kS|k|Design distance from outer face of flange to web toe of fillet|KDET|xKDES|L|in.|mm
k|k|Design distance from outer face of flange to web toe of fillet|KDES|xKDES|L|in.|mm
kK|k||K|xK|L|in.|mm
kKDET|k||KDET|xKDET|L|in.|mm
x|x|Horizontal distance from designated member edge to centroidal axis|X|xX|L|in.|mm
e0|e0|Horizontal distance from designated member edge to shear center|EO|xEO|L|in.|mm
eo|eo|Horizontal distance from designated member edge to shear center|EO|xEO|L|in.|mm
xpC|xp|Horizontal distance from designated member edge to plastic neutral|XP|xXP|L||
xp|xp|Horizontal distance from designated member edge to plastic neutral|XP|xXP|L|in.|mm
roC|ro|Polar radius of gyration about the shear center|RO|xRO|L|in.|mm
ro|ro|Polar radius of Gyration about shear center|RO|xRO|L|in.|mm
H|H|Flexural Constant|H|xH|M||
y|y|Vertical distance from designated member edge to centroidal axis|Y|xY|L|in.|mm
yp|yp|Vertical distance from designated member edge to plastic neutral|YP|xYP|L|in.|mm
d/tw|d / tw|Slenderness Ratio|H_TW|H_TW|R||
Ht|Ht|Overall Depth of HSS|HT|xHT|L|in.|mm
b|b|Overall width of member|B|xB|L|in.|mm
bSqr|b|Overall width of member|HT|xHT|L|in.|mm
tnom|tnom|HSS nominal wall thickness|TNOM|xTNOM|L|in.|mm
tdes|tdes|HSS design wall thickness|TDES|xTDES|L|in.|mm
tdesPipe|tdes|Pipe design wall thickness|TDES|xTDES|L|in.|mm
b/tRec|b / t|B/t slenderness ratio for rectangular HSS|B_T|B_T|R||
h/tRec|h / t|H/t slenderness ratio for rectangular HSS|H_T|H_T|R||
b/tSqr|b / t|B/t slenderness ratio for square HSS|B_T|B_T|R||
h/tSqr|h / t|H/t slenderness ratio for square HSS|H_T|H_T|R||
C|C|HSS torsional constant|C|xC|P|in^3|mm^3
I|I|Moment of Inertia for both axes|IX|xIX|P|in^4|mm^4
Z|Z|Plastic Section Modulus for both axes|ZX|xZX|P|in^3|mm^3
S|S|Elastic Section Modulus for both axes|SX|xSX|P|in^3|mm^3
r|r|Radius of Gyration for both axes|RX|xRX|L|in.|mm
OD|OD|HSS Outside Diameter|OD|xOD|L|in.|mm
ID|ID|HSS Inside Diameter|ID|xID|L|in.|mm
D/t|D / t|D/t slenderness ratio for round HSS|D_T|D_T|R||
D/tx|D / t||xD_T|xD_T|R||
D/tPipe|D / t|D/t slenderness ratio for Pipe|xD_T|xD_T|R||
t|t|Thickness|T|xT|L|in.|mm
rz|rz|Radius of Gyration about the z-axis|RZ|xRZ|L|in.|mm
Tan|Tan Alpha|Tangent of the angle between the y-y and z-z axes for single#    angle|TAN_ALPHA|xTAN_ALPHA|M||
TanUS|Tan Alpha||TAN_ALPHA|TAN_ALPHA|M||
Qs|Qs|Reduction factor for slender unstiffened compression element|QS|xQS|M||
QsUS|Qs||QS|QS|M||
Wt|Wt||W|xW|N|lb/ft|Kg/m
dS|d||D|xD|N|in.|mm
)";

// Families, rows of the grid, and the properties from row 1 on.
constexpr const char* browseLayouts = R"(
W M HP|27|W A d bf tw tf kdes kdet k1 T bf/2tf h/tw Ix Zx Sx rx Iy Zy Sy ry J Cw Wno Sw Qf Qw
S|25|W A d bf tw tf kS T bf/2tf h/tw Ix Zx Sx rx Iy Zy Sy ry J Cw Wno Sw Qf Qw
C MC|26|W A d bf tw tf kdes kdet k1 T x e0 xpC Ix Zx Sx rx Iy Zy Sy ry J Cw roC H
WT MT|22|W A d bf tw tf k y yp bf/2tf h/tw Ix Zx Sx rx Iy Zy Sy ry J Cw
ST|21|W A d bf tw tf k y yp d/tw Ix Zx Sx rx Iy Zy Sy ry J Cw
HSS-Rec|20|W A Ht b tnom tdes b/tRec h/tRec Ix Zx Sx rx Iy Zy Sy ry J Cw C
HSS-Sqr|15|W A Ht bSqr tnom tdes b/tSqr h/tSqr I Z S r J C
HSS-Rnd|14|W A OD tnom tdes D/t I Z S r J C
Pipe|14|W A OD ID tnom tdesPipe D/tPipe I Z S r J
L-Eq L-UnEq|27|W A d b t kdes kdet x y eo xp yp Ix Zx Sx rx Iy Zy Sy ry rz J Cw ro Tan Qs
2L-Eq|15|W A d b t y Ix Zx Sx rx ry ro H Qs
2L-UnEq|16|W A d b t y yp Ix Zx Sx rx ry ro H Qs
)";

// Families, columns of the grid, and the properties from column 2 on; head=value where another
// property's values stand under a head. "k>" is another k on View All and on Find.
constexpr const char* tableLayouts = R"(
W M HP|28|Wt A d bf tw tf kdes kdet k1 T bf/2tf h/tw Ix Zx Sx rx Iy Zy Sy ry J Cw Wno Sw Qf Qw
S|26|Wt A dS bf tw tf k T bf/2tf h/tw Ix Zx Sx rx Iy Zy Sy ry J Cw Wno Sw Qf Qw
C MC|25|Wt A d bf tw tf kdes kdet k1 T x=xpC eo=Ix xpC=Zx Sx rx Iy Zy Sy ry J Cw roC H
WT MT|23|Wt A d bf tw tf kK>kKDET y yp bf/2tf h/tw Ix Zx Sx rx Iy Zy Sy ry J Cw
ST|23|Wt A d bf tw tf k y yp bf/2tf d/tw Ix Zx Sx rx Iy Zy Sy ry J Cw
HSS-Rec|21|Wt A Ht b tnom tdes b/tRec h/tRec Ix Zx Sx rx Iy Zy Sy ry J Cw C
HSS-Sqr|16|Wt A Ht bSqr tnom tdes b/tSqr h/tSqr I Z S r J C
HSS-Rnd|14|Wt A OD tnom tdes D/tx I Z S r J C
Pipe|14|Wt A OD ID tnom tdesPipe D/tPipe I Z S r J
L-Eq L-UnEq|28|Wt A d b t kdes kdet x y eo xp yp Ix Zx Sx rx Iy Zy Sy ry rz J Cw ro TanUS QsUS
2L-Eq|16|Wt A d b t y Ix Zx Sx rx ry ro H Qs
2L-UnEq|17|Wt A d b t y yp Ix Zx Sx rx ry ro H Qs
)";

struct Row {
    std::string Symbol, Meaning, US, SI, Kind, USUnit, SIUnit;
};

std::vector<std::string> Split(const std::string& text, char separator) {
    std::vector<std::string> pieces;
    std::istringstream in(text);
    for (std::string piece; std::getline(in, piece, separator);)
        pieces.push_back(piece);
    return pieces;
}

std::vector<std::vector<std::string>> Lines(const char* table) {
    std::vector<std::vector<std::string>> lines;
    for (const std::string& line : Split(table, '\n'))
        if (!line.empty())
            lines.push_back(Split(line, '|'));
    return lines;
}

const Row& Of_Catalogue(const std::string& key) {
    static const std::map<std::string, Row> rows = [] {
        std::map<std::string, Row> read;
        for (std::vector<std::string> f : Lines(catalogue)) {
            f.resize(8);
            read[f[0]] = {f[1], Replace_All(f[2], "#", "\n"), f[3], f[4], f[5], f[6], f[7]};
        }
        return read;
    }();
    return rows.at(key);
}

std::string Value(const NumberedStore& store, const Row& row, const SectionView& view) {
    const bool us = view.Units == Profile::US;
    const double number = store.Number(us || row.Kind == "R" ? row.US : row.SI);
    if (row.Kind == "L" && us && view.Style == DimensionStyle::Imperial)
        return Format_FeetInch(number / 12, 16, 0, 0) + "  ";
    if (row.Kind == "P" && !us)
        return General_Text(number / 1e6) + "x10^6  ";
    return Format_Number(number, "0.00##  ");
}

std::string Unit(const Row& row, const SectionView& view) {
    return view.Units == Profile::US ? row.USUnit : row.SIUnit;
}

std::string Head(const Row& row, const SectionView& view) {
    const std::string unit = Unit(row, view);
    return unit.empty() ? row.Symbol : row.Symbol + "\n[" + unit + "]";
}

template <typename Check>
void For_Every_View(const NumberedStore& store, Check check) {
    for (const SectionView& view : {SectionView{store.Folder},
                                    {store.Folder, Profile::US, DimensionStyle::Imperial},
                                    {store.Folder, Profile::SI},
                                    {store.Folder, Profile::SI, DimensionStyle::Imperial}})
        check(view);
}

const CellStyle head{Alignment::Centre, true, false, 0x0000FF, 0xFFFFC0};
const CellStyle symbol{Alignment::Centre, false, false, 0xFF0000};
const CellStyle name{Alignment::Centre, false, false, 0x800000};

} // namespace

TEST(Catalogue, EveryRowOfBrowse) {
    const NumberedStore store;
    TestMachine machine;
    Desk desk(machine.Host);
    for (const auto& layout : Lines(browseLayouts))
        for (const std::string& type : Split(layout[0], ' '))
            For_Every_View(store, [&](const SectionView& view) {
                const Family& family = Family_Of_Type(type);
                BrowsePage page(desk); // a grid of its own: nothing is left from another family
                page.Init_ShapeFlex();
                FlexGrid& grid = page.ShapeFlex;
                ComboBox us, si;
                FillSizeLists(us, si, type, store.Folder);
                (type == "Pipe" ? si : us).Select(0);
                family.Browse(grid, us, view, true);
                family.Browse(grid, type == "Pipe" ? si : us, view, false);
                ASSERT_EQ(grid.Rows(), std::stoi(layout[1])) << type;
                int row = 0;
                for (const std::string& key : Split(layout[2], ' ')) {
                    const Row& expected = Of_Catalogue(key);
                    SCOPED_TRACE(type + " " + key);
                    ++row;
                    EXPECT_EQ(grid.Clip_Of(row, 0, row, 3),
                              expected.Symbol + "\t" + Value(store, expected, view) + "\t" +
                                  Unit(expected, view) + "\t    " + expected.Meaning);
                    EXPECT_EQ(grid.Row_Height(row), key == "Tan" ? 690 : 350);
                    EXPECT_EQ(grid.Style(row, 0), symbol);
                    EXPECT_EQ(grid.Style(row, 1).Align, Alignment::Right);
                    EXPECT_EQ(grid.Style(row, 2).Align, Alignment::Centre);
                    EXPECT_EQ(grid.Style(row, 3), CellStyle{});
                }
                for (++row; row < grid.Rows(); ++row)
                    EXPECT_EQ(grid.Text(row, 0) + grid.Text(row, 1), "") << "a spare row";
            });
}

TEST(Catalogue, TheHeadOfBrowse) {
    TestMachine machine;
    Desk desk(machine.Host);
    BrowsePage page(desk);
    page.Init_ShapeFlex();
    const FlexGrid& grid = page.ShapeFlex;
    const std::pair<const char*, double> columns[] = {
        {"Property", 900}, {"Value", 1300}, {"Unit", 1300}, {"    Meaning", 5345}};
    for (int col = 0; col < 4; ++col) {
        EXPECT_EQ(grid.Text(0, col), columns[col].first);
        EXPECT_EQ(grid.Col_Width(col), columns[col].second);
        CellStyle style = head;
        style.Align = col == 3 ? Alignment::Left : Alignment::Centre;
        EXPECT_EQ(grid.Style(0, col), style);
    }
    EXPECT_EQ(grid.Rows(), 26);
    EXPECT_EQ(grid.Row_Height(0), 460);
    EXPECT_EQ(grid.Row_Height(25), 350);
}

TEST(Catalogue, EveryColumnOfViewAllAndFind) {
    const NumberedStore store;
    for (const auto& layout : Lines(tableLayouts))
        for (const std::string& type : Split(layout[0], ' '))
            for (const bool find : {false, true})
                For_Every_View(store, [&](const SectionView& view) {
                    const Family& family = Family_Of_Type(type);
                    FlexGrid grid;
                    if (find)
                        family.Find(grid, type, view, true, {"A", ">", 0});
                    else
                        family.ViewAll(grid, type, view);
                    ASSERT_EQ(grid.Cols(), std::stoi(layout[1])) << type;
                    EXPECT_EQ(grid.Rows(), 15);
                    EXPECT_EQ(grid.FixedCols(), 2);
                    EXPECT_EQ(grid.Row_Height(0), 600);
                    EXPECT_EQ(grid.Row_Height(1), 350);
                    EXPECT_EQ(grid.Clip_Of(0, 0, 0, 1),
                              "Standard US\nProfile\tSI Equivalent\nProfile");
                    EXPECT_EQ(grid.Col_Width(0) + grid.Col_Width(1), 3000);
                    EXPECT_EQ(grid.Style(1, 0), name);
                    EXPECT_EQ(grid.Style(1, 1), name);
                    EXPECT_FALSE(grid.Text(1, 1).empty());
                    int col = 1;
                    for (const std::string& entry : Split(layout[2], ' ')) {
                        const std::size_t other = entry.find('>'), shifted = entry.find('=');
                        const std::string key = find && other != std::string::npos
                                                    ? entry.substr(other + 1)
                                                    : entry.substr(0, std::min(other, shifted));
                        const std::string values =
                            shifted == std::string::npos ? key : entry.substr(shifted + 1);
                        SCOPED_TRACE(type + " " + entry + (find ? " Find" : " View All"));
                        ++col;
                        EXPECT_EQ(grid.Text(0, col), Head(Of_Catalogue(key), view));
                        EXPECT_EQ(grid.Text(1, col), Value(store, Of_Catalogue(values), view));
                        EXPECT_EQ(grid.Style(0, col), head);
                        EXPECT_EQ(grid.Style(1, col).Align, Alignment::Right);
                        EXPECT_EQ(grid.Col_Width(col), 1268);
                        const std::string told =
                            shifted != std::string::npos
                                ? "Column " + Split(grid.Text(0, col), '\n').at(0) + " holds " +
                                      Replace_All(Head(Of_Catalogue(values), view), "\n", " ") +
                                      "; for " + Split(grid.Text(0, col), '\n').at(0) +
                                      " see Browse Sections"
                            : key == "kKDET" ? std::string{detailingRemark}
                                             : std::string{};
                        EXPECT_EQ(grid.Remark(0, col), told);
                        EXPECT_EQ(grid.Remark_Weight(0, col), shifted != std::string::npos
                                                                  ? RemarkWeight::Caution
                                                                  : RemarkWeight::Note);
                    }
                    EXPECT_EQ(col + 1, grid.Cols());
                    EXPECT_EQ(grid.Text(2, 0) + grid.Text(2, 2), "");
                });
}
