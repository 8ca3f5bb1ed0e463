#include "commands/launch_choice.h"

#include <algorithm>

#include "catalogs/server_word.h"
#include "catalogs/servers.h"
#include "commands/listed_rows.h"
#include "foundation/field_strings.h"
#include "foundation/padded_item.h"
#include "launcher/setups/row_picks.h"
#include "launcher/setups/setup_store.h"
#include "launcher/window/lv_events.h"
#include "launcher/window/option_rules.h"

namespace lv {

namespace {

using PickOf = bool (*)(Launcher&, TextView);

/// What has to be picked ahead of what its lists depend on.
struct ChoiceRow {
    std::optional<Text> Command::*Name;
    Listed Kind;
    PickOf Pick;
    std::optional<Option> Ticks;
};

// clang-format off
const ChoiceRow kChoices[] = {
    {&Command::Title, Listed::Programs, PickExecutable, std::nullopt},
    {&Command::VideoProfile, Listed::VideoProfiles, PickVideoProfile, std::nullopt},
    {&Command::Modification, Listed::Modifications, PickModification, Option::Game_Chk},
    {&Command::Script, Listed::Scripts, PickScript, Option::Script_Chk},
    {&Command::Server, Listed::Servers, PickServer, Option::Server_Chk},
    {&Command::Map, Listed::Maps, PickMap, Option::Map_Chk},
};

struct ClearedRow {
    Option Box;
    TextView Note;
};
constexpr ClearedRow kCleared[] = {
    {Option::LaunchQspy_Chk, "\"Configure and Launch GameSpy\" is ticked, which needs the main window: the game is started itself."},
    {Option::QSpy_Chk, "\"Connect To Current GameSpy Server\" is ticked, which needs the main window: no server is joined."},
};
// clang-format on

/// The value of a server's row; one that is not in the list, but is an address, gets a row for this launch.
Result<Text> ServerCalled(Launcher& launcher, TextView name) {
    Result<Text> listed = RowCalled(RowsOf(launcher, Listed::Servers), name, NameOfKind(Listed::Servers));
    if (listed.Ok() || listed.Fault.Number != error::kFileNotFound) {
        return listed;
    }
    const auto link = ReadServerLink(name);
    const Result<ServerAddress> address = link ? Result(link->Address) : ReadServerAddress(name);
    if (!address.Ok()) {
        return address.Fault;
    }
    const Text record =
        Join(address.Value.Host, ";", address.Value.Port, ";", std::to_string(WantedServerType(launcher.run)), ";");
    launcher.Window.Server_Cbo.Items.push_back(MakeItem(name, record));
    return record;
}

/// By its title, or by its path: on a drive, with "/" or "\\" between the parts, or as the host has it.
Result<Text> ProgramCalled(Launcher& launcher, TextView name) {
    const std::vector<NamedRow> rows = RowsOf(launcher, Listed::Programs);
    Result<Text> listed = RowCalled(rows, name, NameOfKind(Listed::Programs));
    if (listed.Ok() || listed.Fault.Number != error::kFileNotFound || name.find_first_of("/\\") == TextView::npos) {
        return listed;
    }
    Files& disk = launcher.run.System.Disk;
    const Text wanted = ReplaceSameLength(disk.FromTyped(name), "/", "\\");
    const Text host = disk.ToHost(wanted);  // the same for each drive that the file is reached by
    const auto row = std::ranges::find_if(rows, [&](const NamedRow& each) {
        const Text path = ReplaceSameLength(each.Value, "/", "\\");
        return SameText(path, wanted) || (!host.empty() && disk.ToHost(path) == host);
    });
    return row != rows.end() ? Result<Text>(row->Value) : listed;
}

Result<Text> Called(Launcher& launcher, const ChoiceRow& row, TextView name) {
    switch (row.Kind) {
        case Listed::Programs:
            return ProgramCalled(launcher, name);
        case Listed::Servers:
            return ServerCalled(launcher, name);
        default:
            return RowCalled(RowsOf(launcher, row.Kind), name, NameOfKind(row.Kind));
    }
}

/// The setup without what the words behind it say anew, and without what that excludes: they are the later wish.
Setup WithoutWhatIsSaidAnew(Setup setup, const Command& command) {
    for (const ChoiceRow& row : kChoices) {
        if (!(command.*(row.Name)) || !row.Ticks || *row.Ticks == Option::Game_Chk) {
            continue;  // the modification also says which scripts and maps the setup's own are among
        }
        OptionSet aside = ExcludedBy(*row.Ticks);
        aside.Set(*row.Ticks, true);
        for (const OptionBox& option : OptionBoxes()) {
            if (aside.Has(option.Box)) {
                setup.Ticked.Set(option.Box, false);
            }
        }
    }
    return setup;
}

/// False if there is nothing to go on with.
bool PickSetup(Launcher& launcher, const Command& command, std::vector<Text>& missing) {
    const Text& name = *command.Setup;
    const SetupList setups = LoadSetups(launcher.run);
    const KeptSetup* const setup = setups.Named(name);
    if (setup == nullptr) {
        missing.push_back(RowCalled(RowsOf(launcher, Listed::Setups), name, NameOfKind(Listed::Setups)).Fault.Text);
        return false;
    }
    const bool hasProgram = PickExecutable(launcher, setup->What.ExecutablePath);
    for (Text& gone : ApplySetup(launcher, WithoutWhatIsSaidAnew(setup->What, command))) {
        missing.push_back(std::move(gone));
    }
    return hasProgram;
}

/// A box that is ticked already may have come so from the store, beside what it excludes.
void TickAlone(Launcher& launcher, Option box) {
    SetOption(launcher, box, 1);
    const OptionSet excluded = ExcludedBy(box);
    for (const OptionBox& option : OptionBoxes()) {
        if (excluded.Has(option.Box) && launcher.Window.Box(option.Box).Value == 1) {
            SetOption(launcher, option.Box, 0);
        }
    }
}

void Clear(Launcher& launcher, Text& notes) {
    for (const ClearedRow& row : kCleared) {
        if (launcher.Window.Box(row.Box).Value == 1) {
            SetOption(launcher, row.Box, 0);
            notes += Join(row.Note, NewLine);
        }
    }
    launcher.Window.Box(Option::EndOnLaunch_Chk).Value = 0;  // there is no window to leave
}

}  // namespace

std::vector<Text> Choose(Launcher& launcher, const Command& command, Text& notes) {
    std::vector<Text> missing;
    if (command.Setup && !PickSetup(launcher, command, missing)) {
        return missing;
    }
    for (const ChoiceRow& row : kChoices) {
        const std::optional<Text>& name = command.*(row.Name);
        if (!name) {
            continue;
        }
        const Result<Text> value = Called(launcher, row, *name);
        if (!value.Ok()) {
            missing.push_back(value.Fault.Text);
            if (row.Kind == Listed::Programs) {
                return missing;  // the other lists would be another game's
            }
            continue;
        }
        (void)row.Pick(launcher, value.Value);
        if (row.Ticks) {
            TickAlone(launcher, *row.Ticks);
        }
    }
    Clear(launcher, notes);
    return missing;
}

CommandResult NotCalledSo(const std::vector<Text>& missing) {
    CommandResult result{.Code = exit_code::kNothingCalledSo};
    for (const Text& each : missing) {
        result.Err += Join(each, NewLine);
    }
    return result;
}

}  // namespace lv
