#include "foundry/losses/save_losses.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <set>
#include <sstream>

#include "foundation/field_strings.h"
#include "tests/foundry/golden_file.h"
#include "tests/foundry/losses/save_rounds.h"
#include "tests/foundry/made_up_scripts.h"
#include "tests/foundry/rounds.h"

namespace lv {
namespace {

constexpr ScriptDialect kConsoleDialects[] = {kQuakeDialect, kQuakeWorldDialect, kHexen2Dialect,  kQuake2Dialect,
                                              kSinDialect,   kHeretic2Dialect,   kHalfLifeDialect};

/// What made-up scripts and those of this program set, read a second time and with less care: a statement a line.
struct PlainEffects {
    std::map<Text, Text> Binds;
    std::map<Text, Text> Aliases;
    std::map<Text, Text> Settings;
};

Text TakeWord(std::istringstream& line) {
    Text word;
    line >> std::ws;
    if (line.peek() == '"') {
        line.get();
        std::getline(line, word, '"');
    } else {
        line >> word;
    }
    return word;
}

PlainEffects ReadPlainly(TextView script, const ScriptDialect& dialect) {
    const bool hasSet = dialect.ScriptFamily == Dialect::Quake2;
    PlainEffects effects;
    std::istringstream lines{Text(script)};
    for (Text text; std::getline(lines, text);) {
        text.erase(text.find_last_not_of("\r") + 1);
        const bool isNoKey =
            dialect.GameKind == Game::HalfLife && (Holds(LowerCase(text), "joy1") || Holds(text, "aux7"));
        if (text.starts_with("//") || text.starts_with("bind ; ") || isNoKey) {
            continue;
        }
        std::istringstream line(text.substr(0, text.find(" //")));
        const Text first = TakeWord(line);
        const Text second = TakeWord(line);
        const Text third = TakeWord(line);
        if (first == "bind" && third != "") {
            effects.Binds[second.size() > 1 ? LowerCase(second) : second] = third;
        } else if (first == "bind" || first == "unbind") {
            effects.Binds[second] = "";
        } else if (first == "alias") {
            effects.Aliases[second] = third;
        } else if (first == "set" && hasSet) {
            effects.Settings[second] = third;
        } else if (first != "set" && first != "echo" && first != "color" && first != "_cl_color" && !second.empty()) {
            effects.Settings[first] = second;
        }
    }
    return effects;
}

bool SameMeaning(const Text& a, const Text& b, bool asNumbers) {
    return a == b || (asNumbers && std::strtod(a.c_str(), nullptr) == std::strtod(b.c_str(), nullptr)) ||
           (a.starts_with('+') && SameText(a, b));
}

/// The names that the two do not have alike.
std::set<Text> Differing(const std::map<Text, Text>& a, const std::map<Text, Text>& b, bool asNumbers) {
    std::set<Text> names;
    for (const auto& [name, value] : a) {
        const auto other = b.find(name);
        if (other == b.end() || !SameMeaning(value, other->second, asNumbers)) {
            names.insert(name);
        }
    }
    for (const auto& [name, value] : b) {
        if (!a.contains(name)) {
            names.insert(name);
        }
    }
    return names;
}

std::set<Text> Listed(const SaveReport& report, EffectKind what, const std::set<Text>& of) {
    std::set<Text> names;
    for (const SaveLoss& loss : report.Losses) {
        const Text& name = loss.Difference.Name;
        if (loss.Difference.What == what && loss.Difference.Identity != "unbindall") {
            names.insert(what == EffectKind::Bind && name.size() > 1 ? LowerCase(name) : name);
        }
    }
    if (what == EffectKind::Setting) {  // those that the second reading knows
        std::erase_if(names, [&](const Text& name) { return !of.contains(name); });
    }
    return names;
}

std::set<Text> NamesOf(const std::map<Text, Text>& a, const std::map<Text, Text>& b) {
    std::set<Text> names;
    for (const auto* each : {&a, &b}) {
        for (const auto& [name, value] : *each) {
            names.insert(name);
        }
    }
    return names;
}

}  // namespace

TEST(ReportSave, ListsWhatAMadeUpScriptWouldLoseAndNothingElse) {
    for (const ScriptDialect& dialect : kConsoleDialects) {
        MadeUpScripts scripts(1997);
        for (int round = 0; round < Rounds(400); ++round) {
            const Text file = scripts.Next(dialect);
            const Text written = WrittenOf(dialect, file);
            // The keypad is known to fewer consoles than to the second reading, one takes the key "\\" for an escape,
            // and keys are freed by two roads.
            constexpr TextView kOthers[] = {"kp_", "KP_", "numpad", "\\", "unbindall"};
            if (std::ranges::any_of(kOthers, [&](TextView each) { return Holds(file, each); })) {
                continue;
            }
            SCOPED_TRACE(file);
            const SaveReport report = ReportSave({file, written}, {}, dialect, ConsoleOfDialect(dialect));
            const PlainEffects before = ReadPlainly(file, dialect);
            const PlainEffects after = ReadPlainly(written, dialect);
            ASSERT_EQ(Listed(report, EffectKind::Bind, {}), Differing(before.Binds, after.Binds, false));
            ASSERT_EQ(Listed(report, EffectKind::Alias, {}), Differing(before.Aliases, after.Aliases, false));
            ASSERT_EQ(Listed(report, EffectKind::Setting, NamesOf(before.Settings, after.Settings)),
                      Differing(before.Settings, after.Settings, true));
        }
    }
}

TEST(ReportSave, FindsNothingLostInScriptsOfThisProgram) {
    struct Row {
        const char* File;
        ScriptDialect Dialect;
    };
    for (const Row& row :
         {Row{"quake.cfg", kQuakeDialect}, Row{"hexen2.cfg", kHexen2Dialect}, Row{"quake2.cfg", kQuake2Dialect},
          Row{"sin.cfg", kSinDialect}, Row{"heretic2.cfg", kHeretic2Dialect}, Row{"halflife.cfg", kHalfLifeDialect}}) {
        EXPECT_EQ(LossesOf(row.Dialect, Golden(row.File)), "") << row.File;
    }
}

TEST(ReportSave, FindsWhatScriptsOfThisProgramLoseAllTheSame) {
    // The reader takes no empty name: the one of the line before stays.
    EXPECT_EQ(LossesOf(kQuakeDialect, Golden("quake_empty.cfg")),
              "The setting name gets \"player\" and was \"\". (Setup Foundry reads no empty value.)");
    // The game's directory has no such skin.
    EXPECT_EQ(LossesOf(kQuakeWorldDialect, Golden("quakeworld.cfg")),
              "The setting skin is lost: \"Base\". (Setup Foundry has a place of its own for it, and writes that in "
              "another way.)");
    // It has two lines of the key, and the lines behind the axes belong to these.
    EXPECT_EQ(
        LossesOf(kUnrealDialect, Golden("unreal.ini")),
        "The key Minus loses \"SwitchWeapon 4\". (Setup Foundry writes it behind an axis that has no speed, on the "
        "same line.)\n"
        "The key Enter loses \"Feigndeath\". (Setup Foundry writes another line for this key behind it.)\n"
        "The key MouseY gets \"minus=SwitchWeapon 4\" and was \"JoyX=Axis aStrafe\". (Setup Foundry does not end "
        "the line of an axis that has no speed: what follows stands on it.)");
}

TEST(ReportSave, PutsWhatIsAddedBehindWhatIsLost) {
    const SaveReport report = ReportOf(kQuakeDialect, "sv_aim 0.9\nbind ESCAPE \"togglemenu\"");
    ASSERT_GE(report.Losses.size(), 3U);
    EXPECT_EQ(report.Losses[0].Words, "The key ESCAPE loses \"togglemenu\".");
    EXPECT_EQ(report.Losses[1].Words, "The setting sv_aim is lost: \"0.9\".");
    EXPECT_EQ(report.Losses[2].Difference.Kind, DifferenceKind::Added);
    EXPECT_TRUE(LosesSomething(report, ScriptHand::Foreign));
    EXPECT_TRUE(LosesSomething(report, ScriptHand::Own));
}

TEST(ReportSave, CountsWhatComesToAScriptUnasked) {
    const SaveReport added = ReportOf(kQuakeDialect, "bind a \"+attack\"");
    EXPECT_TRUE(LosesSomething(added, ScriptHand::Foreign));
    EXPECT_FALSE(LosesSomething(added, ScriptHand::Own)) << "nothing is lost";
    EXPECT_FALSE(LosesSomething(ReportOf(kQuakeDialect, ""), ScriptHand::Foreign));
    EXPECT_FALSE(LosesSomething(ReportOf(kQuakeDialect, "// a new one\n"), ScriptHand::Foreign));
    EXPECT_FALSE(LosesSomething(ReportOf(kQuakeDialect, WrittenOf(kQuakeDialect, "name P\nbind a \"+attack\"")),
                                ScriptHand::Foreign));
}

/// What two scripts that are written by hand set otherwise is told, whatever makes it so.
TEST(ReportSave, ListsWhatAConsoleTakesOtherwiseThanTheEditor) {
    struct Row {
        const char* File;
        const char* Words;
    };
    for (const Row& row : {
             Row{"bind n \"+jump\"\nunbindall\nbind k a", "The key n gets \"+jump\" and was free."},
             Row{"alias Rocket \"impulse 7\"\nunalias Rocket\nbind k a",
                 "The alias Rocket gets \"impulse 7\" and was removed."},
             Row{"bind g \"say \\\"hi\\\" you\"\nunbindall\nbind k a",
                 "The key g gets \"say \"hi\" you\" and was free."},
             Row{"bind n \"line\\\nnext", "The key n gets \"line\"\" and was \"line\\\"."},
         }) {
        const SaveReport report = ReportOf(kQuakeDialect, Join("name P\n", row.File), Console::DarkPlaces);
        ASSERT_FALSE(report.Losses.empty());
        EXPECT_EQ(report.Losses.front().Words, row.Words) << row.File;
        EXPECT_TRUE(LosesSomething(report, ScriptHand::Foreign));
        EXPECT_TRUE(LosesSomething(report, ScriptHand::Own));
    }
}

TEST(ReportSave, DoesNotAskForWhatTheEditorItselfHasWrittenForAnEmptyField) {
    const SaveReport own = ReportOf(kQuakeDialect, WrittenOf(kQuakeDialect, "bind a \"+attack\""));
    EXPECT_EQ(LossesOf(own), "The setting name gets \"player\" and was \"\". (Setup Foundry reads no empty value.)");
    EXPECT_FALSE(LosesSomething(own, ScriptHand::Own));
    EXPECT_TRUE(LosesSomething(ReportOf(kQuakeDialect, "name \"\"\nbind a \"+attack\""), ScriptHand::Foreign));
    EXPECT_TRUE(LosesSomething(
        ReportOf(kQuakeDialect, Join(WrittenOf(kQuakeDialect, "name P\nbind ESCAPE q"), "\r\nbind ESCAPE q")),
        ScriptHand::Own));
}

TEST(ReportSave, DoesNotSpeakOfItsOwnBanners) {
    for (const SaveLoss& loss : ReportOf(kQuakeDialect, "echo |==setup foundry").Losses) {
        EXPECT_EQ(loss.Words.find("echo"), Text::npos) << loss.Words;
    }
    for (const SaveLoss& loss : ReportOf(kUnrealDialect, "[Engine.Pawn]\nPlayerName=x").Losses) {
        EXPECT_EQ(loss.Words.find("lorvane"), Text::npos) << loss.Words;
    }
}

TEST(ReportSave, TellsWhatTheUserHasChangedFromWhatIsLost) {
    const Text file = "bind a \"+attack\"\nbind ESCAPE \"togglemenu\"\necho mine";
    ScriptDocument document = ReadScript(kQuakeDialect, file);
    const Text unedited = ComposeScript(document, kScriptDay);
    Bind(document, KeyFromName("a"), "+jump");
    document.Sections.at(0).Text.clear();
    const Text written = ComposeScript(document, kScriptDay);
    const ChangedNames changed{DifferingNames(unedited, written, Console::Quake), {}};
    const SaveReport report = ReportSave({file, written}, changed, kQuakeDialect, Console::Quake);
    ASSERT_GE(report.Losses.size(), 3U);
    EXPECT_EQ(report.Losses[0].Words, "The key a gets \"+jump\" and was \"+attack\".");
    EXPECT_TRUE(report.Losses[0].ByUser);
    EXPECT_EQ(report.Losses[0].Reason, "You have changed it.");
    EXPECT_EQ(report.Losses[1].Words, "The key ESCAPE loses \"togglemenu\".");
    EXPECT_FALSE(report.Losses[1].ByUser);
    EXPECT_EQ(report.Losses[2].Words, "\"echo mine\" is lost.");
    EXPECT_TRUE(report.Losses[2].ByUser);
}

TEST(ReportSave, TellsWhatSomebodyElseHasWrittenIntoTheFileMeanwhile) {
    const Text known = WrittenOf(kQuakeDialect, "name P\nbind a \"+attack\"\nbind b \"+jump\"\nbind m \"+back\"");
    const Text file = Join(known, "\r\nbind m \"say NEW\"\r\nalias fresh \"echo hi\"\r\nbind b \"+forward\"");
    ScriptDocument document = ReadScript(kQuakeDialect, known);
    Bind(document, KeyFromName("a"), "+left");
    Bind(document, KeyFromName("b"), "+right");
    const Text written = ComposeScript(document, kScriptDay);
    const ChangedNames changed{DifferingNames(known, written, Console::Quake),
                               RewrittenNames(known, file, Console::Quake)};
    const SaveReport report = ReportSave({file, written}, changed, kQuakeDialect, Console::Quake);
    Text rows;
    for (const SaveLoss& loss : report.Losses) {
        rows += Join(loss.ByUser ? "user: " : "else: ", loss.Words, Blank, loss.Reason, "\n");
    }
    EXPECT_EQ(rows,
              "user: The key a gets \"+left\" and was \"+attack\". You have changed it.\n"
              "else: The key b gets \"+right\" and was \"+forward\". The file was changed after Setup Foundry had "
              "read it.\n"
              "else: The key m gets \"+back\" and was \"say NEW\". The file was changed after Setup Foundry had read "
              "it.\n"
              "else: The alias fresh is lost: \"echo hi\". The file was changed after Setup Foundry had read it.\n");
}

TEST(ReportSave, LaysNothingOnSomebodyElseThatTheyHaveNotWritten) {
    const Text known = WrittenOf(kQuakeDialect, "name P\nbind INS \"+jump\"\nexec missing.cfg");
    const Text file = Join(known, "\r\nbind INS \"say NEW\"");
    const Text written = ComposeScript(ReadScript(kQuakeDialect, known), kScriptDay);
    const SaveReport report =
        ReportSave({file, written}, {{}, RewrittenNames(known, file, Console::Quake)}, kQuakeDialect, Console::Quake);
    EXPECT_EQ(
        LossesOf(report),
        "The key INS gets \"+jump\" and was \"say NEW\". (The file was changed after Setup Foundry had read it.)\n"
        "\"exec missing.cfg\" runs in another place: what it sets and what the script sets override each other "
        "the other way round. (Setup Foundry writes settings, aliases and bindings ahead of all other lines.)");
}

TEST(RewrittenNames, AreThoseOfTheLinesThatDiffer) {
    const Text known = "bind a b\nexec x.cfg\n";
    EXPECT_EQ(RewrittenNames(known, Join(known, "bind a c\n"), Console::Quake), (EffectNames{{EffectKind::Bind, "a"}}));
    EXPECT_EQ(DifferingNames(known, Join(known, "bind a c\n"), Console::Quake),
              (EffectNames{{EffectKind::Bind, "a"}, {EffectKind::Action, "exec x.cfg"}}));
    EXPECT_EQ(RewrittenNames(known, "bind a b\n", Console::Quake), (EffectNames{{EffectKind::Action, "exec x.cfg"}}));
    EXPECT_EQ(RewrittenNames(known, known, Console::Quake), EffectNames());
}

TEST(ReportSave, WarnsOfAScriptThatOutgrowsTheConsole) {
    Text file;
    while (file.size() < 8000) {
        file += "// a comment that stays\n";
    }
    EXPECT_EQ(ReportOf(kQuakeDialect, file).TooLong,
              "The script gets longer than the 8192 bytes that Quake takes at once: the game would run none of it.");
    EXPECT_EQ(ReportOf(kQuakeDialect, file, Console::DarkPlaces).TooLong, "");
    EXPECT_EQ(ReportOf(kQuakeDialect, file + file).TooLong, "");
}

TEST(ConsoleOfDialect, IsThatOfTheGame) {
    EXPECT_EQ(ConsoleOfDialect(kQuakeWorldDialect), Console::QuakeWorld);
    EXPECT_EQ(ConsoleOfDialect(kUnrealDialect), Console::Unreal);
}

}  // namespace lv
