#include "console/checks/finding.h"

#include <gtest/gtest.h>

namespace lv {

TEST(Findings, SayEachInItsWords) {
    struct Listed {
        FindingKind Kind;
        const char* Words;
    };
    constexpr Listed kListed[] = {
        {FindingKind::OddQuote, "A quote is not closed: all to the end of the line belongs to it."},
        {FindingKind::OddQuoteDrops, "A quote is not closed: Game drops the command."},
        {FindingKind::LongLineOverruns,
         "The command has x bytes, but Game has room for y: nobody can say what comes of it."},
        {FindingKind::LongLineCut, "The command has x bytes: Game reads the first y."},
        {FindingKind::LongLineDropped, "The command has x bytes: Game drops those of more than y."},
        {FindingKind::ManyWords, "The command has x words: Game reads the first y."},
        {FindingKind::LongWord, "A word has x bytes: Game reads the first y."},
        {FindingKind::LongAliasName, "The alias name x has more than y letters: Game refuses it."},
        {FindingKind::LongScript, "The script has x bytes: Game drops those of more than y as a whole."},
        {FindingKind::RunsInComment, "Game runs what follows the \";\" in the comment: x"},
        {FindingKind::OpenEnd, "The last line has no end: Game joins it with the next command that it gets."},
        {FindingKind::UnquotedBind, "The command of the key x is several words without quotes: Game refuses it."},
        {FindingKind::UnknownKey, "Game has no key x."},
        {FindingKind::UnknownWord, "x is no command, setting or alias that is known: perhaps one of a modification."},
        {FindingKind::MissingCommand, "Game has no command x."},
        {FindingKind::CallsItself, "The alias x calls itself without end: y"},
        {FindingKind::CallsItselfAfterWait, "The alias x calls itself again and again, with a wait in between: y"},
        {FindingKind::LongPlayerName, "The player's name x has more than y letters: Game cuts it."},
        {FindingKind::MissingScript, "The script x is not there."},
        {FindingKind::ScriptLoop, "The script x is being run already: this goes round without end."},
        {FindingKind::ManyExecWords, "Behind exec stands more than one name: Game does not run x."},
        {FindingKind::UnreadScript, "The script x could not be read here."},
    };
    ASSERT_EQ(AllFindingRows().size(), std::size(kListed));
    for (std::size_t i = 0; i < std::size(kListed); ++i) {
        EXPECT_EQ(AllFindingRows()[i].Kind, kListed[i].Kind);
        EXPECT_EQ(MakeFinding(kListed[i].Kind, "a.cfg", 1, "x", "y", "Game").Words, kListed[i].Words);
    }
}

TEST(Findings, AreSureOrNot) {
    std::vector<FindingKind> unsure;
    for (const FindingRow& row : AllFindingRows()) {
        if (row.How == Certainty::Perhaps) {
            unsure.push_back(row.Kind);
        }
    }
    EXPECT_EQ(unsure,
              (std::vector{FindingKind::UnknownWord, FindingKind::CallsItselfAfterWait, FindingKind::UnreadScript}));
}

TEST(Findings, ShowNoMoreThanALineOfAStrangersText) {
    const Finding finding =
        MakeFinding(FindingKind::UnknownKey, "a.cfg", 1, Join("a\nb\x1B[2J\x7F%1", Text(100, 'x')), "", "Game");
    EXPECT_EQ(finding.Words, Join("Game has no key a?b?[2J?%1", Text(50, 'x'), "...."));
}

TEST(FindingReport, HasALineForEach) {
    EXPECT_EQ(FindingReport({MakeFinding(FindingKind::UnknownKey, "my.cfg", 12, "ESC", "", "Quake"),
                             MakeFinding(FindingKind::MissingScript, "other.cfg", 1, "x.cfg", "", "Quake")}),
              "my.cfg:12: Quake has no key ESC.\nother.cfg:1: The script x.cfg is not there.\n");
    EXPECT_EQ(FindingReport({}), "");
}

TEST(Findings, ALineSaysWhereAndWhetherItIsSure) {
    const Finding sure = MakeFinding(FindingKind::MissingScript, "a.cfg", 3, "b.cfg", "", "Game");
    EXPECT_EQ(FindingLine(sure), "a.cfg:3: The script b.cfg is not there.");
    const Finding unsure = MakeFinding(FindingKind::UnknownWord, "a.cfg", 3, "b", "", "Game");
    EXPECT_TRUE(FindingLine(unsure).starts_with("perhaps: a.cfg:3: ")) << FindingLine(unsure);
}

}  // namespace lv
