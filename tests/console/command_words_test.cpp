#include "console/command_words.h"

#include <gtest/gtest.h>

namespace lv {

TEST(CommandWords, AreCommandsInAnyLetterCase) {
    for (const TextView word : {"bind", "Alias", "EXEC", "echo", "impulse", "+mlook", "-attack", "say_team", "wait",
                                "unbindall", "set", "z_stats", "addip"}) {
        EXPECT_EQ(UseOfWord(word), WordUse::Command) << word;
    }
}

TEST(CommandWords, AreSettings) {
    for (const TextView word : {"sensitivity", "Fov", "name", "_cl_color", "volume"}) {
        EXPECT_EQ(UseOfWord(word), WordUse::Setting) << word;
    }
}

TEST(CommandWords, OfEnginesAndModificationsAreNotKnown) {
    for (const TextView word :
         {"gl_texturemode", "zoom_in", "", "a word that is far longer than any of the games' own"}) {
        EXPECT_EQ(UseOfWord(word), WordUse::Unknown) << word;
    }
}

TEST(LacksSetting, HoldsForThoseThatTheEngineHasNot) {
    EXPECT_TRUE(LacksSetting(Console::DarkPlaces, "joystick"));
    EXPECT_TRUE(LacksSetting(Console::DarkPlaces, "vid_mode"));
    EXPECT_FALSE(LacksSetting(Console::DarkPlaces, "sensitivity"));
    EXPECT_FALSE(LacksSetting(Console::Quake, "joystick"));
}

TEST(RunsScript, HoldsForThoseThatExecuteAFile) {
    EXPECT_TRUE(RunsScript("Exec"));
    EXPECT_TRUE(RunsScript("cfg_load"));
    EXPECT_FALSE(RunsScript("echo"));
}

}  // namespace lv
