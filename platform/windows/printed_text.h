// platform/windows/printed_text.h
//
// Output of a program with windows: to the file or the pipe that it was given, else to the console that it was started
// from.

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/error.h"
#include "platform/printed_to.h"

namespace lv {

/// Code page 1252 with "\n"; UTF-8 in files and pipes. Where there is neither nothing is printed. The error says why
/// what was given has not taken all of it.
Error Print(PrintedTo where, std::string_view text);

/// The words behind the program's name, code page 1252; "?" for what has no form in it.
std::vector<std::string> WordsOfCommandLine();

}  // namespace lv
