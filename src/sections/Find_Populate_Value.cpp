#include "sections/Find_Populate_Value.h"

#include "common/Failure.h"
#include "common/NumberText.h"
#include "sections/Assoc_Property.h"
#include "sections/FamilyTable.h"

namespace Tensarix {

namespace {

constexpr std::string_view depthColumn = "D"; // T is listed in its order

} // namespace

bool ValueListed(const ComboBox& list, double value) {
    // From the end: a list that is filled in order has its equal there.
    for (int position = list.Count() - 1; position >= 0; --position)
        if (Leading_Value(list.Item(position)) == value)
            return true;
    return false;
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
        const Layout& layout = Family_Of_Type(type).Find.Columns;
        for (records.MoveFirst(); !records.At_End(); records.MoveNext()) {
            Attempt([&] { value = Find_Field(records, layout, column, profile); });
            if (!ValueListed(list, value))
                list.Add(General_Text(value));
        }
    });
}

} // namespace Tensarix
