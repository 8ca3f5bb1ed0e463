// platform/windows/shell_link.h
//
// The bytes of a shell link, a ".lnk" file, and what one says.

#pragma once

#include <optional>
#include <string>

#include "platform/error.h"

namespace lv {

struct LinkFacts {
    std::wstring Program;
    std::wstring Arguments;  // one line
    std::wstring Description;
    std::wstring Icon;  // a file; empty: the program's own
};

/// Error 57 if the system's shell does not make it, with its number.
Result<std::string> BytesOfShellLink(const LinkFacts& link);

/// Nothing for a file that is no such link, or larger than 64 KB. Nothing is looked up: the program may be gone.
std::optional<LinkFacts> ReadShellLink(const std::wstring& path);

}  // namespace lv
