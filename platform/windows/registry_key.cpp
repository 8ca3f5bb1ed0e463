#include "platform/windows/registry_key.h"

#include <cstring>
#include <string_view>

namespace lv {

namespace {

// The class that a new key is given, as the program has always named it.
constexpr wchar_t kNewClass[] = L"REG_SZ";

const BYTE* BytesOf(const void* data) {
    return static_cast<const BYTE*>(data);
}

}  // namespace

RegistryKeyHandle::~RegistryKeyHandle() {
    Close();
}

void RegistryKeyHandle::Close() {
    if (key_ != nullptr) {
        RegCloseKey(key_);
        key_ = nullptr;
    }
}

LSTATUS RegistryKeyHandle::Open(const std::wstring& path, REGSAM access) {
    Close();
    return RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, access, &key_);
}

LSTATUS RegistryKeyHandle::OpenOrMake(const std::wstring& path, REGSAM access) {
    const LSTATUS opened = Open(path, access);
    if (opened != ERROR_FILE_NOT_FOUND) {
        return opened;
    }
    std::wstring className = kNewClass;
    return RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, className.data(), REG_OPTION_NON_VOLATILE, access,
                           nullptr, &key_, nullptr);
}

LSTATUS RegistryKeyHandle::Query(const std::wstring& name, RawRegistryValue& value) const {
    DWORD size = 0;
    LSTATUS status = RegQueryValueExW(key_, name.c_str(), nullptr, &value.Type, nullptr, &size);
    std::wstring data;
    while (status == ERROR_SUCCESS || status == ERROR_MORE_DATA) {
        data.assign((size + sizeof(wchar_t) - 1) / sizeof(wchar_t), L'\0');
        status =
            RegQueryValueExW(key_, name.c_str(), nullptr, &value.Type, reinterpret_cast<BYTE*>(data.data()), &size);
        if (status == ERROR_SUCCESS) {
            break;  // otherwise somebody made it longer in the meantime
        }
    }
    if (status != ERROR_SUCCESS) {
        return status;
    }
    data.resize(size / sizeof(wchar_t));
    if (value.Type == REG_SZ) {
        if (data.ends_with(L'\0')) {
            data.pop_back();
        }
        value.Text = std::move(data);
    } else if (value.Type == REG_DWORD && size >= sizeof value.Number) {
        std::memcpy(&value.Number, data.data(), sizeof value.Number);
    }
    return ERROR_SUCCESS;
}

LSTATUS RegistryKeyHandle::SetText(const std::wstring& name, const std::wstring& text) const {
    const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    return RegSetValueExW(key_, name.c_str(), 0, REG_SZ, BytesOf(text.c_str()), size);
}

LSTATUS RegistryKeyHandle::SetNumber(const std::wstring& name, std::uint32_t number) const {
    return RegSetValueExW(key_, name.c_str(), 0, REG_DWORD, BytesOf(&number), sizeof number);
}

}  // namespace lv
