#include "sections/FamilyTable.h"

#include "common/Failure.h"
#include "common/NumberText.h"

#include <algorithm>

namespace Tensarix {

namespace {

constexpr std::string_view usName = "IDE_STD_Nomenclature";
constexpr std::string_view siName = "xIDE_STD_Nomenclature";
constexpr std::string_view shortLegsEnd = "SLBB";

// A query that failed counts as one without rows.
bool Has_Rows(const SectionRecordset& records) {
    std::size_t count = 0;
    Attempt([&] { count = records.RecordCount(); });
    return count > 0;
}

} // namespace

const Family& Family_At(int position) {
    if (position < 0 || position >= static_cast<int>(allFamilies.size()))
        throw Failure("no such family");
    return allFamilies[static_cast<std::size_t>(position)];
}

const Family& Family_Of_Type(std::string_view type) {
    const std::string code = Trim(type);
    const auto* found = std::find_if(allFamilies.begin(), allFamilies.end(),
                                     [&](const Family& family) { return family.Type == code; });
    if (found == allFamilies.end())
        throw Failure("no such family");
    return *found;
}

void FillFamilyList(ComboBox& combo) {
    combo.Clear();
    for (const Family& family : allFamilies)
        combo.Add(std::string{family.Name});
}

void Init_Shape(ComboBox& combo, std::string_view type, bool useSI,
                const std::filesystem::path& programFolder) {
    SectionRead read(programFolder, Query_By_Family(type));
    combo.Clear();
    if (!Has_Rows(read.Records))
        return;
    for (read.Records.MoveFirst(); !read.Records.At_End(); read.Records.MoveNext())
        Attempt([&] { combo.Add(Trim(read.Records.Text(useSI ? siName : usName))); });
}

void FillSizeLists(ComboBox& us, ComboBox& si, std::string_view type,
                   const std::filesystem::path& programFolder) {
    SectionRead read(programFolder, Query_By_Family(type));
    us.Clear();
    si.Clear();
    if (!Has_Rows(read.Records))
        return;
    for (read.Records.MoveFirst(); !read.Records.At_End(); read.Records.MoveNext()) {
        Attempt([&] { us.Add(Trim(read.Records.Text(usName))); });
        Attempt([&] { si.Add(Trim(read.Records.Text(siName))); });
    }
}

std::string Spoken_Family(std::string_view name) {
    return Replace_All(Replace_All(Trim(name), "(", ""), ")", "");
}

std::string Sections_In_Words(int count) {
    return std::to_string(count) + (count == 1 ? " section" : " sections");
}

std::string SpaceDesignation(std::string_view text) {
    return Trim(Replace_All(text, "x", " x "));
}

std::string_view Double_Angle_Picture(std::string_view designation) {
    return Trim(designation).ends_with(shortLegsEnd) ? "DLUnEqImage1" : "DLUnEqImage2";
}

} // namespace Tensarix
