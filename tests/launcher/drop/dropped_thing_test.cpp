#include "launcher/drop/dropped_thing.h"

#include <gmock/gmock.h>

#include "platform/memory/memory_platform.h"

namespace lv {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using namespace std::string_view_literals;

struct KindCase {
    const char* Name;
    std::string_view Bytes;
    DroppedKind Kind;
    std::vector<Game> Games = {};
    bool IsZip = false;
};

class DroppedKinds : public ::testing::TestWithParam<KindCase> {};

TEST_P(DroppedKinds, AreToldByNameAndFirstBytes) {
    MemoryPlatform system;
    const Text path = Join("C:\\Downloads\\", GetParam().Name);
    system.Disk.AddFile(path, GetParam().Bytes);
    const DroppedThing thing = ThingOf(system.Disk, path);
    EXPECT_EQ(thing.Kind, GetParam().Kind) << thing.Why;
    EXPECT_EQ(thing.Path, path);
    EXPECT_EQ(thing.Games, GetParam().Games);
    EXPECT_EQ(thing.IsZip, GetParam().IsZip);
}

const std::vector<Game> kPakGames = {Game::Quake, Game::Hexen2, Game::Quake2, Game::Heretic2, Game::HalfLife};
const std::vector<Game> kConsoles = {Game::Quake, Game::Hexen2,   Game::Quake2,
                                     Game::Sin,   Game::Heretic2, Game::HalfLife};
const std::vector<Game> kQuakeMaps = {Game::Quake, Game::Hexen2};

// clang-format off
INSTANTIATE_TEST_SUITE_P(
    EachRow, DroppedKinds,
    ::testing::Values(
        KindCase{"mod.pak", "PACK\0\0\0\0"sv, DroppedKind::Archive, kPakGames},
        KindCase{"MOD.PAK", "PACK\0\0\0\0"sv, DroppedKind::Archive, kPakGames},
        KindCase{"mod.sin", "SPAK\0\0\0\0"sv, DroppedKind::Archive, {Game::Sin}},
        KindCase{"mod.pk3", "PK\x03\x04"sv, DroppedKind::Archive, {Game::Quake, Game::Hexen2, Game::Quake2}, true},
        KindCase{"mod.pk2", "PK\x03\x04"sv, DroppedKind::Archive, {Game::Quake2}, true},
        KindCase{"mod.pkz", "PK\x03\x04"sv, DroppedKind::Archive, {Game::Quake2}, true},
        KindCase{"dm.bsp", "\x1D\0\0\0"sv, DroppedKind::Map, kQuakeMaps},
        KindCase{"dm.bsp", "BSP2"sv, DroppedKind::Map, kQuakeMaps},
        KindCase{"dm.bsp", "2PSB"sv, DroppedKind::Map, kQuakeMaps},
        KindCase{"dm.bsp", "\x1E\0\0\0"sv, DroppedKind::Map, {Game::HalfLife}},
        KindCase{"dm.bsp", "IBSP\x26\0\0\0"sv, DroppedKind::Map, {Game::Quake2, Game::Heretic2}},
        KindCase{"dm.bsp", "RBSP\x01\0\0\0"sv, DroppedKind::Map, {Game::Sin}},
        KindCase{"dm.unr", "\xC1\x83\x2A\x9E"sv, DroppedKind::Map, {Game::Unreal}},
        KindCase{"me.cfg", "bind w +forward"sv, DroppedKind::Script, kConsoles},
        KindCase{"me.cfg", ""sv, DroppedKind::Script, kConsoles},
        KindCase{"me.qs", "bind"sv, DroppedKind::Script, {Game::Quake}},
        KindCase{"me.hs", "bind"sv, DroppedKind::Script, {Game::Hexen2}},
        KindCase{"me.q2s", "bind"sv, DroppedKind::Script, {Game::Quake2}},
        KindCase{"me.sns", "bind"sv, DroppedKind::Script, {Game::Sin}},
        KindCase{"me.ini", "[Engine.Input]"sv, DroppedKind::Script, {Game::Unreal}},
        KindCase{"game.exe", "MZ\x90\0"sv, DroppedKind::Program},
        KindCase{"game.com", "\xE9"sv, DroppedKind::Program},
        KindCase{"game.bat", "@echo off"sv, DroppedKind::Program},
        KindCase{"game.cmd", "@echo off"sv, DroppedKind::Program},
        KindCase{"ezquake-linux-x86_64", "\x7F""ELF\x02"sv, DroppedKind::Program},
        KindCase{"ironwail.AppImage", "\x7F""ELF\x02"sv, DroppedKind::Program},
        KindCase{"q2rtx.sh", "#!/bin/sh\n"sv, DroppedKind::Program},
        KindCase{"all.lv3d", "Lorvane 3D settings 1\n"sv, DroppedKind::Settings}));
// clang-format on

class DroppedThings : public ::testing::Test {
  protected:
    DroppedThing Of(TextView name, TextView bytes) {
        const Text path = Join("C:\\D\\", name);
        system.Disk.AddFile(path, bytes);
        return ThingOf(system.Disk, path);
    }
    MemoryPlatform system;
};

TEST_F(DroppedThings, ANameThatItsBytesBelieIsNoThing) {
    for (const char* name : {"a.pak", "a.sin", "a.pk3", "a.bsp", "a.unr", "a.exe", "a.lv3d"}) {
        const DroppedThing thing = Of(name, "nonsense");
        EXPECT_EQ(thing.Kind, DroppedKind::Unknown) << name;
        EXPECT_EQ(thing.Why, "What is in it is not what its name says.") << name;
    }
    EXPECT_EQ(Of("b.pak",
                 "\x7F"
                 "ELF")
                  .Kind,
              DroppedKind::Unknown)
        << "no program under an archive's name";
    EXPECT_EQ(Of("c.pak", "PAC").Kind, DroppedKind::Unknown);
    EXPECT_EQ(Of("notes.txt", "PACK").Why, "");
    EXPECT_EQ(Of(".pak", "PACK").Kind, DroppedKind::Unknown);
}

TEST_F(DroppedThings, AnArchiveThatNoGameReadsIsToBeUnpacked) {
    EXPECT_THAT(Of("mod.zip", "PK\x03\x04").Why, HasSubstr("is unpacked first"));
}

TEST_F(DroppedThings, AScriptOfUtf16TextIsRefusedInWords) {
    const DroppedThing thing = Of("me.cfg",
                                  "\xFF\xFE"
                                  "b");
    EXPECT_EQ(thing.Kind, DroppedKind::Unknown);
    EXPECT_THAT(thing.Why, HasSubstr("UTF-16"));
}

TEST_F(DroppedThings, ProgramsWithoutAnEndingAreTheHostsAlone) {
    system.Disk.KnowsStandIns = false;
    EXPECT_EQ(Of("ezquake",
                 "\x7F"
                 "ELF")
                  .Kind,
              DroppedKind::Unknown);
    EXPECT_EQ(Of("quake.exe", "MZ").Kind, DroppedKind::Program);
}

TEST_F(DroppedThings, ADirectoryLosesTheEndOfItsPath) {
    system.Disk.AddDirectory("C:\\QUAKE\\CTF");
    const DroppedThing thing = ThingOf(system.Disk, "C:\\QUAKE\\CTF\\");
    EXPECT_EQ(thing.Kind, DroppedKind::Directory);
    EXPECT_EQ(thing.Path, "C:\\QUAKE\\CTF");
}

TEST_F(DroppedThings, AFileThatIsGoneSaysSo) {
    const DroppedThing thing = ThingOf(system.Disk, "C:\\D\\gone.pak");
    EXPECT_EQ(thing.Kind, DroppedKind::Unknown);
    EXPECT_THAT(thing.Why, HasSubstr("not found"));
}

TEST_F(DroppedThings, ADeviceIsNotRead) {
    system.Disk.AddDirectory("C:\\D");
    system.Disk.AddDevice("C:\\D\\pipe.pak");
    const DroppedThing thing = ThingOf(system.Disk, "C:\\D\\pipe.pak");
    EXPECT_EQ(thing.Kind, DroppedKind::Unknown);
    EXPECT_NE(thing.Why, "");
}

TEST_F(DroppedThings, AHugeFileCostsItsFirstBytes) {
    system.Disk.AddDirectory("C:\\D");
    system.Disk.AddSparseFile("C:\\D\\huge.pak", "PACK", 1ULL << 40U);
    EXPECT_EQ(ThingOf(system.Disk, "C:\\D\\huge.pak").Kind, DroppedKind::Archive);
}

TEST_F(DroppedThings, AnEndlessWordIsCut) {
    const DroppedThing thing = ThingOf(system.Disk, Text(1'000'000, 'x'));
    EXPECT_EQ(thing.Kind, DroppedKind::Unknown);
    EXPECT_LE(thing.Path.size(), kLongestDroppedWord);
    EXPECT_FALSE(IsServerWord(Text(1'000'000, 'x') + ".example"));
}

TEST_F(DroppedThings, LinksAndAddressesAreServers) {
    const DroppedThing link = ThingOf(system.Disk, "QW://quake.example.com:27500/?spectate=1");
    EXPECT_EQ(link.Kind, DroppedKind::Server);
    EXPECT_EQ(link.Server.Scheme, "qw");
    EXPECT_EQ(link.Server.Address.Host, "quake.example.com");
    EXPECT_EQ(link.Server.Address.Port, "27500");
    const DroppedThing address = ThingOf(system.Disk, "10.0.0.1:26000");
    EXPECT_EQ(address.Kind, DroppedKind::Server);
    EXPECT_EQ(address.Server.Scheme, "");
    EXPECT_EQ(address.Server.Address.Host, "10.0.0.1");
    EXPECT_EQ(ThingOf(system.Disk, "quake.example.com").Kind, DroppedKind::Server);
}

TEST_F(DroppedThings, OtherAndHostileLinksAreNone) {
    for (const char* word : {"http://host.example/", "qw://a;quit", "qw://-exec", "qw://"}) {
        const DroppedThing thing = ThingOf(system.Disk, word);
        EXPECT_EQ(thing.Kind, DroppedKind::Unknown) << word;
        EXPECT_THAT(thing.Why, HasSubstr("no address of a game's server")) << word;
    }
}

TEST_F(DroppedThings, ALinkToAFileOfAnotherMachineSaysSo) {
    for (const char* word : {"file://nas/share/dm3.bsp", "FILE://nas/a", "file:///a%2", "file:"}) {
        const DroppedThing thing = ThingOf(system.Disk, word);
        EXPECT_EQ(thing.Kind, DroppedKind::Unknown) << word;
        EXPECT_EQ(thing.Why, "That link names no file of this machine. One looks like file:///home/me/dm3.bsp.");
    }
}

TEST_F(DroppedThings, AMissingFileIsNotTakenForAHost) {
    EXPECT_FALSE(IsServerWord("player.cfg"));
    EXPECT_FALSE(IsServerWord("mod.pak"));
    EXPECT_FALSE(IsServerWord("player"));
    EXPECT_FALSE(IsServerWord("C:\\D\\x.y"));
    EXPECT_TRUE(IsServerWord("quake.example.com"));
    EXPECT_TRUE(IsServerWord("localhost:26000"));
    EXPECT_TRUE(IsServerWord("quake2://host"));
}

}  // namespace
}  // namespace lv
