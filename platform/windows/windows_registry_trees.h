// platform/windows/windows_registry_trees.h
//
// Whole keys of this user's part of the registry.

#pragma once

#include "platform/registry_trees.h"

namespace lv {

class WindowsRegistryTrees : public RegistryTrees {
  public:
    bool Has(std::string_view path) override;
    Error Copy(std::string_view from, std::string_view to) override;
    Error Remove(std::string_view path) override;
    /// Empty if it has no form in code page 1252, not even by short names.
    std::string ProgramFile() override;
};

}  // namespace lv
