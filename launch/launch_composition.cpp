#include "launch/launch_composition.h"

#include "foundation/field_strings.h"
#include "foundation/game.h"
#include "launch/command_line_switches.h"
#include "launch/text_patterns.h"

namespace lv {

namespace {

void AddToCommand(Text& command, const CompositionCell& cell, const Composition& c, TextView value) {
    if (const char* const pattern = cell.For(c.Game)) {
        command += FillPattern(pattern, value);
    }
}

void AddToScript(Text& script, const CompositionCell& cell, const Composition& c, TextView value) {
    if (const char* const pattern = cell.For(c.Game)) {
        script.append(FillPattern(pattern, value)).append(NewLine);
    }
}

LaunchStop RunRow(const CompositionRow& row, const Composition& c) {
    if (!row.Condition(c) || (row.Tunable != nullptr && !c.Profile.Active(row.Tunable))) {
        return {};
    }
    if (row.Special.Rule != nullptr) {
        return row.Special.Rule(c);
    }
    Text value = row.Tunable != nullptr ? c.Profile.Value(row.Tunable) : Text();
    if (row.Special.Value != nullptr) {
        value = row.Special.Value(c);
    }
    AddToCommand(c.Texts.GameCommand, row.GameCommand, c, value);
    AddToCommand(c.Texts.UnrealCommand, row.UnrealCommand, c, value);
    AddToScript(c.Texts.QuakeScript, row.QuakeScript, c, value);
    AddToScript(c.Texts.Quake2Script, row.Quake2Script, c, value);
    return {};
}

/// A row that stops the launch is the last.
void RunRows(CompositionTime time, const Composition& c) {
    for (const CompositionRow& row : CompositionRows()) {
        if (row.Time != time || (row.Games == CompositionScope::NotUnreal && c.Game.GameKind == Game::Unreal)) {
            continue;
        }
        c.Texts.LaunchStep = row.Step;
        c.Texts.Stop = RunRow(row, c);
        if (c.Texts.Stop) {
            return;
        }
        if (row.Step == LaunchStep::Executable) {
            c.Texts.PrefixLength = c.Texts.GameCommand.size();
        }
    }
}

/// Rows that read neither the game nor its profile.
void RunRows(CompositionTime time, const LaunchSelection& selection, LaunchTexts& texts) {
    const LaunchGame anyGame;
    const ProfileSnapshot anyProfile;
    const LaunchHooks noHooks;
    RunRows(time, {selection, anyGame, anyProfile, noHooks, texts});
}

}  // namespace

LaunchTexts ComposeLaunch(const LaunchSelection& selection, const LaunchGame& game, const ProfileSnapshot& profile,
                          const LaunchHooks& hooks) {
    LaunchTexts texts;
    texts.GameCommand = Join(ExecutableName(selection), Blank);
    texts.UnrealCommand = texts.GameCommand;
    RunRows(CompositionTime::Composition, {selection, game, profile, hooks, texts});
    return texts;
}

void AddCommandLineAdditions(const LaunchSelection& selection, LaunchTexts& texts) {
    RunRows(CompositionTime::BeforeScript, selection, texts);
}

void AddScriptExec(LaunchTexts& texts) {
    RunRows(CompositionTime::ScriptWritten, {}, texts);
}

Text ExecutableName(const LaunchSelection& selection) {
    return UpperCase(Trim(LastPathPart(selection.ExecutablePath)));
}

Text ExeDriveOf(const LaunchSelection& selection) {
    return selection.ExecutablePath.substr(0, 2);
}

}  // namespace lv
