// What holds for thousands of made-up scripts of each kind.

#include <gtest/gtest.h>

#include <random>

#include "tests/foundry/kinds.h"
#include "tests/foundry/reading.h"
#include "tests/foundry/rounds.h"
#include "tests/foundry/table_agreement.h"

namespace lv {
namespace {

using Words = std::vector<Text>;

const Words kKeys = {"a",        "Z",      "5",       "F1",        "f12",      "<",     ",",
                     "space",    "mouse1", "M1",      "KP_INS",    "kp_del",   "enter", "Escape",
                     "capslock", "Minus",  "numpad7", "nokey",     "shift",    ";",     "{",
                     "aux32",    "joy1",   "PGUP",    "leftarrow", "GreyPlus", "+",     "MWHEELUP"};
const Words kCommands = {"+attack",       "+ATTACK",     "impulse 1",
                         "impulse 13",    "impulse 20",  "use blaster",
                         "weaplast",      "invnext",     "+speed",
                         "use shotgun",   "quit",        "say hello",
                         "SAY hello",     "say_team hi", "exec duel.cfg",
                         "exec a.cfg",    "rj",          "x_2",
                         "x_7",           "Look",        "",
                         "zoom_in; wait", "say ",        "exec ",
                         "timerefresh",   "MoveForward", "SwitchWeapon 10",
                         "+use",          "+camin",      "screenshot"};
const Words kSettings = {"fov",    "gamma",    "cl_bob",   "m_pitch", "vid_mode",  "color",     "crosshair",
                         "name",   "freelook", "volume",   "rate",    "skin",      "sv_aim",    "sensitivity",
                         "cl_run", "hand",     "viewsize", "+mlook",  "unbindall", "UseFilter", "WeaponPriority[4]"};
const Words kValues = {"0", "1", "90", "-0.022", "0.5", "abc", "male/grunt", "", "15", "1e9", "ASMD", "True"};

class Maker {
  public:
    Maker(Game kind, unsigned seed) : unreal_(kind == Game::Unreal), random_(seed) {}

    Text Make() {
        Text script = unreal_ ? "[Engine.Input]\r\n" : "";
        for (std::size_t lines = random_() % 60; lines > 0; --lines) {
            script += Line() + (random_() % 8 == 0 ? "\n" : "\r\n");
        }
        return script;
    }

    Words Unknown;  // the lines that nobody understands, as they are to be kept

  private:
    const Text& Any(const Words& words) { return words[random_() % words.size()]; }

    Text Line() {
        switch (random_() % 6) {
            case 0:
            case 1:
                return unreal_ ? Join(Any(kKeys), "=", Any(kCommands)) : BindLine();
            case 2:
                return AliasLine();
            case 3:
                return SettingLine();
            case 4:
                return unreal_ ? HeadLine() : Join("set ", SettingLine());
            default:
                return UnknownLine();
        }
    }
    Text BindLine() { return Join("bind ", Any(kKeys), " \"", Any(kCommands), "\"", Any({"", " // why", "  "})); }
    Text AliasLine() {
        const Text name = "x_" + std::to_string(random_() % 40);
        const Text body = Any({"+jump", "wait;wait", "Echo Hi"});
        return unreal_ ? Join("Aliases[7]=(Command=\"", body, "\",Alias=", name, ")")
                       : Join("alias ", name, " \"", body, "\"");
    }
    Text SettingLine() {
        const Text keyword = Any(kSettings);
        return unreal_ ? Join(keyword, "=", Any(kValues)) : Join(keyword, " ", Any(kValues), " ", Any(kValues));
    }
    Text HeadLine() { return Any({"[Engine.Input]", "[Engine.Pawn]", "[URL]"}); }
    Text UnknownLine() {
        if (random_() % 3 == 0) {
            return Kept("// zz note " + std::to_string(Unknown.size()));
        }
        // No keyword, and in the input section of an ini no key.
        const Text line =
            Kept(Join("zz_", std::to_string(Unknown.size()), unreal_ ? "=Fire | \xE4" : " \"a  b\" \xE4"));
        return Join(Any({"", "  "}), line, Any({"", "  ", " // cut"}));
    }
    Text Kept(const Text& line) {
        Unknown.push_back(line);
        return line;
    }

    bool unreal_;
    std::mt19937 random_;
};

/// The lines of all sections that hold "zz", in their order.
Words UnknownLinesOf(const ScriptDocument& document) {
    Words lines;
    for (const ScriptSection& section : document.Sections) {
        for (std::size_t at = 0; at < section.Text.size();) {
            const std::size_t end = std::min(section.Text.find("\r\n", at), section.Text.size());
            const Text line = section.Text.substr(at, end - at);
            if (line.find("zz") != Text::npos) {
                lines.push_back(line);
            }
            at = end + 2;
        }
    }
    return lines;
}

class ReaderProperties : public ::testing::TestWithParam<Game> {};

constexpr unsigned kScripts = Rounds(2000U);  // of each kind
constexpr unsigned kFewScripts = Rounds(100U);

TEST_P(ReaderProperties, KeepWhatNobodyUnderstandsAndTablesThatAgree) {
    const ScriptDocument fresh = MakeScriptDocument(DialectOf(GetParam()));
    ScriptView view;
    for (unsigned seed = 0; seed < kScripts && !HasFailure(); ++seed) {
        Maker maker(GetParam(), seed);
        const Text script = maker.Make();
        ScriptDocument document = fresh;
        ReadInto(document, script, view);
        EXPECT_EQ(UnknownLinesOf(document), maker.Unknown) << script;
        EXPECT_EQ(DisagreementOf(document), "") << script;
    }
}

TEST_P(ReaderProperties, BindNoKeyThatTheScriptDoesNotName) {
    for (unsigned seed = 0; seed < kFewScripts; ++seed) {
        const ScriptDocument document = ReadScript(GetParam(), Maker(GetParam(), seed).Make());
        EXPECT_EQ(BindingOf(document, "b"), "");
        EXPECT_EQ(BindingOf(document, "f5"), "");
    }
}

TEST_P(ReaderProperties, LineEndsMakeNoDifference) {
    for (unsigned seed = 0; seed < kFewScripts; ++seed) {
        const Text script = Maker(GetParam(), seed).Make();
        Text other;
        for (const char c : script) {
            other += c == '\r' ? Text() : Text(1, c == '\n' && seed % 2 == 0 ? '\r' : c);
        }
        const ScriptDocument first = ReadScript(GetParam(), script);
        const ScriptDocument second = ReadScript(GetParam(), other);
        EXPECT_EQ(first.KeyBinding, second.KeyBinding);
        EXPECT_EQ(AliasesOf(first), AliasesOf(second));
        ASSERT_EQ(first.Sections.size(), second.Sections.size());
        for (std::size_t i = 0; i < first.Sections.size(); ++i) {
            EXPECT_EQ(first.Sections[i].Text, second.Sections[i].Text);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(OfEveryKind, ReaderProperties, ::testing::ValuesIn(kKinds));

}  // namespace
}  // namespace lv
