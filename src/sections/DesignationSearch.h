// Finds sections by what a user types of their designation, over all families, in US and in SI
// names, as TypedName reads it.
#pragma once

#include "controls/TypedName.h"
#include "sections/PropertyTable.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace Tensarix {

// Where a section stands: its family's position in the family lists, and its own in the family's
// size lists.
struct SectionPlace {
    int Family = -1;
    int Position = -1;

    bool operator==(const SectionPlace&) const = default;
};

struct FoundSection {
    SectionPlace Place;
    Profile Units = Profile::US; // those of the name by which it was found
    std::string Name, OtherName; // in these units and in the others
    std::string WeightText;      // "50.00 lb/ft"
    std::string DepthText;       // "18.00 in."; empty where there is none
    bool Whole = false;          // the name was typed in full
};

class DesignationSearch {
  public:
    // Reads the names of all sections once. Without a store there is nothing to be found.
    explicit DesignationSearch(const std::filesystem::path& programFolder);

    // The sections that the text may mean, the best first, no more than so many. Names that begin
    // so come before those in which the first number does (18x50), and these before those in which
    // a later one does. Of each kind, a name typed in full is first, then those in which the last
    // number typed is complete, US names before SI ones; the rest stands in the Manual's order. A
    // section comes once. Nothing is found for a blank text.
    std::vector<FoundSection> Find(std::string_view typed, std::size_t most) const;

    std::size_t Count() const { return sections_.size(); }

  private:
    struct Section {
        SectionPlace Place;
        std::string Names[2], Weights[2], Depths[2]; // by profile
        NameKey Keys[2];
    };

    static FoundSection Found(const Section& section, Profile units, bool whole);

    std::vector<Section> sections_; // in the Manual's order
};

// What to tell of a text that no section of a family is named by: "HSS8x8x1/2 is in the list of
// Square HSS". Empty if it names none of another family either.
std::string Other_Family_Note(std::string_view typed, int family,
                              const std::filesystem::path& programFolder);

} // namespace Tensarix
