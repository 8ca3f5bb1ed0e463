#include "platform/windows/windows_registry.h"

#include "platform/windows/registry_key.h"
#include "platform/windows/system_error.h"
#include "platform/windows/wide_text.h"

namespace lv {

namespace {

constexpr REGSAM kAllAccess = 63;

// The registry's own numbers, which the callers know.
Error RegistryError(LSTATUS status) {
    if (status == ERROR_SUCCESS) {
        return {};
    }
    return {static_cast<int>(status), SystemText(static_cast<unsigned long>(status))};
}

}  // namespace

Result<RegistryValue> WindowsRegistry::Query(std::string_view path, std::string_view name) {
    RegistryKeyHandle key;
    RawRegistryValue raw;
    LSTATUS status = key.Open(ToWide(path), kAllAccess);
    if (status == ERROR_ACCESS_DENIED) {
        status = key.Open(ToWide(path), KEY_QUERY_VALUE);  // what may not be written may still be read
    }
    if (status == ERROR_SUCCESS) {
        status = key.Query(ToWide(name), raw);
    }
    if (status != ERROR_SUCCESS) {
        return RegistryError(status);
    }
    return RegistryValue{raw.Type, FromWideLossy(raw.Text), raw.Number};
}

Error WindowsRegistry::Set(std::string_view path, std::string_view name, const RegistryValue& value) {
    if (value.Type != kRegistryText && value.Type != kRegistryNumber) {
        return RegistryError(ERROR_ACCESS_DENIED);
    }
    RegistryKeyHandle key;
    if (const LSTATUS failed = key.OpenOrMake(ToWide(path), kAllAccess)) {
        return RegistryError(failed);
    }
    return RegistryError(value.Type == kRegistryNumber ? key.SetNumber(ToWide(name), value.Number)
                                                       : key.SetText(ToWide(name), ToWide(value.Text)));
}

}  // namespace lv
