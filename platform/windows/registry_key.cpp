#include "platform/windows/registry_key.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace lv {

namespace {

// The class that a new key is given, as the program has always named it.
constexpr wchar_t kNewClass[] = L"REG_SZ";

constexpr std::size_t kLongestKey = 255;      // the name of one, by the system's own limit
constexpr std::size_t kLongestValue = 16383;  // the name of one, the same

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

LSTATUS RegistryKeyHandle::OpenMachine32(const std::wstring& path) {
    Close();
    return RegOpenKeyExW(HKEY_LOCAL_MACHINE, path.c_str(), 0, KEY_READ | KEY_WOW64_32KEY, &key_);
}

std::vector<std::wstring> RegistryKeyHandle::Keys(std::size_t most) const {
    std::vector<std::wstring> names;
    std::array<wchar_t, kLongestKey + 1> name{};
    auto size = static_cast<DWORD>(name.size());
    while (names.size() < most && RegEnumKeyExW(key_, static_cast<DWORD>(names.size()), name.data(), &size, nullptr,
                                                nullptr, nullptr, nullptr) == ERROR_SUCCESS) {
        names.emplace_back(name.data(), size);
        size = static_cast<DWORD>(name.size());
    }
    return names;
}

LSTATUS RegistryKeyHandle::AllKeys(std::vector<std::wstring>& names) const {
    std::vector<wchar_t> name(kLongestKey + 1);
    while (true) {
        auto size = static_cast<DWORD>(name.size());
        const LSTATUS status = RegEnumKeyExW(key_, static_cast<DWORD>(names.size()), name.data(), &size, nullptr,
                                             nullptr, nullptr, nullptr);
        if (status != ERROR_SUCCESS) {
            return status == ERROR_NO_MORE_ITEMS ? ERROR_SUCCESS : status;
        }
        names.emplace_back(name.data(), size);
    }
}

LSTATUS RegistryKeyHandle::AllValues(std::vector<std::wstring>& names) const {
    std::vector<wchar_t> name(kLongestValue + 1);
    while (true) {
        auto size = static_cast<DWORD>(name.size());
        const LSTATUS status = RegEnumValueW(key_, static_cast<DWORD>(names.size()), name.data(), &size, nullptr,
                                             nullptr, nullptr, nullptr);
        if (status != ERROR_SUCCESS) {
            return status == ERROR_NO_MORE_ITEMS ? ERROR_SUCCESS : status;
        }
        names.emplace_back(name.data(), size);
    }
}

LSTATUS RegistryKeyHandle::Query(const std::wstring& name, RawRegistryValue& value) const {
    std::string bytes;
    if (const LSTATUS failed = QueryBytes(name, value.Type, bytes)) {
        return failed;
    }
    if (value.Type == REG_SZ) {
        value.Text.assign(bytes.size() / sizeof(wchar_t), L'\0');
        std::memcpy(value.Text.data(), bytes.data(), value.Text.size() * sizeof(wchar_t));
        if (value.Text.ends_with(L'\0')) {
            value.Text.pop_back();
        }
    } else if (value.Type == REG_DWORD && bytes.size() >= sizeof value.Number) {
        std::memcpy(&value.Number, bytes.data(), sizeof value.Number);
    }
    return ERROR_SUCCESS;
}

LSTATUS RegistryKeyHandle::QueryBytes(const std::wstring& name, DWORD& type, std::string& bytes) const {
    DWORD size = 0;
    LSTATUS status = RegQueryValueExW(key_, name.c_str(), nullptr, &type, nullptr, &size);
    while (status == ERROR_SUCCESS || status == ERROR_MORE_DATA) {
        bytes.resize(std::max<DWORD>(size, 1));  // without room only the size would be told
        size = static_cast<DWORD>(bytes.size());
        status = RegQueryValueExW(key_, name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(bytes.data()), &size);
        if (status == ERROR_SUCCESS) {
            bytes.resize(size);
            break;  // otherwise somebody made it longer in the meantime
        }
    }
    return status;
}

LSTATUS RegistryKeyHandle::SetBytes(const std::wstring& name, DWORD type, std::string_view bytes) const {
    return RegSetValueExW(key_, name.c_str(), 0, type, BytesOf(bytes.data()), static_cast<DWORD>(bytes.size()));
}

LSTATUS RegistryKeyHandle::Delete(const std::wstring& name) const {
    return RegDeleteValueW(key_, name.c_str());
}

LSTATUS RegistryKeyHandle::SetText(const std::wstring& name, const std::wstring& text) const {
    const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    return RegSetValueExW(key_, name.c_str(), 0, REG_SZ, BytesOf(text.c_str()), size);
}

LSTATUS RegistryKeyHandle::SetNumber(const std::wstring& name, std::uint32_t number) const {
    return RegSetValueExW(key_, name.c_str(), 0, REG_DWORD, BytesOf(&number), sizeof number);
}

}  // namespace lv
