// What holds for the sources of every room and no compiler checks.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <string>

namespace fs = std::filesystem;

namespace {

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

} // namespace

// A number reads and shows the same under every locale.
TEST(House, NoRoomAsksTheLocale) {
    const std::regex asks(R"(\b(\w*printf|strto[df]|sto[df]|ato[fi]|\w*stringstream|)"
                          R"(to(upper|lower)|is(digit|space|alpha|alnum|punct)|locale)\b)");
    For_Lines([&](const fs::path& file, const std::string& room, const std::string& line) {
        EXPECT_FALSE(room != "window" && std::regex_search(line.substr(0, line.find("//")), asks))
            << file << ": " << line;
    });
}
