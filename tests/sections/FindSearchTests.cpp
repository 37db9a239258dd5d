// The search against plain SQL, with a map from properties to columns of the test's own.
#include "PlainStore.h"
#include "common/Failure.h"
#include "common/NumberText.h"
#include "sections/Assoc_Property.h"
#include "sections/FamilyTable.h"
#include "sections/FindNotes.h"
#include "sections/Find_Fill_Property.h"
#include "sections/Find_Populate_Value.h"

#include <algorithm>
#include <map>
#include <set>
#include <sstream>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

const std::filesystem::path program = TENSARIX_PROGRAM_DIR;
constexpr Profile bothProfiles[] = {Profile::US, Profile::SI};

// What a property compares, in SQL; x stands before a column under SI. No figure counts as 0.
std::string Compared(const std::string& property, Profile profile) {
    static const std::map<std::string, std::string> columns{
        {"Wt", "W"},        {"bf / 2tf", "BF_2TF"},
        {"h / tw", "H_TW"}, {"b / t", "B_T"},
        {"h / t", "H_T"},   {"D / t", "D_T"},
        {"k", "KDES"},      {"I", "IX"},
        {"Z", "ZX"},        {"S", "SX"},
        {"r", "RX"},        {"Tan Alpha", ""},
        {"d / tw", ""}};
    const std::string x = profile == Profile::SI ? "x" : "";
    if (property == "T")
        return "ROUND(" + x + "D - 2 * " + x + "KDET, 10)";
    const auto found = columns.find(property);
    const std::string column = found == columns.end() ? property : found->second;
    return column.empty() ? "0.0" : "COALESCE(" + x + column + ", 0.0)";
}

std::string From(const Family& family) {
    return " FROM ShapeTable WHERE TYPE = '" + std::string{family.Type} + "'";
}

// "At least" by texts: the field's decimal text, cut behind as many decimals as were typed.
bool Begins_With(double field, double search) {
    const auto cut = [](double value, std::size_t decimals) {
        std::string text = General_Text(value);
        if (text.find('.') == std::string::npos)
            text += '.';
        text += std::string(20, '0');
        return text.substr(0, text.find('.') + 1 + decimals);
    };
    const std::string typed = General_Text(search);
    const std::size_t point = typed.find('.');
    const std::size_t decimals = point == std::string::npos ? 0 : typed.size() - point - 1;
    return cut(field, decimals) == cut(search, decimals);
}

struct Searched {
    const Family& Of;
    std::string Property;
    Profile Units;
    std::string Sql;
};

// Every family with each of its properties under each profile.
template <typename Check>
void For_Every_Search(Check check) {
    for (std::size_t i = 0; i < allFamilies.size(); ++i) {
        ComboBox properties;
        Find_Fill_Property(properties, static_cast<int>(i));
        for (int p = 0; p < properties.Count(); ++p)
            for (const Profile profile : bothProfiles) {
                const std::string& name = properties.Item(p);
                SCOPED_TRACE(std::string{allFamilies[i].Type} + " " + name +
                             (profile == Profile::SI ? " SI" : " US"));
                check(Searched{allFamilies[i], name, profile, Compared(name, profile)});
            }
    }
}

int Found(const Searched& s, const std::string& criterion, double value, FlexGrid& grid) {
    return s.Of
        .Find(grid, s.Of.Type, {program, s.Units, DimensionStyle::Decimal}, true,
              {s.Property, criterion, value})
        .Found;
}

std::vector<std::string> Items(const ComboBox& list) {
    std::vector<std::string> items;
    for (int i = 0; i < list.Count(); ++i)
        items.push_back(list.Item(i));
    return items;
}

std::string Joined(const ComboBox& list) {
    std::string joined;
    for (const std::string& item : Items(list))
        joined += (joined.empty() ? "" : ", ") + item;
    return joined;
}

} // namespace

TEST(FindSearch, PropertiesOfEachFamily) {
    const std::string beam = "Ix, Zx, Sx, rx, Iy, Zy, Sy, ry, J, Cw";
    const std::string w =
        "Wt, A, d, bf, tw, tf, kdes, kdet, k1, T, bf / 2tf, h / tw, " + beam + ", Wno, Sw, Qf, Qw";
    const std::string c = "Wt, A, d, bf, tw, tf, kdes, kdet, k1, T, x, eo, xp, " + beam + ", ro, H";
    const std::string wt = "Wt, A, d, bf, tw, tf, k, y, yp, bf / 2tf, h / tw, " + beam;
    const std::string l = "Wt, A, d, b, t, kdes, kdet, x, y, eo, xp, yp, Ix, Zx, Sx, rx, Iy, Zy, "
                          "Sy, ry, rz, J, Cw, ro, Tan Alpha, Qs";
    // clang-format off
    const std::string expected[] = {
        w, w, w, "Wt, A, d, bf, tw, tf, k, T, bf / 2tf, h / tw, " + beam + ", Wno, Sw, Qf, Qw",
        c, c, wt, wt,
        "Wt, A, d, bf, tw, tf, k, y, yp, bf / 2tf, d / tw, Ix, Zx, Sx, rx, Iy, Zy, Sy, ry, J",
        "Wt, A, Ht, b, tnom, tdes, b / t, h / t, " + beam + ", C",
        "Wt, A, Ht, b, tnom, tdes, b / t, h / t, I, Z, S, r, J, C",
        "Wt, A, OD, tnom, tdes, D / t, I, Z, S, r",
        "Wt, A, OD, ID, tnom, tdes, D / t, I, Z, S, r, J", l, l,
        "Wt, A, d, b, t, y, Ix, Zx, Sx, rx, ry, ro, H",
        "Wt, A, d, b, t, y, yp, Ix, Zx, Sx, rx, ry, ro"};
    // clang-format on
    ComboBox list;
    for (int family = 0; family < 17; ++family) {
        Find_Fill_Property(list, family);
        EXPECT_EQ(Joined(list), expected[family]) << family;
    }
    EXPECT_THROW(Find_Fill_Property(list, -1), Failure);
    EXPECT_EQ(list.Count(), 0);
}

