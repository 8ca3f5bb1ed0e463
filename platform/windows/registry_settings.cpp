#include "platform/windows/registry_settings.h"

#include <array>
#include <utility>

#include "platform/code_page.h"
#include "platform/windows/registry_key.h"
#include "platform/windows/settings_undo.h"
#include "platform/windows/wide_text.h"

namespace lv {

namespace {

constexpr std::string_view kSettings = "Software\\VB and VBA Program Settings\\";
constexpr const wchar_t* kNote = L"Unfinished Group";
constexpr DWORD kLockMilliseconds = 5000;

std::wstring PathOf(std::string_view application, std::string_view section) {
    return ToWide(std::string(kSettings) + std::string(application) + "\\" + std::string(section));
}

std::string HeldKey(std::string_view application, std::string_view section, std::string_view key) {
    const std::string names = std::string(application) + '\0' + std::string(section) + '\0' + std::string(key);
    return LowerCase(names);
}

// What a section's key holds. A key that has gone in the meantime holds nothing.
LSTATUS AddValuesOf(const std::wstring& path, const std::string& section, std::vector<StoredValue>& values) {
    RegistryKeyHandle key;
    std::vector<std::wstring> names;
    LSTATUS failed = key.Open(path, KEY_QUERY_VALUE);
    failed = failed == ERROR_SUCCESS ? key.AllValues(names) : failed;
    for (const std::wstring& name : names) {
        const auto spelled = FromWide(name);
        RawRegistryValue value;
        if (spelled && key.Query(name, value) == ERROR_SUCCESS && value.Type == REG_SZ) {
            values.push_back({section, *spelled, FromWideLossy(value.Text)});
        }
    }
    return failed == ERROR_FILE_NOT_FOUND ? ERROR_SUCCESS : failed;
}

// The sections in the key of a section, or of the application, whose section is "".
LSTATUS AddSectionsIn(const std::wstring& path, const std::string& section, std::vector<std::string>& sections) {
    RegistryKeyHandle key;
    std::vector<std::wstring> names;
    LSTATUS failed = key.Open(path, KEY_ENUMERATE_SUB_KEYS);
    failed = failed == ERROR_SUCCESS ? key.AllKeys(names) : failed;
    for (const std::wstring& name : names) {
        if (const auto spelled = FromWide(name)) {
            sections.push_back(section.empty() ? *spelled : section + "\\" + *spelled);
        }
    }
    return failed == ERROR_FILE_NOT_FOUND ? ERROR_SUCCESS : failed;
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

LSTATUS WriteText(const std::wstring& path, const std::wstring& name, const std::wstring& value) {
    RegistryKeyHandle key;
    const LSTATUS failed = key.OpenOrMake(path, KEY_SET_VALUE);
    return failed != ERROR_SUCCESS ? failed : key.SetText(name, value);
}

LSTATUS DeleteValue(const std::wstring& path, const std::wstring& name) {
    RegistryKeyHandle key;
    LSTATUS failed = key.Open(path, KEY_SET_VALUE);
    failed = failed == ERROR_SUCCESS ? key.Delete(name) : failed;
    return failed == ERROR_FILE_NOT_FOUND ? ERROR_SUCCESS : failed;
}

LSTATUS Put(const std::wstring& path, const std::wstring& name, const std::optional<std::wstring>& value) {
    return value ? WriteText(path, name, *value) : DeleteValue(path, name);
}

LSTATUS WriteNote(const std::wstring& path, const std::vector<FormerValue>& former) {
    RegistryKeyHandle key;
    const LSTATUS failed = key.OpenOrMake(path, KEY_SET_VALUE);
    return failed != ERROR_SUCCESS ? failed : key.SetBytes(kNote, REG_BINARY, PackFormerValues(former));
}

LSTATUS DeleteNote(const std::wstring& path) {
    RegistryKeyHandle key;
    const LSTATUS failed = key.Open(path, KEY_SET_VALUE);
    return failed != ERROR_SUCCESS ? failed : key.Delete(kNote);
}

// What cannot be put back now could not be later either: the note goes in any case.
void TakeBack(const std::wstring& notePath, const std::vector<FormerValue>& former) {
    for (const FormerValue& value : former) {
        (void)PutBack(value);
    }
    (void)DeleteNote(notePath);
}

void TakeBackUnfinished(const std::wstring& notePath) {
    const FormerValue note = ValueNow(notePath, kNote);
    if (note.WasThere) {
        TakeBack(notePath, UnpackFormerValues(note.Bytes).value_or(std::vector<FormerValue>()));
    }
}

}  // namespace

// Nobody else of this user's writes a group, or takes one back, while this lives. A process that dies lets go.
class RegistrySettings::GroupLock {
  public:
    GroupLock() {
        std::array<wchar_t, 257> user{};
        auto size = static_cast<DWORD>(user.size());
        GetUserNameW(user.data(), &size);
        const std::wstring name = L"Global\\lorvane3d group of settings of " + std::wstring(user.data());
        mutex_ = CreateMutexW(nullptr, FALSE, name.c_str());
        const DWORD got = mutex_ != nullptr ? WaitForSingleObject(mutex_, kLockMilliseconds) : WAIT_FAILED;
        mayGoOn_ = got != WAIT_TIMEOUT;  // a system that makes no such lock has to do without
    }
    ~GroupLock() {
        if (mutex_ != nullptr) {
            ReleaseMutex(mutex_);  // refused if it was not ours
            CloseHandle(mutex_);
        }
    }
    GroupLock(const GroupLock&) = delete;
    GroupLock& operator=(const GroupLock&) = delete;

