// tests/support/windows/empty_key.h
//
// A part of the registry that a test has for itself.

#pragma once

#include <string>
#include <utility>

#include "platform/windows/system.h"

namespace lv {

/// A key below HKEY_CURRENT_USER, gone when this is made and when it goes.
class EmptyKey {
  public:
    explicit EmptyKey(std::wstring path) : path_(std::move(path)) { RegDeleteTreeW(HKEY_CURRENT_USER, path_.c_str()); }
    ~EmptyKey() { RegDeleteTreeW(HKEY_CURRENT_USER, path_.c_str()); }
    EmptyKey(const EmptyKey&) = delete;
    EmptyKey& operator=(const EmptyKey&) = delete;

  private:
    std::wstring path_;
};

}  // namespace lv
