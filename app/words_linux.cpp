#include <filesystem>
#include <memory>

#include "app/linux_store.h"
#include "app/words.h"
#include "app/words_run.h"
#include "foundation/field_strings.h"
#include "platform/code_page.h"
#include "platform/linux/linux_clock.h"
#include "platform/linux/linux_instance.h"
#include "platform/linux/linux_known_places.h"
#include "platform/linux/linux_processes.h"
#include "platform/linux/printed_text.h"
#include "platform/linux/user_directories.h"
#include "platform/linux/wine_registry.h"

namespace lv {

namespace {

/// The platform without a display.
struct UnseenSystem {
    UnseenSystem(std::unique_ptr<SettingsBacking> store, DriveDirectories drives)
        : Settings(std::move(store)), Disk(std::move(drives)) {
        Services.Places = &Places;
    }

    std::unique_ptr<SettingsBacking> Settings;
    LinuxFiles Disk;
    WineRegistry Registry{*Settings, FindWine()};
    LinuxProcesses Programs{Disk};
    NoClipboard Clip;
    LinuxClock Time;
    LinuxKnownPlaces Places{Disk};
    Platform Services{*Settings, Registry, Disk, Programs, Clip, Time};
};

bool IsDrivePath(TextView word) {
    return word.size() > 2 && word[1] == ':' && (word[2] == '\\' || word[2] == '/');
}

/// The host's whole path, UTF-8, from the directory that the user stands in; empty if that cannot be said.
std::string WholeHostPath(TextView word) {
    std::error_code failed;
    const auto host = std::filesystem::absolute(ToUtf8(word), failed);
    return failed ? std::string() : host.lexically_normal().string();
}

Text WholePath(TextView word) {
    return IsDrivePath(word) ? Text(word) : FromUtf8Lossy(WholeHostPath(word));
}

Text PathOfWord(Files& disk, TextView word) {
    return IsDrivePath(word) ? ReplaceSameLength(word, "/", "\\") : disk.FromHost(WholeHostPath(word));
}

CommandResult RunHere(const Command& command) {
    PrintingUser user;
    const bool reads = OnlyReads(command);
    auto store = OpenStore(user, reads ? OwnStoreToRead() : OwnStore(kPatience));  // nobody can be asked
    if (!store) {
        return {.Code = exit_code::kFailed, .Err = Printed(user.Said())};
    }
    UnseenSystem system(std::move(store), reads ? OwnDrivesAsTheyAre() : OwnDrives());
    return RunFor(system.Services, command, [&system](TextView word) { return PathOfWord(system.Disk, word); });
}

}  // namespace

DoneWords DoWords(const std::vector<std::string>& words) {
    LinuxInstance running(ConfigDirectory().string());
    const auto offered = [](TextView word) {
        LinuxFiles disk(OwnDrives());
        return OfferedWord(
            word, [&disk](TextView file) { return PathOfWord(disk, file); }, disk);
    };
    WordsDone done = ResultOfWords(words, running, WholePath, RunHere, offered);
    return {done.Result ? std::optional(PrintResult(*done.Result, Print)) : std::nullopt, std::move(done.Offered),
            std::move(done.Told)};
}

}  // namespace lv
