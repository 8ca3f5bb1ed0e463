#include "launch/launch_composition.h"

#include "foundation/field_strings.h"
#include "foundation/game.h"
#include "launch/composition_rows.h"
#include "launch/text_patterns.h"

namespace lv {

namespace {

constexpr int kWrapperStep = 20;
constexpr int kLastStep = 190;
constexpr int kAdditionsRow = 45;
constexpr int kScriptExecRow = 46;

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

void RunRowAlone(int number, const LaunchSelection& selection, LaunchTexts& texts) {
    const LaunchGame anyGame;
    const ProfileSnapshot anyProfile;
    const LaunchHooks noHooks;
    const CompositionRow& row = CompositionRows()[static_cast<std::size_t>(number - 1)];
    texts.LaunchStep = row.Step;
    RunRow(row, {selection, anyGame, anyProfile, noHooks, texts});
}

}  // namespace

LaunchTexts ComposeLaunch(const LaunchSelection& selection, const LaunchGame& game, const ProfileSnapshot& profile,
                          const LaunchHooks& hooks) {
    LaunchTexts texts;
    texts.GameCommand = Join(ExecutableName(selection), Blank);
    texts.UnrealCommand = texts.GameCommand;
    const Composition c{selection, game, profile, hooks, texts};
    for (const CompositionRow& row : CompositionRows()) {
        if (row.Step > kLastStep || (row.Games == CompositionScope::NotUnreal && game.GameKind == Game::Unreal)) {
            continue;
        }
        texts.LaunchStep = row.Step;
        texts.Stop = RunRow(row, c);
        if (texts.Stop) {
            return texts;
        }
        if (row.Step == kWrapperStep) {
            texts.PrefixLength = texts.GameCommand.size();
        }
    }
    return texts;
}

void AddCommandLineAdditions(const LaunchSelection& selection, LaunchTexts& texts) {
    RunRowAlone(kAdditionsRow, selection, texts);
}

void AddScriptExec(LaunchTexts& texts) {
    RunRowAlone(kScriptExecRow, {}, texts);
}

Text ExecutableName(const LaunchSelection& selection) {
    return UpperCase(Trim(LastPathPart(selection.ExecutablePath)));
}

Text ExeDriveOf(const LaunchSelection& selection) {
    return selection.ExecutablePath.substr(0, 2);
}

}  // namespace lv
