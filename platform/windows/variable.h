// platform/windows/variable.h
//
// The variables of this program's environment.

#pragma once

#include <string>

namespace lv {

/// Empty if there is none.
std::wstring Variable(const wchar_t* name);

}  // namespace lv
