#include "console/checks/script_check.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

constexpr TextView kKinds[] = {
    "odd quote",   "odd quote drops", "overruns", "cut",      "dropped",    "many words", "long word",  "long alias",
    "long script", "in comment",      "open end", "unquoted", "key",        "unknown",    "no command", "itself",
    "waits",       "long name",       "missing",  "loop",     "exec words", "unread",
};

/// "line kind", joined by ", ".
Text Listed(const std::vector<Finding>& findings) {
    Text all;
    for (const Finding& each : findings) {
        all += Join(all.empty() ? "" : ", ", std::to_string(each.Line), " ", kKinds[static_cast<int>(each.Kind)]);
    }
    return all;
}

Text Found(TextView script, Console console = Console::Quake) {
    return Listed(CheckScript({.File = "my.cfg", .Content = script, .Of = console}));
}

Text WordsOf(TextView script, Console console = Console::Quake) {
    return FindingReport(CheckScript({.File = "my.cfg", .Content = script, .Of = console}));
}

}  // namespace

TEST(CheckScript, IsContentWithAGoodScript) {
    EXPECT_EQ(Found("// mine\nunbindall\nbind a \"+attack; wait\"\nalias x \"impulse 7; y\"\nalias y \"say hi\"\nx\n"
                    "fov 90\nname \"Joe\"\ncl_something 1\n"),
              "");
    EXPECT_EQ(Found(""), "");
}

TEST(CheckScript, FindsOddQuotes) {
    EXPECT_EQ(Found("fov 90\nbind a \"+attack\n"), "2 odd quote");
    EXPECT_EQ(Found("fov 90\nbind a \"+attack\n", Console::Quake2), "2 odd quote drops");
    EXPECT_EQ(Found("say \"a\\\"b\"\n", Console::DarkPlaces), "");
    EXPECT_EQ(Found("say \"a\\\"b\"\n", Console::EzQuake), "1 odd quote");
}

TEST(CheckScript, TakesAQuoteInACommentForAFaultOnlyWhereItDropsTheCommand) {
    EXPECT_EQ(Found("fov 90 // \"hm\nfov 100 // \"quote in comment\n// \"\n"), "");
    EXPECT_EQ(Found("fov 90 // \"hm; quit\n"), "");
    EXPECT_EQ(Found("say \"hi // there\n"), "1 odd quote");
    EXPECT_EQ(Found("say it\"s // there\n"), "1 odd quote");
    EXPECT_EQ(Found("fov 90 // \"hm\n", Console::EzQuake), "");
    EXPECT_EQ(Found("fov 90 // \"hm\n", Console::Quake2), "1 odd quote drops");
}

TEST(CheckScript, FindsWhatIsBeyondALimit) {
    const Text line = Join("say ", Text(1021, 'x'), "\n");
    EXPECT_EQ(Found(line), "1 overruns");
    EXPECT_EQ(Found(line, Console::EzQuake), "1 cut");
    EXPECT_EQ(Found(line, Console::Q2Pro), "1 dropped");
    EXPECT_EQ(Found(line, Console::DarkPlaces), "");
    EXPECT_EQ(Found(Join("say ", Text(1019, 'x'), "\n"), Console::EzQuake), "");
    EXPECT_EQ(Found(Join("say ", Text(128, 'x'), "\n"), Console::Quake2), "1 long word");
    EXPECT_EQ(Found(Join("say ", Text(127, 'x'), "\n"), Console::Quake2), "");
    Text words = "say";
    for (int i = 0; i < 79; ++i) {
        words += " x";
    }
    EXPECT_EQ(Found(Join(words, "\n")), "");
    EXPECT_EQ(WordsOf(Join(words, " x\n")), "my.cfg:1: The command has 81 words: Quake reads the first 80.\n");
    EXPECT_EQ(Found(Join("alias ", Text(32, 'x'), " wait\n")), "1 long alias");
    EXPECT_EQ(Found(Join("alias ", Text(31, 'x'), " wait\n")), "");
    EXPECT_EQ(WordsOf(Text(8193, '\n')),
              "my.cfg:1: The script has 8193 bytes: Quake drops those of more than 8192 as a whole.\n");
    EXPECT_EQ(Found(Text(8193, '\n'), Console::Ironwail), "");
}

TEST(CheckScript, FindsWhatACommentDoesNotKeepFromBeingRun) {
    EXPECT_EQ(WordsOf("fov 90 // wide; quit\n"), "my.cfg:1: Quake runs what follows the \";\" in the comment: quit\n");
    EXPECT_EQ(Found("// a; // b; fov 90\nfov 100; wait\n"), "1 in comment");
    EXPECT_EQ(Found("fov 90 // wide; quit\n", Console::EzQuake), "");
}

TEST(CheckScript, LeavesALineAloneThatSwitchesOnWhatFollows) {
    EXPECT_EQ(Found("//; bind x \"say http://www.a.b/c; wait; say visit!\"\n  //;say \"my page is http://x.y/z\"\n"),
              "");
    EXPECT_EQ(Found("//; fov 90 // wide; quit\n"), "1 in comment") << "another comment of the same line";
    EXPECT_EQ(Found("fov 90 //; quit\n"), "1 in comment");
}

