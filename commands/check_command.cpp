#include "commands/check_command.h"

#include <algorithm>
#include <utility>

#include "commands/launch_choice.h"
#include "commands/unseen/unseen_launcher.h"
#include "console/checks/run_check.h"
#include "console/files/played_of_run.h"
#include "foundation/bounded_file.h"
#include "foundation/field_strings.h"
#include "foundation/shown_name.h"
#include "foundation/utf16_text.h"
#include "games/games.h"
#include "launcher/window/launch_flow.h"
#include "launcher/window/lv_events.h"

namespace lv {

namespace {

constexpr int kDeepestPlace = 16;        // of a script, below its game's directory
constexpr std::size_t kLookedAt = 4096;  // bytes of a file that is too large for a script

constexpr TextView kNoCharacter("\0", 1);  // ends all text for a game

/// The console that judges a script, and the start of the game that runs it, if one does.
struct Judge {
    Console Of = Console::Quake;
    std::optional<StartRequest> Start{};
    Text Why{};  // half a sentence
};

/// The script in a game's directory: in a data directory below that, or deeper.
struct PlaceInGame {
    Text Directory;  // the game's
    Text Data;       // "id1"; empty: it lies in the game's directory itself
    Text Below;      // "duel/my.cfg", as a console names it
};

std::optional<PlaceInGame> PlaceBelow(TextView directory, TextView path) {
    const Text lead = Join(directory, "\\");
    if (directory.empty() || !StartsWithText(path, lead)) {
        return std::nullopt;
    }
    const TextView rest = path.substr(lead.size());
    const std::size_t data = rest.find('\\');
    if (data == TextView::npos) {
        return PlaceInGame{Text(directory), {}, Text(rest)};
    }
    return PlaceInGame{Text(directory), Text(rest.substr(0, data)),
                       ReplaceSameLength(rest.substr(data + 1), "\\", "/")};
}

/// The next directory above that is a game's.
const GameFacts* GameAbove(Files& disk, TextView path, Text& directory) {
    directory = DirectoryOf(path);
    for (int depth = 0; depth < kDeepestPlace && !directory.empty(); ++depth) {
        const GameFacts& game = FactsOfDirectory(disk, directory);
        if (game.GameKind != Game::None) {
            return &game;
        }
        directory = DirectoryOf(directory);
    }
    return nullptr;
}

/// The start of the game that runs the script, if it lies where a console finds scripts.
std::optional<StartRequest> StartWith(PlayedGame played, TextView path) {
    const auto place = PlaceBelow(played.Directory, path);
    if (!place || place->Data.empty() || played.GameKind == Game::Unreal) {
        return std::nullopt;
    }
    played.Modification = SameText(place->Data, played.Base) ? Text() : place->Data;
    return StartRequest{.Played = std::move(played), .Commands = {Join("exec ", place->Below)}};
}

/// By the one game whose own scripts end so; others are first of all Quake's.
Judge JudgeByEnding(TextView path) {
    const Text lower = LowerCase(path);
    const auto isItsOwn = [&](const GameFacts& game) {
        return !game.ScriptExtension.empty() && lower.ends_with(game.ScriptExtension);
    };
    const auto games = AllGames();
    if (std::ranges::count_if(games, isItsOwn) != 1) {
        return {.Why = "as it lies in no game"};
    }
    return {.Of = ConsoleOf(std::ranges::find_if(games, isItsOwn)->GameKind, false), .Why = "as its ending says"};
}

Judge JudgeByPlace(Files& disk, const Text& path) {
    Text directory;
    const GameFacts* const game = GameAbove(disk, path, directory);
    if (game == nullptr) {
        return JudgeByEnding(path);
    }
    PlayedGame played;
    played.Of = ConsoleOf(game->GameKind, false);
    played.GameKind = game->GameKind;
    played.Directory = directory;
    played.Base = game->BaseGameDir;
    played.UserHome = disk.UserHome();
    return {.Of = played.Of, .Start = StartWith(played, path), .Why = "as it lies in that game"};
}

/// Of the program that the command names.
Result<Judge> JudgeByProgram(const Command& command, const CommandPlace& place, const Text& path) {
    UnseenLauncher unseen(place);
    if (const Text why = unseen.Load(); !why.empty()) {
        return Error{error::kInvalidCall, why};
    }
    Command program;
    program.Title = command.Title;
    Text notes;
    const std::vector<Text> missing = Choose(unseen.Its, program, notes);
    if (!missing.empty()) {
        return Error{error::kFileNotFound, missing.front()};
    }
    const Run& run = unseen.TheRun;
    if (run.GameKind == Game::None) {
        return Error{error::kInvalidCall, "What that program plays is not known."};
    }
    const PlayedGame played = PlayedOfRun(
        run, SelectedEngine(unseen.Its), SelectionOf(unseen.Its.Window).ExecutablePath, run.GameKind, run.IsQuakeWorld);
    return Judge{.Of = played.Of, .Start = StartWith(played, path), .Why = "as that program does"};
}

bool IsRun(const StartRun& start, TextView path) {
    return std::ranges::any_of(start.Scripts, [&](const RunScript& script) { return SameText(script.Path, path); });
}

std::vector<Finding> FindingsOf(Files& disk, const Text& path, TextView content, const Judge& judge) {
    if (judge.Start && IsRun(RunStart(disk, *judge.Start), path)) {
        std::vector<Finding> findings = CheckScriptsOf(disk, *judge.Start);
        std::erase_if(findings, [&](const Finding& each) {
            return !SameText(each.File, path) && !SameText(each.File, LastPathPart(path)) &&
                   !SameText(each.File, judge.Start->Commands.front().substr(TextView("exec ").size()));
        });
        return findings;
    }
    if (judge.Start) {
        return CheckScriptBeside(disk, *judge.Start, path, content);
    }
    return CheckScript({path, content, judge.Of, nullptr, {}});
}

CommandResult NoScript(TextView word) {
    return {.Code = exit_code::kNothingCalledSo,
            .Err = Join("\"", Shown(word), "\" is no script: it has bytes that no text has.")};
}

/// Apart from the findings, which programs may read line by line.
Text WhoJudges(const Judge& judge, const Command& command) {
    const TextView other =
        command.Title ? TextView() : TextView(" \"--launch TITLE\" behind the script names another program.");
    return Join("Checked as the console of ", RulesOf(judge.Of).Name, " reads it, ", judge.Why, ".", other, NewLine);
}

/// What no text has stands in its beginning; a file of any size.
bool IsBinaryFile(Files& disk, const Text& path) {
    const auto file = disk.Open(path);
    const Result<std::string> start = file.Ok() ? file.Value->Read(0, kLookedAt) : Result<std::string>(file.Fault);
    return start.Ok() && !IsUtf16(start.Value) && Holds(start.Value, kNoCharacter);
}

CommandResult Unread(TextView word, const CommandPlace& place, const Text& path, const Error& fault) {
    if (!path.empty() && IsBinaryFile(place.System.Disk, path)) {
        return NoScript(word);
    }
    const bool isGone = fault.Number == error::kFileNotFound || fault.Number == error::kPathNotFound;
    return {.Code = isGone ? exit_code::kNothingCalledSo : exit_code::kFailed,
            .Err = Join("\"", Shown(word), "\": ", PrintedFault(place, fault, path))};
}

}  // namespace

CommandResult CheckOneScript(const Command& command, const CommandPlace& place) {
    const Text& word = command.Subject;
    Files& disk = place.System.Disk;
    const Text path = place.PathOfWord ? place.PathOfWord(word) : word;
    const Result<Text> read =
        path.empty() ? Result<Text>(MakeError(error::kFileNotFound)) : ReadBounded(disk, path, kLargestRunScript);
    if (!read.Ok()) {
        return Unread(word, place, path, read.Fault);
    }
    if (Holds(read.Value, kNoCharacter)) {
        return NoScript(word);
    }
    const Result<Judge> judge = command.Title ? JudgeByProgram(command, place, path) : JudgeByPlace(disk, path);
    if (!judge.Ok()) {
        const bool isGone = judge.Fault.Number == error::kFileNotFound;
        return {.Code = isGone ? exit_code::kNothingCalledSo : exit_code::kFailed, .Err = judge.Fault.Text};
    }
    CommandResult result{.Err = WhoJudges(judge.Value, command)};
    for (Finding& finding : FindingsOf(disk, path, read.Value, judge.Value)) {
        finding.File = SameText(finding.File, path) ? PrintedPath(place, path) : finding.File;
        result.Out += Join(FindingLine(finding), NewLine);
        if (finding.How == Certainty::Sure) {
            result.Code = exit_code::kFinds;
        }
    }
    return result;
}

}  // namespace lv
