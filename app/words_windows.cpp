#include <string>

#include "app/words.h"
#include "app/words_run.h"
#include "foundation/field_strings.h"
#include "platform/windows/printed_text.h"
#include "platform/windows/registry_settings.h"
#include "platform/windows/windows_clock.h"
#include "platform/windows/windows_files.h"
#include "platform/windows/windows_instance.h"
#include "platform/windows/windows_known_places.h"
#include "platform/windows/windows_processes.h"
#include "platform/windows/windows_registry.h"

namespace lv {

namespace {

/// The platform without a window.
struct UnseenSystem {
    UnseenSystem() { Services.Places = &Places; }

    RegistrySettings Settings{"Lorvane 3D"};
    WindowsFiles Disk;
    WindowsRegistry Registry;
    WindowsProcesses Programs{Disk};
    NoClipboard Clip;
    WindowsClock Time;
    WindowsKnownPlaces Places{Disk};
    Platform Services{Settings, Registry, Disk, Programs, Clip, Time};
};

Text PathOfWord(Files& disk, TextView word) {
    const bool isFull = word.size() > 1 && (word[1] == ':' || word.starts_with("\\\\"));
    return ReplaceSameLength(isFull ? Text(word) : PathBelow(disk.CurrentDirectory(), word), "/", "\\");
}

CommandResult RunHere(const Command& command) {
    UnseenSystem system;
    return RunFor(system.Services, command, [&system](TextView word) { return PathOfWord(system.Disk, word); });
}

}  // namespace

DoneWords DoWords(const std::vector<std::string>& words) {
    WindowsInstance running(kInstanceCaption);
    WindowsFiles disk;
    const auto wholePath = [&disk](TextView word) { return PathOfWord(disk, word); };
    const auto offered = [&](TextView word) { return OfferedWord(word, wholePath, disk); };
    WordsDone done = ResultOfWords(words, running, wholePath, RunHere, offered);
    return {done.Result ? std::optional(PrintResult(*done.Result, Print)) : std::nullopt, std::move(done.Offered),
            std::move(done.Told)};
}

}  // namespace lv
