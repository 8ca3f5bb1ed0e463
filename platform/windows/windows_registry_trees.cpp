#include "platform/windows/windows_registry_trees.h"

#include "platform/windows/registry_key.h"
#include "platform/windows/said_path.h"
#include "platform/windows/system_error.h"
#include "platform/windows/wide_text.h"

namespace lv {

namespace {

constexpr DWORD kLongestPath = 32768;

// The registry's own numbers, as UserRegistry has them.
Error RegistryError(LSTATUS status) {
    return status == ERROR_SUCCESS ? Error()
                                   : Error{static_cast<int>(status), SystemText(static_cast<unsigned long>(status))};
}

class OpenKey {
  public:
    OpenKey() = default;
    ~OpenKey() {
        if (Key != nullptr) {
            RegCloseKey(Key);
        }
    }
    OpenKey(const OpenKey&) = delete;
    OpenKey& operator=(const OpenKey&) = delete;

    HKEY Key = nullptr;
};

}  // namespace

bool WindowsRegistryTrees::Has(std::string_view path) {
    RegistryKeyHandle key;
    return key.Open(ToWide(path), KEY_QUERY_VALUE) == ERROR_SUCCESS;
}

Error WindowsRegistryTrees::Copy(std::string_view from, std::string_view to) {
    if (Error failed = Remove(to)) {
        return failed;
    }
    OpenKey made;
    const LSTATUS status = RegCreateKeyExW(HKEY_CURRENT_USER, ToWide(to).c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                                           KEY_ALL_ACCESS, nullptr, &made.Key, nullptr);
    return RegistryError(status != ERROR_SUCCESS ? status
                                                 : RegCopyTreeW(HKEY_CURRENT_USER, ToWide(from).c_str(), made.Key));
}

Error WindowsRegistryTrees::Remove(std::string_view path) {
    const LSTATUS status = RegDeleteTreeW(HKEY_CURRENT_USER, ToWide(path).c_str());
    return status == ERROR_FILE_NOT_FOUND ? Error() : RegistryError(status);
}

std::string WindowsRegistryTrees::ProgramFile() {
    std::wstring path(kLongestPath, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), kLongestPath));
    return PathInCodePage(path).value_or("");
}

}  // namespace lv
