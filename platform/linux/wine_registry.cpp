#include "platform/linux/wine_registry.h"

#include <fcntl.h>
#include <stdlib.h>

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <system_error>
#include <utility>

#include "platform/code_page.h"
#include "platform/linux/errno_error.h"
#include "platform/linux/file_descriptor.h"
#include "platform/linux/host_read.h"
#include "platform/linux/replace_file.h"
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

Result<RegistryValue> ValueIn(const std::optional<RegistryKey>& key, std::string_view name) {
    if (!key) {
        return NotThere();
    }
    const auto found = key->find(LowerCase(name));
    return found == key->end() ? Result<RegistryValue>(NotThere()) : found->second;
}

}  // namespace

WineSetup FindWine() {
    return {ProgramOnPath("wine"), WinePrefix()};
}

WineRegistry::WineRegistry(SettingsBacking& store, WineSetup wine) : store_(store), wine_(std::move(wine)) {}

Result<RegistryValue> WineRegistry::Query(std::string_view path, std::string_view name) {
    path = WithoutEndingSeparators(path);
    if (wine_.Command.empty()) {
        return QueryStore(path, name);
    }
    const auto now = std::chrono::steady_clock::now();
    const std::string id = LowerCase(path);
    if (const auto known = remembered_.find(id); known != remembered_.end()) {
        if (now - known->second.At < kRememberedFor) {
            return ValueIn(known->second.Key, name);
        }
        remembered_.erase(known);
    }
    std::error_code failed;
    if (!fs::exists(wine_.Prefix / "dosdevices", failed)) {
        return NotThere();
    }
    Result<std::optional<RegistryKey>> key = Export(path);
    if (!key.Ok()) {
        return key.Fault;
    }
    auto found = ValueIn(key.Value, name);
    remembered_[id] = {std::chrono::steady_clock::now(), std::move(key.Value)};
    return found;
}

Error WineRegistry::Set(std::string_view path, std::string_view name, const RegistryValue& value) {
    path = WithoutEndingSeparators(path);
    remembered_.clear();
    const auto file = ComposeRegFile(path, name, value);
    if (!file) {
        return Denied();
    }
    return wine_.Command.empty() ? SetInStore(path, name, value) : Import(*file);
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
    return store_.Write(kStoreApplication, path, name, text);
}

Result<std::optional<RegistryKey>> WineRegistry::Export(std::string_view path) {
    const PrivateDirectory directory;
    const std::string key = "HKCU\\" + std::string(PlainStart(path));
    const Result<int> status =
        RunReg(directory.Path(), {"reg", "export", std::string(WithoutEndingSeparators(key)), kFileName, "/y"});
    if (!status.Ok()) {
        return status.Fault;
    }
    const auto file = OpenHostFile((directory.Path() / kFileName).string());
    if (status.Value != 0 || !file.Ok()) {
        return std::optional<RegistryKey>();
    }
    const Result<std::string> bytes = ReadToEnd(file.Value->Number());
    if (!bytes.Ok()) {
        return bytes.Fault;
    }
    return ReadRegFile(bytes.Value, path);
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
