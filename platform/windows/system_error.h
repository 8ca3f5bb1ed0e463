// platform/windows/system_error.h
//
// The system's error numbers as the program's.

#pragma once

#include "platform/error.h"

namespace lv {

/// The error for a number of GetLastError; 0 is none. A number that is not known here is 75.
Error ErrorOfSystem(unsigned long number);

/// As ErrorOfSystem, for what was done to a directory: one that is not there is 76, one that may not be touched 75.
Error ErrorOfDirectory(unsigned long number);

/// The system's own words for the number, without the line end.
std::string SystemText(unsigned long number);

}  // namespace lv
