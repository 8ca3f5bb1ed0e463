#include "platform/linux/wine_registry.h"

#include <fcntl.h>
#include <stdlib.h>

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <system_error>
#include <utility>

#include "platform/code_page.h"
#include "platform/linux/files/errno_error.h"
#include "platform/linux/files/file_descriptor.h"
#include "platform/linux/files/host_read.h"
#include "platform/linux/files/replace_file.h"
#include "platform/linux/run_tool.h"
#include "platform/linux/user_directories.h"

namespace lv {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kStoreApplication = "User Registry";
constexpr std::chrono::seconds kRememberedFor(2);
constexpr const char* kFileName = "lv_666.reg";  // without a directory: Wine starts in the one it lies in

Error NotThere() {
    return {2, "The system cannot find the file specified."};
}
Error Denied() {
    return {5, "Access is denied."};
}

// A directory that no other user can look into, gone with its owner.
class PrivateDirectory {
  public:
    PrivateDirectory() {
        std::error_code failed;
        std::string name = (fs::temp_directory_path(failed) / "lv_666_XXXXXX").string();
        if (!failed && mkdtemp(name.data()) != nullptr) {
            path_ = name;
        }
    }
    ~PrivateDirectory() {
        std::error_code failed;
        if (!path_.empty()) {
            fs::remove_all(path_, failed);
        }
    }
    PrivateDirectory(const PrivateDirectory&) = delete;
    PrivateDirectory& operator=(const PrivateDirectory&) = delete;

    [[nodiscard]] const fs::path& Path() const { return path_; }

  private:
    fs::path path_;
};

std::string_view WithoutEndingSeparators(std::string_view path) {
    while (path.ends_with('\\')) {
        path.remove_suffix(1);
    }
    return path;
}

// The key from which on all is exported: arguments pass through the locale's encoding and the rules of quoting on their
// way to Wine, so only names in plain ASCII are used.
std::string_view PlainStart(std::string_view path) {
    const auto odd = std::find_if(path.begin(), path.end(), [](char c) { return c < ' ' || c > '~' || c == '"'; });
    if (odd == path.end()) {
        return path;
    }
    const std::string_view plain(path.begin(), odd);
    const std::size_t end = plain.rfind('\\');
    return end == std::string_view::npos ? std::string_view() : plain.substr(0, end);
}

bool LiesIn(std::string_view path, std::string_view key) {
    return path == key || (path.starts_with(key) && path[key.size()] == '\\');
}

// The deepest key that holds all of these, by id; empty if they share none.
std::string_view CommonKey(const std::map<std::string, std::string_view>& paths) {
    std::string_view id = paths.begin()->first;
    for (const auto& [other, path] : paths) {
        while (!id.empty() && !LiesIn(other, id)) {
            const std::size_t end = id.rfind('\\');
            id = id.substr(0, end == std::string_view::npos ? 0 : end);
        }
    }
    return paths.begin()->second.substr(0, id.size());
}

}  // namespace

WineSetup FindWine() {
    return {ProgramOnPath("wine"), WinePrefix()};
}

WineRegistry::WineRegistry(SettingsBacking& store, WineSetup wine) : store_(store), wine_(std::move(wine)) {}

Result<RegistryValue> WineRegistry::Query(std::string_view path, std::string_view name) {
    const RegistryPlace place = {std::string(path), std::string(name)};
    return QueryAll(std::span(&place, 1)).front();
}

std::vector<Result<RegistryValue>> WineRegistry::QueryAll(std::span<const RegistryPlace> places) {
    if (!HasPrefix()) {
        remembered_.clear();
    } else if (const Error failed = RememberKeys(places)) {
        return {places.size(), Result<RegistryValue>(failed)};
    }
    std::vector<Result<RegistryValue>> values;
    values.reserve(places.size());
    for (const RegistryPlace& place : places) {
        values.push_back(Recall(place));
    }
    return values;
}

Error WineRegistry::Set(std::string_view path, std::string_view name, const RegistryValue& value) {
    const RegistryEntry entry = {{std::string(path), std::string(name)}, value};
    return SetAll(std::span(&entry, 1));
}

Error WineRegistry::SetAll(std::span<const RegistryEntry> entries) {
    std::vector<RegistryEntry> plain(entries.begin(), entries.end());
    for (RegistryEntry& entry : plain) {
        entry.Place.Path = WithoutEndingSeparators(entry.Place.Path);
    }
    remembered_.clear();
    const auto file = ComposeRegFile(plain);
    if (!file) {
        return Denied();
    }
    if (!wine_.Command.empty()) {
        return plain.empty() ? Error() : Import(*file);
    }
    for (const RegistryEntry& entry : plain) {
        if (Error failed = SetInStore(entry.Place.Path, entry.Place.Name, entry.Value)) {
            return failed;
        }
    }
    return {};
}

