// What a save changes, as a real engine sees it: DarkPlaces runs the script before and after, and tells its keys,
// aliases and variables. What differs there must stand in the list, and nothing else may.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "console/console_commands.h"
#include "console/key_names.h"
#include "foundation/field_strings.h"
#include "tests/engines/engine_run.h"
#include "tests/foundry/golden_file.h"
#include "tests/foundry/losses/careless_scripts.h"
#include "tests/foundry/losses/freeing_scripts.h"
#include "tests/foundry/losses/save_rounds.h"
#include "tests/foundry/made_up_scripts.h"
#include "tests/support/game_yard.h"
#include "tests/support/test_paths.h"

namespace lv {
namespace {

namespace fs = std::filesystem;

constexpr const char* kDarkPlaces = "/usr/games/darkplaces";
constexpr TextView kAsked = "bindlist\nalias\ncvarlist\necho LV_END\nquit\n";

using Values = std::map<Text, Text>;

/// What the engine holds after a script.
struct Seen {
    Values Binds;    // by KeyIdentity
    Values Aliases;  // in lower case
    Values Variables;
};

Text WithoutColors(TextView line) {
    Text plain;
    for (std::size_t at = 0; at < line.size(); ++at) {
        if (line[at] == '\x1B') {
            at = line.find('m', at);
            if (at == TextView::npos) {
                break;
            }
        } else if (line[at] != '\r') {
            plain += line[at];
        }
    }
    return plain;
}

/// The text in quotes that begins there, in which the engine has escaped quotes.
Text Unquoted(TextView line, std::size_t at) {
    Text text;
    for (++at; at < line.size() && line[at] != '"'; ++at) {
        at += line[at] == '\\' && at + 1 < line.size() ? 1 : 0;
        text += line[at];
    }
    return text;
}

Seen SeenIn(const Text& output) {
    Seen seen;
    bool inAliases = false;
    std::istringstream lines(output);
    for (Text raw; std::getline(lines, raw);) {
        const Text line = WithoutColors(raw);
        const std::size_t bind = line.find(" = \"");
        const std::size_t variable = line.find(" is \"");
        const std::size_t alias = line.find(" : ");
        if (line.starts_with("Current alias commands:")) {
            inAliases = true;
        } else if (inAliases && variable != Text::npos && line.find("\" [\"") != Text::npos) {
            const std::size_t value = variable + 5;
            seen.Variables[line.substr(0, variable)] = line.substr(value, line.rfind("\" [\"") - value);
        } else if (inAliases && alias != Text::npos) {
            // Of two spellings the first one runs.
            seen.Aliases.emplace(LowerCase(line.substr(0, alias)), line.substr(alias + 3));
        } else if (!inAliases && bind != Text::npos && line.find(' ') == bind) {
            seen.Binds[KeyIdentity(Console::DarkPlaces, StripQuotes(line.substr(0, bind)))] = Unquoted(line, bind + 3);
        }
    }
    // What differs from run to run, with the display that there is or is not.
    std::erase_if(seen.Variables, [](const auto& each) {
        constexpr TextView kOfTheRun[] = {"qport", "vid_width", "vid_height", "gl_info_"};
        return std::ranges::any_of(kOfTheRun, [&](TextView start) { return each.first.starts_with(start); });
    });
    return seen;
}

Seen AfterRunning(const Text& script) {
    const fs::path game = fs::path(TestBinaryDir()) / "yards/engines/save_losses";
    fs::create_directories(game / "id1");
    std::ofstream(game / "id1/lv_script.cfg", std::ios::binary) << script << "\n";
    std::ofstream(game / "id1/lv_asked.cfg", std::ios::binary) << kAsked;
    const fs::path output = game / "output.txt";
    EXPECT_EQ(
        RunTool({kDarkPlaces, "-nosound", "-basedir", game.c_str(), "+exec", "lv_script.cfg", "+exec", "lv_asked.cfg"},
                output),
        0);
    const Text printed = ReadBytes(output);
    EXPECT_NE(printed.find("LV_END"), Text::npos) << script << "\n" << printed;
    return SeenIn(printed);
}

/// Blanks at the ends, a comment and the letter case of a command's own name make no difference.
Text Plain(const Text& command) {
    Text plain = Trim(command.substr(0, command.find(" //")));
    const std::size_t end = plain.starts_with('+') ? std::min(plain.find_first_of(" ;"), plain.size()) : 0;
    return LowerCase(plain.substr(0, end)) + plain.substr(end);
}

bool SameNumber(const Text& a, const Text& b) {
    char* endA = nullptr;
    char* endB = nullptr;
    const double numberA = std::strtod(a.c_str(), &endA);
    const double numberB = std::strtod(b.c_str(), &endB);
    return !a.empty() && !b.empty() && *endA == '\0' && *endB == '\0' && numberA == numberB;
}

template <class Same>
std::set<Text> Differing(const Values& a, const Values& b, const Same& same) {
    std::set<Text> names;
    for (const Values* each : {&a, &b}) {
        for (const auto& [name, value] : *each) {
            const auto left = a.find(name);
            const auto right = b.find(name);
            if (left == a.end() || right == b.end() || !same(left->second, right->second)) {
                names.insert(name);
            }
        }
    }
    return names;
}

std::set<Text> DifferingCommands(const Values& a, const Values& b) {
    return Differing(a, b, [](const Text& x, const Text& y) { return Plain(x) == Plain(y); });
}

std::set<Text> DifferingVariables(const Values& a, const Values& b) {
    return Differing(a, b, [](const Text& x, const Text& y) { return x == y || SameNumber(x, y); });
}

/// As the engine calls the variables behind its commands.
Text VariableOf(const Text& identity) {
    return identity == "name" || identity == "color" || identity == "rate" ? Join("_cl_", identity) : identity;
}

std::set<Text> Listed(const SaveReport& report, EffectKind what) {
    std::set<Text> names;
    for (const SaveLoss& loss : report.Losses) {
        const ScriptDifference& each = loss.Difference;
        const bool isSet = each.Before.Line > 0 && each.Before.IsSet;
        const bool isSetAfter = each.After.Line > 0 && each.After.IsSet;
        const bool isOfAll = each.Identity == "unbindall" || each.Identity == "unaliasall";
        if (each.What == what && !isOfAll && (isSet || isSetAfter)) {  // a key that is free in both is seen by nobody
            names.insert(what == EffectKind::Setting ? VariableOf(each.Identity) : each.Identity);
        }
    }
    return names;
}

/// The variables of the list whose value is not that which they have without any script.
std::set<Text> Visible(const SaveReport& report, const Seen& before, const Seen& after, const Values& untouched) {
    std::set<Text> names;
    for (const Text& name : Listed(report, EffectKind::Setting)) {
        const auto left = before.Variables.find(name);
        const auto right = after.Variables.find(name);
        const bool isKnown = left != before.Variables.end() || right != after.Variables.end();
        const auto start = untouched.find(name);
        const bool isAsBefore = start != untouched.end() && left != before.Variables.end() &&
                                right != after.Variables.end() && SameNumber(left->second, start->second) &&
                                SameNumber(right->second, start->second);
        if (isKnown && !isAsBefore) {
            names.insert(name);
        }
    }
    return names;
}

/// The engine does not end an alias that calls itself.
bool MayCallItself(const Text& script) {
    CommandReader reader(script, RulesOf(Console::DarkPlaces));
    for (ConsoleCommand command; reader.Next(command);) {
        const Text whole = LowerCase(command.Whole);
        for (const TextView name : {"zoom", "-fire", "rocket"}) {
            const std::size_t last = whole.rfind(name);
            if (whole.starts_with("alias") && last != Text::npos && last > 10) {
                return true;
            }
        }
    }
    return false;
}

class SaveSeenByAnEngine : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(fs::exists(kDarkPlaces)) << "Debian's package darkplaces is needed";
        untouched_ = AfterRunning("");
        ASSERT_GT(untouched_.Variables.size(), 1000U);
    }

