#include "foundry/losses/bind_lines.h"

#include <gtest/gtest.h>

#include "console/key_names.h"
#include "console/text_difference.h"
#include "tests/foundry/script_fixture.h"

namespace lv {
namespace {

BindLines LinesOfScript(TextView script, Console console = Console::Quake) {
    return {LinesOf(script), EffectsOf(script, console), kQuakeDialect};
}

}  // namespace

TEST(BindLines, GiveTheLastLineOfAKeyWhateverTheGameMakesOfIt) {
    const BindLines binds = LinesOfScript("bind F1 a\n  \"BIND\" f1 \"b c\" // why\nbind x impulse 7\n// bind y z");
    const KeyBindLine* const f1 = binds.LastOf(KeyIdentity(Console::Quake, "F1"));
    ASSERT_NE(f1, nullptr);
    EXPECT_EQ(f1->Command, "b c");
    EXPECT_EQ(f1->Line, 2U);
    EXPECT_EQ(f1->Words, 3U);
    ASSERT_NE(binds.LastOf("x"), nullptr);
    EXPECT_EQ(binds.LastOf("x")->Words, 4U);
    EXPECT_EQ(binds.LastOf("y"), nullptr);
}

TEST(BindLines, TellOfALineThatTheGameDrops) {
    const BindLines binds = LinesOfScript("bind x \"open", Console::Quake2);
    ASSERT_NE(binds.LastOf("x"), nullptr);
    EXPECT_EQ(binds.LastOf("x")->Words, 0U);
}

TEST(BindLines, TellOfAnotherKeyThatIsWrittenAsThisOne) {
    const BindLines binds = LinesOfScript("bind ` a\nbind ~ b\nbind A c\nbind up d\nbind f1 e");
    ASSERT_NE(binds.OtherOf("`"), nullptr);
    EXPECT_EQ(binds.OtherOf("`")->Key, "~");
    EXPECT_EQ(binds.OtherOf("`")->Line, 2U);
    ASSERT_NE(binds.OtherOf("a"), nullptr);
    EXPECT_EQ(binds.OtherOf("a")->Key, "A");
    EXPECT_EQ(binds.OtherOf("UPARROW"), nullptr) << "the game has no key of that name";
    EXPECT_EQ(binds.OtherOf("F1"), nullptr);
    EXPECT_EQ(LinesOfScript("bind A c", Console::DarkPlaces).OtherOf("a"), nullptr) << "they are one key there";
}

TEST(WrittenKeyName, IsThatOfTheScriptsStyle) {
    EXPECT_EQ(WrittenKeyName("~", kQuakeDialect), "`");
    EXPECT_EQ(WrittenKeyName("KP_PLUS", kQuakeDialect), "+");
    EXPECT_EQ(WrittenKeyName("+", kQuake2Dialect), "kp_plus");
    EXPECT_EQ(WrittenKeyName("ESCAPE", kQuakeDialect), "");
}

TEST(BindLines, TellWhichBlockHadNoRoom) {
    Text script;
    for (int i = 0; i < 13 + 24 + 1; ++i) {
        script += Join("bind a \"say ", std::to_string(i), "\"\n");
    }
    const BindLines binds = LinesOfScript(Join(script, "bind b \"toggle r_x\"\nbind c \"+attack\""));
    EXPECT_EQ(binds.FullBlockOf("say 36"), std::nullopt);
    EXPECT_EQ(binds.FullBlockOf("say 37"), kMessages.First);
    EXPECT_EQ(binds.FullBlockOf("toggle r_x"), kExtras.First);
    EXPECT_EQ(binds.FullBlockOf("+attack"), std::nullopt);
}

}  // namespace lv