Error WineRegistry::RememberKeys(std::span<const RegistryPlace> places) {
    const auto now = std::chrono::steady_clock::now();
    std::erase_if(remembered_, [now](const auto& known) { return now - known.second.At >= kRememberedFor; });
    std::map<std::string, std::string_view> missing;
    for (const RegistryPlace& place : places) {
        const std::string_view path = WithoutEndingSeparators(place.Path);
        if (std::string id = LowerCase(path); !remembered_.contains(id)) {
            missing.emplace(std::move(id), path);
        }
    }
    if (missing.empty()) {
        return {};
    }
    const Result<std::string> file = Export(CommonKey(missing));
    if (!file.Ok()) {
        return file.Fault;
    }
    const auto at = std::chrono::steady_clock::now();
    for (const auto& [id, path] : missing) {
        remembered_[id] = {at, ReadRegFile(file.Value, path)};
    }
    return {};
}

Result<RegistryValue> WineRegistry::Recall(const RegistryPlace& place) {
    const std::string_view path = WithoutEndingSeparators(place.Path);
    const auto known = remembered_.find(LowerCase(path));
    if (known == remembered_.end() || !known->second.Key) {
        return QueryStore(path, place.Name);
    }
    const RegistryKey& key = *known->second.Key;
    const auto found = key.find(LowerCase(place.Name));
    return found == key.end() ? Result<RegistryValue>(NotThere()) : found->second;
}

bool WineRegistry::HasPrefix() const {
    std::error_code failed;
    return !wine_.Command.empty() && fs::exists(wine_.Prefix / "dosdevices", failed);
}

Result<RegistryValue> WineRegistry::QueryStore(std::string_view path, std::string_view name) {
    const auto stored = store_.Read(kStoreApplication, path, name);
    if (!stored) {
        return NotThere();
    }
    if (stored->starts_with("1:")) {
        return RegistryValue{kRegistryText, stored->substr(2), 0};
    }
    std::uint32_t number = 0;
    const char* end = stored->data() + stored->size();
    if (stored->starts_with("4:")) {
        const auto [read, failed] = std::from_chars(stored->data() + 2, end, number);
        if (failed == std::errc() && read == end) {
            return RegistryValue{kRegistryNumber, {}, number};
        }
    }
    return NotThere();
}

Error WineRegistry::SetInStore(std::string_view path, std::string_view name, const RegistryValue& value) {
    const std::string text = value.Type == kRegistryText ? "1:" + value.Text : "4:" + std::to_string(value.Number);
    if (store_.Read(kStoreApplication, path, name) == text) {
        return {};  // a write waits for the disk, and most of what is set stands there already
    }
    return store_.Write(kStoreApplication, path, name, text);
}

Result<std::string> WineRegistry::Export(std::string_view path) {
    const PrivateDirectory directory;
    const std::string key = "HKCU\\" + std::string(PlainStart(path));
    const Result<int> status =
        RunReg(directory.Path(), {"reg", "export", std::string(WithoutEndingSeparators(key)), kFileName, "/y"});
    if (!status.Ok()) {
        return status.Fault;
    }
    const auto file = OpenHostFile((directory.Path() / kFileName).string());
    if (status.Value != 0 || !file.Ok()) {
        return std::string();
    }
    return ReadToEnd(file.Value->Number());
}

Error WineRegistry::Import(std::string_view bytes) {
    const PrivateDirectory directory;
    const auto fill = [bytes](int file) { return WriteAll(file, bytes); };
    if (directory.Path().empty()) {
        return MakeError(error::kPathFileAccess);
    }
    if (Error failed = ReplaceHostFile((directory.Path() / kFileName).string(), 0600, fill)) {
        return failed;
    }
    const Result<int> status = RunReg(directory.Path(), {"reg", "import", kFileName});
    if (!status.Ok()) {
        return status.Fault;
    }
    return status.Value == 0 ? Error() : Denied();
}

Result<int> WineRegistry::RunReg(const fs::path& directory, std::vector<std::string> arguments) {
    if (directory.empty()) {
        return MakeError(error::kPathFileAccess);
    }
    std::vector<std::string> environment = {"WINEPREFIX=" + wine_.Prefix.string()};
    if (std::getenv("WINEDEBUG") == nullptr) {
        environment.emplace_back("WINEDEBUG=-all");
    }
    return RunTool({wine_.Command, std::move(arguments), directory, std::move(environment), wine_.Patience});
}

}  // namespace lv