TEST(CheckScript, FindsALastLineWithoutItsEnd) {
    EXPECT_EQ(Found("fov 90\nfov 100"), "2 open end");
    EXPECT_EQ(Found("fov 90\n// the end", Console::Quake2), "2 open end");
    EXPECT_EQ(Found("fov 90\n  ", Console::Quake2), "");
    EXPECT_EQ(Found("fov 90;"), "");
    EXPECT_EQ(Found("fov 90\nfov 100", Console::QuakeWorld), "");
    const auto unsure = CheckScript({.File = "a", .Content = "fov 90", .Of = Console::Yamagi});
    ASSERT_EQ(unsure.size(), 1U);
    EXPECT_EQ(unsure[0].How, Certainty::Perhaps);
}

TEST(CheckScript, FindsKeysThatTheGameWillNotBind) {
    EXPECT_EQ(WordsOf("bind a impulse 7\n"),
              "my.cfg:1: The command of the key a is several words without quotes: Quake refuses it.\n");
    EXPECT_EQ(Found("bind a impulse 7\n", Console::Quake2), "");
    EXPECT_EQ(WordsOf("bind KP_HOME wait\nunbind ESC\n"),
              "my.cfg:1: Quake has no key KP_HOME.\nmy.cfg:2: Quake has no key ESC.\n");
    EXPECT_EQ(Found("bind KP_HOME wait\n", Console::Quake2), "");
    EXPECT_EQ(Found("alias x \"bind NOKEY wait\"\n", Console::Quake2), "1 key");
}

TEST(CheckScript, FindsWordsThatNobodyKnows) {
    EXPECT_EQ(Found("frobnicate\nFrobnicate 1\nbind a \"+attack; froob\"\nalias x \"wait; fruub\"\n"),
              "1 unknown, 3 unknown, 4 unknown");
    EXPECT_EQ(Found("alias froob wait\nfroob\nalias x \"alias fruub wait\"\nfruub\n"), "");
    const std::unordered_set<Text> names{"froob"};
    EXPECT_EQ(Listed(CheckScript({.File = "a", .Content = "Froob\n", .KnownNames = &names})), "");
    EXPECT_EQ(Found("alias x \"wait\";\"\n"), "1 odd quote") << "the quote is no word";
}

TEST(CheckScript, FindsCommandsThatTheConsoleLacks) {
    EXPECT_EQ(WordsOf("set fov 90\nunalias x\n"),
              "my.cfg:1: Quake has no command set.\nmy.cfg:2: Quake has no command unalias.\n");
    EXPECT_EQ(Found("set fov 90\nunalias x\n", Console::DarkPlaces), "");
    EXPECT_EQ(Found("set fov 90\nunaliasall\nseta fov 1\n", Console::Quake2), "2 no command, 3 no command");
    EXPECT_EQ(Found("sets fov 1\nsetu fov 1\n", Console::Q2Pro), "");
    EXPECT_EQ(Found("alias set \"say no\"\nset\n"), "");
}

TEST(CheckScript, FindsAliasesThatCallThemselves) {
    EXPECT_EQ(WordsOf("alias a b\nalias b \"fov 90; A\"\nalias c a\n"),
              "my.cfg:1: The alias a calls itself without end: a, b, a\n");
    EXPECT_EQ(Found("alias a \"fov 90; wait; a\"\n"), "1 waits");
    EXPECT_EQ(Found("alias t t1\nalias t1 \"alias t t2\"\nalias t2 \"alias t t1\"\n"), "");
}

TEST(CheckScript, FindsNamesThatAreTooLong) {
    EXPECT_EQ(WordsOf("name \"Sixteen Letters!\"\n"),
              "my.cfg:1: The player's name Sixteen Letters! has more than 15 letters: Quake cuts it.\n");
    EXPECT_EQ(Found("_cl_name \"Sixteen Letters!\"\nname \"Fifteen Letters\"\n"), "1 long name");
    EXPECT_EQ(Found("set name \"Sixteen Letters!\"\n", Console::Quake2), "1 long name");
    EXPECT_EQ(Found("name \"Sixteen Letters!\"\n", Console::HalfLife), "");
    for (const auto& [console, most] : {std::pair(Console::HalfLife, 31U), std::pair(Console::Fte, 63U),
                                        std::pair(Console::DarkPlaces, 127U), std::pair(Console::EzQuake, 15U)}) {
        EXPECT_EQ(Found(Join("name \"", Text(most, 'x'), "\"\n"), console), "");
        EXPECT_EQ(Found(Join("name \"", Text(most + 1, 'x'), "\"\n"), console), "1 long name");
    }
}

TEST(CheckScript, FindsScriptsThatAreNotThere) {
    const auto found = [](TextView script) {
        return Listed(
            CheckScript({.File = "a", .Content = script, .IsThere = [](TextView name) { return name == "here.cfg"; }}));
    };
    EXPECT_EQ(found("exec here.cfg\nexec gone.cfg\nbind a \"exec gone.cfg\"\nexec\n"), "2 missing, 3 missing");
    EXPECT_EQ(found("exec here.cfg gone.cfg\n"), "1 exec words");
    EXPECT_EQ(Found("exec gone.cfg\n"), "") << "nobody has looked";
}

TEST(CheckScript, FindsSoManyAndNoMore) {
    Text script;
    for (int i = 0; i < 5000; ++i) {
        script += "bind NOKEY x\n";
    }
    EXPECT_EQ(CheckScript({.File = "a", .Content = script, .Of = Console::DarkPlaces}).size(), 1000U);
}

TEST(CheckScript, LeavesAnIniAlone) {
    EXPECT_EQ(Found("[Engine.Input]\nF1=\"x\n", Console::Unreal), "");
}

}  // namespace lv