    [[nodiscard]] bool MayGoOn() const { return mayGoOn_; }

  private:
    HANDLE mutex_ = nullptr;
    bool mayGoOn_ = false;
};

RegistrySettings::RegistrySettings(std::string_view application)
    : notePath_(ToWide(std::string(kSettings) + std::string(application))) {
    const GroupLock lock;
    if (lock.MayGoOn()) {
        TakeBackUnfinished(notePath_);
    }
}

std::optional<std::string> RegistrySettings::Read(std::string_view application, std::string_view section,
                                                  std::string_view key) {
    if (CannotBeNamed(application) || CannotBeNamed(section) || CannotBeNamed(key)) {
        return std::nullopt;
    }
    if (const auto held = held_.find(HeldKey(application, section, key)); held != held_.end()) {
        return held->second.Value ? std::optional(FromWideLossy(*held->second.Value)) : std::nullopt;
    }
    RegistryKeyHandle opened;
    RawRegistryValue value;
    if (opened.Open(PathOf(application, section), KEY_QUERY_VALUE) != ERROR_SUCCESS ||
        opened.Query(ToWide(key), value) != ERROR_SUCCESS || value.Type != REG_SZ) {
        return std::nullopt;
    }
    return FromWideLossy(value.Text);
}

RegistrySettings::~RegistrySettings() = default;

Error RegistrySettings::Write(std::string_view application, std::string_view section, std::string_view key,
                              std::string_view value) {
    return Change(application, section, key, value);
}

Error RegistrySettings::Remove(std::string_view application, std::string_view section, std::string_view key) {
    return Change(application, section, key, std::nullopt);
}

Error RegistrySettings::Change(std::string_view application, std::string_view section, std::string_view key,
                               std::optional<std::string_view> value) {
    if (depth_ > 0 && groupFault_) {
        return groupFault_;
    }
    if (CannotBeNamed(application) || CannotBeNamed(section) || CannotBeNamed(key)) {
        Error failed = MakeError(error::kDeviceFault);
        if (depth_ > 0) {
            groupFault_ = failed;
            held_.clear();
        }
        return failed;
    }
    const auto text = value ? std::optional(ToWide(*value)) : std::nullopt;
    if (depth_ == 0) {
        return ErrorOfStore(Put(PathOf(application, section), ToWide(key), text));
    }
    held_[HeldKey(application, section, key)] = {
        {std::string(section), std::string(key), {}}, PathOf(application, section), ToWide(key), text};
    return {};
}

Result<std::vector<StoredValue>> RegistrySettings::All(std::string_view application) {
    std::vector<StoredValue> values;
    std::vector<std::string> sections;
    if (!CannotBeNamed(application)) {
        sections.emplace_back();
    }
    for (std::size_t i = 0; i < sections.size(); ++i) {
        const std::string section = sections[i];
        const std::wstring path =
            section.empty() ? ToWide(std::string(kSettings) + std::string(application)) : PathOf(application, section);
        LSTATUS failed = AddValuesOf(path, section, values);
        failed = failed == ERROR_SUCCESS ? AddSectionsIn(path, section, sections) : failed;
        if (failed != ERROR_SUCCESS) {
            return ErrorOfStore(failed);
        }
    }
    const std::string ours = LowerCase(application) + '\0';
    for (const auto& [names, held] : held_) {
        if (!names.starts_with(ours)) {
            continue;
        }
        std::erase_if(values, [&held = held.Names](const StoredValue& value) {
            return SameText(value.Section, held.Section) && SameText(value.Key, held.Key);
        });
        if (held.Value) {
            values.push_back({held.Names.Section, held.Names.Key, FromWideLossy(*held.Value)});
        }
    }
    return values;
}

void RegistrySettings::BeginGroup() {
    if (depth_++ == 0) {
        groupFault_ = {};
    }
}

Error RegistrySettings::EndGroup() {
    if (depth_ == 0 || --depth_ > 0) {
        return {};
    }
    if (!groupFault_ && !held_.empty()) {
        groupFault_ = WriteHeld();
    }
    held_.clear();
    alone_.reset();
    return std::exchange(groupFault_, {});
}

Error RegistrySettings::BeginAlone() {
    if (alone_ == nullptr) {
        auto lock = std::make_unique<GroupLock>();
        if (!lock->MayGoOn()) {
            return MakeError(error::kAlreadyOpen);
        }
        TakeBackUnfinished(notePath_);
        alone_ = std::move(lock);
    }
    BeginGroup();
    return {};
}

Error RegistrySettings::WriteHeld() {
    const GroupLock lock;
    if (!lock.MayGoOn()) {
        return MakeError(error::kDeviceFault);
    }
    TakeBackUnfinished(notePath_);
    DropUnchanged();
    if (held_.empty()) {
        return {};
    }
    std::vector<FormerValue> former;
    for (const auto& [names, held] : held_) {
        former.push_back(ValueNow(held.Path, held.Name));
    }
    BeforeEachStep();
    LSTATUS failed = WriteNote(notePath_, former);
    for (auto held = held_.begin(); failed == ERROR_SUCCESS && held != held_.end(); ++held) {
        BeforeEachStep();
        failed = Put(held->second.Path, held->second.Name, held->second.Value);
    }
    if (failed == ERROR_SUCCESS) {
        BeforeEachStep();
        failed = DeleteNote(notePath_);
    }
    if (failed != ERROR_SUCCESS) {
        TakeBack(notePath_, former);
    }
    return ErrorOfStore(failed);
}

// As the stores of other systems do, so that a group which changes nothing writes nothing.
void RegistrySettings::DropUnchanged() {
    std::erase_if(held_, [](const auto& entry) {
        RegistryKeyHandle key;
        RawRegistryValue value;
        const bool isThere = key.Open(entry.second.Path, KEY_QUERY_VALUE) == ERROR_SUCCESS &&
                             key.Query(entry.second.Name, value) == ERROR_SUCCESS;
        const auto& held = entry.second.Value;
        return held ? isThere && value.Type == REG_SZ && value.Text == *held : !isThere;
    });
}

}  // namespace lv
