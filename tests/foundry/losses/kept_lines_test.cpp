#include "foundry/losses/kept_lines.h"

#include <gtest/gtest.h>

#include "tests/foundry/golden_file.h"
#include "tests/foundry/losses/careless_scripts.h"
#include "tests/foundry/losses/save_rounds.h"
#include "tests/foundry/made_up_scripts.h"
#include "tests/foundry/rounds.h"

namespace lv {
namespace {

constexpr ScriptDialect kDialects[] = {kQuakeDialect,  kQuakeWorldDialect, kHexen2Dialect,   kQuake2Dialect,
                                       kUnrealDialect, kSinDialect,        kHeretic2Dialect, kHalfLifeDialect};

Text FreeFormOf(const ScriptDialect& dialect, TextView file) {
    ScriptDocument document = ReadScript(dialect, file);
    KeepLosses(document, file, {}, kScriptDay, ConsoleOfDialect(dialect));
    return document.Sections.at(0).Text;
}

/// What a script would lose still, once all was kept.
Text LeftOf(const ScriptDialect& dialect, TextView file, Console console) {
    return LossesOf(ReportSave({file, KeptScript(dialect, file, console)}, {}, dialect, console));
}

bool IsMoved(const SaveLoss& loss) {
    return loss.Difference.Kind == DifferenceKind::Moved;
}

}  // namespace

TEST(KeepLosses, PutsLostLinesIntoTheFreeFormAdditionsToTheLetter) {
    EXPECT_EQ(FreeFormOf(kQuakeDialect, "echo a\nalias  Hi \"say Hello\"\necho b"),
              "echo a\r\nalias  Hi \"say Hello\"\r\necho b");
    EXPECT_EQ(FreeFormOf(kQuakeDialect, "bind a \"say http://x\" // why"), "bind a \"say http://x\"");
    EXPECT_EQ(FreeFormOf(kQuakeDialect, "bind a \"+attack\""), "");
}

TEST(KeepLosses, HidesFromTheReaderWhatItWouldDropAgain) {
    EXPECT_EQ(FreeFormOf(kQuakeDialect, "bind ESCAPE \"togglemenu\"\nalias zoom \"\"\n[x] y"),
              "; bind ESCAPE \"togglemenu\"\r\n; alias zoom \"\"\r\n; [x] y");
    EXPECT_EQ(FreeFormOf(kHexen2Dialect, "bind KP_HOME \"+attack\""), "; bind KP_HOME \"+attack\"");
}

TEST(KeepLosses, LeavesNothingToLoseAfterTheNextOpening) {
    const Text file =
        "name Joe\nbind ESCAPE \"togglemenu\"\nalias zoom \"\"\n[x] y\n; bind WINDOWS x\nbind F12 \"+attack\"";
    const Text kept = KeptScript(kQuakeDialect, file);
    EXPECT_EQ(LossesOf(kQuakeDialect, kept), "");
    EXPECT_EQ(WrittenOf(kQuakeDialect, kept), kept);
}

TEST(KeepLosses, PutsAllBindingsBehindTheCommandThatFreesThem) {
    const Text file = "echo a; unbindall\nbind a \"+attack\"\nbind b \"+jump\"";
    EXPECT_EQ(FreeFormOf(kQuakeDialect, file), "echo a; unbindall\r\nbind a \"+attack\"\r\nbind b \"+jump\"");
}

TEST(KeepLosses, PutsWhatOverridesAScriptBehindIt) {
    EXPECT_EQ(FreeFormOf(kQuakeDialect, "fov 90\nexec base.cfg\nbind a \"+attack\"\nsensitivity 3"),
              "exec base.cfg\r\nbind a \"+attack\"\r\nsensitivity 3");
}

TEST(KeepLosses, WritesWhatAnAliasDid) {
    EXPECT_EQ(FreeFormOf(kQuakeDialect, "alias a \"bind ESCAPE q\"; a"),
              "alias a \"bind ESCAPE q\"\r\na\r\n; bind \"ESCAPE\" \"q\"");
}

TEST(KeepLosses, GivesAllSpellingsOfAnAliasWhatIsRun) {
    EXPECT_EQ(FreeFormOf(kQuakeDialect, "echo a; alias Zoom 1\nalias zoom 2"),
              "echo a; alias Zoom 1\r\nalias zoom 2\r\nalias \"Zoom\" \"2\"");
}

TEST(KeepLosses, LeavesAloneWhatTheUserHasChanged) {
    const Text file = "bind a \"slot1\"\nbind b \"slot2\"";
    ScriptDocument document = ReadScript(kQuakeDialect, file);
    const Text unedited = ComposeScript(document, kScriptDay);
    Bind(document, KeyFromName("a"), "+jump");
    const ChangedNames changed{DifferingNames(unedited, ComposeScript(document, kScriptDay), Console::Quake), {}};
    EXPECT_TRUE(KeepLosses(document, file, changed, kScriptDay, Console::Quake));
    EXPECT_EQ(document.Sections.at(0).Text, "bind b \"slot2\"");
}

TEST(KeepLosses, PutsAnInisLinesIntoTheirSections) {
    const Text file =
        "[Engine.Input]\r\nMouseX=Axis aMouseX Speed=6.0\r\nMouseY=Axis aMouseY Speed=6.0\r\nEscape=Fire\r\n[x]\r\n"
        "Gamma=0.5\r\n";
    ScriptDocument document = ReadScript(kUnrealDialect, file);
    EXPECT_TRUE(KeepLosses(document, file, {}, kScriptDay, Console::Unreal));
    EXPECT_EQ(document.Sections.at(0).Text, "Escape=Fire");
    EXPECT_EQ(document.Sections.at(1).Text, "Gamma=0.5");
    EXPECT_FALSE(KeepLosses(document, file, {}, kScriptDay, Console::Unreal));
}

TEST(KeepLosses, LeavesNothingToLoseInGoldenScripts) {
    struct Row {
        const char* File;
        ScriptDialect Dialect;
    };
    for (const Row& row :
         {Row{"quake.cfg", kQuakeDialect}, Row{"quake.cfg", kQuake2Dialect}, Row{"quake_empty.cfg", kQuakeDialect},
          Row{"quakeworld.cfg", kQuakeWorldDialect}, Row{"hexen2.cfg", kHexen2Dialect},
          Row{"quake2.cfg", kQuake2Dialect}, Row{"quake2.cfg", kHexen2Dialect}, Row{"sin.cfg", kSinDialect},
          Row{"heretic2.cfg", kHeretic2Dialect}, Row{"halflife.cfg", kHalfLifeDialect},
          Row{"unreal.ini", kUnrealDialect}}) {
        EXPECT_EQ(LeftOf(row.Dialect, Golden(row.File), ConsoleOfDialect(row.Dialect)), "") << row.File;
    }
}

TEST(KeepLosses, LeavesNothingToLoseInMadeUpScripts) {
    for (const ScriptDialect& dialect : kDialects) {
        MadeUpScripts scripts(1998);
        for (int round = 0; round < Rounds(400); ++round) {
            const Text file = scripts.Next(dialect);
            ASSERT_EQ(LeftOf(dialect, file, ConsoleOfDialect(dialect)), "") << file;
        }
    }
}

TEST(KeepLosses, LeavesNothingToLoseInCarelessScripts) {
    for (const ConsoleRules& rules : AllConsoles()) {
        const bool isNew = rules.Id == Console::Quake2 || rules.Id == Console::Yamagi || rules.Id == Console::Q2Pro;
        const ScriptDialect& dialect = isNew                           ? kQuake2Dialect
                                       : rules.Id == Console::HalfLife ? kHalfLifeDialect
                                                                       : kQuakeDialect;
        if (rules.Id == Console::Unreal) {
            continue;
        }
        CarelessScripts scripts(1999);
        for (int round = 0; round < Rounds(300); ++round) {
            const Text file = scripts.Next();
            SaveReport report = ReportSave({file, KeptScript(dialect, file, rules.Id)}, {}, dialect, rules.Id);
            // Of several commands in a line one that runs a script may still run out of order.
            std::erase_if(report.Losses, IsMoved);
            ASSERT_EQ(LossesOf(report), "") << rules.Name << "\n" << file;
        }
    }
}

TEST(KeptLines, SayWhereTheFileHasThem) {
    const Text file = "echo a\nbind ESCAPE \"togglemenu\"";
    const Text written = WrittenOf(kQuakeDialect, file);
    const SaveTexts texts{file, written};
    const SaveReport report = ReportSave(texts, {}, kQuakeDialect, Console::Quake);
    const std::vector<KeptLine> lines = KeptLines(report, texts, kQuakeDialect, Console::Quake);
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0].Line, "; bind ESCAPE \"togglemenu\"");
    EXPECT_EQ(lines[0].FileLine, 2U);
    EXPECT_EQ(lines[0].Section, "");
}

}  // namespace lv
