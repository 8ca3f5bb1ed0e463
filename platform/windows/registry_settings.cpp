#include "platform/windows/registry_settings.h"

#include "platform/windows/registry_key.h"
#include "platform/windows/wide_text.h"

namespace lv {

namespace {

constexpr std::string_view kSettings = "Software\\VB and VBA Program Settings\\";

std::wstring PathOf(std::string_view application, std::string_view section) {
    return ToWide(std::string(kSettings) + std::string(application) + "\\" + std::string(section));
}

bool CannotBeNamed(std::string_view text) {
    return text.find('\0') != std::string_view::npos;
}

Error ErrorOfStore(LSTATUS status) {
    switch (status) {
        case ERROR_SUCCESS:
            return {};
        case ERROR_ACCESS_DENIED:
            return MakeError(error::kPermissionDenied);
        case ERROR_DISK_FULL:
        case ERROR_NO_SYSTEM_RESOURCES:
            return MakeError(error::kDiskFull);
        default:
            return MakeError(error::kDeviceFault);
    }
}

}  // namespace

std::optional<std::string> RegistrySettings::Read(std::string_view application, std::string_view section,
                                                  std::string_view key) {
    RegistryKeyHandle opened;
    RawRegistryValue value;
    if (CannotBeNamed(application) || CannotBeNamed(section) || CannotBeNamed(key) ||
        opened.Open(PathOf(application, section), KEY_QUERY_VALUE) != ERROR_SUCCESS ||
        opened.Query(ToWide(key), value) != ERROR_SUCCESS || value.Type != REG_SZ) {
        return std::nullopt;
    }
    return FromWideLossy(value.Text);
}

Error RegistrySettings::Write(std::string_view application, std::string_view section, std::string_view key,
                              std::string_view value) {
    if (CannotBeNamed(application) || CannotBeNamed(section) || CannotBeNamed(key)) {
        return MakeError(error::kDeviceFault);
    }
    RegistryKeyHandle opened;
    if (const LSTATUS failed = opened.OpenOrMake(PathOf(application, section), KEY_SET_VALUE)) {
        return ErrorOfStore(failed);
    }
    return ErrorOfStore(opened.SetText(ToWide(key), ToWide(value)));
}

}  // namespace lv
