#include "sections/FindSearch.h"

#include "common/Failure.h"
#include "common/NumberText.h"
#include "sections/FamilyTable.h"

#include <algorithm>
#include <cmath>

namespace Tensarix {

namespace {

struct KeyColumn {
    std::string_view Key, Column;
};

// Any other key is itself the column's name.
constexpr KeyColumn keyColumns[] = {
    {"WT", "W"},      {"BF/2TF", "BF_2TF"}, {"B/T", "B_T"}, {"K", "KDES"},
    {"H/TW", "H_TW"}, {"H/T", "H_T"},       {"D/T", "D_T"}, {"I", "IX"},
    {"Z", "ZX"},      {"S", "SX"},          {"R", "RX"},
};

struct KeyUnit {
    std::string_view Keys; // between blanks
    std::string_view US, SI;
};

constexpr KeyUnit keyUnits[] = {
    {" WT ", "lb/ft", "Kg/m"},
    {" A WNO ", "in^2", "mm^2"},
    {" D HT OD BF B ID TW TF T TNOM TDES KDES KDET K1 K X Y EO XP YP R RX RY RZ RO ", "in", "mm"},
    {" I IX IY SW ", "in^4", "mm^4/10^6"},
    {" Z S ZX SX ZY SY C QF QW ", "in^3", "mm^3/10^3"},
    {" J ", "in^4", "mm^4/10^3"},
    {" CW ", "in^6", "mm^6/10^9"},
};

constexpr std::string_view siPrefix = "x";
constexpr std::string_view depthColumn = "D"; // T is listed in its order

std::string Key_Of(std::string_view property) {
    return Replace_All(Upper(property), " ", "");
}

bool Is_Depth_Between_Fillets(std::string_view column) {
    const std::string name = Upper(Trim(column));
    return name == "T" || name == "XT";
}

const Layout& Layout_Of(std::string_view type) {
    const std::string code = Trim(type);
    const auto* found = std::find_if(Families.begin(), Families.end(),
                                     [&](const Family& family) { return family.Type == code; });
    if (found == Families.end())
        throw Failure("no such family");
    return found->Find.Columns;
}

const Property* Property_Of(const Layout& layout, std::string_view symbol) {
    for (const LayoutEntry& entry : layout.Entries)
        if (entry.Find->Symbol == symbol)
            return entry.Find;
    return nullptr;
}

const Property* Computed_Property(const Layout& layout) {
    for (const LayoutEntry& entry : layout.Entries)
        if (!entry.Find->USLessTwice.empty())
            return entry.Find;
    return nullptr;
}

int Decimals_Of(std::string_view text) {
    const std::size_t point = text.find('.');
    if (point == std::string_view::npos)
        return 0;
    const std::size_t end = std::min(text.find('E', point), text.size());
    return static_cast<int>(end - point - 1);
}

// The whole part of the number's default text, which takes a product's last binary digits away.
double Whole_Part(double value) {
    return std::trunc(Leading_Value(General_Text(Finite(value))));
}

// How the figures of a column fare over the records of a family.
struct ColumnFacts {
    bool Exists = false;
    bool HasFigures = false;
    bool TextsAreExact = true; // the default text of every figure reads as the same number
    bool ShownAsSearched = true;
};

ColumnFacts Facts_Of(SectionRecordset& records, const Layout& layout, const Property* shown,
                     std::string_view column, Profile profile) {
    ColumnFacts facts;
    for (records.MoveFirst(); !records.At_End(); records.MoveNext()) {
        facts.Exists = facts.Exists || Attempt([&] { records.Field(column); });
        Attempt([&] {
            const double figure = Find_Field(records, layout, column, profile);
            facts.Exists = facts.HasFigures = true;
            if (Leading_Value(General_Text(figure)) != figure)
                facts.TextsAreExact = false;
            if (shown && Value_Number(records, *shown, profile) != figure)
                facts.ShownAsSearched = false;
        });
    }
    return facts;
}

} // namespace

std::string FindColumnName(std::string_view property, Profile profile) {
    std::string column = Key_Of(property);
    for (const KeyColumn& entry : keyColumns)
        if (entry.Key == column) {
            column = entry.Column;
            break;
        }
    return profile == Profile::SI ? std::string{siPrefix} + column : column;
}

std::string_view FindUnitLabel(std::string_view property, Profile profile) {
    const std::string key = std::string{" "}.append(Key_Of(property)).append(" ");
    for (const KeyUnit& entry : keyUnits)
        if (entry.Keys.find(key) != std::string_view::npos)
            return profile == Profile::US ? entry.US : entry.SI;
    return {};
}

bool AtLeastMatches(double search, double field) {
    const double scale = std::pow(10.0, Decimals_Of(General_Text(search)));
    return Whole_Part(scale * field) == Whole_Part(scale * search);
}

bool Criterion_Matches(std::string_view criterion, double search, double field) {
    const std::string test = Upper(Trim(criterion));
    if (test == "AT LEAST")
        return AtLeastMatches(search, field);
    if (test == "=")
        return field == search;
    if (test == ">")
        return field > search;
    if (test == "<")
        return field < search;
    if (test == ">=")
        return field >= search;
    return test == "<=" && field <= search;
}

bool ValueListed(const ComboBox& list, double value) {
    // From the end: a list that is filled in order has its equal there.
    for (int position = list.Count() - 1; position >= 0; --position)
        if (Leading_Value(list.Item(position)) == value)
            return true;
    return false;
}

void Find_Fill_Property(ComboBox& list, int family) {
    list.Clear();
    const Layout& layout = Family_At(family).Find.Columns;
    for (const LayoutEntry& entry : layout.Entries.first(layout.Entries.size() - layout.Unsearched))
        list.Add(std::string{entry.Find->Symbol});
}

double Find_Field(const SectionRecordset& record, const Layout& layout, std::string_view column,
                  Profile profile) {
    const Property* computed = Computed_Property(layout);
    if (computed && Is_Depth_Between_Fillets(column))
        return Value_Number(record, *computed, profile);
    return record.Number(column);
}

void Find_Populate_Value(std::string_view type, std::string_view property, Profile profile,
                         ComboBox& list, const std::filesystem::path& programFolder) {
    const std::string column = FindColumnName(property, profile);
    const std::string_view order = Is_Depth_Between_Fillets(column) ? depthColumn : column;
    SectionRead read(programFolder, Query_Value_List(type, order));
    list.Clear_Items();
    SectionRecordset& records = read.Records;
    double value = 0;
    Attempt([&] {
        const Layout& layout = Layout_Of(type);
        for (records.MoveFirst(); !records.At_End(); records.MoveNext()) {
            Attempt([&] { value = Find_Field(records, layout, column, profile); });
            if (!ValueListed(list, value))
                list.Add(General_Text(value));
        }
    });
}

std::string Find_Property_Note(std::string_view type, std::string_view property, Profile profile,
                               const std::filesystem::path& programFolder) {
    const Layout& layout = Layout_Of(type);
    const Property* shown = Property_Of(layout, property);
    const std::string column = FindColumnName(property, profile);
    SectionRead read(programFolder, Query_By_Family(type));
    const ColumnFacts facts = Facts_Of(read.Records, layout, shown, column, profile);
    const std::string name{property};
    if (!facts.Exists)
        return "The section data have no column for a search by " + name +
               ": every section counts as 0.";
    if (!facts.HasFigures)
        return name + " is not tabulated for this family: every section counts as 0.";
    if (!facts.ShownAsSearched)
        return "The search goes by " + column + "; the column " + name +
               " of the results shows another figure.";
    if (!facts.TextsAreExact)
        return name + " is computed: \"=\" can miss it by its last binary digit, \"At least\" "
                      "does not.";
    if (shown && profile == Profile::SI && FindUnitLabel(property, profile) != shown->SIUnit &&
        shown->Kind == PropertyKind::SecondMoment)
        return "The list and the search take " + name + " in full " + std::string{shown->SIUnit} +
               ".";
    return {};
}

std::string_view Find_Criterion_Note(std::string_view criterion) {
    return criterion == FindCriteria[0]
               ? "\"At least\" finds the numbers that begin with the digits typed: 3.25 finds "
                 "3.25 and 3.259, not 3.26."
               : std::string_view{};
}

} // namespace Tensarix