TEST(FindSearch, EveryPropertyAgainstSql) {
    PlainStore plain;
    FlexGrid grid;
    const char* tests[] = {"=", ">", "<", ">=", "<="};
    std::size_t turn = 0; // each property has one of the comparisons, in turn, and "At least"
    For_Every_Search([&](const Searched& s) {
        const std::vector<double> all = plain.Numbers("SELECT " + s.Sql + From(s.Of));
        std::vector<double> sorted = all;
        std::sort(sorted.begin(), sorted.end());
        const double middle = sorted[sorted.size() / 2];
        const std::string test = tests[turn++ % 5];
        const auto count =
            plain.Numbers("SELECT COUNT(*)" + From(s.Of) + " AND " + s.Sql + test + " ?1", middle);
        EXPECT_EQ(Found(s, test, middle, grid), static_cast<int>(count.at(0))) << test << middle;
        const double typed = std::floor(middle * 10) / 10;
        EXPECT_EQ(Found(s, " at LEAST ", typed, grid),
                  std::count_if(all.begin(), all.end(),
                                [&](double field) { return Begins_With(field, typed); }))
            << typed;
    });
    EXPECT_GT(turn, 500u);
}

// What each criterion finds is held against SQL above; one that is none finds nothing.
TEST(FindSearch, AnUnknownCriterionMatchesNothing) {
    for (const char* criterion : {"", "=="})
        for (const double field : {9.0, 10.0, 11.0})
            EXPECT_FALSE(Criterion_Matches(criterion, 10, field)) << criterion;
}

TEST(FindSearch, ValueListsAreInColumnOrderEachValueOnce) {
    PlainStore plain;
    For_Every_Search([&](const Searched& s) {
        ComboBox list;
        list.Add("old");
        Find_Populate_Value(s.Of.Type, s.Property, s.Units, list, program);
        if (s.Property == "Tan Alpha") {
            EXPECT_EQ(list.Count(), 0);
            return;
        }
        // T and the thickness of angles stand in the order of D.
        const bool byDepth = s.Property == "T" || s.Property == "t";
        std::vector<std::string> expected;
        std::set<double> seen;
        for (const double value :
             plain.Numbers("SELECT " + s.Sql + From(s.Of) + " ORDER BY " + (byDepth ? "D" : s.Sql)))
            if (seen.insert(value).second)
                expected.push_back(General_Text(value));
        EXPECT_EQ(Items(list), expected);
    });
}

// What is picked in the list is found by "=", a computed depth too.
TEST(FindSearch, EveryListedDepthIsFound) {
    ComboBox list;
    FlexGrid grid;
    Find_Populate_Value("W", "T", Profile::US, list, program);
    EXPECT_EQ(list.Count(), 149);
    int found = 0;
    for (const std::string& item : Items(list)) {
        const int each =
            Found({allFamilies[0], "T", Profile::US, {}}, "=", Text_Number(item), grid);
        EXPECT_GT(each, 0) << item;
        found += each;
    }
    EXPECT_EQ(found, 274);
}

TEST(FindSearch, UnitsInTheTablesOfTheManual) {
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"Wt", "lb/ft", "Kg/m"},
        {"A Wno", "in^2", "mm^2"},
        {"d Ht OD bf b ID tw tf t tnom tdes kdes kdet k1 k x y eo xp yp r rx ry rz ro T", "in",
         "mm"},
        {"I Ix Iy Sw", "in^4", "mm^4/10^6"},
        {"Z S Zx Sx Zy Sy C Qf Qw", "in^3", "mm^3/10^3"},
        {"J", "in^4", "mm^4/10^3"},
        {"Cw", "in^6", "mm^6/10^9"},
        {"H W bf/2tf h/tw b/t h/t D/t TanAlpha Qs", "", ""}};
    for (const auto& [properties, us, si] : cases) {
        std::istringstream all(properties);
        for (std::string property; all >> property;) {
            EXPECT_EQ(FindUnitLabel(property, Profile::US), us) << property;
            EXPECT_EQ(FindUnitLabel(property, Profile::SI), si) << property;
        }
    }
    EXPECT_EQ(FindUnitLabel("bf / 2tf", Profile::US), "");
    EXPECT_EQ(FindUnitLabel("", Profile::US), "");
}

