#include "foundry/losses/loss_reasons.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "foundation/field_strings.h"
#include "tests/foundry/losses/careless_scripts.h"
#include "tests/foundry/losses/freeing_scripts.h"
#include "tests/foundry/losses/save_rounds.h"
#include "tests/foundry/rounds.h"

namespace lv {
namespace {

struct ReasonCase {
    const char* About;
    ScriptDialect Dialect;
    Text File;
    Text Losses;
};

Text ManyBinds(int count) {
    constexpr TextView kKeys = "abcdefghijklmnopqrstuvwxyz0123456789";
    Text script;
    for (int i = 0; i < count; ++i) {
        script +=
            Join("bind ", kKeys.substr(static_cast<std::size_t>(i), 1), " \"toggle r_", std::to_string(i), "\"\n");
    }
    return script;
}

const ReasonCase kCases[] = {
    {"key", kQuakeDialect, "bind ESCAPE \"togglemenu\"",
     "The key ESCAPE loses \"togglemenu\". (Setup Foundry has no key ESCAPE.)"},
    {"keypad", kHexen2Dialect, "bind KP_HOME \"+attack\"",
     "The key KP_HOME loses \"+attack\". (Setup Foundry writes no keys of the keypad for this game.)"},
    {"words", kQuake2Dialect, "bind a say hello",
     "The key a gets \"say\" and was \"say hello\". (It has several words without quotes, and Setup Foundry reads the "
     "first of them.)"},
    {"own command", kQuakeDialect, "bind a \"slot1\"",
     "The key a gets \"impulse 1\" and was \"slot1\". (Setup Foundry writes its own command for this function: "
     "\"impulse 1\".)"},
    {"another game's", kHexen2Dialect, "bind a \"impulse 8\"",
     "The key a loses \"impulse 8\". (To Setup Foundry \"impulse 8\" is a command of another game.)"},
    {"extras", kQuakeDialect, ManyBinds(25),
     "The key y loses \"toggle r_24\". (Setup Foundry has room for 24 other commands, and the script has more.)"},
    {"comment in a binding", kQuakeDialect, "bind a \"say http://x\"",
     "The key a gets \"say http:\" and was \"say http://x\". (Setup Foundry ends a line at //, in quotes too.)"},
    {"comment in an alias", kQuakeDialect, "alias x \"say http://x\"",
     "The alias x gets \"say http:\" and was \"say http://x\". (Setup Foundry ends a line at //, in quotes too.)"},
    {"comment in a setting", kQuakeDialect, "gl_x \"a//b\"",
     "The setting gl_x gets \"a\" and was \"a//b\". (Setup Foundry ends a line at //, in quotes too.)"},
    {"comment in an action", kQuakeDialect, "echo \"a//b\"",
     "\"echo a//b\" is lost. (Setup Foundry ends a line at //, in quotes too.)"},
    {"order", kQuakeDialect, "unbind a\nbind a \"impulse 99\"",
     "The key a loses \"impulse 99\". (\"unbind a\" is written behind the bindings, and runs behind them.)"},
    {"empty alias", kQuakeDialect, "alias zoom \"\"",
     "The alias zoom is lost: \"\". (Setup Foundry keeps no alias without commands.)"},
    {"alias again", kQuakeDialect, "alias zoom a\nalias zoom b",
     "The alias zoom gets \"a\" and was \"b\". (The script defines it more than once; Setup Foundry keeps the first "
     "one, a game the last.)"},
    {"alias's words", kQuakeDialect, "alias hi say hello",
     "The alias hi gets \"say\" and was \"say hello\". (It has several words without quotes, and Setup Foundry reads "
     "the first of them.)"},
    {"letter case", kQuakeDialect, "alias hi \"say Hello\"",
     "The alias hi gets \"say hello\" and was \"say Hello\". (Setup Foundry writes aliases in small letters.)"},
    {"second command", kQuakeDialect, "fov 90; alias hi \"say hello\"",
     "The alias hi is lost: \"say hello\". (It is not the first command of its line, and Setup Foundry reads no "
     "others.)"},
    {"setting's letter case", kQuakeDialect, "Fov 90",
     "The setting Fov is lost: \"90\". (Setup Foundry writes the names of settings in small letters.)"},
    {"setting's place", kQuakeDialect, "sv_aim 0.9",
     "The setting sv_aim is lost: \"0.9\". (Setup Foundry has a place of its own for it, and writes that in another "
     "way.)"},
    {"setting's value", kQuakeDialect, "joystick 2",
     "The setting joystick gets \"0\" and was \"2\". (Setup Foundry keeps such a value otherwise.)"},
    {"set", kQuakeDialect, "set fov 90",
     "\"set fov 90\" is lost. (Setup Foundry has a place of its own for fov, and writes that in another way.)"},
    {"head", kQuakeDialect, "[x] y",
     "The setting [x] is lost: \"y\". (Setup Foundry takes a line that begins with [ for the head of a section.)"},
    {"empty lines", kQuakeDialect, Join("echo a", Text(102, '\n'), "bind a \"impulse 99\""),
     "The key a loses \"impulse 99\". (It stands behind more than a hundred empty lines, where Setup Foundry takes a "
     "script to end.)"},
    {"called alias", kQuakeDialect, "alias b \"bind x q\"\nb\nbind x \"impulse 99\"",
     "The key x gets \"q\" and was \"impulse 99\". (\"b\" is written behind the bindings, and runs behind them.)"},
    {"script that is run", kQuakeDialect, "exec base.cfg\nbind a \"impulse 99\"",
     "\"exec base.cfg\" runs in another place: what it sets and what the script sets override each other the other way "
     "round. (Setup Foundry writes settings, aliases and bindings ahead of all other lines.)"},
    {"escape", kHalfLifeDialect, "bind \\ \"impulse 99\"",
     "The key \\ loses \"impulse 99\". (Setup Foundry writes the key in quotes, and there the \\ belongs to the quote "
     "behind it.)"},
    {"unbindall behind the bindings", kQuakeDialect, "echo a; unbindall\nbind q \"+jump\"",
     "The key q loses \"+jump\". (\"unbindall\" is written behind the bindings, and runs behind them.)"},
    {"unbindall behind an alias's binding", kQuakeDialect,
     "alias zoom_in \"fov 30\"\necho a; unbindall\nbind e zoom_in",
     "The key e loses \"zoom_in\". (\"unbindall\" is written behind the bindings, and runs behind them.)"},
    {"freed key", kQuakeDialect, "bind n \"+jump\"\nunbindall\nbind k a",
     "The key n gets \"+jump\" and was free. (The script frees the key again by \"unbindall\", which Setup Foundry "
     "writes "
     "ahead of all bindings.)"},
    {"empty name", kQuakeDialect, "name \"player\"\nname \"\"",
     "The setting name gets \"player\" and was \"\". (Setup Foundry reads no empty value.)"},
    {"hard blank", kQuakeDialect, "echo \"a\xA0z\"",
     "\"echo a\xA0z\" is lost. (Setup Foundry makes a blank of character 160.)"},
    {"ini's key", kUnrealDialect,
     "[Engine.Input]\nEscape=Fire\nMouseX=Axis aMouseX Speed=6.0\nMouseY=Axis aMouseY Speed=6.0",
     "The key Escape gets \"ShowMenu\" and was \"Fire\". (Setup Foundry always writes its own command for this key.)"},
    {"ini's setting", kUnrealDialect, "[x]\nGamma=0.5",
     "The setting [x] gamma is lost: \"0.5\". (Setup Foundry has a place of its own for it, and writes that in another "
     "way.)"},
};

}  // namespace

TEST(LossReasons, AreThoseOfTheTablesAndRules) {
    for (const ReasonCase& each : kCases) {
        EXPECT_EQ(LossesOf(each.Dialect, each.File), each.Losses) << each.About;
    }
}

TEST(LossReasons, BlameWhatRunsBehindABindingWhereThatIsWrittenAlone) {
    const Text oneKey = " (Setup Foundry has one key for ` and ~, and writes `.)";
    const ReasonCase cases[] = {
        {"one key for two", kQuakeDialect, "name P\nunbindall\nbind ` \"toggleconsole\"\nbind ~ \"toggleconsole\"",
         Join("The key ~ loses \"toggleconsole\".", oneKey)},
        {"the other one alone", kQuakeDialect, "name P\nunbindall\nbind ~ \"toggleconsole\"",
         Join("The key ~ loses \"toggleconsole\".", oneKey, "\nThe key ` gets \"toggleconsole\" and was free.",
              oneKey)},
        {"the later one wins", kQuakeDialect, "name P\nbind ` \"toggleconsole\"\nbind ~ \"impulse 99\"",
         Join("The key ` gets \"impulse 99\" and was \"toggleconsole\".", oneKey, "\nThe key ~ loses \"impulse 99\".",
              oneKey)},
    };
    for (const ReasonCase& each : cases) {
        EXPECT_EQ(LossesOf(each.Dialect, each.File), each.Losses) << each.About;
    }
    EXPECT_TRUE(Holds(LossesOf(kQuakeDialect, Join("name P\necho a; unbindall\n", ManyBinds(25))),
                      "The key y loses \"toggle r_24\". (Setup Foundry has room for 24 other commands, and the script "
                      "has more.)"));
}

TEST(LossReasons, BlameWhatRemovesAnAliasWhereThatIsWrittenAlone) {
    EXPECT_EQ(LossesOf(ReportOf(kQuakeDialect, "name P\nunaliasall\nalias zoom \"fov 30\"", Console::EzQuake)),
              "The alias zoom is lost: \"fov 30\". (\"unaliasall\" is written behind the aliases, and runs behind "
              "them.)");
    EXPECT_EQ(LossesOf(ReportOf(kQuakeDialect, "name P\nunaliasall\nalias zoom \"\"", Console::EzQuake)),
              "The alias zoom is lost: \"\". (Setup Foundry keeps no alias without commands.)");
    EXPECT_EQ(LossesOf(ReportOf(kQuakeDialect, "name P\nunalias zoom\nalias zoom \"\"", Console::DarkPlaces)),
              "The alias zoom is lost: \"\". (Setup Foundry keeps no alias without commands.)");
}

TEST(LossReasons, NameTheLineThatIsWrittenWithAQuoteTooMany) {
    const Text file = WrittenOf(kQuakeDialect, "name P");
    const Text rest =
        "An empty command is run, and the file does not run it. (Setup Foundry writes a quote too many "
        "into the line of ";
    EXPECT_TRUE(
        Holds(AllChangesOf(kQuakeDialect, Join(file, "\r\nalias +hook \"impulse 97\"; alias -hook \"impulse 98\""),
                           Console::Quake),
              Join(rest, "the alias +hook.)")));
    EXPECT_TRUE(Holds(AllChangesOf(kQuakeDialect, "_cl_name \"[TFx]Zykon\"; _cl_color 77", Console::Quake),
                      Join(rest, "the setting name.)")));
}

TEST(LossReasons, ListTheKeyThatAnEngineTakesForAnEscape) {
    EXPECT_EQ(LossesOf(ReportOf(kQuakeDialect, "name P\nbind \\ \"+mlook\"", Console::DarkPlaces)),
              "The key \\ loses \"+mlook\". (Setup Foundry writes the key in quotes, and there the \\ belongs to the "
              "quote behind it.)");
    EXPECT_EQ(LossesOf(ReportOf(kQuakeDialect, "name P\nbind \\ \"+mlook\"", Console::Quake)), "");
}

TEST(LossReasons, SayWhyACommandOfManyFindsNoSlot) {
    // Each has had a slot, though its key is bound again.
    Text file = "name P\n";
    for (int i = 0; i < 60; ++i) {
        file += Join("alias al", std::to_string(i), " \"impulse 1\"\nbind b al", std::to_string(i), "\n");
    }
    EXPECT_EQ(LossesOf(kQuakeDialect, file),
              "The key b gets \"al50\" and was \"al59\". (Setup Foundry has no room left for a command of this sort.)");
}

TEST(LossReasons, SayWhyTheEditorAddsSomething) {
    const auto reasonOf = [](TextView file, TextView words, Console console = Console::Quake) {
        const SaveReport report = ReportOf(kQuakeDialect, file, console);
        const auto loss = std::ranges::find(report.Losses, words, &SaveLoss::Words);
        return loss == report.Losses.end() ? Text("(not told)") : loss->Reason;
    };
    EXPECT_EQ(reasonOf("echo a", "The setting joystick gets \"0\", and the file leaves it alone."),
              "Setup Foundry writes it into each script.");
    EXPECT_EQ(reasonOf("echo a", "The setting name gets \"\", and the file leaves it alone."),
              "Setup Foundry writes it into each script.");
    EXPECT_EQ(reasonOf("bind q impulse 7", "The key q gets \"impulse\", and the file leaves it alone."),
              "It has several words without quotes, which the game refuses; Setup Foundry reads the first of them.");
    EXPECT_EQ(reasonOf("say \"http://x\"", "\"say \"http:\" is run, and the file does not run it."),
              "Setup Foundry ends a line at //, in quotes too.");
    EXPECT_EQ(reasonOf("set fov 90", "The setting fov gets \"90\", and the file leaves it alone."),
              "Setup Foundry takes a line of the script for it, and the game does not.");
}

TEST(LossReasons, AreSeldomAPhrase) {
    CarelessScripts careless(7);
    FreeingScripts freeing(8);
    int rows = 0;
    int phrases = 0;
    for (int round = 0; round < Rounds(300); ++round) {
        const Text file = round % 2 == 0 ? careless.Next() : freeing.Next();
        for (const Console console : {Console::Quake, Console::DarkPlaces, Console::EzQuake}) {
            for (const SaveLoss& loss : ReportOf(kQuakeDialect, file, console).Losses) {
                ++rows;
                phrases += loss.Reason == "Setup Foundry reads and writes this in its own way." ? 1 : 0;
            }
        }
    }
    EXPECT_LT(phrases * 500, rows);
}

TEST(LossReasons, TellOfLinesThatTheGameTakesOtherwise) {
    const ReasonCase cases[] = {
        {"capital letter", kQuakeDialect, "name P\nbind A \"+jump\"",
         "The key A loses \"+jump\". (Setup Foundry makes a small letter of the key's capital one.)"},
        {"; outside quotes", kQuakeDialect, "name P\nbind a zoom; wait",
         "The key a gets \"zoom;\" and was \"zoom\". (Setup Foundry does not end a line at ; and takes that for a part "
         "of "
         "it.)\n\"wait\" is lost. (It is not the first command of its line, and Setup Foundry reads no others.)"},
        {"empty binding", kQuakeDialect, "name P\nbind b \"\"",
         "The key b is no longer free. (Setup Foundry reads no binding without a command.)"},
        {"second section", kQuakeDialect, "name P\n[x]\n[y]\nexec a.cfg",
         "\"[x]\" is lost. (Setup Foundry takes a line that begins with [ for the head of a section.)\n"
         "\"[y]\" is lost. (Setup Foundry takes a line that begins with [ for the head of a section.)\n"
         "\"exec a.cfg\" is lost. (It stands behind a second line that begins with [, and Setup Foundry writes the "
         "first "
         "such section alone.)"},
        {"later line", kQuakeDialect, "name P\nbind f1 zoom\nbind f1 exec duel.cfg",
         "The key f1 gets \"exec\" and was \"zoom\". (Setup Foundry takes line 3 of the file for the key, and the game "
         "does not.)"},
    };
    for (const ReasonCase& each : cases) {
        EXPECT_EQ(LossesOf(each.Dialect, each.File), each.Losses) << each.About;
    }
}

}  // namespace lv
