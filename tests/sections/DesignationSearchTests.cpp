#include "Walk.h"
#include "sections/DesignationSearch.h"

#include "PlainStore.h"
#include "common/NumberText.h"
#include "sections/FamilyTable.h"

#include <algorithm>
#include <regex>
#include <set>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

struct PlainName {
    std::string Text;
    SectionPlace Place;
    Profile Units;
};

// Both names of all sections, as the size lists have them.
const std::vector<PlainName>& All_Names() {
    static const std::vector<PlainName> names = [] {
        std::vector<PlainName> all;
        for (int family = 0; family < static_cast<int>(allFamilies.size()); ++family) {
            ComboBox us, si;
            FillSizeLists(us, si, Family_At(family).Type, TENSARIX_PROGRAM_DIR);
            for (int i = 0; i < us.Count(); ++i) {
                all.push_back({us.Item(i), {family, i}, Profile::US});
                all.push_back({si.Item(i), {family, i}, Profile::SI});
            }
        }
        return all;
    }();
    return names;
}

const DesignationSearch& The_Search() {
    static const DesignationSearch search(TENSARIX_PROGRAM_DIR);
    return search;
}

// Each number in the text as it is computed: 1-1/8 gives 1.125, .500 gives 0.5.
std::string With_Decimals(const std::string& text) {
    static const std::regex number(R"((?:(\d+)-)?(\d+)/(\d+)|\d*\.\d+|\d+)");
    std::string result;
    std::size_t at = 0;
    for (std::sregex_iterator i(text.begin(), text.end(), number), end; i != end; ++i) {
        const std::smatch& found = *i;
        result += text.substr(at, static_cast<std::size_t>(found.position()) - at);
        double value = found[3].matched ? std::stod(found[2]) / std::stod(found[3]) +
                                              (found[1].matched ? std::stod(found[1]) : 0)
                                        : std::stod(found.str());
        result += General_Text(value);
        at = static_cast<std::size_t>(found.position() + found.length());
    }
    return result + text.substr(at);
}

// Whether the text stands in the name where it begins or a number or word in it does. ends: the
// number at its end is complete.
bool Stands_In(const std::string& name, const std::string& text, bool ends) {
    for (std::size_t at = name.find(text); at != std::string::npos; at = name.find(text, at + 1)) {
        const auto digit = [&name](std::size_t i) {
            return i < name.size() && (std::isdigit(name[i]) != 0 || name[i] == '.');
        };
        const bool inside =
            at > 0 &&
            (std::string_view{"-/"}.find(name[at - 1]) != std::string_view::npos ||
             digit(at) == digit(at - 1) || name[at] == 'X' || (!digit(at) && !digit(at - 1)));
        if (!inside && !(ends && digit(at + text.size())))
            return true;
    }
    return false;
}

using Places = std::set<std::pair<int, int>>;

Places Scan(const std::string& typed) {
    static const std::vector<std::pair<std::string, std::string>> names = [] {
        std::vector<std::pair<std::string, std::string>> forms;
        for (const PlainName& name : All_Names())
            forms.emplace_back(Upper(name.Text), With_Decimals(Upper(name.Text)));
        return forms;
    }();
    const bool zeros = std::regex_search(typed, std::regex(R"(\.\d*0$)"));
    const std::string decimals = With_Decimals(typed);
    Places places;
    for (std::size_t i = 0; i < names.size(); ++i)
        if (Stands_In(names[i].first, typed, false) || Stands_In(names[i].second, decimals, zeros))
            places.emplace(All_Names()[i].Place.Family, All_Names()[i].Place.Position);
    return places;
}

