#include "sections/FindNotes.h"

#include "common/Failure.h"
#include "sections/Assoc_Property.h"
#include "sections/FamilyTable.h"
#include "sections/TableGrid.h"

namespace Tensarix {

namespace {

const Property* Property_Of(const Layout& layout, std::string_view symbol) {
    for (const LayoutEntry& entry : layout.Entries)
        if (entry.Find->Symbol == symbol)
            return entry.Find;
    return nullptr;
}

// How the figures of a column fare over the records of a family.
struct ColumnFacts {
    bool Exists = false;
    bool HasFigures = false;
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
            if (shown &&
                Ten_Decimals(Value_Number(records, *shown, profile)) != Ten_Decimals(figure))
                facts.ShownAsSearched = false;
        });
    }
    return facts;
}

// Where the values of a property aren't in the results, or not under its head.
Advice Place_Note(const Layout& layout, const std::string& name) {
    constexpr TableVariant find = TableVariant::Find;
    const int shown = Value_Column(layout, find, name), headed = Head_Column(layout, find, name);
    if (shown == headed)
        return {};
    if (shown >= 0)
        return {"The results show " + name + " under the head " +
                    std::string{Head_Over(layout, find, shown)->Symbol} + ".",
                RemarkWeight::Caution};
    return {"The search goes by " + name + ", but the column " + name + " of the results holds " +
                std::string{Values_In(layout, find, headed)->Symbol} + ": for " + name +
                " see Browse Sections.",
            RemarkWeight::Caution};
}

} // namespace

Advice Find_Property_Note(std::string_view type, std::string_view property, Profile profile,
                          const std::filesystem::path& programFolder) {
    const Layout& layout = Family_Of_Type(type).Find.Columns;
    const Property* shown = Property_Of(layout, property);
    const std::string column = FindColumnName(property, profile);
    SectionRead read(programFolder, Query_By_Family(type));
    const ColumnFacts facts = Facts_Of(read.Records, layout, shown, column, profile);
    const std::string name{property};
    if (!facts.Exists)
        return {"The section data have no column for a search by " + name +
                    ": every section counts as 0.",
                RemarkWeight::Caution};
    if (!facts.HasFigures)
        return {name + " is not tabulated for this family: every section counts as 0.",
                RemarkWeight::Caution};
    if (!facts.ShownAsSearched)
        return {"The search goes by " + column + "; the column " + name +
                    " of the results shows another figure.",
                RemarkWeight::Caution};
    if (Advice note = shown ? Place_Note(layout, name) : Advice{}; !note.Text.empty())
        return note;
    if (shown && profile == Profile::SI && FindUnitLabel(property, profile) != shown->SIUnit &&
        shown->Kind == PropertyKind::SecondMoment)
        return {"The list and the search take " + name + " in full " + std::string{shown->SIUnit} +
                "."};
    return {};
}

std::string_view Find_Criterion_Note(std::string_view criterion) {
    return criterion == findCriteria[0]
               ? "\"At least\" finds the numbers that begin with the digits typed: 3.25 finds "
                 "3.25 and 3.259, not 3.26."
               : std::string_view{};
}

} // namespace Tensarix
