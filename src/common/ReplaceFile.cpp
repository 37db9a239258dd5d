#include "common/ReplaceFile.h"

#include "common/NewFile.h"

#include <fstream>
#include <random>
#include <string>
#include <system_error>

namespace Tensarix {

namespace fs = std::filesystem;

namespace {

const fs::path ending = ".new";
constexpr int digits = 8, tries = 10;

fs::path Fresh_Name(const fs::path& target) {
    std::random_device random;
    std::string name{"."};
    for (int i = 0; i < digits; ++i)
        name += "0123456789abcdef"[random() % 16];
    fs::path fresh = target;
    fresh += name;
    return fresh += ending;
}

// In the system's own characters: not every name of a file is a text.
bool Is_Fresh_Name(const fs::path::string_type& name, const fs::path::string_type& begin) {
    const auto& end = ending.native();
    return name.size() == begin.size() + digits + end.size() && name.starts_with(begin) &&
           name.ends_with(end);
}

// What programs have left that were killed.
void Remove_Left_Over(const fs::path& target) {
    const fs::path begin = target.filename() += ".";
    std::error_code error;
    fs::directory_iterator entry(target.has_parent_path() ? target.parent_path() : ".", error);
    for (; !error && entry != fs::directory_iterator{}; entry.increment(error))
        if (Is_Fresh_Name(entry->path().filename().native(), begin.native()))
            Remove_If_Left(entry->path());
}

bool Write(std::FILE* file, const Bytes& bytes) {
    return (bytes.empty() || std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size()) &&
           Put_On_Disk(file);
}

} // namespace

std::optional<Bytes> Read_Whole_File(const fs::path& path, std::size_t limit) {
    std::error_code error;
    if (!fs::is_regular_file(path, error) || error)
        return std::nullopt;
    const auto size = fs::file_size(path, error);
    if (error || size > limit)
        return std::nullopt;
    Bytes bytes(size);
    std::ifstream file(path, std::ios::binary);
    file.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    if (!file)
        return std::nullopt;
    return bytes;
}

bool Replace_File(const fs::path& path, const Bytes& bytes) {
    std::error_code error;
    fs::path target = fs::canonical(path, error); // behind a link
    if (error)
        target = path;
    const fs::file_status old = fs::status(target, error);
    if (fs::exists(old) && !fs::is_regular_file(old))
        return false;
    const auto permissions = fs::exists(old) ? std::optional{old.permissions()} : std::nullopt;
    Remove_Left_Over(target);
    fs::path fresh;
    OpenFile file;
    for (int i = 0; !file && i < tries; ++i)
        file = Make_New_File(fresh = Fresh_Name(target), permissions);
    if (!file)
        return false;
    if (Write(file.get(), bytes) && Give_Name(std::move(file), fresh, target))
        return true;
    file.reset(); // an open one can't be removed everywhere
    fs::remove(fresh, error);
    return false;
}

} // namespace Tensarix
