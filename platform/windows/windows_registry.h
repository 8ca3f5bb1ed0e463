// platform/windows/windows_registry.h
//
// Other programs' values in this user's part of the registry.

#pragma once

#include "platform/user_registry.h"

namespace lv {

class WindowsRegistry : public UserRegistry {
  public:
    Result<RegistryValue> Query(std::string_view path, std::string_view name) override;
    Error Set(std::string_view path, std::string_view name, const RegistryValue& value) override;
};

}  // namespace lv
