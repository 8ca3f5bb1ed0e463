#include "commands/dry_run/dry_run_report.h"

#include <algorithm>
#include <iterator>

#include "commands/dry_run/missing_parts.h"
#include "foundation/field_strings.h"
#include "games/games.h"

namespace lv {

namespace {

constexpr TextView kIndent = "    ";
constexpr std::size_t kMostShownBytes = 20'000;
constexpr std::size_t kMostShownChanges = 200;

Text Line(TextView name, TextView value) {
    return Join(PadToWidth(name, 12), value, NewLine);
}

/// Each line of the text behind two indents.
Text Indented(TextView text) {
    Text lines;
    TextView rest = text.substr(0, kMostShownBytes);
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        TextView line = rest.substr(0, end);
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        lines += Join(kIndent, kIndent, line, NewLine);
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    if (text.size() > kMostShownBytes) {
        lines += Join(kIndent, kIndent, "...", NewLine);
    }
    return lines;
}

bool IsOfText(TextView bytes) {
    return bytes.find('\0') == TextView::npos;
}

Text ChangeLines(const RehearsedChange& change, const PathText& asPrinted) {
    const Text path = SaidPath(asPrinted, change.Path);
    using Sort = RehearsedChange::Sort;
    switch (change.What) {
        case Sort::Written:
            return Join(kIndent, path, " (", std::to_string(change.Bytes.size()), " bytes)", NewLine,
                        IsOfText(change.Bytes) ? Indented(change.Bytes) : Text());
        case Sort::Linked:
            return Join(kIndent, path, " (a link to ", SaidPath(asPrinted, change.Bytes), ")", NewLine);
        case Sort::Deleted:
            return Join(kIndent, path, " (deleted)", NewLine);
        case Sort::DirectoryMade:
            return Join(kIndent, path, " (a directory)", NewLine);
        case Sort::DirectoryRemoved:
            return Join(kIndent, path, " (a directory, removed)", NewLine);
    }
    return {};
}

Text WrittenPart(const Rehearsal& rehearsal) {
    const std::vector<RehearsedChange> changes = rehearsal.Disk.Changes();
    Text part = Join("Would be written:", NewLine);
    std::size_t shown = 0;
    for (const RehearsedChange& change : changes) {
        if (++shown > kMostShownChanges) {
            part += Join(kIndent, "and ", std::to_string(changes.size() - kMostShownChanges), " more", NewLine);
            break;
        }
        part += ChangeLines(change, rehearsal.AsPrinted);
    }
    if (rehearsal.Registry.Writes > 0) {
        part += Join(kIndent, std::to_string(rehearsal.Registry.Writes), " settings in the registry", NewLine);
    }
    return changes.empty() && rehearsal.Registry.Writes == 0 ? Join(part, kIndent, "nothing", NewLine) : part;
}

/// A word in quotes where blanks would part it; for people.
Text Word(TextView word) {
    const bool needsQuotes = word.empty() || word.find_first_of(" \t\"") != TextView::npos;
    return needsQuotes ? Join("\"", word, "\"") : Text(word);
}

Text StartedPart(const Rehearsal& rehearsal) {
    Text part = Join("Would be started:", NewLine);
    if (!rehearsal.Programs.Plan) {
        return Join(part, kIndent, "nothing", NewLine);
    }
    if (!rehearsal.Programs.Plan->Ok()) {
        return Join(part, kIndent, "nothing: ", rehearsal.Programs.Plan->Fault.Text, NewLine);
    }
    const StartPlan& plan = rehearsal.Programs.Plan->Value;
    Text words;
    for (const std::string& word : plan.Words) {
        words += Join(words.empty() ? "" : " ", Word(word));
    }
    part += Join(kIndent, words, NewLine, kIndent, "in ", plan.Directory, NewLine);
    for (const std::string& variable : plan.Environment) {
        part += Join(kIndent, "with ", variable, NewLine);
    }
    return part;
}

Text ListPart(TextView head, const std::vector<Text>& rows) {
    if (rows.empty()) {
        return {};
    }
    Text part = Join(NewLine, head, NewLine);
    for (const Text& row : rows) {
        part += Join(kIndent, row, NewLine);
    }
    return part;
}

Text SaidPart(TextView said) {
    return said.empty() ? Text() : Join(NewLine, "Would be said:", NewLine, Indented(said));
}

Text GamePart(const Launcher& launcher, const PathText& asPrinted) {
    const ImageCombo& list = launcher.Window.Exe_Cbo;
    if (!list.HasSelection()) {
        return {};
    }
    const ImageComboItem& item = list.Items[static_cast<std::size_t>(list.ListIndex)];
    const Run& run = launcher.run;
    return Join(Line("Title", item.Title), Line("Program", SaidPath(asPrinted, item.Key)),
                Line("Game", FactsOf(run.GameKind).Name), Line("Data", run.CurrentGameDir),
                Line("Profile", launcher.Window.VideoProfiles_Cbo.Selected()));
}

}  // namespace

DryRunReport ReportOf(const Rehearsal& rehearsal) {
    std::vector<Text> missing = rehearsal.Missing;
    std::ranges::move(MissingParts(rehearsal.Its, rehearsal.AsPrinted), std::back_inserter(missing));
    const auto& plan = rehearsal.Programs.Plan;
    DryRunReport report;
    report.IsMissingSomething = !missing.empty() || !plan || !plan->Ok();
    report.Text = Join("A dry run: nothing was written, and nothing was started.", NewLine, NewLine,
                       GamePart(rehearsal.Its, rehearsal.AsPrinted), NewLine, WrittenPart(rehearsal), NewLine,
                       StartedPart(rehearsal), ListPart("Is missing:", missing), SaidPart(rehearsal.Said));
    return report;
}

}  // namespace lv
