#include "foundry/losses/save_losses.h"

#include <algorithm>

#include "foundry/losses/loss_reasons.h"
#include "foundry/losses/loss_words.h"

namespace lv {

namespace {

constexpr TextView kOwnSection = "[lorvane 3d] ";

/// The lines that the game shows when it runs a script of this program, of whatever version.
bool IsBannerEcho(TextView action) {
    constexpr TextView kEchoes[] = {"echo |========================|", "echo |........................|"};
    constexpr TextView kStarts[] = {"echo |==setup", "echo |..setup"};
    return std::ranges::any_of(kEchoes, [action](TextView each) { return SameText(action, each); }) ||
           std::ranges::any_of(kStarts, [action](TextView each) { return StartsWithText(action, each); });
}

bool IsOfThisProgram(const ScriptDifference& difference) {
    return difference.What == EffectKind::Action
               ? IsBannerEcho(difference.Before.Line > 0 ? difference.Before.Value : difference.After.Value)
               : difference.Identity.starts_with(kOwnSection);
}

std::vector<ScriptDifference> DifferencesOf(TextView before, TextView after, Console console) {
    return before == after ? std::vector<ScriptDifference>()
                           : CompareScripts(EffectsOf(before, console), EffectsOf(after, console));
}

EffectNames NamesOf(const std::vector<ScriptDifference>& differences) {
    EffectNames names;
    for (const ScriptDifference& each : differences) {
        names.emplace(each.What, each.Identity);
    }
    return names;
}

Text TooLongWords(const ScriptEffects& file, const ScriptEffects& written) {
    if (file.TooLong || !written.TooLong) {
        return {};
    }
    const ConsoleRules& rules = RulesOf(written.Of);
    return Join("The script gets longer than the ", std::to_string(rules.Buffer), " bytes that ", rules.Name,
                " takes at once: the game would run none of it.");
}

}  // namespace

Console ConsoleOfDialect(const ScriptDialect& dialect) {
    return ConsoleOf(dialect.GameKind, dialect.IsQuakeWorld);
}

EffectNames DifferingNames(TextView before, TextView after, Console console) {
    return NamesOf(DifferencesOf(before, after, console));
}

EffectNames RewrittenNames(TextView before, TextView after, Console console) {
    std::vector<ScriptDifference> differences = DifferencesOf(before, after, console);
    std::erase_if(differences, [](const ScriptDifference& each) { return each.Kind == DifferenceKind::Moved; });
    return NamesOf(differences);
}

SaveReport ReportSave(const SaveTexts& texts, const ChangedNames& changed, const ScriptDialect& dialect,
                      Console console) {
    const ScriptEffects file = EffectsOf(texts.File, console);
    const ScriptEffects written = EffectsOf(texts.Written, console);
    const LossReasons reasons({texts.File, file}, {texts.Written, written}, dialect);
    SaveReport report;
    report.TooLong = TooLongWords(file, written);
    report.IsOfNothing = file.Binds.All().empty() && file.Aliases.All().empty() && file.Settings.All().empty() &&
                         file.Actions.empty() && !file.UnbindsAll && !file.UnaliasesAll;
    for (ScriptDifference& difference : CompareScripts(file, written)) {
        if (IsOfThisProgram(difference)) {
            continue;
        }
        SaveLoss loss;
        const auto name = std::pair(difference.What, difference.Identity);
        const bool isOnDisk = changed.OnDisk.contains(name);
        loss.ByUser = !isOnDisk && changed.InEditor.contains(name);
        loss.Words = WordsOf(difference);
        loss.IsOfEmptyField = !isOnDisk && reasons.IsOfEmptyField(difference);
        loss.Reason = loss.ByUser ? Text("You have changed it.")
                      : isOnDisk  ? Text("The file was changed after Setup Foundry had read it.")
                                  : reasons.ReasonOf(difference);
        loss.Difference = std::move(difference);
        report.Losses.push_back(std::move(loss));
    }
    std::stable_partition(report.Losses.begin(), report.Losses.end(),
                          [](const SaveLoss& loss) { return loss.Difference.Kind != DifferenceKind::Added; });
    return report;
}

bool LosesSomething(const SaveReport& report, ScriptHand hand) {
    return !report.IsOfNothing && std::ranges::any_of(report.Losses, [hand](const SaveLoss& loss) {
        const bool isOfEditor = loss.Difference.Kind == DifferenceKind::Added || loss.IsOfEmptyField;
        return !loss.ByUser && (hand == ScriptHand::Foreign || loss.IsOverridden || !isOfEditor);
    });
}

}  // namespace lv
