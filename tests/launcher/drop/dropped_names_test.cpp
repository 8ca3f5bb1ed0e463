#include "launcher/drop/dropped_names.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

const GameFacts& Quake() {
    return FactsOf(Game::Quake);
}

TEST(DroppedNames, AModificationIsCalledLikeItsArchive) {
    EXPECT_EQ(ModificationNameFor("C:\\D\\Fortress.pak", Quake()), "fortress");
    EXPECT_EQ(ModificationNameFor("C:\\D\\my mod (v1.2).pk3", Quake()), "my_mod__v1.2_");
    EXPECT_EQ(ModificationNameFor("C:\\D\\arena.1.pak", Quake()), "arena.1");
}

TEST(DroppedNames, AnArchiveThatIsCalledLikeTheGamesSaysNothing) {
    EXPECT_EQ(ModificationNameFor("C:\\D\\Fortress\\PAK0.PAK", Quake()), "fortress");
    EXPECT_EQ(ModificationNameFor("C:\\pak12.pak", Quake()), "newmod");
    EXPECT_EQ(ModificationNameFor("C:\\D\\id1\\pak0.pak", Quake()), "newmod");
}

TEST(DroppedNames, AStrangersNameIsMadeOneThatALaunchTakes) {
    EXPECT_EQ(ModificationNameFor("C:\\D\\-game;quit.pak", Quake()), "game_quit");
    EXPECT_EQ(ModificationNameFor("C:\\D\\+exec evil.pak", Quake()), "exec_evil");
    EXPECT_EQ(ModificationNameFor("C:\\D\\...pak", Quake()), "newmod");
    EXPECT_EQ(ModificationNameFor(Join("C:\\D\\", Text(5000, 'a'), ".pak"), Quake()), Text(32, 'a'));
}

TEST(DroppedNames, ADeviceOfWindowsIsNoName) {
    EXPECT_EQ(ModificationNameFor("C:\\D\\CON.pak", Quake()), "newmod");
    EXPECT_EQ(ModificationNameFor("C:\\D\\aux\\pak0.pak", Quake()), "newmod");
    DroppedThing zip;
    zip.IsZip = true;
    zip.Path = "C:\\D\\COM1.pk3";
    EXPECT_EQ(ArchiveNameFor(zip, Game::Quake), "newmod.pk3");
    EXPECT_FALSE(IsModificationName("NUL", Quake()));
    EXPECT_FALSE(IsModificationName("nul.2", Quake()));
    EXPECT_FALSE(IsMapName("con"));
    EXPECT_FALSE(IsScriptName("lpt1.cfg"));
    EXPECT_TRUE(IsMapName("console"));
}

TEST(DroppedNames, WhatAModificationMayBeCalled) {
    EXPECT_TRUE(IsModificationName("ctf", Quake()));
    EXPECT_TRUE(IsModificationName("3wave_2.0-b", Quake()));
    for (const Text& name : {Text(), Text("ID1"), Text("-game"), Text("a b"), Text("a;b"), Text("a\\b"), Text("a/b"),
                             Text(".."), Text("a."), Text("a\n"), Text("+set"), Text("a\"b"), Text(33, 'a')}) {
        EXPECT_FALSE(IsModificationName(name, Quake())) << name;
    }
}

TEST(DroppedNames, AnArchiveGetsTheNameThatItsGameLooksFor) {
    DroppedThing thing;
    thing.Path = "C:\\D\\Fortress.pak";
    EXPECT_EQ(ArchiveNameFor(thing, Game::Quake), "pak0.pak");
    EXPECT_EQ(ArchiveNameFor(thing, Game::Quake2), "pak0.pak");
    EXPECT_EQ(ArchiveNameFor(thing, Game::HalfLife), "pak0.pak");
    EXPECT_EQ(ArchiveNameFor(thing, Game::Heretic2), "htic2-0.pak");
    EXPECT_EQ(ArchiveNameFor(thing, Game::Sin), "pak0.sin");
    thing.IsZip = true;
    thing.Path = "C:\\D\\My Mod.PK3";
    EXPECT_EQ(ArchiveNameFor(thing, Game::Quake), "My_Mod.pk3");
    thing.Path = "C:\\D\\;.pk3";
    EXPECT_EQ(ArchiveNameFor(thing, Game::Quake), "newmod.pk3");
}

TEST(DroppedNames, WhatAMapMayBeCalled) {
    EXPECT_TRUE(IsMapName("dm3"));
    EXPECT_TRUE(IsMapName("DM-Deck16]["));
    for (const Text name : {"", "a b", "a;b", "a\"b", "a\nb"}) {
        EXPECT_FALSE(IsMapName(name)) << name;
    }
}

TEST(DroppedNames, WhatAScriptMayBeCalled) {
    EXPECT_TRUE(IsScriptName("my script.cfg"));
    for (const Text name : {"", "a;b.cfg", "a\nb.cfg", "..\\a.cfg", "a/b.cfg", "C:a.cfg", "noending", "qu'ote\".cfg"}) {
        EXPECT_FALSE(IsScriptName(name)) << name;
    }
}

}  // namespace
}  // namespace lv
