#include "common/NewFile.h"

#include <system_error>

#ifdef _WIN32
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <thread>
#include <vector>

#include <windows.h>
// It needs the one above.
#include <fcntl.h>
#include <io.h>
#else
#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace Tensarix {

namespace fs = std::filesystem;

#ifdef _WIN32

namespace {

constexpr int tries = 50;
constexpr std::chrono::milliseconds betweenTries{10};

// What the system is told of a new name, in the shape that it wants.
std::vector<char> Renaming(const std::wstring& name) {
    const std::size_t bytes = name.size() * sizeof(wchar_t);
    std::vector<char> room(sizeof(FILE_RENAME_INFO) + bytes); // its end has a zero
    FILE_RENAME_INFO renaming{};
    renaming.ReplaceIfExists = TRUE;
    renaming.FileNameLength = static_cast<DWORD>(bytes);
    std::memcpy(room.data(), &renaming, sizeof renaming);
    std::memcpy(room.data() + offsetof(FILE_RENAME_INFO, FileName), name.data(), bytes);
    return room;
}

} // namespace

// No other program opens, renames or deletes it meanwhile.
OpenFile Make_New_File(const fs::path& path, std::optional<fs::perms>) {
    const HANDLE handle = CreateFileW(path.c_str(), GENERIC_WRITE | DELETE, 0, nullptr, CREATE_NEW,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return nullptr;
    const int file = _open_osfhandle(reinterpret_cast<std::intptr_t>(handle), _O_BINARY);
    return OpenFile{file < 0 ? nullptr : _fdopen(file, "wb")};
}

bool Put_On_Disk(std::FILE* file) {
    return std::fflush(file) == 0 && _commit(_fileno(file)) == 0;
}

bool Give_Name(OpenFile file, const fs::path&, const fs::path& name) {
    std::error_code error;
    std::vector<char> renaming = Renaming(fs::absolute(name, error).native());
    const auto handle = reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(file.get())));
    for (int i = 0; i < tries; ++i) {
        if (SetFileInformationByHandle(handle, FileRenameInfo, renaming.data(),
                                       static_cast<DWORD>(renaming.size())))
            return true;
        std::this_thread::sleep_for(
            betweenTries); // whoever reads the old one holds it for a moment
    }
    return false;
}

void Remove_If_Left(const fs::path& path) {
    std::error_code error;
    if (fs::is_regular_file(fs::symlink_status(path, error)))
        fs::remove(path, error); // fails while a program has it open
}

#else

namespace {

// Whoever takes away what was left may hold it just then, or has taken its name already.
bool Hold(int file) {
    struct stat found {};
    const bool taken = flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    return !taken && fstat(file, &found) == 0 && found.st_nlink > 0; // some disks know no locks
}

} // namespace

OpenFile Make_New_File(const fs::path& path, std::optional<fs::perms> permissions) {
    const auto mode = static_cast<mode_t>(permissions.value_or(fs::perms(0666)) & fs::perms::all);
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode);
    if (file < 0)
        return nullptr;
    if (permissions)
        fchmod(file, mode); // what the user's mask has taken; some disks know no permissions
    OpenFile made{Hold(file) ? fdopen(file, "wb") : nullptr};
    if (!made)
        close(file);
    return made;
}

bool Put_On_Disk(std::FILE* file) {
    return std::fflush(file) == 0 && fsync(fileno(file)) == 0;
}

// It is held until it has its name, and is no left-over then.
bool Give_Name(OpenFile, const fs::path& path, const fs::path& name) {
    std::error_code error;
    fs::rename(path, name, error);
    return !error;
}

void Remove_If_Left(const fs::path& path) {
    const int file = open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file < 0)
        return;
    struct stat found {};
    if (fstat(file, &found) == 0 && S_ISREG(found.st_mode) && found.st_uid == geteuid() &&
        flock(file, LOCK_EX | LOCK_NB) == 0)
        unlink(path.c_str());
    close(file);
}

#endif

} // namespace Tensarix