TEST(FindSearch, AtLeastComparesTheTypedDigits) {
    const struct {
        double Search, Field;
        bool Matches;
    } cases[] = {
        // clang-format off
        {3.25, 3.25, true}, {3.25, 3.259, true}, {3.25, 3.24, false}, {3.25, 3.26, false},
        {10, 10.9, true}, {10, 11, false}, {10, 9.999, false}, {0, 0.9, true}, {0, 1, false},
        {15.61, 17.99 - 2 * 1.19, true}, // 15.609999999999998 in binary
        {0.29, 0.29, true},              // 28.999999999999996 hundredths in binary
        {1.1, 1.1000000000000001, true}, {8.2, 8.2, true}, {1e300, 1e300, true},
        {1e-300, 1e300, false}, // out of range: no match, no crash
        // clang-format on
    };
    for (const auto& c : cases) {
        bool matches = false;
        Attempt([&] { matches = AtLeastMatches(c.Search, c.Field); });
        EXPECT_EQ(matches, c.Matches) << c.Search << " " << c.Field;
    }
}

TEST(FindSearch, ListedValuesAreReadAsNumbers) {
    ComboBox list;
    list.Add("3 in");
    EXPECT_TRUE(ValueListed(list, 3));
    EXPECT_FALSE(ValueListed(list, 0));
}

// What can't be read leaves the number of the record before: 0 at the start of the list and of the
// search, which go through the records in different orders.
TEST(FindSearch, NullsAndTextsLeaveTheNumberBefore) {
    const ChangedStore store(
        "UPDATE ShapeTable SET ZX = NULL WHERE AISC_Manual_Label IN ('W44x335', 'W44x262');"
        "UPDATE ShapeTable SET ZX = 'n/a' WHERE AISC_Manual_Label = 'W44x230';"
        "DELETE FROM ShapeTable WHERE TYPE = 'W' AND AISC_Manual_Label NOT LIKE 'W44x%'");
    const Family& w = allFamilies[0];
    FlexGrid grid;
    const auto found = [&](const char* criterion, double value) {
        w.Find(grid, w.Type, {store.Folder}, true, {"Zx", criterion, value});
        std::string names;
        for (int row = 1; row < grid.Rows(); ++row)
            names += grid.Text(row, 0) + (grid.Text(row, 0).empty() ? "" : " ");
        return names;
    };
    EXPECT_EQ(found("=", 0), "W44x335 ");
    EXPECT_EQ(found("=", 1410), "W44x290 W44x262 W44x230 ");
    EXPECT_EQ(grid.Text(2, 15), "");    // a Null writes nothing into the emptied grid
    EXPECT_EQ(grid.Text(3, 15), "n/a"); // a text passes through
    EXPECT_EQ(grid.Remark(2, 15), "");
    ComboBox list;
    list.Set_Text("typed");
    Find_Populate_Value("W", "Zx", Profile::US, list, store.Folder);
    EXPECT_EQ(Joined(list), "0, 1410"); // Nulls first, texts last
    EXPECT_EQ(list.Text(), "typed");
    EXPECT_THROW(Find_Populate_Value("W", "Zx", Profile::US, list, "/nowhere"), Failure);
    EXPECT_EQ(list.Count(), 2);
}

TEST(FindSearch, NotesTellWhatASearchCanNotSee) {
    // The last is a part of the note; empty: no note at all.
    const std::tuple<const char*, const char*, Profile, std::string> cases[] = {
        // clang-format off
        {"L-Eq", "Tan Alpha", Profile::US, "no column"}, {"ST", "d / tw", Profile::US, "no column"},
        {"ST", "d / tw", Profile::SI, "no column"},      {"C", "k1", Profile::US, "not tabulated"},
        {"HSS-Rec", "Cw", Profile::SI, "not tabulated"}, {"WT", "k", Profile::US, "another figure"},
        {"MC", "x", Profile::US, "column x of the results holds xp"},
        {"C", "Ix", Profile::SI, "under the head eo"},
        {"C", "Sx", Profile::US, ""}, {"ST", "k", Profile::US, ""}, {"HSS-Sqr", "b", Profile::US, ""},
        {"HSS-Rnd", "D / t", Profile::US, ""}, {"W", "T", Profile::US, ""},
        {"W", "Ix", Profile::SI, "full mm^4"}, {"W", "Ix", Profile::US, ""},
        {"W", "Wno", Profile::SI, ""}, {"W", "Wt", Profile::SI, ""}};
    // clang-format on
    for (const auto& [type, property, units, part] : cases) {
        const Advice advice = Find_Property_Note(type, property, units, program);
        const std::string& note = advice.Text;
        const bool harmless = part.empty() || part == "full mm^4";
        EXPECT_EQ(advice.Weight, harmless ? RemarkWeight::Note : RemarkWeight::Caution) << note;
        if (part.empty())
            EXPECT_EQ(note, "") << type << property;
        else
            EXPECT_NE(note.find(part), std::string::npos) << type << property << note;
    }
}