    void ExpectListed(const Text& file) {
        SCOPED_TRACE(file);
        const Text written = WrittenOf(kQuakeDialect, file);
        SaveReport report = ReportSave({file, written}, {}, kQuakeDialect, Console::DarkPlaces);
        const Seen before = AfterRunning(file);
        const Seen after = AfterRunning(written);
        EXPECT_EQ(Listed(report, EffectKind::Bind), DifferingCommands(before.Binds, after.Binds));
        EXPECT_EQ(Listed(report, EffectKind::Alias), DifferingCommands(before.Aliases, after.Aliases));
        EXPECT_EQ(Visible(report, before, after, untouched_.Variables),
                  DifferingVariables(before.Variables, after.Variables));
        const ScriptDocument document = ReadScript(kQuakeDialect, file);
        MarkWhatIsLeft(report, PlanOf(kQuakeDialect, document, file, {}, Console::DarkPlaces));
        std::erase_if(report.Losses, [](const SaveLoss& loss) { return loss.CanKeep; });
        const Text kept = KeptScript(kQuakeDialect, file, Console::DarkPlaces);
        const Seen afterKeeping = AfterRunning(kept);
        ExpectNothingLost(before, afterKeeping, report);
        const Text again = WrittenOf(kQuakeDialect, kept);
        const Seen next = AfterRunning(again);
        EXPECT_EQ(DifferingCommands(afterKeeping.Binds, next.Binds), std::set<Text>());
        EXPECT_EQ(DifferingCommands(afterKeeping.Aliases, next.Aliases), std::set<Text>());
        // A name that nobody has typed is written as an empty one, and read again as "player": that is listed.
        SaveReport nextReport = ReportSave({kept, again}, {}, kQuakeDialect, Console::DarkPlaces);
        std::erase_if(nextReport.Losses, [](const SaveLoss& loss) { return !loss.IsOfEmptyField; });
        const std::set<Text> changed = DifferingVariables(afterKeeping.Variables, next.Variables);
        EXPECT_EQ(changed, Visible(nextReport, afterKeeping, next, untouched_.Variables));
        EXPECT_TRUE(changed.empty() || changed == std::set<Text>{"_cl_name"});
    }

