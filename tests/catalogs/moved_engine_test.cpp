#include "catalogs/moved_engine.h"

#include "catalogs/executables.h"
#include "games/engines/engine_seats.h"
#include "tests/catalogs/catalogs_fixture.h"
#include "tests/support/shipped_engines.h"

namespace lv {
namespace {

/// QuakeSpasm has its seat beside Quake's data, and has gone from /usr/games.
class MovedEngine : public CatalogsTest {
  protected:
    MovedEngine() {
        lists.Engines = &ShippedEngines();
        system.Disk.AddFile("C:\\QUAKE\\ID1\\pak0.pak");
        system.Disk.AddFile("C:\\QUAKE\\quake.exe");
        SeatEngine(run, kSeat, "Z:\\usr\\games\\quakespasm");
        Store("Executables", "Quake;c:\\quake\\quake.exe;Spasm;c:\\quake\\quakespasm");
        Store("Scripts", "Mine;c:\\quake\\id1\\my.cfg");
    }
    void ExpectMissing(Index answer) {
        user.Expect({"Game Not Found...",
                     "Spasm  c:\\quake\\quakespasm\r\nThis Game -->\r\nwas not found.\r\n\r\n"
                     "QuakeSpasm plays this game from elsewhere, and its program is not there any more:\r\n\r\n"
                     "\t/z:/usr/games/quakespasm\r\n\r\n"
                     "In a terminal, \"apt install quakespasm\" installs it.",
                     answer, false, true, "I &deleted this Game,I &moved this Game,I&gnore"});
    }
    void ExpectOffer(TextView path, Index answer) {
        user.Expect({"Lookie Here...", Text(path) + "\r\nIs this the new location?", answer, false, true,
                     "&Yep - that's it!,&No way"});
    }
    Text Program() { return ProgramOfSeat(run, kSeat); }

