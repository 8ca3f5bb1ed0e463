// platform/windows/started_process.h
//
// A program started on its own, with a normal window, and how long it ran.

#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/error.h"

namespace lv {

/// One that was started, or none. Letting go of it ends nothing.
class StartedProcess {
  public:
    StartedProcess() = default;
    /// `process` is the system's handle, which is closed with this.
    explicit StartedProcess(void* process) : process_(process) {}
    ~StartedProcess() { Forget(); }
    StartedProcess(const StartedProcess&) = delete;
    StartedProcess& operator=(const StartedProcess&) = delete;
    StartedProcess(StartedProcess&& other) noexcept : process_(std::exchange(other.process_, nullptr)) {}
    StartedProcess& operator=(StartedProcess&& other) noexcept {
        std::swap(process_, other.process_);
        return *this;
    }

    [[nodiscard]] bool IsKnown() const { return process_ != nullptr; }
    /// Seconds from its start to its end; nothing before its end.
    [[nodiscard]] std::optional<double> Lasted() const;
    void Forget();

  private:
    void* process_ = nullptr;
};

/// `line` is the whole command line, the program's name included; `flags` are those of the system's call. The
/// environment is this program's own with what is set there; an empty value removes a variable. The error names the
/// program: 53 if it is not there.
Result<StartedProcess> StartProcess(const std::wstring& program, std::wstring line, const std::wstring& directory,
                                    unsigned long flags,
                                    const std::vector<std::pair<std::wstring, std::wstring>>& environment = {});

/// The number of the program's own list, and the system's words.
Error StartError(unsigned long failed, const std::string& about);

}  // namespace lv
