#include "sections/DesignationSearch.h"

#include "common/Failure.h"
#include "common/NumberText.h"
#include "sections/FamilyTable.h"

#include <algorithm>
#include <array>

namespace Tensarix {

namespace {

constexpr std::string_view valuePattern = "0.00##";

constexpr std::string_view query =
    "SELECT TYPE, IDE_STD_Nomenclature, xIDE_STD_Nomenclature, W, xW, D, xD, HT, xHT, OD, xOD "
    "FROM ShapeTable ORDER BY SEQ";

// The first of the columns that the section has.
std::string Measure(const SectionRecordset& record, std::initializer_list<const char*> columns,
                    std::string_view unit) {
    std::string text;
    for (const char* column : columns)
        if (Attempt([&] { text = Format_Number(record.Number(column), valuePattern); }))
            return text.append(" ").append(unit);
    return text;
}

int Position_Of_Type(std::string_view type) {
    const auto* found = std::find_if(allFamilies.begin(), allFamilies.end(),
                                     [&](const Family& family) { return family.Type == type; });
    if (found == allFamilies.end())
        throw Failure("no such family");
    return static_cast<int>(found - allFamilies.begin());
}

} // namespace

DesignationSearch::DesignationSearch(const std::filesystem::path& programFolder) {
    Attempt([&] {
        SectionRead read(programFolder, std::string{query});
        const SectionRecordset& record = read.Records;
        std::array<int, allFamilies.size()> counts{};
        for (read.Records.MoveFirst(); !record.At_End(); read.Records.MoveNext()) {
            Attempt([&] {
                Section section;
                section.Place.Family = Position_Of_Type(Trim(record.Text("TYPE")));
                section.Place.Position = counts[static_cast<std::size_t>(section.Place.Family)]++;
                section.Names[0] = Trim(record.Text("IDE_STD_Nomenclature"));
                section.Names[1] = Trim(record.Text("xIDE_STD_Nomenclature"));
                section.Weights[0] = Measure(record, {"W"}, "lb/ft");
                section.Weights[1] = Measure(record, {"xW"}, "kg/m");
                section.Depths[0] = Measure(record, {"D", "HT", "OD"}, "in.");
                section.Depths[1] = Measure(record, {"xD", "xHT", "xOD"}, "mm");
                for (const std::size_t profile : {0U, 1U})
                    section.Keys[profile] = NameKey(section.Names[profile]);
                sections_.push_back(std::move(section));
            });
        }
    });
}

FoundSection DesignationSearch::Found(const Section& section, Profile units, bool whole) {
    const auto own = static_cast<std::size_t>(units);
    return {section.Place,
            units,
            section.Names[own],
            section.Names[1 - own],
            section.Weights[own],
            section.Depths[own],
            whole};
}

std::vector<FoundSection> DesignationSearch::Find(std::string_view typed, std::size_t most) const {
    const TypedName name(typed);
    struct Hit {
        int Rank;
        std::size_t At;
    };
    std::vector<Hit> hits;
    for (std::size_t i = 0; i < sections_.size(); ++i) {
        const int us = name.Match(sections_[i].Keys[0]);
        const int si = name.Match(sections_[i].Keys[1]) + 1; // the odd ranks
        if (const int rank = std::min(us, si); rank < TypedName::noMatch)
            hits.push_back({rank, i});
    }
    std::stable_sort(hits.begin(), hits.end(),
                     [](const Hit& a, const Hit& b) { return a.Rank < b.Rank; });
    hits.resize(std::min(hits.size(), most));
    std::vector<FoundSection> found;
    found.reserve(hits.size());
    for (const Hit& hit : hits)
        found.push_back(
            Found(sections_[hit.At], hit.Rank % 2 == 0 ? Profile::US : Profile::SI, hit.Rank < 2));
    return found;
}

std::string Other_Family_Note(std::string_view typed, int family,
                              const std::filesystem::path& programFolder) {
    const std::vector<FoundSection> found = DesignationSearch(programFolder).Find(typed, 1);
    if (found.empty() || !found[0].Whole || found[0].Place.Family == family)
        return {};
    return found[0].Name + " is in the list of " +
           std::string{Family_At(found[0].Place.Family).Name};
}

} // namespace Tensarix
