// platform/linux/child_process.h
//
// Starting a program of the host: forked twice and in a session of its own, so that it outlives this one, is nobody's
// zombie, and no terminal's signal reaches it. It reads from /dev/null, shares standard output and error with this
// program and no other open file, and has no signal blocked or ignored. Nothing passes through a shell: the program
// gets its arguments one by one. Whether it could be started is known when the call returns.

#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/error.h"

namespace lv {

/// The program that stands between this one and the started one, keeps what that prints, and notes how it ended.
struct HostWatch {
    std::string Helper;  // absolute path; empty: none
    std::string Output;  // the file for what is printed
    std::string End;     // the file for the end
    std::string Token;   // tells this start's end from those of others
};

/// All host text, UTF-8.
struct HostCommand {
    std::string Program;                   // absolute path
    std::vector<std::string> Arguments;    // behind the program's own path, which is always argument 0
    std::vector<std::string> Environment;  // "NAME=value", all of it
    std::string Directory;                 // empty: this program's
    std::string ReadOnce = {};             // a file that goes once the program has read it, or could not be started
    HostWatch Watch = {};                  // a helper that cannot be started is done without
};

/// 53 no such program, 70 not allowed, 76 no such directory, 75 no program of this machine; the text names what it was.
Error StartDetached(const HostCommand& command);

/// This program's environment as "NAME=value".
std::vector<std::string> OwnEnvironment();

/// Sets the variable, or removes it if `value` is empty.
void SetVariable(std::vector<std::string>& environment, std::string_view name, std::string_view value);

/// Its value; empty if it is not there.
std::string VariableIn(const std::vector<std::string>& environment, std::string_view name);

/// The file that a program name without a directory stands for, looked up as execvp does in `searchPath`
/// ("/usr/bin:/bin"); empty if there is none. Relative entries are passed over.
std::string FindOnPath(std::string_view searchPath, std::string_view name);

/// Whether this user may run the file.
bool MayRun(const std::string& hostPath);

}  // namespace lv
