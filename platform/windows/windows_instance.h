// platform/windows/windows_instance.h
//
// The single instance on Windows: a top window of the program's caption.

#pragma once

#include <string>
#include <string_view>

#include "platform/single_instance.h"
#include "platform/windows/request_pipe.h"

namespace lv {

class WindowsInstance : public SingleInstance {
  public:
    /// `caption`, in code page 1252, is what the main window is called.
    explicit WindowsInstance(std::string_view caption);
    ~WindowsInstance() override;
    WindowsInstance(const WindowsInstance&) = delete;
    WindowsInstance& operator=(const WindowsInstance&) = delete;

    /// A window of that caption, of whatever program but this one, is brought forward as it is told: out of its icon,
    /// shown, on top, with the keys. An instance that has no window yet is waited for, at most ten seconds.
    bool Claim() override;

    Asked Ask(std::string_view request, int patienceMs) override;

    /// Answers one who has asked.
    void Serve() { pipe_.Serve(OnRequest); }

  private:
    std::wstring caption_;
    RequestPipe pipe_;
    void* mutex_ = nullptr;  // held by the one that runs; the system gives it up with its process
};

}  // namespace lv
