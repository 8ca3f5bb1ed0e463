#include "foundry/losses/overridden_edits.h"

#include <gtest/gtest.h>

#include <functional>

#include "foundation/field_strings.h"
#include "tests/foundry/losses/save_rounds.h"

namespace lv {
namespace {

constexpr ScriptDialect kDialects[] = {kQuakeDialect, kQuakeWorldDialect, kHexen2Dialect,  kQuake2Dialect,
                                       kSinDialect,   kHeretic2Dialect,   kHalfLifeDialect};

using Edit = std::function<void(ScriptDocument&)>;

OverriddenEdits EditsOf(const ScriptDialect& dialect, TextView file, const Edit& edit) {
    const ScriptDocument unedited = ReadScript(dialect, file);
    ScriptDocument edited = unedited;
    edit(edited);
    return FindOverriddenEdits(unedited, edited, kScriptDay, ConsoleOfDialect(dialect));
}

/// "words reason", one a line; "+" ahead of those that can be kept.
Text RowsOf(const OverriddenEdits& edits) {
    Text rows;
    for (const SaveLoss& loss : edits.Losses) {
        rows += Join(rows.empty() ? "" : "\n", loss.CanKeep ? "+" : "", loss.Words, Blank, loss.Reason);
    }
    return rows;
}

void BindN(ScriptDocument& document) {
    Bind(document, KeyFromName("n"), "+jump");
}

Text LineWords(TextView line) {
    return Join(" The line ", line, " of the Free Form Additions runs behind those of the pages.");
}

}  // namespace

TEST(OverriddenEdits, AreThoseThatAKeptLineSetsBack) {
    const OverriddenEdits edits =
        EditsOf(kQuakeDialect, "name P\necho a\n; bind n \"slot2\"\necho b\n; name \"x\"\n; bind m slot1",
                [](ScriptDocument& document) {
                    BindN(document);
                    document.Name_Txt.Text = "Bobby";
                });
    EXPECT_EQ(RowsOf(edits),
              Join("+The key n keeps \"slot2\", and the page says \"+jump\".", LineWords("; bind n \"slot2\""),
                   "\n+The setting name keeps \"x\", and the page says \"Bobby\".", LineWords("; name \"x\"")));
    EXPECT_EQ(edits.Sections.at(0).Text, "echo a\r\necho b\r\n; bind m slot1");
    EXPECT_TRUE(edits.Drops);
}

TEST(OverriddenEdits, AreNoneWhereThePagesAreAsTheyWere) {
    const OverriddenEdits edits = EditsOf(kQuakeDialect, "name P\nbind n \"+back\"\n; bind n \"slot2\"",
                                          [](ScriptDocument& document) { Bind(document, KeyFromName("m"), "+jump"); });
    EXPECT_EQ(RowsOf(edits), "");
    EXPECT_FALSE(edits.Drops);
    EXPECT_EQ(edits.Sections.at(0).Text, "; bind n \"slot2\"");
}

TEST(OverriddenEdits, OfAKeyThatIsFreedOnThePage) {
    const OverriddenEdits edits = EditsOf(kQuakeDialect, "name P\nbind n \"+back\"\n; bind n \"slot2\"",
                                          [](ScriptDocument& document) { Bind(document, KeyFromName("n"), ""); });
    EXPECT_EQ(RowsOf(edits),
              Join("+The key n keeps \"slot2\", and on the page it is free.", LineWords("; bind n \"slot2\"")));
}

TEST(OverriddenEdits, LeaveALineOfThePlayersOwn) {
    for (const TextView line : {"unbind n", "echo a; bind n \"slot2\"", "; echo a; unbind n", "; unbindall"}) {
        const OverriddenEdits edits = EditsOf(kQuakeDialect, Join("name P\n", line), BindN);
        EXPECT_TRUE(RowsOf(edits).starts_with("The key n ")) << line << ": " << RowsOf(edits);
        EXPECT_TRUE(Holds(RowsOf(edits), LineWords(line)));
        EXPECT_FALSE(edits.Drops);
        EXPECT_EQ(edits.Sections.at(0).Text, line);
    }
}

TEST(OverriddenEdits, DropOneLineBehindTheOther) {
    const OverriddenEdits edits = EditsOf(kQuakeDialect, "name P\n; bind n slot1\n; bind n slot2", BindN);
    EXPECT_EQ(edits.Losses.size(), 1u);
    EXPECT_TRUE(edits.Losses.at(0).CanKeep);
    EXPECT_EQ(edits.Sections.at(0).Text, "");
}

TEST(OverriddenEdits, LeaveWhatTheReaderTakesToAPageTheNextTime) {
    const OverriddenEdits edits = EditsOf(kQuakeDialect, "name P", [](ScriptDocument& document) {
        BindN(document);
        document.Sections.at(0).Text = "bind n \"slot2\"";  // typed just now
    });
    EXPECT_EQ(RowsOf(edits), "");
}

TEST(OverriddenEdits, GiveTheGameWhatThePageSays) {
    for (const ScriptDialect& dialect : kDialects) {
        const Console console = ConsoleOfDialect(dialect);
        const Text file = "echo a; name \"x\"\nbind n say two words\nname \"\"";
        const Text kept = KeptScript(dialect, file);
        const ScriptDocument unedited = ReadScript(dialect, kept);
        ScriptDocument edited = unedited;
        edited.Name_Txt.Text = "Bobby";
        BindN(edited);
        const OverriddenEdits edits = FindOverriddenEdits(unedited, edited, kScriptDay, console);
        EXPECT_GE(edits.Losses.size(), 1u) << kept;
        ScriptDocument freed = edited;
        freed.Sections = edits.Sections;
        const EffectNames ofPages{{EffectKind::Setting, "name"}, {EffectKind::Bind, "n"}};
        freed.Sections = PlanOf(dialect, freed, kept, WithEdits({ofPages, {}}, edits), console).Sections;
        const ScriptEffects effects = EffectsOf(ComposeScript(freed, kScriptDay), console);
        ASSERT_NE(effects.Binds.Find("n"), nullptr);
        EXPECT_EQ(effects.Binds.Find("n")->Value, "+jump") << kept;
        for (const SaveLoss& loss : edits.Losses) {
            if (loss.Difference.Identity == "name" && loss.CanKeep) {
                EXPECT_EQ(effects.Settings.Find("name")->Value, "Bobby");
            }
        }
    }
}

TEST(TellOverriddenEdits, TakesThePlaceOfWhatTheReportSaysOfThem) {
    const Text file = "name P\n; bind n slot2";
    const OverriddenEdits edits = EditsOf(kQuakeDialect, file, BindN);
    SaveReport report = ReportOf(kQuakeDialect, "name P\nbind n slot2");
    const std::size_t rows = report.Losses.size();
    TellOverriddenEdits(report, edits, {});
    ASSERT_EQ(report.Losses.size(), rows);
    EXPECT_TRUE(report.Losses[0].IsOverridden);
    EXPECT_TRUE(LosesSomething(report, ScriptHand::Own));
    SaveReport other = ReportOf(kQuakeDialect, "name P\nbind n slot2");
    TellOverriddenEdits(other, edits, {{}, {{EffectKind::Bind, "n"}}});
    EXPECT_FALSE(other.Losses[0].IsOverridden);
}

TEST(WithEdits, NamesThoseThatCountNow) {
    const OverriddenEdits edits = EditsOf(kQuakeDialect, "name P\n; bind n slot2", BindN);
    EXPECT_EQ(WithEdits({}, edits).InEditor, (EffectNames{{EffectKind::Bind, "n"}}));
    EXPECT_EQ(WithEdits({}, EditsOf(kQuakeDialect, "name P\nunbind n", BindN)).InEditor, EffectNames());
}

}  // namespace lv
