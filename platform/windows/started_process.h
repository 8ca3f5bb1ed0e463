// platform/windows/started_process.h
//
// A program started on its own, with a normal window.

#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/error.h"

namespace lv {

/// `line` is the whole command line, the program's name included; `flags` are those of the system's call. The
/// environment is this program's own with what is set there; an empty value removes a variable. The error names the
/// program: 53 if it is not there.
Error StartProcess(const std::wstring& program, std::wstring line, const std::wstring& directory, unsigned long flags,
                   const std::vector<std::pair<std::wstring, std::wstring>>& environment = {});

/// The number of the program's own list, and the system's words.
Error StartError(unsigned long failed, const std::string& about);

}  // namespace lv
