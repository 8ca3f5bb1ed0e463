#include "foundry/losses/keep_plan.h"

#include <gtest/gtest.h>

#include "console/command_words.h"
#include "console/text_difference.h"
#include "foundation/field_strings.h"
#include "tests/foundry/golden_file.h"
#include "tests/foundry/losses/careless_scripts.h"
#include "tests/foundry/losses/freeing_scripts.h"
#include "tests/foundry/losses/save_rounds.h"
#include "tests/foundry/made_up_scripts.h"
#include "tests/foundry/rounds.h"

namespace lv {
namespace {

constexpr ScriptDialect kDialects[] = {kQuakeDialect,  kQuakeWorldDialect, kHexen2Dialect,   kQuake2Dialect,
                                       kUnrealDialect, kSinDialect,        kHeretic2Dialect, kHalfLifeDialect};

/// The dialect that is written for who plays with this console.
const ScriptDialect& DialectOfConsole(Console console) {
    const bool isNew = console == Console::Quake2 || console == Console::Yamagi || console == Console::Q2Pro;
    return isNew                          ? kQuake2Dialect
           : console == Console::HalfLife ? kHalfLifeDialect
           : console == Console::Unreal   ? kUnrealDialect
                                          : kQuakeDialect;
}

Text FreeFormOf(const ScriptDialect& dialect, TextView file) {
    return KeptFreeForm(dialect, file, ConsoleOfDialect(dialect));
}

/// What cannot be kept, one a line.
Text LeftOf(const ScriptDialect& dialect, TextView file, Console console) {
    const ScriptDocument document = ReadScript(dialect, file);
    const KeepPlan plan = PlanOf(dialect, document, file, {}, console);
    SaveReport report = ReportOf(dialect, file, console);
    MarkWhatIsLeft(report, plan);
    std::erase_if(report.Losses, [](const SaveLoss& loss) { return loss.CanKeep; });
    return LossesOf(report);
}

/// What comes to the Free Form Additions sets nothing that the file does not speak of.
void ExpectNoLineOfNobody(const ScriptDialect& dialect, TextView file, Console console) {
    const Text before = ReadScript(dialect, file).Sections.at(0).Text;
    const Text after = KeptFreeForm(dialect, file, console);
    const Text words = LowerCase(file);
    for (const TextView line : LinesOf(after)) {
        const ScriptEffects kept = EffectsOf(Holds(before, line) ? TextView() : line, console);
        for (const EffectTable* table : {&kept.Binds, &kept.Aliases, &kept.Settings}) {
            for (const Effect& effect : table->All()) {
                const bool isSpelled = Holds(words, LowerCase(effect.Name));
                EXPECT_TRUE(isSpelled || Holds(words, LowerCase(effect.Source).substr(0, effect.Source.find(' '))))
                    << effect.Source;
            }
        }
    }
}

/// All but what comes of an empty field of which the script said nothing.
Text ChangesOfSomebody(const ScriptDialect& dialect, TextView file, Console console, const ScriptEffects& wished) {
    SaveReport report = ReportOf(dialect, file, console);
    std::erase_if(report.Losses, [&wished](const SaveLoss& loss) {
        return loss.IsOfEmptyField && wished.Settings.Find(loss.Difference.Identity) == nullptr;
    });
    return ChangesOf(report);
}

/// Once all was kept, the script is opened and saved three times: the game has the same after each, and no line comes
/// to those that are there.
void ExpectThatItLasts(const ScriptDialect& dialect, TextView file, Console console) {
    SCOPED_TRACE(Join(RulesOf(console).Name, "\n", file));
    // A script of its own has an empty name because the editor gave it one.
    const ScriptEffects wished = EffectsOf(ReadScript(dialect, file).Foreign ? file : TextView(), console);
    Text script = KeptScript(dialect, file, console);
    ExpectNoLineOfNobody(dialect, file, console);
    for (int cycle = 0; cycle < 3; ++cycle) {
        ASSERT_EQ(ChangesOfSomebody(dialect, script, console, wished), "") << "in cycle " << cycle << " of\n" << script;
        const ScriptDocument document = ReadScript(dialect, script);
        ASSERT_FALSE(PlanOf(dialect, document, script, {}, console).Keeps);
        script = ComposeScript(document, kScriptDay);
    }
}

}  // namespace

TEST(PlanKeeping, PutsLostLinesIntoTheFreeFormAdditions) {
    EXPECT_EQ(FreeFormOf(kQuakeDialect, "name P\necho a\nalias  Hi \"say Hello\"\necho b"),
              "echo a\r\n; alias  Hi \"say Hello\"\r\necho b");
    EXPECT_EQ(FreeFormOf(kQuakeDialect, "name P\nbind a \"+attack\""), "");
    EXPECT_EQ(FreeFormOf(kQuakeDialect, "name P\nbind ESCAPE \"togglemenu\"\nalias zoom \"\"\n[x] y"),
              "; bind ESCAPE \"togglemenu\"\r\n; alias zoom \"\"\r\n; [x] y");
    EXPECT_EQ(FreeFormOf(kHexen2Dialect, "name P\nbind KP_HOME \"+attack\""), "; bind KP_HOME \"+attack\"");
}

TEST(PlanKeeping, PutsALineThatTheReaderCutsInThePlaceOfWhatItLeft) {
    EXPECT_EQ(
        FreeFormOf(kQuakeDialect, "name P\necho a\nsay \"http://my.page\"\nbind a \"say http://x\" // why\necho b"),
        "echo a\r\n//; say \"http://my.page\"\r\n//; bind a \"say http://x\" // why\r\necho b");
}

TEST(PlanKeeping, LeavesWhatTheReaderCutsForAConsoleThatTakesNoCommandInAComment) {
    EXPECT_EQ(
        LeftOf(kQuakeDialect, "name P\nset myvar \"a; b // c\"\nbind ESCAPE q", Console::DarkPlaces),
        "The setting myvar gets \"a; b\" and was \"a; b // c\". (Setup Foundry ends a line at //, in quotes too.)");
    EXPECT_EQ(KeptFreeForm(kQuakeDialect, "name P\nset myvar \"a; b // c\"\nbind ESCAPE q", Console::DarkPlaces),
              "set myvar \"a; b\r\n; bind ESCAPE q");
}

TEST(PlanKeeping, PutsAllBindingsBehindTheCommandThatFreesThem) {
    EXPECT_EQ(FreeFormOf(kQuakeDialect, "name P\necho a; unbindall\nbind a \"+attack\"\nbind b \"+jump\""),
              "echo a; unbindall\r\n; bind a \"+attack\"\r\n; bind b \"+jump\"");
}

TEST(PlanKeeping, PutsWhatOverridesAScriptBehindIt) {
    EXPECT_EQ(FreeFormOf(kQuakeDialect, "name P\nfov 90\nexec base.cfg\nbind a \"+attack\"\nsensitivity 3"),
              "exec base.cfg\r\n; bind a \"+attack\"\r\n; sensitivity 3");
}

TEST(PlanKeeping, GivesAllSpellingsOfAnAliasWhatIsRun) {
    EXPECT_EQ(FreeFormOf(kQuakeDialect, "name P\necho a; alias Zoom 1\nalias zoom 2"),
              "echo a; alias Zoom 1\r\n; alias zoom 2\r\n; alias \"Zoom\" \"2\"");
}

TEST(PlanKeeping, FreesAgainTheKeysThatTheScriptFreesItself) {
    EXPECT_EQ(KeptFreeForm(kQuakeDialect, "name P\nbind n \"+jump\"\necho a\nunbindall\nbind k a\necho b",
                           Console::DarkPlaces),
              "echo a\r\nunbind \"n\"\r\necho b");
    EXPECT_EQ(KeptFreeForm(kQuakeDialect, "name P\nalias Rocket \"impulse 7\"\nunalias Rocket", Console::DarkPlaces),
              "unalias Rocket\r\nunalias \"rocket\"");
    EXPECT_EQ(LeftOf(kQuakeDialect, "name P\nbind n \"+jump\"\nunbindall\nbind k a", Console::DarkPlaces), "");
}

TEST(PlanKeeping, KeepsAnEmptyNameThatTheScriptHas) {
    EXPECT_EQ(FreeFormOf(kQuakeDialect, "name \"\"\nbind x \"+attack\""), "; name \"\"");
}

TEST(PlanKeeping, KeepsNothingThatTheEditorWroteIntoAScriptOfItsOwn) {
    for (const ScriptDialect& dialect : kDialects) {
        if (dialect.GameKind == Game::Unreal) {
            continue;
        }
        const Text written = WrittenOf(dialect, "bind x \"+attack\"");
        const Text losing = Join(written, "\r\nbind y \"impulse 9\"; bind z \"+back\"");
        EXPECT_EQ(FreeFormOf(dialect, written), "");
        EXPECT_EQ(Holds(FreeFormOf(dialect, losing), "; name"), false) << FreeFormOf(dialect, losing);
    }
}

TEST(PlanKeeping, PutsNoLineThatNobodyWrote) {
    struct Row {
        ScriptDialect Dialect;
        const char* FreeForm;
    };
    constexpr const char* kOfOld = "; bind x slot2\r\nunbind z";
    constexpr const char* kOfNew = "; bind h say hello all\r\n; bind x slot2\r\nunbind z";
    for (const Row& row : {Row{kQuakeDialect, kOfOld}, Row{kQuakeWorldDialect, kOfOld}, Row{kHexen2Dialect, kOfOld},
                           Row{kQuake2Dialect, kOfNew}, Row{kSinDialect, kOfNew}, Row{kHeretic2Dialect, kOfNew},
                           Row{kHalfLifeDialect, "; bind h say hello all\r\nunbind z"}}) {
        EXPECT_EQ(FreeFormOf(row.Dialect, "bind h say hello all\nbind x slot2\nunbind z"), row.FreeForm)
            << RulesOf(ConsoleOfDialect(row.Dialect)).Name;
    }
}

/// Kept, opened again, the name typed on its page, and saved: the game has it.
TEST(PlanKeeping, LeavesTheNameToThePage) {
    for (const ScriptDialect& dialect : kDialects) {
        const Console console = ConsoleOfDialect(dialect);
        const Text kept = KeptScript(dialect, "bind h say hello all\nbind x slot2\nunbind z", console);
        ScriptDocument document = ReadScript(dialect, kept);
        document.Name_Txt.Text = "Bobby";
        const Text saved = ComposeScript(document, kScriptDay);
        const ScriptEffects effects = EffectsOf(saved, console);
        const Effect* const name = effects.Settings.Find("name");
        if (dialect.GameKind != Game::Unreal) {
            ASSERT_NE(name, nullptr);
            EXPECT_EQ(name->Value, "Bobby") << saved;
        }
    }
}

TEST(PlanKeeping, LeavesAloneWhatTheUserHasChanged) {
    const Text file = "name P\nbind a \"slot1\"\nbind b \"slot2\"";
    ScriptDocument document = ReadScript(kQuakeDialect, file);
    const Text unedited = ComposeScript(document, kScriptDay);
    Bind(document, KeyFromName("a"), "+jump");
    const ChangedNames changed{DifferingNames(unedited, ComposeScript(document, kScriptDay), Console::Quake), {}};
    const KeepPlan plan = PlanOf(kQuakeDialect, document, file, changed, Console::Quake);
    EXPECT_TRUE(plan.Keeps);
    EXPECT_EQ(plan.Sections.at(0).Text, "; bind b \"slot2\"");
}

TEST(PlanKeeping, LetsTheReaderHaveWhatItHasNotSeenYet) {
    const Text known = WrittenOf(kQuakeDialect, "name P\nbind a \"+jump\"");
    const Text file = Join(known, "\r\nbind a \"+attack\"\r\nbind ESCAPE q");
    const ChangedNames changed{{}, DifferingNames(known, file, Console::Quake)};
    const KeepPlan plan = PlanOf(kQuakeDialect, ReadScript(kQuakeDialect, known), file, changed, Console::Quake);
    EXPECT_EQ(plan.Sections.at(0).Text, "bind a \"+attack\"\r\n; bind ESCAPE q");
    EXPECT_TRUE(plan.Left.empty());
}

TEST(PlanKeeping, LeavesInAnIniWhatTheReaderTakesFromItsSections) {
    const Text file =
        "[Engine.Input]\r\nMouseX=Axis aMouseX Speed=6.0\r\nMouseY=Axis aMouseY Speed=6.0\r\nEscape=Fire\r\n[x]\r\n"
        "Gamma=0.5\r\n";
    EXPECT_EQ(
        LeftOf(kUnrealDialect, file, Console::Unreal),
        "The key Escape gets \"ShowMenu\" and was \"Fire\". (Setup Foundry always writes its own command for this "
        "key.)\n"
        "The setting [x] gamma is lost: \"0.5\". (Setup Foundry has a place of its own for it, and writes that in "
        "another way.)");
    EXPECT_FALSE(PlanOf(kUnrealDialect, ReadScript(kUnrealDialect, file), file, {}, Console::Unreal).Keeps);
}

TEST(PlanKeeping, LastsForTheScriptsThatOnceLostLinesAgain) {
    ExpectThatItLasts(kQuakeDialect, "name P\nbind t \"say http://my.page\"\nsay \"http://my.page\"", Console::Quake);
    ExpectThatItLasts(
        kQuake2Dialect,
        "bind ESCAPE q\nbind x \"say http://a.b/c\"\nbind r say two words\nalias rock \"use Rocket Launcher\"",
        Console::Quake2);
    ExpectThatItLasts(kQuakeDialect, "name P\nunbindall; bind w +forward\nbind q +jump\nbind e zoom", Console::Quake);
    ExpectThatItLasts(kQuakeDialect, "name P\nset myvar \"a; b // c\"", Console::DarkPlaces);
    ExpectThatItLasts(kQuakeDialect, "bind x +attack", Console::Quake);
}

TEST(PlanKeeping, LastsForGoldenScripts) {
    struct Row {
        const char* File;
        ScriptDialect Dialect;
        const char* Left;
    };
    for (const Row& row : {Row{"quake.cfg", kQuakeDialect, ""}, Row{"quake.cfg", kQuake2Dialect, ""},
                           Row{"quake_empty.cfg", kQuakeDialect, ""}, Row{"quakeworld.cfg", kQuakeWorldDialect, ""},
                           Row{"hexen2.cfg", kHexen2Dialect, ""}, Row{"quake2.cfg", kQuake2Dialect, ""},
                           Row{"quake2.cfg", kHexen2Dialect, ""}, Row{"sin.cfg", kSinDialect, ""},
                           Row{"heretic2.cfg", kHeretic2Dialect, ""}, Row{"halflife.cfg", kHalfLifeDialect, ""},
                           Row{"unreal.ini", kUnrealDialect,
                               "The key Enter loses \"Feigndeath\". (Setup Foundry writes another line for this key "
                               "behind it.)\n"
                               "The key MouseY gets \"minus=SwitchWeapon 4\" and was \"JoyX=Axis aStrafe\". (Setup "
                               "Foundry does not end the line of an axis that has no speed: what follows stands on "
                               "it.)"}}) {
        const Console console = ConsoleOfDialect(row.Dialect);
        EXPECT_EQ(LeftOf(row.Dialect, Golden(row.File), console), row.Left) << row.File;
        ExpectThatItLasts(row.Dialect, Golden(row.File), console);
    }
}

/// Each row of what is left is one that no line of any form can keep.
void ExpectOnlyTheHopeless(const ScriptDialect& dialect, TextView file, Console console) {
    const bool splits = RulesOf(console).Comment == CommentRule::Splits;
    const KeepPlan plan = PlanOf(dialect, ReadScript(dialect, file), file, {}, console);
    SaveReport report = ReportOf(dialect, file, console);
    MarkWhatIsLeft(report, plan);
    for (const SaveLoss& loss : report.Losses) {
        const bool isCut = Holds(loss.Difference.Before.Source, "//") || Holds(loss.Difference.Before.Source, "\xA0") ||
                           Holds(loss.Difference.Before.Value, "//");
        // Of several commands in a line one that runs a script may still run out of order.
        const bool isHopeless =
            loss.Difference.Kind == DifferenceKind::Added || RunsScript(loss.Difference.Name) || (isCut && !splits);
        if (!loss.CanKeep && !isHopeless) {
            ADD_FAILURE() << RulesOf(console).Name << ": " << loss.Words << Blank << loss.Reason << "\n" << file;
        }
    }
}

TEST(PlanKeeping, LastsForMadeUpScripts) {
    for (const ScriptDialect& dialect : kDialects) {
        MadeUpScripts scripts(1998);
        for (int round = 0; round < Rounds(60); ++round) {
            const Text file = scripts.Next(dialect);
            const Console console = ConsoleOfDialect(dialect);
            ExpectThatItLasts(dialect, file, console);
            if (dialect.GameKind != Game::Unreal) {
                ExpectOnlyTheHopeless(dialect, file, console);
            }
        }
    }
}

TEST(PlanKeeping, LastsForCarelessScripts) {
    for (const ConsoleRules& rules : AllConsoles()) {
        CarelessScripts scripts(1999);
        for (int round = 0; round < Rounds(100); ++round) {
            const Text file = scripts.Next();
            ExpectThatItLasts(DialectOfConsole(rules.Id), file, rules.Id);
            if (rules.Id != Console::Unreal) {
                ExpectOnlyTheHopeless(DialectOfConsole(rules.Id), file, rules.Id);
            }
        }
    }
}

TEST(PlanKeeping, LastsForScriptsThatFreeAndForget) {
    for (const ConsoleRules& rules : AllConsoles()) {
        FreeingScripts scripts(2001);
        for (int round = 0; round < Rounds(200); ++round) {
            const Text file = scripts.Next();
            ExpectThatItLasts(DialectOfConsole(rules.Id), file, rules.Id);
            if (rules.Id != Console::Unreal) {
                ExpectOnlyTheHopeless(DialectOfConsole(rules.Id), file, rules.Id);
            }
        }
    }
}

}  // namespace lv
