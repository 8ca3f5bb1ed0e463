#include "commands/check_command.h"

#include <algorithm>

#include "console/checks/run_check.h"
#include "foundation/bounded_file.h"
#include "foundation/field_strings.h"
#include "foundation/shown_name.h"
#include "games/games.h"

namespace lv {

namespace {

/// As its game runs it; nothing if it lies in no game's directory.
std::optional<StartRequest> StartWith(Files& disk, const Text& path) {
    const Text data = DirectoryOf(path);
    const Text directory = DirectoryOf(data);
    const GameFacts& game = FactsOfDirectory(disk, directory);
    if (directory.empty() || game.GameKind == Game::None || game.GameKind == Game::Unreal) {
        return std::nullopt;
    }
    const Text name = LastPathPart(data);
    StartRequest request;
    request.Played.Of = ConsoleOf(game.GameKind, false);
    request.Played.GameKind = game.GameKind;
    request.Played.Directory = directory;
    request.Played.Base = game.BaseGameDir;
    request.Played.Modification = SameText(name, game.BaseGameDir) ? Text() : name;
    request.Played.UserHome = disk.UserHome();
    request.Commands = {Join("exec ", LastPathPart(path))};
    return request;
}

Console ConsoleByEnding(TextView path) {
    const Text lower = LowerCase(path);
    const auto games = AllGames();
    const auto game = std::ranges::find_if(games, [&](const GameFacts& each) {
        return !each.ScriptExtension.empty() && lower.ends_with(each.ScriptExtension);
    });
    return game != games.end() ? ConsoleOf(game->GameKind, false) : Console::Quake;
}

bool IsRun(const StartRun& start, TextView path) {
    return std::ranges::any_of(start.Scripts, [&](const RunScript& script) { return SameText(script.Path, path); });
}

std::vector<Finding> FindingsOf(Files& disk, const Text& path, TextView content) {
    const auto request = StartWith(disk, path);
    if (request && IsRun(RunStart(disk, *request), path)) {
        std::vector<Finding> findings = CheckScriptsOf(disk, *request);
        std::erase_if(findings, [&](const Finding& each) {
            return !SameText(each.File, path) && !SameText(each.File, LastPathPart(path));
        });
        return findings;
    }
    return CheckScript({path, content, request ? request->Played.Of : ConsoleByEnding(path), nullptr, {}});
}

}  // namespace

CommandResult CheckOneScript(TextView word, const CommandPlace& place) {
    Files& disk = place.System.Disk;
    const Text path = place.PathOfWord ? place.PathOfWord(word) : Text(word);
    const Result<Text> read =
        path.empty() ? Result<Text>(MakeError(error::kFileNotFound)) : ReadBounded(disk, path, kLargestRunScript);
    if (!read.Ok()) {
        const bool isGone = read.Fault.Number == error::kFileNotFound || read.Fault.Number == error::kPathNotFound;
        return {.Code = isGone ? exit_code::kNothingCalledSo : exit_code::kFailed,
                .Err = Join("\"", Shown(word), "\": ", read.Fault.Text)};
    }
    CommandResult result;
    for (const Finding& finding : FindingsOf(disk, path, read.Value)) {
        result.Out += Join(FindingLine(finding), NewLine);
        if (finding.How == Certainty::Sure) {
            result.Code = exit_code::kFinds;
        }
    }
    return result;
}

}  // namespace lv
