// console/checks/finding.h
//
// What a check has to say, a row a kind.

#pragma once

#include <span>
#include <vector>

#include "foundation/text.h"

namespace lv {

enum class FindingKind {
    OddQuote,
    OddQuoteDrops,
    LongLineOverruns,
    LongLineCut,
    LongLineDropped,
    ManyWords,
    LongWord,
    LongAliasName,
    LongScript,
    RunsInComment,
    OpenEnd,
    UnquotedBind,
    UnknownKey,
    UnknownWord,
    MissingCommand,
    CallsItself,
    CallsItselfAfterWait,
    LongPlayerName,
    MissingScript,
    ScriptLoop,
    ManyExecWords,
    UnreadScript,
};

enum class Certainty {
    Sure,     // the game does as it is said
    Perhaps,  // it may be meant, or nobody knows
};

struct FindingRow {
    FindingKind Kind = FindingKind::OddQuote;
    Certainty How = Certainty::Sure;
    TextView Words;  // "%1" is what it is about, "%2" a number or a second name, "%3" the console
};

/// In the order of the enumeration.
std::span<const FindingRow> AllFindingRows();

struct Finding {
    FindingKind Kind = FindingKind::OddQuote;
    Certainty How = Certainty::Sure;
    Text File;
    std::size_t Line = 0;  // from 1
    Text Words;
};

/// What it is about is shortened, and bytes that are no letters become "?".
Finding MakeFinding(FindingKind kind, TextView file, std::size_t line, TextView about, TextView second,
                    TextView console);

/// "my.cfg:12: ...", and "perhaps: " ahead of it where that is so; without a line end.
Text FindingLine(const Finding& finding);

/// "my.cfg:12: ..." and a line end each.
Text FindingReport(const std::vector<Finding>& findings);

}  // namespace lv