Places Found_Places(const std::string& typed) {
    Places places;
    for (const FoundSection& found : The_Search().Find(typed, 10'000))
        EXPECT_TRUE(places.emplace(found.Place.Family, found.Place.Position).second) << typed;
    return places;
}

} // namespace

// However it is written, the first that is found for a name in full is the section of that name.
TEST(DesignationSearchTest, EveryNameInFull) {
    ASSERT_EQ(All_Names().size(), 3946u);
    const std::regex letter("([A-Z])");
    for (std::size_t i = 0; i < All_Names().size(); i += Tests::walkStep) {
        const PlainName& name = All_Names()[i];
        const std::string spaced = std::regex_replace(Upper(name.Text), letter, " $1 ");
        for (const std::string& typed :
             {name.Text, Upper(name.Text), spaced, With_Decimals(Upper(name.Text))}) {
            const auto found = The_Search().Find(typed, 3);
            ASSERT_FALSE(found.empty()) << typed;
            ASSERT_EQ(found[0].Place, name.Place) << typed << " finds " << found[0].Name;
            ASSERT_EQ(found[0].Name, name.Text);
            ASSERT_EQ(found[0].Units, name.Units);
            ASSERT_TRUE(found[0].Whole) << typed;
        }
    }
}

// A thousand beginnings, and as many pieces from the first number on, against a plain scan.
TEST(DesignationSearchTest, ShortenedNamesAgainstAScan) {
    const auto& names = All_Names();
    int compared = 0;
    for (std::size_t i = 0; compared < 1000; i += 7) {
        const std::string name = Upper(names[i % names.size()].Text);
        const std::string typed = name.substr(0, 2 + i % (name.size() - 1));
        if (typed.ends_with('.') || typed.ends_with("-")) // between two numbers
            continue;
        ++compared;
        ASSERT_EQ(Found_Places(typed), Scan(typed)) << typed;
        const std::size_t number = typed.find_first_of("0123456789", 1);
        if (number == std::string::npos)
            continue;
        ASSERT_EQ(Found_Places(typed.substr(number)), Scan(typed.substr(number))) << typed;
    }
}

TEST(DesignationSearchTest, TheBestFirst) {
    const std::pair<const char*, std::vector<std::string>> cases[] = {
        // clang-format off
        {"w18x5", {"W18x55", "W18x50"}}, {"w4", {"W4x13", "W44x335"}}, // the whole number first
        {"hss8x8", {"HSS8x8x5/8", "HSS8x8x1/2"}}, {"w460", {"W460x464"}},
        {"2l4x4", {"2L4x4x3/4"}},
        {"l4x4x1/2", {"L4x4x1/2", "2L4x4x1/2"}}, // before the pairs of the same angle
        {"pipe8", {"Pipe8STD", "Pipe8XS"}}, {"18x50", {"W18x50"}},
        {"hss 8 X 8 x .5", {"HSS8x8x1/2"}}, {"hss8*8*0.500", {"HSS8x8x1/2"}},
        {"HSS8x8 1/2", {"HSS8x8x1/2"}}, {"l8x8x1 1/8", {"L8x8x1-1/8"}},
        {"hss20.000x.5", {"HSS20.000x0.500"}}, {"w8x1/", {}}, {"w18x999", {}}, {"   ", {}},
        // clang-format on
    };
    for (const auto& [typed, names] : cases) {
        const auto found = The_Search().Find(typed, 50);
        ASSERT_GE(found.size(), names.size()) << typed;
        EXPECT_TRUE(!names.empty() || found.empty()) << typed;
        for (std::size_t i = 0; i < names.size(); ++i)
            EXPECT_EQ(found[i].Name, names[i]) << typed;
    }
}

TEST(DesignationSearchTest, WhatStandsBesideAName) {
    const FoundSection us = The_Search().Find("w18x50", 1)[0];
    EXPECT_EQ(us.OtherName + "|" + us.WeightText + "|" + us.DepthText,
              "W460x74|50.00 lb/ft|18.00 in.");
    const FoundSection si = The_Search().Find("hss508x304.8x15.9", 1)[0];
    EXPECT_EQ(si.OtherName + "|" + si.WeightText.substr(si.WeightText.size() - 4) + "|" +
                  si.DepthText,
              "HSS20x12x5/8|kg/m|508.00 mm");
    EXPECT_EQ(Other_Family_Note("hss8x8x.5", 9, TENSARIX_PROGRAM_DIR),
              "HSS8x8x1/2 is in the list of Square HSS");
    EXPECT_EQ(Other_Family_Note("HSS8x8x1/2", 10, TENSARIX_PROGRAM_DIR), "");
    EXPECT_EQ(Other_Family_Note("w18x5", 1, TENSARIX_PROGRAM_DIR), ""); // not a whole name
    EXPECT_EQ(DesignationSearch("/nowhere").Find("w18x50", 1).size(), 0u);
}
