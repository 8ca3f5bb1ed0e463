#include "launch/launch_files.h"

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundation/game.h"
#include "launch/switch_rules.h"

namespace lv {

namespace {

/// The batch's last line.
Text CommandLine(const LaunchTexts& texts, const LaunchGame& game) {
    return game.GameKind == Game::Unreal ? texts.UnrealCommand : Trim(texts.GameCommand);
}

}  // namespace

Text ScriptText(const LaunchTexts& texts, const LaunchGame& game) {
    if (game.ScriptFamily != Dialect::Quake2) {
        return texts.QuakeScript;
    }
    return game.GameKind == Game::HalfLife ? ReplaceText(texts.Quake2Script, "set ", "") : texts.Quake2Script;
}

bool HasScript(TextView script, const LaunchGame& game) {
    return !script.empty() && game.GameKind != Game::Unreal && !game.DefaultGameDirectory.empty();
}

Text ScriptFilePath(const LaunchGame& game) {
    if (game.CurrentGameDir.empty()) {
        return Join(game.DefaultGameDirectory, "\\", kLaunchScriptFile);
    }
    return Join(game.DefaultGameDirectory, "\\", game.CurrentGameDir, "\\", kLaunchScriptFile);
}

Text BatchText(TextView environmentLines, bool showSet, TextView exeDrive, TextView directory, const LaunchTexts& texts,
               const LaunchGame& game) {
    Text batch(environmentLines);
    if (showSet) {
        batch.append(Join("SET", NewLine, "PAUSE", NewLine));
    }
    return batch.append(Join(exeDrive, NewLine, "cd ", QuotedIfBlank(directory), NewLine, CommandLine(texts, game)));
}

BatchCommand CommandOfBatch(TextView batch, const LaunchSelection& selection, const LaunchTexts& texts,
                            const LaunchGame& game) {
    const bool isUnreal = game.GameKind == Game::Unreal;
    const Text& composed = isUnreal ? texts.UnrealCommand : texts.GameCommand;
    const std::size_t at = batch.size() - CommandLine(texts, game).size();
    const std::size_t trimmed = isUnreal ? 0 : std::min(composed.find_first_not_of(' '), composed.size());
    BatchCommand command{ExecutableName(selection), isUnreal ? texts.UnrealGiven : texts.GameGiven};
    for (GivenWord& word : command.Given) {
        word.At += at - trimmed;
    }
    return command;
}

TextView PifTemplateName(Game gameKind) {
    return gameKind == Game::Quake2 || gameKind == Game::Sin ? kPifTemplateQuake2 : kPifTemplate;
}

}  // namespace lv