    static constexpr const char* kSeat = "c:\\quake\\quakespasm";
    static constexpr Index kDeleted = 0;
    static constexpr Index kMoved = 1;
    static constexpr Index kIgnored = 2;
    const Text before = "Quake;c:\\quake\\quake.exe;Spasm;c:\\quake\\quakespasm";
};

TEST_F(MovedEngine, GivesItsSeatTheNewProgramAndTheEntriesStay) {
    system.Disk.AddFile("C:\\HOME\\apps\\quakespasm");
    ExpectMissing(kMoved);
    user.FileAnswers.push_back(std::optional<Text>("C:\\HOME\\apps\\quakespasm"));
    EXPECT_TRUE(LoadExes(run, lists));
    EXPECT_EQ(Stored("Executables"), before);
    EXPECT_EQ(Stored("Scripts"), "Mine;c:\\quake\\id1\\my.cfg");
    EXPECT_EQ(Program(), "C:\\HOME\\apps\\quakespasm");
    EXPECT_TRUE(system.Disk.FileExists("C:\\QUAKE\\QUAKESPASM"));
}

TEST_F(MovedEngine, IsOfferedFromWhereTheSystemKeepsItsPrograms) {
    system.Places.IsPrograms = {"Z:\\usr\\games", "C:\\HOME\\bin", "Z:\\opt"};
    system.Disk.AddFile("C:\\HOME\\bin\\quakespasm");
    system.Disk.AddFile("Z:\\opt\\quakespasm");
    ExpectMissing(kMoved);
    ExpectOffer("C:\\HOME\\bin\\quakespasm", 1);
    ExpectOffer("Z:\\opt\\quakespasm", 0);
    EXPECT_TRUE(LoadExes(run, lists));
    EXPECT_EQ(Program(), "Z:\\opt\\quakespasm");
}

TEST_F(MovedEngine, IsBrowsedForWhereItWas) {
    system.Disk.AddDirectory("Z:\\usr\\games");
    ExpectMissing(kMoved);
    user.FileAnswers.push_back(std::optional<Text>());
    ExpectMissing(kIgnored);
    EXPECT_TRUE(LoadExes(run, lists));
    EXPECT_EQ(user.FileRequests.at(0).InitialDirectory, "Z:\\usr\\games");
    EXPECT_EQ(user.FileRequests.at(0).Filter,
              "Game Executable [quakespasm](quakespasm)|quakespasm|All Files (*.*)|*.*");
    EXPECT_EQ(Program(), "Z:\\usr\\games\\quakespasm");
}

TEST_F(MovedEngine, ADeletedOneTakesItsSeatAlong) {
    ExpectMissing(kDeleted);
    EXPECT_TRUE(LoadExes(run, lists));
    EXPECT_EQ(Stored("Executables"), "Quake;c:\\quake\\quake.exe");
    EXPECT_EQ(Stored("Seats", "Engines"), "");
}

TEST_F(MovedEngine, AnotherEngineTakesASeatOfItsOwn) {
    system.Disk.AddFile("Z:\\opt\\ironwail");
    ExpectMissing(kMoved);
    user.FileAnswers.push_back(std::optional<Text>("Z:\\opt\\ironwail"));
    EXPECT_TRUE(LoadExes(run, lists));
    EXPECT_EQ(Stored("Executables"), "Quake;c:\\quake\\quake.exe;Spasm;c:\\quake\\ironwail");
    EXPECT_EQ(Stored("Seats", "Engines"), "c:\\quake\\ironwail;Z:\\opt\\ironwail");
}

TEST_F(MovedEngine, AnotherEngineThatIsListedAlreadyIsNotListedTwice) {
    system.Disk.AddFile("Z:\\opt\\ironwail");
    SeatEngine(run, "c:\\quake\\ironwail", "Z:\\opt\\ironwail");
    Store("Executables", before + ";Iron;c:\\quake\\ironwail");
    ExpectMissing(kMoved);
    user.FileAnswers.push_back(std::optional<Text>("Z:\\opt\\ironwail"));
    EXPECT_TRUE(LoadExes(run, lists));
    EXPECT_EQ(Stored("Executables"), "Quake;c:\\quake\\quake.exe;Iron;c:\\quake\\ironwail");
}

TEST_F(MovedEngine, AProgramOfAnUnknownNameIsTheSameEngine) {
    system.Disk.AddFile("Z:\\opt\\qs-nightly");
    ExpectMissing(kMoved);
    user.FileAnswers.push_back(std::optional<Text>("Z:\\opt\\qs-nightly"));
    EXPECT_TRUE(LoadExes(run, lists));
    EXPECT_EQ(Stored("Executables"), before);
    EXPECT_EQ(Program(), "Z:\\opt\\qs-nightly");
}

TEST_F(MovedEngine, APathWithASemicolonIsRefusedInWords) {
    system.Disk.AddFile("Z:\\opt;2\\quakespasm");
    ExpectMissing(kMoved);
    user.FileAnswers.push_back(std::optional<Text>("Z:\\opt;2\\quakespasm"));
    user.Expect({"Lorvane 3D", "A path with a semicolon cannot be kept:\r\n\r\n\tZ:\\opt;2\\quakespasm"});
    ExpectMissing(kIgnored);
    EXPECT_TRUE(LoadExes(run, lists));
}

TEST_F(MovedEngine, WithItsGameItsEntriesMoveAsAnyOther) {
    Store("Executables", "Spasm;c:\\old\\quakespasm");
    SeatEngine(run, "c:\\old\\quakespasm", "Z:\\usr\\games\\quakespasm");
    Store("Scripts", "Mine;c:\\old\\id1\\my.cfg");
    system.Disk.AddFile("C:\\QUAKE\\quakespasm");
    user.Expect({"Game Not Found...", "Spasm  c:\\old\\quakespasm\r\n", kMoved});
    user.FileAnswers.push_back(std::optional<Text>("C:\\QUAKE\\quakespasm"));
    EXPECT_TRUE(LoadExes(run, lists));
    EXPECT_EQ(Stored("Executables"), "Spasm;C:\\QUAKE\\quakespasm");
    EXPECT_EQ(Stored("Scripts"), "Mine;C:\\QUAKE\\id1\\my.cfg");
    EXPECT_EQ(ProgramOfSeat(run, "c:\\old\\quakespasm"), "");
}

}  // namespace
}  // namespace lv
