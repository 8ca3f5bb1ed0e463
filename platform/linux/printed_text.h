// platform/linux/printed_text.h
//
// Output of the program to whoever started it.

#pragma once

#include <string_view>

#include "platform/error.h"
#include "platform/printed_to.h"

namespace lv {

/// To be called first: a standard file that is closed is held open, and takes nothing. The next file that is opened,
/// the settings say, would get its number, and with it all that is printed.
void HoldStandardFiles();

/// Code page 1252, as UTF-8. The error says why some of it was lost.
Error Print(PrintedTo where, std::string_view text);

}  // namespace lv
