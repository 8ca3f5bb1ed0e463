// platform/linux/files/errno_error.h
//
// The system's error numbers as the program's own.

#pragma once

#include "platform/error.h"

namespace lv {

/// The error for an `errno`; success for 0. A missing file is 53: who knows that its directory is missing says 76.
Error ErrorOf(int number);

}  // namespace lv
