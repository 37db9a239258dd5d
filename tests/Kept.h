// A long text against the one that is kept in tests/kept, line by line. The text as it is now is
// written beside the build, to be read and kept where the change was meant.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace Tensarix::Tests {

inline void Expect_As_Kept(const std::string& name, const std::string& text) {
    namespace fs = std::filesystem;
    std::ifstream kept(fs::path{TENSARIX_SOURCE_DIR} / "tests/kept" / name);
    std::istringstream now(text);
    std::string before, line;
    int number = 0, different = 0;
    while (true) {
        const bool more = static_cast<bool>(std::getline(kept, before));
        const bool moreNow = static_cast<bool>(std::getline(now, line));
        if ((!more && !moreNow) || different == 10)
            break;
        ++number;
        if (more == moreNow && before == line)
            continue;
        ++different;
        ADD_FAILURE() << name << " line " << number << "\n kept: " << (more ? before : "(end)")
                      << "\n  now: " << (moreNow ? line : "(end)");
    }
    if (different == 0)
        return;
    const fs::path beside = fs::path{TENSARIX_PROGRAM_DIR}.parent_path() / "kept";
    fs::create_directories(beside);
    std::ofstream(beside / name) << text;
}

} // namespace Tensarix::Tests
