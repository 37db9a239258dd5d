#include "window/desktop/ProcessLock.h"

#ifndef _WIN32
#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#else
#include <QLockFile>
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

#else // the system keeps the file open for one process

struct ProcessLock::Held {
    QLockFile File;

    explicit Held(const QString& path) : File(path) { File.setStaleLockTime(0); }
    bool Take() {
        return File.isLocked() || File.tryLock() || File.error() != QLockFile::LockFailedError;
    }
};

#endif

ProcessLock::ProcessLock(const QString& path) : held_(std::make_unique<Held>(path)) {}

ProcessLock::~ProcessLock() = default;

bool ProcessLock::Take() {
    return held_->Take();
}

} // namespace Tensarix
