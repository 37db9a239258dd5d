// The gate: which room may include which, and where the toolkit may be.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace {

// From the ground up; rooms of one floor don't know each other.
const std::map<std::string, int> floors{
    {"common", 0},     {"controls", 1}, {"platform", 2}, {"measures", 3},    {"speech", 4},
    {"desk", 5},       {"sections", 6}, {"beam", 7},     {"connections", 7}, {"weights", 7},
    {"calculator", 7}, {"shell", 8},    {"window", 9},
};

struct Include {
    fs::path File;
    std::string Room;   // of the file
    std::string Target; // what is included
    bool System;        // with angle brackets
};

// Calls take(file, room, line) for every line of the sources.
template <typename Take>
void For_Lines(Take&& take) {
    const fs::path source = fs::path(TENSARIX_SOURCE_DIR) / "src";
    for (const auto& entry : fs::recursive_directory_iterator(source)) {
        const std::string extension = entry.path().extension().string();
        if (extension != ".h" && extension != ".cpp")
            continue;
        std::ifstream file(entry.path());
        const std::string room = fs::relative(entry.path(), source).begin()->string();
        for (std::string line; std::getline(file, line);)
            take(entry.path(), room, line);
    }
}

std::vector<Include> All_Includes() {
    const std::regex pattern(R"(^\s*#\s*include\s*([<"])([^>"]+)[>"])");
    std::vector<Include> all;
    std::smatch match;
    For_Lines([&](const fs::path& file, const std::string& room, const std::string& line) {
        if (std::regex_search(line, match, pattern))
            all.push_back({file, room, match[2], match[1] == "<"});
    });
    return all;
}

bool Is_Toolkit(const Include& include) {
    return include.Target.starts_with("Qt") ||
           (include.System && std::regex_match(include.Target, std::regex("Q[A-Z]\\w*")));
}

} // namespace

TEST(House, TheToolkitLivesInTheWindowRoomAlone) {
    int toolkit = 0;
    for (const Include& include : All_Includes()) {
        toolkit += Is_Toolkit(include) ? 1 : 0;
        EXPECT_FALSE(Is_Toolkit(include) && include.Room != "window")
            << include.File << " includes " << include.Target;
    }
    EXPECT_GT(toolkit, 0); // the gate sees includes at all
}

TEST(House, ARoomIncludesOnlyRoomsBelowIt) {
    for (const Include& include : All_Includes()) {
        ASSERT_TRUE(floors.contains(include.Room)) << include.File << ": a room without a floor";
        const std::string room = include.Target.substr(0, include.Target.find('/'));
        if (include.System || room == include.Target || room == include.Room)
            continue;
        ASSERT_TRUE(floors.contains(room)) << include.File << " includes " << include.Target;
        EXPECT_LT(floors.at(room), floors.at(include.Room))
            << include.File << " includes " << include.Target;
    }
}

// A number reads and shows the same under every locale.
TEST(House, NoRoomAsksTheLocale) {
    const std::regex asks(R"(\b(\w*printf|strto[df]|sto[df]|ato[fi]|\w*stringstream|)"
                          R"(to(upper|lower)|is(digit|space|alpha|alnum|punct)|locale)\b)");
    For_Lines([&](const fs::path& file, const std::string& room, const std::string& line) {
        EXPECT_FALSE(room != "window" && std::regex_search(line.substr(0, line.find("//")), asks))
            << file << ": " << line;
    });
}

// A wrong include must not build either: every room sees its own folder alone.
TEST(House, EveryRoomIsDeclaredWithItsFloor) {
    std::ifstream file(fs::path(TENSARIX_SOURCE_DIR) / "CMakeLists.txt");
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    for (const auto& [room, floor] : floors) {
        const std::regex declared("tensarix_room\\(" + room + "\\b");
        EXPECT_TRUE(room == "window" || std::regex_search(text, declared)) << room;
    }
}
