#include "foundry/half_life/convert_registry.h"

#include <array>

#include "catalogs/scripts.h"
#include "foundation/bounded_file.h"
#include "foundation/error_lines.h"
#include "foundation/link_question.h"
#include "foundation/path_fault.h"
#include "foundation/question_box.h"
#include "foundation/settings.h"
#include "foundry/document/script_messages.h"
#include "foundry/half_life/registry_script.h"

namespace lv {

namespace {

constexpr TextView kSettingsKey = "Software\\Valve\\Half-Life\\Settings";
constexpr TextView kProfilesKey = "Software\\Valve\\Half-Life\\Player Profiles\\";
constexpr TextView kNickname = "Chat Nickname";

/// Where the values of one player stand.
struct ProfileKeys {
    Text Profile;
    Text Bindings;
    Text Cvars;
};

Result<ProfileKeys> SelectedProfile(Run& run) {
    const std::array place = {RegistryPlace{Text(kSettingsKey), "SelectedProfile"}};
    const Result<std::vector<RegValue>> read = RegQueryAll(run, place);
    if (!read.Ok()) {
        return read.Fault;
    }
    const Text& name = read.Value.front().String;
    const Text profile = Join(kProfilesKey, name.empty() ? TextView("Player") : TextView(name));
    return ProfileKeys{profile, Join(profile, "\\KB"), Join(profile, "\\CVAR")};
}

Text BindingName(std::size_t code) {
    const Text digits = std::to_string(code);
    return Text(3 - digits.size(), '0') + digits;
}

/// Each value that a player has, with its place.
template <class Player, class Visit>
void ForEachValue(Player& player, const ProfileKeys& keys, const Visit& visit) {
    visit(player.Nickname, RegistryPlace{keys.Profile, Text(kNickname)});
    for (std::size_t code = 0; code < player.Keys.size(); ++code) {
        visit(player.Keys[code], RegistryPlace{keys.Bindings, BindingName(code)});
    }
    for (std::size_t i = 0; i < player.Cvars.size(); ++i) {
        visit(player.Cvars[i], RegistryPlace{keys.Cvars, Text(kHalfLifeCvars[i])});
    }
}

Text AsText(const RegValue& value) {
    return value.Type == kRegistryNumber ? std::to_string(value.Number) : value.String;
}

Result<HalfLifePlayer> ReadPlayer(Run& run) {
    const Result<ProfileKeys> keys = SelectedProfile(run);
    if (!keys.Ok()) {
        return keys.Fault;
    }
    HalfLifePlayer player;
    std::vector<RegistryPlace> places;
    ForEachValue(player, keys.Value,
                 [&places](const Text&, RegistryPlace place) { places.push_back(std::move(place)); });
    const Result<std::vector<RegValue>> values = RegQueryAll(run, places);
    if (!values.Ok()) {
        return values.Fault;
    }
    auto next = values.Value.begin();
    ForEachValue(player, keys.Value, [&next](Text& value, const RegistryPlace&) { value = AsText(*next++); });
    return player;
}

void TellOfFailure(Run& run, const Error& failed) {
    AskUser(run, "Error During Save of Half-Life Registry Settings Conversion", ErrorLines(failed));
}

void TellOfConversion(Run& run, TextView path) {
    if (!MessageIsOn(run, "HalfLifeRegConversion")) {
        return;
    }
    AskUserUnlessTold(run, "HalfLifeRegConversion", "Half-Life Registry Conversion",
                      Join("Lorvane has just converted your Half-Life settings from the registry", NewLine,
                           "to the following file:", NewLine, path, NewLine,
                           "This will automatically occur each time you select Half-Life in the", NewLine,
                           "Game Executable list; the previous file is destroyed.", NewLine,
                           "Half-Life stores your settings in the registry. However, it still allows", NewLine,
                           "execution of player scripts. Lorvane will manage your Half-Life settings", NewLine,
                           "through scripts only. The automatic conversion of the registry to a file", NewLine,
                           "gives you an initial changeover. ROCK!"));
}

}  // namespace

void ConvertRegistryToScript(Run& run, TextView path) {
    const Result<HalfLifePlayer> player = ReadPlayer(run);
    if (!player.Ok()) {
        TellOfFailure(run, player.Fault);
        return;
    }
    if (!MayPutOwnFile(run, path, GameTreeOf(run, path))) {
        return;
    }
    Files& disk = run.System.Disk;
    if (const Error failed = disk.ReplaceOwn(path, HalfLifeScript(player.Value, run.System.Time.Now()))) {
        TellOfFailure(run, FaultAt(disk, path, failed));
        return;
    }
    AddToScripts(run, "Registry Settings", path);
    if (!run.Ended) {
        TellOfConversion(run, path);
    }
}

Error ConvertScriptToRegistry(Run& run, TextView path) {
    const auto file = OpenScriptFile(run, path, kLargeScript);
    if (!file) {
        return {};
    }
    ScriptLines lines(*file);
    const HalfLifePlayer player = ReadHalfLifeScript(lines);
    const Result<ProfileKeys> keys = SelectedProfile(run);
    if (!keys.Ok()) {
        return keys.Fault;
    }
    std::vector<RegistryEntry> entries;
    const auto write = [&entries](const Text& value, RegistryPlace place) {
        if (!value.empty()) {
            entries.push_back({std::move(place), {kRegistryText, value, 0}});
        }
    };
    ForEachValue(player, keys.Value, write);
    write(player.MixAhead, {keys.Value.Cvars, Text(kMixAhead)});
    return RegWriteAll(run, entries);
}

}  // namespace lv
