#include "sections/Find_Fill_Property.h"

#include "sections/FamilyTable.h"

namespace Tensarix {

void Find_Fill_Property(ComboBox& list, int family) {
    list.Clear();
    const Layout& layout = Family_At(family).Find.Columns;
    for (const LayoutEntry& entry : layout.Entries.first(layout.Entries.size() - layout.Unsearched))
        list.Add(std::string{entry.Find->Symbol});
}

} // namespace Tensarix
