// A folder of its own for a test.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>

namespace Tensarix::Tests {

// Gone with the object, whatever became of its permissions.
class FreshFolder {
  public:
    FreshFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "tensarix-XXXXXX").string();
        if (!mkdtemp(name.data()))
            throw std::runtime_error("no temporary folder");
        Path = name;
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
