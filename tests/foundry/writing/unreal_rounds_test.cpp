// An Unreal ini that is saved again and again.

#include <algorithm>
#include <random>

#include "foundation/field_strings.h"
#include "foundry/writing/compose_script.h"
#include "tests/foundry/reading.h"
#include "tests/foundry/rounds.h"
#include "tests/foundry/script_fixture.h"

namespace lv {
namespace {

constexpr int kInis = Rounds(400);

class Inis {
  public:
    explicit Inis(unsigned seed) : random_(seed) {}

    Text Next() {
        Text lines;
        for (const TextView axis : {"MouseX", "MouseY"}) {
            lines += Axis(axis);
        }
        for (std::size_t left = random_() % 12; left > 0; --left) {
            lines += Line();
        }
        return Join("[URL]\r\nPort=7777\r\n[Engine.Input]\r\n", lines, "[Other]\r\nx=1\r\n");
    }

  private:
    Text Any(std::initializer_list<TextView> texts) { return Text(texts.begin()[random_() % texts.size()]); }

    Text Axis(TextView axis) {
        const Text lines = Any({"", "", "#=\r\n", "#=Axis a# Speed=6.0\r\n", "#=Axis aMouseX Speed=2.0\r\n",
                                "#=Count bYAxis | Axis aMouseY Speed=6.0\r\n", "#=Fire\r\n"});
        return ReplaceText(lines, "#", axis);
    }
    Text Line() {
        switch (random_() % 3) {
            case 0:
                return Join(Any({"A", "F10", "Space", "LeftMouse", "Enter", "Joy3"}), "=",
                            Any({"Fire", "Jump", "Cancel", "Say hi = you", "Button bDuck | Fire", ""}), "\r\n");
            case 1:
                return Join(Any({"Minus", "IME", "Unknown2A", "Joy17"}), "=",
                            Any({"Fire", "Say a=b", "MouseY=Fire", "x | y"}), "\r\n");
            default:
                return Any({"// by hand\r\n", "  // MouseX=MouseY=\r\n", "no command\r\n",
                            "Aliases[3]=(Command=\"Button bFire\",Alias=Shoot)\r\n"});
        }
    }

    std::mt19937 random_;
};

Text Saved(const ScriptDocument& document) {
    return ComposeScript(document, kScriptDay);
}

/// The section's lines that say something.
std::vector<Text> KeptLines(const ScriptDocument& document) {
    std::vector<Text> kept;
    for (const ScriptSection& section : document.Sections) {
        Text rest = section.Text;
        while (!rest.empty()) {
            const std::size_t end = std::min(rest.find("\r\n"), rest.size());
            if (end > 0) {
                kept.push_back(rest.substr(0, end));
            }
            rest.erase(0, std::min(end + 2, rest.size()));
        }
    }
    return kept;
}

TEST(UnrealRounds, TheSecondSaveIsTheThird) {
    Inis inis(14);
    for (int i = 0; i < kInis; ++i) {
        const Text ini = inis.Next();
        const Text second = Saved(ReadScript(Game::Unreal, Saved(ReadScript(Game::Unreal, ini))));
        ASSERT_EQ(Saved(ReadScript(Game::Unreal, second)), second) << ini;
    }
}

TEST(UnrealRounds, LoseNoBindAndNoAlias) {
    Inis inis(15);
    for (int i = 0; i < kInis; ++i) {
        const Text ini = inis.Next();
        const ScriptDocument first = ReadScript(Game::Unreal, ini);
        const ScriptDocument third = ReadScript(Game::Unreal, Saved(ReadScript(Game::Unreal, Saved(first))));
        ASSERT_EQ(third.KeyBinding, first.KeyBinding) << ini;
        ASSERT_EQ(AliasesOf(third), AliasesOf(first)) << ini;
        ASSERT_EQ(third.MouseBind_Cbo[0].Selected(), first.MouseBind_Cbo[0].Selected()) << ini;
        ASSERT_EQ(third.MouseBind_Cbo[1].Selected(), first.MouseBind_Cbo[1].Selected()) << ini;
    }
}

TEST(UnrealRounds, KeepEachLineThatTheyDoNotUnderstand) {
    Inis inis(16);
    for (int i = 0; i < kInis; ++i) {
        const Text ini = inis.Next();
        const ScriptDocument first = ReadScript(Game::Unreal, ini);
        ASSERT_EQ(KeptLines(ReadScript(Game::Unreal, Saved(first))), KeptLines(first)) << ini;
    }
}

TEST(UnrealRounds, AnIniWithoutMouseSpeedsStaysAsLong) {
    const Text first = Saved(ReadScript(Game::Unreal, "[Engine.Input]\r\nA=Fire\r\n"));
    EXPECT_EQ(CountLines(first, "MouseX=MouseY="), 1);
    EXPECT_EQ(Saved(ReadScript(Game::Unreal, first)), first);
}

TEST(UnrealRounds, AnIniThatHasGrownComesBackToItsSize) {
    const Text grown = Saved(
        ReadScript(Game::Unreal, "[Engine.Input]\r\nMouseX=MouseY=mousex=MouseY=mousex=MouseY=\r\n\r\nA=Fire\r\n"));
    EXPECT_EQ(grown, Saved(ReadScript(Game::Unreal, "[Engine.Input]\r\nA=Fire\r\n")));
}

}  // namespace
}  // namespace lv