    /// All is as the file has it, but for what is said to be left, and for the variables that are added.
    void ExpectNothingLost(const Seen& before, const Seen& kept, const SaveReport& left) {
        for (const Text& name : DifferingCommands(before.Binds, kept.Binds)) {
            EXPECT_TRUE(Listed(left, EffectKind::Bind).contains(name)) << "key " << name;
        }
        for (const Text& name : DifferingCommands(before.Aliases, kept.Aliases)) {
            EXPECT_TRUE(Listed(left, EffectKind::Alias).contains(name)) << "alias " << name;
        }
        for (const Text& name : DifferingVariables(before.Variables, kept.Variables)) {
            const auto set = before.Variables.find(name);
            const auto start = untouched_.Variables.find(name);
            EXPECT_TRUE(set == before.Variables.end() || Listed(left, EffectKind::Setting).contains(name) ||
                        (start != untouched_.Variables.end() && start->second == set->second))
                << "variable " << name;
        }
    }

  private:
    Seen untouched_;
};

}  // namespace

TEST_F(SaveSeenByAnEngine, IsListedForAHandWrittenScript) {
    ExpectListed(
        "// by hand\n"
        "unbindall\n"
        "bind ESCAPE \"togglemenu\"\n"
        "bind w +forward; bind s +back\n"
        "bind MOUSE1 \"+ATTACK\"\n"
        "bind t \"say http://example.org // hello\"\n"
        "bind KP_HOME \"impulse 10\"\n"
        "bind q impulse 7\n"
        "alias zoom_in \"fov 30; bind x Zoom_Out\"\n"
        "alias empty\n"
        "alias several say several words\n"
        "alias twice a\n"
        "alias twice b\n"
        "sensitivity 7.50\n"
        "Sensitivity 3\n"
        "set my_own \"a b\" // mine\n"
        "crosshair 2; viewsize 110\n"
        "volume 0.30\n"
        "joystick 2\n"
        "_cl_color 68\n"
        "unbind s\n"
        "zoom_in\n");
}

TEST_F(SaveSeenByAnEngine, IsListedForWhatTheScriptTakesBackItself) {
    for (const TextView script : {
             "name P\nbind n \"+jump\"\nunbindall\nbind k a\n",
             "name P\nalias Rocket \"impulse 7\"\nunalias Rocket\nbind k \"a\"\n",
             "name P\nalias Rocket \"impulse 7\"\nalias fresh \"echo hi\"\nunaliasall\nalias last \"echo bye\"\n",
             "name P\nbind g \"say \\\"hi\\\" you\"\nunbindall\nbind k \"a\"\n",
             "name P\nbind n \"line\\\nnext\n",
             "name P\nset myvar \"a; b // c\"\nbind ESCAPE q\n",
             "bind x +attack\n",
         }) {
        ExpectListed(Text(script));
    }
}

TEST_F(SaveSeenByAnEngine, IsListedForScriptsThatFreeAndForget) {
    FreeingScripts scripts(3);
    for (int round = 0; round < 40; ++round) {
        const Text script = scripts.Next();
        if (!MayCallItself(script)) {
            ExpectListed(script);
        }
    }
}

TEST_F(SaveSeenByAnEngine, IsListedForScriptsOfThisProgram) {
    ExpectListed(Golden("quake.cfg"));
    ExpectListed(Golden("quake2.cfg"));
}

TEST_F(SaveSeenByAnEngine, IsListedForMadeUpScripts) {
    MadeUpScripts scripts(1);
    for (int round = 0; round < 15; ++round) {
        ExpectListed(scripts.Next(kQuakeDialect));
    }
}

TEST_F(SaveSeenByAnEngine, IsListedForCarelessScripts) {
    CarelessScripts scripts(2);
    for (int round = 0; round < 60; ++round) {
        const Text script = scripts.Next();
        if (!MayCallItself(script)) {
            ExpectListed(script);
        }
    }
}

}  // namespace lv
