// platform/processes.h
//
// Starting other programs. A started program outlives this one, and nothing waits for it.

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/error.h"

namespace lv {

class Processes {
  public:
    virtual ~Processes() = default;

    /// Starts the batch file `name` in `directory`, with a normal window. The error of a program that cannot be
    /// started carries a text that says what to do.
    virtual Error StartBatch(std::string_view directory, std::string_view name) = 0;

    /// Starts a program by its path, or by its name alone when the system finds it there.
    virtual Error StartProgram(std::string_view program, const std::vector<std::string>& arguments) = 0;

    /// Shows a manual of the kind that Windows has a viewer of its own for, LV3D.hlp. Error 53 without that viewer.
    virtual Error StartHelpViewer(std::string_view) { return MakeError(error::kFileNotFound); }
};

}  // namespace lv
