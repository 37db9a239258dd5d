#pragma once

#include <QString>

#include <memory>

namespace Tensarix {

// A file that one process holds. The system itself takes it back when that process ends, however it
// ends; what stands in the file, and how old it is, never counts.
class ProcessLock {
  public:
    explicit ProcessLock(const QString& path);
    ~ProcessLock();
    ProcessLock(const ProcessLock&) = delete;
    // False: another process holds it. Where no lock can be kept it is true.
    bool Take();

  private:
    struct Held;
    std::unique_ptr<Held> held_;
};

} // namespace Tensarix
