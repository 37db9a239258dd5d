// A folder of its own for a test.
#pragma once

#include <filesystem>
#include <random>
#include <string>
#include <system_error>

namespace Tensarix::Tests {

// Gone with the object, whatever became of its permissions. Its name is not of ASCII alone.
struct FreshFolder {
    FreshFolder() {
        std::random_device random;
        do
            Path =
                std::filesystem::temp_directory_path() /
                (u8"tensarix \u00FC" + std::filesystem::path(std::to_string(random())).u8string());
        while (!std::filesystem::create_directory(Path));
    }
    ~FreshFolder() {
        std::error_code ignored;
        std::filesystem::permissions(Path, std::filesystem::perms::owner_all, ignored);
        std::filesystem::remove_all(Path, ignored);
    }
    FreshFolder(const FreshFolder&) = delete;

    std::filesystem::path Path;
};

} // namespace Tensarix::Tests
