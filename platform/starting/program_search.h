// platform/starting/program_search.h
//
// Finding the program that a command line names: blind to case in the game's directory, or by its path.

#pragma once

#include <string>
#include <string_view>

#include "platform/files.h"
#include "platform/starting/program_kind.h"

namespace lv {

struct FoundProgram {
    std::string Path;       // on the drives
    std::string Arguments;  // the rest of the command line, as it stands
};

/// The program at the head of `command`. In quotes it is what the quotes hold; otherwise the fewest words that name a
/// file, so that a name with blanks is found. ".exe", ".com" and ".bat" may be left off. Error 53 names the first word.
/// `program` is the file name at the head if that is known: no other is then taken for it.
Result<FoundProgram> FindProgram(Files& disk, std::string_view directory, std::string_view command,
                                 std::string_view program = "");

struct FoundGame {
    FoundProgram Program;         // what is looked at, and started if the host runs it itself
    bool WrapperMissing = false;  // the command is headed by the DOS network wrapper, and that is not there
    std::string Command;          // the command to run: without a wrapper that is not there
};

/// As FindProgram, but passes over "qlaunch quakeudp.dll" if no such program lies in the directory. That wrapper gave
/// a DOS game its network; with a DOS game and no wrapper the error is the wrapper's.
Result<FoundGame> FindGame(Files& disk, std::string_view directory, std::string_view command,
                           std::string_view program = "");

/// kUnknown if the file cannot be opened.
ProgramKind KindOfProgramAt(Files& disk, std::string_view path);

/// "C:\" and "A" give "C:\A"; a name that is a full path stays.
std::string JoinPath(std::string_view directory, std::string_view name);

}  // namespace lv
