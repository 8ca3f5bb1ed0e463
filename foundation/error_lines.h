// foundation/error_lines.h
//
// An error as the boxes show it.

#pragma once

#include "foundation/text.h"
#include "platform/error.h"

namespace lv {

/// "Error Number = 53" and "Error String = File not found", a line each, without a line end behind them. The code of an
/// error report, where there is one, is a line "Error Code = EC00205" between them.
Text ErrorLines(const Error& failed, TextView code = {});

}  // namespace lv
