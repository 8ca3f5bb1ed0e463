#include "console/files/line_commands.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

Text Listed(TextView line, Console console = Console::Quake) {
    Text all;
    for (const Text& command : LineCommands(line, console)) {
        all += Join(all.empty() ? "" : "|", command);
    }
    return all;
}

}  // namespace

TEST(LineCommands, AreThoseBehindAPlus) {
    EXPECT_EQ(Listed("QUAKE.EXE -zone 512 +connect 10.0.0.1 -game ctf +exec lv_666.qs "),
              "connect 10.0.0.1|exec lv_666.qs");
    EXPECT_EQ(Listed("QUAKE.EXE -zone 512"), "");
    EXPECT_EQ(Listed(""), "");
}

TEST(LineCommands, KeepQuotesAndNumbers) {
    EXPECT_EQ(Listed("q +name \"my self +x\"  +m_pitch -0.022 +fov -90 +x"),
              "name \"my self +x\"|m_pitch -0.022|fov -90|x");
}

TEST(LineCommands, AreAllWordsOfUnreals) {
    EXPECT_EQ(Listed("UNREAL.EXE entry.unr INI=my.ini", Console::Unreal), "UNREAL.EXE|entry.unr|INI=my.ini");
}

}  // namespace lv
