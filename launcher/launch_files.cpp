#include "launcher/launch_files.h"

#include "foundation/field_strings.h"
#include "foundation/game_numbers.h"
#include "launcher/composition_rules.h"

namespace lv {

Text ScriptText(const LaunchTexts& texts, const LaunchGame& game) {
    if (game.ScriptFamily != script_family::kQuake2) {
        return texts.QuakeScript;
    }
    return game.GameKind == game_kind::kHalfLife ? ReplaceText(texts.Quake2Script, "set ", "") : texts.Quake2Script;
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
    const Text command = game.GameKind == game_kind::kUnreal ? texts.UnrealCommand : Trim(texts.GameCommand);
    return batch.append(Join(exeDrive, NewLine, "cd ", QuotedIfBlank(directory), NewLine, command));
}

TextView PifTemplateName(Index gameKind) {
    return gameKind == game_kind::kQuake2 || gameKind == game_kind::kSin ? kPifTemplateQuake2 : kPifTemplate;
}

}  // namespace lv
