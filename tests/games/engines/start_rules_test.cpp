#include "games/engines/start_rules.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_files.h"
#include "tests/support/shipped_engines.h"

namespace lv {
namespace {

TEST(TenWays, TheProgramBehindAWrapperIsStarted) {
    const Engine& shipped = ShippedEngine("ezQuake");
    EXPECT_EQ(shipped.StartedAs, "/usr/games/ezquake");
    EXPECT_EQ(shipped.StartInstead, "/usr/lib/games/ezquake/ezquake");
    Engine engine = shipped;
    MemoryFiles disk;
    disk.AddFile("C:\\usr\\games\\ezquake");
    engine.StartedAs = disk.ToHost("C:\\usr\\games\\ezquake");
    engine.StartInstead = disk.ToHost("C:\\usr\\lib\\ezquake");
    EXPECT_EQ(ProgramToStart(disk, engine, "C:\\usr\\games\\ezquake"), "C:\\usr\\games\\ezquake");
    disk.AddFile("C:\\usr\\lib\\ezquake");
    EXPECT_EQ(LowerCase(ProgramToStart(disk, engine, "C:\\usr\\games\\ezquake")), "c:\\usr\\lib\\ezquake");
    EXPECT_EQ(ProgramToStart(disk, engine, "C:\\other\\ezquake"), "C:\\other\\ezquake");
}

TEST(TenWays, YamagiDoesNotRunAsRootNorWithoutItsDirectory) {
    const Engine& yamagi = ShippedEngine("Yamagi Quake II");
    EXPECT_EQ(WhyNoUseToStart(yamagi, {.AsRoot = true}),
              "Yamagi Quake II does not run as root. Log in as a user of your own to play.");
    EXPECT_EQ(WhyNoUseToStart(yamagi, {.DataDirectory = "C:\\Q2", .DataDirectoryExists = false}),
              "The game's directory is missing: C:\\Q2. Without it Yamagi Quake II ends with exit code 1. "
              "Mount its disk, or choose another directory.");
    EXPECT_EQ(WhyNoUseToStart(yamagi, {.DataDirectory = "C:\\Q2"}), std::nullopt);
    EXPECT_EQ(WhyNoUseToStart(ShippedEngine("QuakeSpasm"), {.AsRoot = true}), std::nullopt);
}

TEST(TenWays, YamagiCannotUseTheRereleasesData) {
    EXPECT_EQ(WhyNoUseToStart(ShippedEngine("Yamagi Quake II"), {.DataDirectory = "C:\\Quake 2\\Rerelease"}),
              "Yamagi Quake II cannot use the data of the rerelease. Choose the directory above \"rerelease\", which "
              "holds the classic game.");
    EXPECT_EQ(WhyNoUseToStart(ShippedEngine("Ironwail"), {.DataDirectory = "C:\\Quake\\rerelease"}), std::nullopt);
}

TEST(ProgramToStart, IsTheProgramItselfWithoutAnother) {
    MemoryFiles disk;
    disk.AddFile("C:\\usr\\games\\quakespasm");
    EXPECT_EQ(ProgramToStart(disk, ShippedEngine("QuakeSpasm"), "C:\\usr\\games\\quakespasm"),
              "C:\\usr\\games\\quakespasm");
}

TEST(WhyNoUseToStart, NamesTheMissingDirectoryAloneWhereNothingIsKnownOfTheEngine) {
    Engine engine = ShippedEngine("QuakeSpasm");
    engine.WithoutData.clear();
    EXPECT_EQ(WhyNoUseToStart(engine, {.DataDirectory = "C:\\QUAKE", .DataDirectoryExists = false}),
              "The game's directory is missing: C:\\QUAKE. Mount its disk, or choose another directory.");
}

TEST(WhyNoUseToStart, NamesTheAccountAheadOfTheDirectory) {
    EXPECT_EQ(WhyNoUseToStart(ShippedEngine("Yamagi Quake II"),
                              {.AsRoot = true, .DataDirectory = "C:\\Q2\\rerelease", .DataDirectoryExists = false}),
              "Yamagi Quake II does not run as root. Log in as a user of your own to play.");
}

}  // namespace
}  // namespace lv
