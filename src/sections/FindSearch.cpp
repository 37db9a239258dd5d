#include "sections/FindSearch.h"

#include "common/Failure.h"
#include "common/NumberText.h"
#include "sections/Assoc_Property.h"
#include "sections/TableGrid.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Tensarix {

namespace {

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

} // namespace

bool Is_Depth_Between_Fillets(std::string_view column) {
    const std::string name = Upper(Trim(column));
    return name == "T" || name == "XT";
}

double Ten_Decimals(double value) {
    return Finite(std::round(value * 1e10) / 1e10);
}

double Find_Field(const SectionRecordset& record, const Layout& layout, std::string_view column,
                  Profile profile) {
    const Property* computed = Computed_Property(layout);
    if (computed && Is_Depth_Between_Fillets(column))
        return Ten_Decimals(Value_Number(record, *computed, profile));
    return record.Number(column);
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

FindCount FindInitializer::operator()(FlexGrid& grid, std::string_view familyCode,
                                      const SectionView& view, bool searching,
                                      const FindCondition& condition) const {
    SectionRecordset record = Family_Records(familyCode, view);
    FindCount count{0, Count_Of(record)};
    Lay_Out_Table(grid, Columns, TableVariant::Find, view.Units, searching ? count.OfFamily : 0);
    if (!searching)
        return count;
    const std::string column = FindColumnName(condition.Property, view.Units);
    double field = 0;
    double lightest = std::numeric_limits<double>::infinity();
    Attempt([&] {
        for (record.MoveFirst(); !record.At_End(); record.MoveNext()) {
            Attempt([&] { field = Find_Field(record, Columns, column, view.Units); });
            bool matches = false;
            Attempt(
                [&] { matches = Criterion_Matches(condition.Criterion, condition.Value, field); });
            if (!matches)
                continue;
            Write_Table_Row(grid, ++count.Found, record, Columns, TableVariant::Find, view);
            Attempt([&] {
                if (const double weight = record.Number("W"); weight < lightest) {
                    count.Lightest =
                        Trim(grid.Text(count.Found, view.Units == Profile::SI ? 1 : 0));
                    lightest = weight;
                }
            });
        }
    });
    grid.Set_Rows(Table_Rows(count.Found));
    return count;
}

} // namespace Tensarix
