// What holds for the sources of every room and no compiler checks.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>

namespace fs = std::filesystem;

// A number reads and shows the same under every locale, which the window alone may ask.
TEST(House, NoRoomAsksTheLocale) {
    const std::set<std::string> asking{"strtod",  "strtof",  "stod",    "stof",    "atof",
                                       "atoi",    "toupper", "tolower", "isdigit", "isspace",
                                       "isalpha", "isalnum", "ispunct", "locale"};
    const fs::path source = fs::path(TENSARIX_SOURCE_DIR) / "src";
    const auto isOther = [](unsigned char c) { return std::isalnum(c) == 0 && c != '_'; };
    int lines = 0;
    for (const auto& entry : fs::recursive_directory_iterator(source)) {
        const std::string extension = entry.path().extension().string();
        if ((extension != ".h" && extension != ".cpp") ||
            *fs::relative(entry.path(), source).begin() == "window")
            continue;
        std::ifstream file(entry.path());
        for (std::string line; std::getline(file, line); ++lines) {
            line.resize(std::min(line.find("//"), line.size()));
            std::replace_if(line.begin(), line.end(), isOther, ' ');
            std::istringstream words(line);
            for (std::string word; words >> word;)
                EXPECT_FALSE(asking.contains(word) || word.ends_with("printf") ||
                             word.ends_with("stringstream"))
                    << entry.path() << ": " << line;
        }
    }
    EXPECT_GT(lines, 10000);
}
