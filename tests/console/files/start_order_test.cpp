#include "console/files/start_order.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

Text Listed(Console console) {
    constexpr TextView kSorts[] = {
        "rc",       "rc or else", "near rc or else", "exec", "exec not the game's", "loose",
        "if loose", "each loose", "if not run",      "all",  "early sets",          "commands",
        "ini"};
    Text all;
    for (const StartStep& step : StartStepsOf(console)) {
        all += Join(all.empty() ? "" : ", ", kSorts[static_cast<int>(step.Sort)], step.File.empty() ? "" : " ",
                    step.File, step.MayLack ? "?" : "");
    }
    return all;
}

}  // namespace

TEST(StartOrder, IsThatOfEachConsole) {
    constexpr TextView kQuake2 =
        "early sets, exec default.cfg, exec config.cfg?, early sets, if loose autoexec.cfg?, commands";
    EXPECT_EQ(Listed(Console::Quake), "rc quake.rc");
    EXPECT_EQ(Listed(Console::QuakeWorld), "rc quake.rc");
    EXPECT_EQ(Listed(Console::Hexen2), "rc hexen.rc");
    EXPECT_EQ(Listed(Console::HexenWorld), "rc hexen.rc");
    EXPECT_EQ(Listed(Console::Quake2), kQuake2);
    EXPECT_EQ(Listed(Console::Heretic2),
              "early sets, exec default.cfg, exec config.cfg?, early sets, if loose autoexec.cfg?, exec menus.cfg?, "
              "exec user.cfg?, commands");
    EXPECT_EQ(Listed(Console::Sin), kQuake2);
    EXPECT_EQ(Listed(Console::EzQuake),
              "exec not the game's default.cfg?, loose configs/config.cfg?, early sets, exec autoexec.cfg?, commands");
    EXPECT_EQ(Listed(Console::Ironwail), "rc quake.rc");
    EXPECT_EQ(Listed(Console::QuakeSpasm), "rc quake.rc");
    EXPECT_EQ(Listed(Console::DarkPlaces), "rc or else quake.rc");
    EXPECT_EQ(Listed(Console::Fte), "near rc or else quake.rc;hexen.rc, exec frontend.cfg?");
    EXPECT_EQ(Listed(Console::Yamagi),
              "early sets, exec default.cfg, exec yq2.cfg?, exec config.cfg?, exec autoexec.cfg?, early sets, "
              "commands");
    EXPECT_EQ(Listed(Console::Q2Pro),
              "early sets, exec default.cfg, loose config.cfg?, each loose autoexec.cfg?, loose postexec.cfg?, "
              "early sets, commands, loose postinit.cfg?");
    EXPECT_EQ(Listed(Console::HalfLife), "rc %.rc;valve.rc, if not run config.cfg?, all userconfig.d/*.cfg?, commands");
    EXPECT_EQ(Listed(Console::Unreal), "ini Unreal.ini, ini User.ini?");
}

TEST(StartOrder, KnowsWhatEachRcSaysThatIsNotThere) {
    constexpr TextView kQuake = "exec default.cfg\nexec config.cfg\nexec autoexec.cfg\nstuffcmds\n";
    for (const Console console : {Console::Quake, Console::QuakeWorld, Console::Ironwail, Console::QuakeSpasm,
                                  Console::DarkPlaces, Console::Fte}) {
        EXPECT_EQ(StartStepsOf(console).at(0).Otherwise, kQuake);
    }
    EXPECT_EQ(StartStepsOf(Console::Hexen2).at(0).Otherwise,
              "exec default.cfg\nexec config.cfg\nexec autoexec.cfg\nmenu_main\nstuffcmds\n");
    EXPECT_EQ(StartStepsOf(Console::HalfLife).at(0).Otherwise, "exec config.cfg\nexec autoexec.cfg\nstuffcmds\n");
}

TEST(StartOrder, LeavesNoConsoleOut) {
    for (const ConsoleRules& rules : AllConsoles()) {
        EXPECT_FALSE(StartStepsOf(rules.Id).empty()) << rules.Name;
    }
}

}  // namespace lv
