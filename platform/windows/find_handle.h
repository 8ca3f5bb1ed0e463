// platform/windows/find_handle.h
//
// A search for names in a directory.

#pragma once

#include <string>

#include "platform/windows/system.h"

namespace lv {

class FindHandle {
  public:
    /// FindExInfoBasic leaves out the short names, and is quicker for it.
    FindHandle(const std::wstring& pattern, WIN32_FIND_DATAW& first, FINDEX_INFO_LEVELS level)
        : handle_(FindFirstFileExW(pattern.c_str(), level, &first, FindExSearchNameMatch, nullptr,
                                   FIND_FIRST_EX_LARGE_FETCH)) {}
    ~FindHandle() {
        if (IsOpen()) {
            FindClose(handle_);
        }
    }
    FindHandle(const FindHandle&) = delete;
    FindHandle& operator=(const FindHandle&) = delete;

    [[nodiscard]] bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
    bool Next(WIN32_FIND_DATAW& next) { return FindNextFileW(handle_, &next) != 0; }

  private:
    HANDLE handle_;
};

}  // namespace lv
