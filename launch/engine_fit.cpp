#include "launch/engine_fit.h"

#include <algorithm>

#include "foundation/field_strings.h"
#include "games/trees/game_tree.h"
#include "launch/launch_files.h"

namespace lv {

namespace {

constexpr TextView kBlockBegins = "// Lorvane 3D: this launch";
constexpr TextView kBlockEnds = "// Lorvane 3D: end";

bool IsShareware(Files& disk, const LaunchGame& game) {
    const auto tree = TreeIn(disk, game.DefaultGameDirectory);
    return tree && tree->GameKind == game.GameKind && !tree->IsFull;
}

}  // namespace

const Engine* EngineOfLaunch(const EngineTable& engines, const LaunchSelection& selection, const LaunchGame& game) {
    return game.GameKind == Game::Unreal ? nullptr : EngineOf(engines, LastPathPart(selection.ExecutablePath));
}

FittedCommand FitLaunch(const Engine& engine, Files& disk, const LaunchSelection& selection, const LaunchGame& game,
                        const LaunchTexts& texts, bool withScript) {
    LaunchTexts whole = texts;
    if (withScript) {
        AddScriptExec(whole);
    }
    ComposedCommand composed;
    composed.Command = whole.GameCommand;
    composed.Given = whole.GameGiven;
    composed.PrefixLength = ExecutableName(selection).size();
    composed.ProgramPath = FromUtf8Lossy(disk.ToHost(selection.ExecutablePath));
    composed.Script = kLaunchScriptFile;
    composed.DataDirectory = FromUtf8Lossy(disk.ToHost(game.DefaultGameDirectory));
    composed.Played = game.GameKind;
    composed.IsShareware = engine.SharewareNeedsAutoexec && IsShareware(disk, game);
    return FitCommandLine(engine, composed);
}

Text FitReport(const Engine& engine, const FittedCommand& fitted) {
    if (fitted.Notes.empty()) {
        return {};
    }
    Text report = Join("For ", engine.Name, " = ", NewLine);
    for (const FitNote& note : fitted.Notes) {
        const Text text = NoteText(note);
        const std::size_t reason = std::min(note.Part.size() + 1, text.size());
        report += Join(text.substr(0, reason), NewLine, TabChar, Trim(text.substr(reason)), NewLine);
    }
    return report;
}

Text FitEnvironment(const FittedCommand& fitted) {
    Text lines;
    for (const auto& [name, value] : fitted.Environment) {
        lines += Join("SET ", name, "=", value, NewLine);
    }
    return lines;
}

Text AutoexecWith(TextView autoexec, TextView lines) {
    Text text(autoexec);
    const std::size_t begins = text.find(kBlockBegins);
    const std::size_t ends = begins == Text::npos ? begins : text.find(kBlockEnds, begins);
    if (ends != Text::npos) {
        std::size_t behind = ends + kBlockEnds.size();
        behind = std::min(text.find_first_not_of("\r\n", behind), text.size());
        text.erase(begins, behind - begins);
    }
    if (lines.empty()) {
        return text;
    }
    if (!text.empty() && !text.ends_with('\n')) {
        text += NewLine;
    }
    return text.append(Join(kBlockBegins, NewLine, lines, kBlockEnds, NewLine));
}

}  // namespace lv
