// launch/launch_files.h
//
// The texts of the files that a launch leaves in the game's directories, and their names. Names are fixed: each launch
// replaces the last one's.

#pragma once

#include "foundation/game.h"
#include "launch/launch_composition.h"

namespace lv {

constexpr TextView kLaunchScriptFile = "lv_666.qs";
constexpr TextView kLaunchBatchFile = "lv_666.bat";
constexpr TextView kLaunchPifFile = "lv_666.pif";
constexpr TextView kPifTemplate = "lv_666.hid";
constexpr TextView kPifTemplateQuake2 = "lv_666_q2.hid";  // Quake II and Sin

/// The script as the game gets it. Half-Life's goes without "set ", wherever that stands in a line.
Text ScriptText(const LaunchTexts& texts, const LaunchGame& game);

/// Whether a launch writes that script; where not, AddScriptExec is not due.
bool HasScript(TextView script, const LaunchGame& game);

/// Where the script goes: the game directory's current data directory, or the game directory itself.
Text ScriptFilePath(const LaunchGame& game);

/// `environmentLines` are the SET lines, each ended by NewLine; `exeDrive` is "C:". No line end follows the command.
Text BatchText(TextView environmentLines, bool showSet, TextView exeDrive, TextView directory, const LaunchTexts& texts,
               const LaunchGame& game);

/// What the text of this batch alone does not tell: its program, and where in it the values stand that are no text of
/// the user's.
BatchCommand CommandOfBatch(TextView batch, const LaunchSelection& selection, const LaunchTexts& texts,
                            const LaunchGame& game);

/// The file that gives the batch's console window its properties (Windows PIF).
TextView PifTemplateName(Game gameKind);

}  // namespace lv
