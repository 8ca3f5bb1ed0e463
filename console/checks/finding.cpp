#include "console/checks/finding.h"

#include <algorithm>

namespace lv {

namespace {

using enum FindingKind;

constexpr Certainty kSure = Certainty::Sure;
constexpr Certainty kPerhaps = Certainty::Perhaps;

constexpr std::size_t kLongestAbout = 60;

// clang-format off
constexpr FindingRow kRows[] = {
    {OddQuote,             kSure,    "A quote is not closed: all to the end of the line belongs to it."},
    {OddQuoteDrops,        kSure,    "A quote is not closed: %3 drops the command."},
    {LongLineOverruns,     kSure,    "The command has %1 bytes, but %3 has room for %2: nobody can say what comes of it."},
    {LongLineCut,          kSure,    "The command has %1 bytes: %3 reads the first %2."},
    {LongLineDropped,      kSure,    "The command has %1 bytes: %3 drops those of more than %2."},
    {ManyWords,            kSure,    "The command has %1 words: %3 reads the first %2."},
    {LongWord,             kSure,    "A word has %1 bytes: %3 reads the first %2."},
    {LongAliasName,        kSure,    "The alias name %1 has more than %2 letters: %3 refuses it."},
    {LongScript,           kSure,    "The script has %1 bytes: %3 drops those of more than %2 as a whole."},
    {RunsInComment,        kSure,    "%3 runs what follows the \";\" in the comment: %1"},
    {OpenEnd,              kSure,    "The last line has no end: %3 joins it with the next command that it gets."},
    {UnquotedBind,         kSure,    "The command of the key %1 is several words without quotes: %3 refuses it."},
    {UnknownKey,           kSure,    "%3 has no key %1."},
    {UnknownWord,          kPerhaps, "%1 is no command, setting or alias that is known: perhaps one of a modification."},
    {MissingCommand,       kSure,    "%3 has no command %1."},
    {CallsItself,          kSure,    "The alias %1 calls itself without end: %2"},
    {CallsItselfAfterWait, kPerhaps, "The alias %1 calls itself again and again, with a wait in between: %2"},
    {LongPlayerName,       kSure,    "The player's name %1 has more than %2 letters: %3 cuts it."},
    {MissingScript,        kSure,    "The script %1 is not there."},
    {ScriptLoop,           kSure,    "The script %1 is being run already: this goes round without end."},
    {ManyExecWords,        kSure,    "Behind exec stands more than one name: %3 does not run %1."},
    {UnreadScript,         kPerhaps, "The script %1 could not be read here."},
};
// clang-format on

Text Shown(TextView about) {
    Text shown(about.substr(0, kLongestAbout));
    std::ranges::replace_if(
        shown, [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; }, '?');
    return about.size() > kLongestAbout ? Join(shown, "...") : shown;
}

}  // namespace

std::span<const FindingRow> AllFindingRows() {
    return kRows;
}

Finding MakeFinding(FindingKind kind, TextView file, std::size_t line, TextView about, TextView second,
                    TextView console) {
    const FindingRow& row = kRows[static_cast<std::size_t>(kind)];
    Finding finding{kind, row.How, Text(file), line, {}};
    for (std::size_t at = 0; at < row.Words.size(); ++at) {
        const char c = row.Words[at];
        if (c != '%') {
            finding.Words += c;
            continue;
        }
        const char which = row.Words[++at];
        finding.Words += which == '1' ? Shown(about) : which == '2' ? Shown(second) : Text(console);
    }
    return finding;
}

Text FindingLine(const Finding& finding) {
    Text line = FindingReport({finding});
    while (!line.empty() && (line.back() == '\n' || line.back() == '\r')) {
        line.pop_back();
    }
    return finding.How == Certainty::Perhaps ? Join("perhaps: ", line) : line;
}

Text FindingReport(const std::vector<Finding>& findings) {
    Text report;
    for (const Finding& each : findings) {
        report += Join(each.File, ":", std::to_string(each.Line), ": ", each.Words, "\n");
    }
    return report;
}

}  // namespace lv
