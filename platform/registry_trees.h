// platform/registry_trees.h
//
// Whole keys of the user's part of the registry, with all that is in them, of whatever type. Paths as UserRegistry has
// them.

#pragma once

#include <string>
#include <string_view>

#include "platform/error.h"

namespace lv {

class RegistryTrees {
  public:
    virtual ~RegistryTrees() = default;

    virtual bool Has(std::string_view path) = 0;

    /// Makes `to` the same as `from`, which is there; what `to` was before goes. Neither lies in the other.
    virtual Error Copy(std::string_view from, std::string_view to) = 0;

    /// Fine if it is not there.
    virtual Error Remove(std::string_view path) = 0;

    /// The program's own file: its whole path; empty if that cannot be said in code page 1252.
    virtual std::string ProgramFile() = 0;
};

}  // namespace lv
