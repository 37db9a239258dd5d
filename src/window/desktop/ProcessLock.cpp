#include "window/desktop/ProcessLock.h"

#ifndef _WIN32
#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#else
#include <windows.h>
#endif

namespace Tensarix {

#ifndef _WIN32

struct ProcessLock::Held {
    int File;

    explicit Held(const QString& path)
        : File(open(QFile::encodeName(path).constData(),
                    O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600)) {}
    Held(const Held&) = delete;
    ~Held() {
        if (File >= 0)
            close(File);
    }
    bool Take() const {
        return !Is_Own() || flock(File, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
    }
    // What another user has put there locks nobody out.
    bool Is_Own() const {
        struct stat found {};
        return File >= 0 && fstat(File, &found) == 0 && found.st_uid == geteuid();
    }
};

#else

// The system lets one process open the file.
struct ProcessLock::Held {
    QString Path;
    HANDLE File = INVALID_HANDLE_VALUE;

    explicit Held(const QString& path) : Path(path) {}
    Held(const Held&) = delete;
    ~Held() {
        if (File != INVALID_HANDLE_VALUE)
            CloseHandle(File);
    }
    bool Take() {
        if (File == INVALID_HANDLE_VALUE)
            File = CreateFileW(reinterpret_cast<LPCWSTR>(Path.utf16()), GENERIC_WRITE, 0, nullptr,
                               OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
        return File != INVALID_HANDLE_VALUE || GetLastError() != ERROR_SHARING_VIOLATION;
    }
};

#endif

ProcessLock::ProcessLock(const QString& path) : held_(std::make_unique<Held>(path)) {}

ProcessLock::~ProcessLock() = default;

bool ProcessLock::Take() {
    return held_->Take();
}

} // namespace Tensarix
