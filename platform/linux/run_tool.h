// platform/linux/run_tool.h
//
// Small programs of the host that do one thing and end: run without a shell, unseen, and waited for.

#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "platform/error.h"

namespace lv {

struct Tool {
    std::filesystem::path Program;
    std::vector<std::string> Arguments;    // without the program's own name
    std::filesystem::path Directory;       // it starts there
    std::vector<std::string> Environment;  // "NAME=value", over what this program has
    std::chrono::milliseconds Patience;    // then it and its process group are killed
    bool MayStay = false;                  // no: then it is left to itself, and its exit status counts as 0
};

/// Runs it to its end, with nothing to read and its output thrown away. The exit status, 128 and the signal's number
/// if it was killed. Errors: 53 it cannot be started, 57 it did not end in time.
Result<int> RunTool(const Tool& tool);

/// The program of this name on PATH; empty if there is none.
std::filesystem::path ProgramOnPath(std::string_view name);

}  // namespace lv
