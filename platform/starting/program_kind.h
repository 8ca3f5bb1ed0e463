// platform/starting/program_kind.h
//
// What runs a program file: told from its first bytes, and from its name where bytes say nothing.
// Formats: ELF, DOS MZ, Windows NE and PE, the DOS extenders' LE and LX, scripts that open with "#!".

#pragma once

#include <string_view>

#include "platform/files.h"

namespace lv {

enum class ProgramKind {
    kUnknown,
    kNative,     // ELF, or a script with "#!"; whether it may be run is another question
    kWindows,    // MZ with a PE header
    kWindows16,  // MZ with an NE header, for the Windows of 16 bits
    kDos,        // MZ without either; a .com file
    kBatch,      // a .bat or .cmd file
};

/// `name` may be a path. A file that cannot be read, or ends inside what it promises, is never more than its intact
/// part shows.
ProgramKind KindOfProgram(RandomAccessFile& file, std::string_view name);

}  // namespace lv
