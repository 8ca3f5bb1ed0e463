// tests/support/windows/scoped_variable.h

#pragma once

#include <string>

#include "platform/windows/system.h"

namespace lv {

/// A variable of the environment, for as long as this lives.
class ScopedVariable {
  public:
    ScopedVariable(const wchar_t* name, const wchar_t* value) : name_(name) {
        before_.resize(GetEnvironmentVariableW(name, nullptr, 0));
        before_.resize(GetEnvironmentVariableW(name, before_.data(), static_cast<DWORD>(before_.size())));
        SetEnvironmentVariableW(name, value);
    }
    ~ScopedVariable() { SetEnvironmentVariableW(name_, before_.empty() ? nullptr : before_.c_str()); }
    ScopedVariable(const ScopedVariable&) = delete;
    ScopedVariable& operator=(const ScopedVariable&) = delete;

  private:
    const wchar_t* name_;
    std::wstring before_;
};

}  // namespace lv
