#include "foundry/losses/overridden_edits.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>
#include <utility>

#include "console/text_difference.h"
#include "foundation/field_strings.h"
#include "foundry/losses/loss_words.h"
#include "foundry/reading/script_lines.h"
#include "foundry/writing/compose_script.h"

namespace lv {

namespace {

constexpr int kMostRounds = 12;  // several lines may set the same, one behind the other
constexpr TextView kPassed = ";";
constexpr TextView kPassedComment = "//;";

/// What the pages say, without what the Free Form Additions do behind them.
Text PagesOf(ScriptDocument document, const LocalTime& date) {
    for (ScriptSection& section : document.Sections) {
        section.Text.clear();
    }
    return ComposeScript(document, date);
}

/// The reader takes no such line to a page.
bool IsPassed(TextView line) {
    return line.starts_with(kPassed) || line.starts_with(kPassedComment);
}

std::pair<EffectKind, Text> NameOf(const ScriptDifference& difference) {
    return {difference.What, difference.Identity};
}

bool SetsOneThing(TextView line, Console console) {
    const ScriptEffects effects = EffectsOf(line, console);
    const std::size_t count = effects.Binds.All().size() + effects.Aliases.All().size() +
                              effects.Settings.All().size() + effects.Actions.size();
    return count == 1 && effects.Actions.empty() && !effects.UnbindsAll && !effects.UnaliasesAll;
}

class Overriding {
  public:
    Overriding(const ScriptDocument& unedited, const ScriptDocument& edited, const LocalTime& date, Console console)
        : edited_(edited), date_(date), console_(console), pages_(PagesOf(edited, date)) {
        changed_ = DifferingNames(PagesOf(unedited, date), pages_, console);
        for (const ScriptSection& section : unedited.Sections) {
            for (const TextView line : LinesOf(section.Text)) {
                opened_.emplace(TrimmedView(line, kScriptBlanks));
            }
        }
    }

    OverriddenEdits Edits() {
        OverriddenEdits edits;
        edits.Losses = Overridden();
        bool more = true;
        for (int round = 0; round < kMostRounds && more; ++round) {
            more = DropLines();
            edits.Drops = edits.Drops || more;
        }
        if (edits.Drops) {
            const std::vector<SaveLoss> left = Overridden();
            for (SaveLoss& loss : edits.Losses) {
                loss.CanKeep = std::ranges::none_of(
                    left, [&loss](const SaveLoss& each) { return NameOf(each.Difference) == NameOf(loss.Difference); });
            }
        }
        edits.Sections = std::move(edited_.Sections);
        return edits;
    }

  private:
    std::vector<SaveLoss> Overridden();
    bool DropLines();
    [[nodiscard]] Text WinningLine(const Effect& after, const ScriptEffects& written,
                                   const std::vector<TextView>& lines) const;

    ScriptDocument edited_;
    LocalTime date_;
    Console console_;
    Text pages_;
    EffectNames changed_;
    std::unordered_set<Text> opened_;  // the free-form lines
    std::vector<std::pair<Text, bool>> winning_;
};

/// The line that has the last word; empty if there is none, or one that comes to a page when the script is read.
Text Overriding::WinningLine(const Effect& after, const ScriptEffects& written,
                             const std::vector<TextView>& lines) const {
    const bool isBind = after.Kind == EffectKind::Bind;
    const std::size_t ofAll = isBind ? written.Unbindall.Line : written.Unaliasall.Line;
    const std::size_t number = after.Line > 0 ? after.Line : ofAll;
    if (number == 0 || number > lines.size()) {
        return {};
    }
    const Text line(TrimmedView(lines[number - 1], kScriptBlanks));
    return IsPassed(line) || opened_.contains(line) ? line : Text();
}

std::vector<SaveLoss> Overriding::Overridden() {
    std::vector<SaveLoss> losses;
    winning_.clear();
    const Text text = changed_.empty() ? pages_ : ComposeScript(edited_, date_);
    if (text == pages_) {
        return losses;
    }
    const std::vector<TextView> lines = LinesOf(text);
    const ScriptEffects written = EffectsOf(text, console_);
    for (ScriptDifference& difference : CompareScripts(EffectsOf(pages_, console_), written)) {
        if (difference.What == EffectKind::Action || !changed_.contains(NameOf(difference))) {
            continue;
        }
        Effect after = difference.After;
        after.Kind = difference.What;
        Text line = WinningLine(after, written, lines);
        if (line.empty()) {
            continue;
        }
        SaveLoss loss;
        loss.IsOverridden = true;
        loss.CanKeep = false;
        loss.Words = OverriddenWordsOf(difference);
        loss.Reason = Join("The line ", line, " of the Free Form Additions runs behind those of the pages.");
        winning_.emplace_back(std::move(line), IsPassed(line) && SetsOneThing(line, console_));
        difference.Before.Line = 0;  // of the pages, which are no file
        loss.Difference = std::move(difference);
        losses.push_back(std::move(loss));
    }
    return losses;
}

bool Overriding::DropLines() {
    Overridden();
    std::unordered_set<Text> drop;
    for (const auto& [line, setsOneThing] : winning_) {
        if (setsOneThing) {
            drop.insert(line);
        }
    }
    if (drop.empty()) {
        return false;
    }
    for (ScriptSection& section : edited_.Sections) {
        Text left;
        bool isFirst = true;
        for (const TextView line : LinesOf(section.Text)) {
            if (!drop.contains(Text(TrimmedView(line, kScriptBlanks)))) {
                left.append(std::exchange(isFirst, false) ? TextView() : NewLine).append(line);
            }
        }
        section.Text = std::move(left);
    }
    return true;
}

}  // namespace

OverriddenEdits FindOverriddenEdits(const ScriptDocument& unedited, const ScriptDocument& edited, const LocalTime& date,
                                    Console console) {
    return Overriding(unedited, edited, date, console).Edits();
}

void TellOverriddenEdits(SaveReport& report, const OverriddenEdits& edits, const ChangedNames& changed) {
    std::vector<SaveLoss> told;
    std::ranges::copy_if(edits.Losses, std::back_inserter(told), [&changed](const SaveLoss& loss) {
        return !changed.OnDisk.contains(NameOf(loss.Difference));
    });
    std::erase_if(report.Losses, [&told](const SaveLoss& loss) {
        return std::ranges::any_of(
            told, [&loss](const SaveLoss& each) { return NameOf(each.Difference) == NameOf(loss.Difference); });
    });
    report.Losses.insert(report.Losses.begin(), told.begin(), told.end());
}

ChangedNames WithEdits(ChangedNames changed, const OverriddenEdits& edits) {
    for (const SaveLoss& loss : edits.Losses) {
        if (loss.CanKeep) {
            changed.InEditor.insert(NameOf(loss.Difference));
        }
    }
    return changed;
}

}  // namespace lv
