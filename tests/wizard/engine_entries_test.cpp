#include "wizard/engine_entries.h"

#include "foundation/field_strings.h"
#include "games/trees/tree_room.h"
#include "tests/wizard/found_games_fixture.h"

namespace lv {

class EngineEntriesTest : public FoundGamesTest {};

TEST_F(EngineEntriesTest, EachEngineIsAnEntryWithItsSeatInTheTree) {
    AddQuake();
    AddEngine("darkplaces");
    AddEngine("quakespasm");
    EXPECT_TRUE(SetUpFoundGames());
    EXPECT_EQ(Executables(),
              "QuakeSpasm;c:\\home\\games\\quake\\quakespasm;DarkPlaces;c:\\home\\games\\quake\\darkplaces");
    EXPECT_TRUE(system.Disk.FileExists("C:\\HOME\\games\\quake\\quakespasm"));
    EXPECT_EQ(system.Disk.ToHost("C:\\HOME\\games\\quake\\quakespasm"),
              system.Disk.ToHost("Z:\\usr\\games\\quakespasm"));
}

TEST_F(EngineEntriesTest, TheOriginalProgramsStandAheadOfTheEngines) {
    AddQuake();
    AddEngine("quakespasm");
    system.Disk.AddFile("C:\\HOME\\games\\quake\\quake.exe");
    SetUpFoundGames();
    EXPECT_EQ(Executables(), "Quake;c:\\home\\games\\quake\\quake.exe;QuakeSpasm;c:\\home\\games\\quake\\quakespasm");
}

TEST_F(EngineEntriesTest, ASecondRunAddsNothing) {
    AddQuake();
    AddEngine("quakespasm");
    SetUpFoundGames();
    SetUpFoundGames();
    EXPECT_EQ(Executables(), "QuakeSpasm;c:\\home\\games\\quake\\quakespasm");
}

TEST_F(EngineEntriesTest, AnEngineInTheTreeIsAPlainEntry) {
    AddQuake();
    system.Disk.AddFile("C:\\HOME\\games\\quake\\quakespasm");
    SetUpFoundGames();
    EXPECT_EQ(Executables(), "QuakeSpasm;c:\\home\\games\\quake\\quakespasm");
    EXPECT_EQ(Stored("Engines", "Seats"), "(none)");
}

TEST_F(EngineEntriesTest, AnEngineWhoseNameBeginsAnothersIsNotPassedOver) {
    AddQuake();
    AddEngine("darkplaces-sdl");
    AddEngine("darkplaces");
    SetUpFoundGames();
    EXPECT_NE(Executables().find("quake\\darkplaces-sdl"), Text::npos) << Executables();
    EXPECT_TRUE(Join(Executables(), ";").find("quake\\darkplaces;") != Text::npos) << Executables();
}

TEST_F(EngineEntriesTest, ATreeThatCannotBeWrittenIsPlayedThroughLinks) {
    system.Places.IsGames = {"Z:\\usr\\share\\games"};
    system.Disk.AddFile("Z:\\usr\\share\\games\\quake\\id1\\pak0.pak");
    system.Disk.AddFile("Z:\\usr\\share\\games\\quake\\id1\\pak1.pak");
    system.Disk.AddDrive("C:");
    system.Disk.ReadOnly.insert("z:\\usr\\share\\games\\quake");
    AddEngine("quakespasm");
    SetUpFoundGames();
    const Text entry = Executables();
    EXPECT_TRUE(entry.starts_with("QuakeSpasm;c:\\lorvane3d\\quake-")) << entry;
    const Text directory = DirectoryOf(entry.substr(entry.find(';') + 1));
    EXPECT_TRUE(system.Disk.FileExists(directory + "\\id1\\pak0.pak"));
    EXPECT_TRUE(system.Disk.FileExists(entry.substr(entry.find(';') + 1)));
}

TEST_F(EngineEntriesTest, SharewareIsPlayedThroughLinksByAnEngineThatReadsItsAutoexecAlone) {
    AddQuake(false);
    AddEngine("darkplaces");
    AddEngine("quakespasm");
    SetUpFoundGames();
    EXPECT_NE(Executables().find("DarkPlaces;c:\\home\\games\\quake\\darkplaces"), Text::npos) << Executables();
    EXPECT_NE(Executables().find("QuakeSpasm;c:\\lorvane3d\\quake-"), Text::npos) << Executables();
}

TEST_F(EngineEntriesTest, WithoutAnEngineThePackageIsNamedAndCopied) {
    AddQuake();
    user.Expect({"Nothing Here to Play It With", "apt install quakespasm", 1, false, false, "&OK,&Copy"});
    ExpectTold("No supported executables were found\r\nin the selected directories.");
    user.In<Install_Frm>([](Install_Frm& form) {
        Install_OK_Cmd_Click(form);
        EXPECT_FALSE(form.Closed);
        Install_Cancel_Cmd_Click(form);
    });
    ShowInstallWizard(launcher);
    EXPECT_EQ(system.Clip.Held, "apt install quakespasm");
}

TEST_F(EngineEntriesTest, AreThoseInTheTreeAloneWhereTheSystemStartsNothingFromElsewhere) {
    AddQuake();
    AddEngine("quakespasm");
    system.Disk.AddFile("C:\\HOME\\games\\quake\\vkquake.exe");
    const FoundGames found = LookAround(run, launcher.Engines);
    ASSERT_EQ(found.Engines.size(), 1u);
    system.Disk.KnowsStandIns = false;
    const auto entries = EngineEntries(run, launcher.Engines, found, kQuake, "C:\\HOME\\games\\quake");
    ASSERT_EQ(entries.size(), 1u);
    EXPECT_EQ(entries[0].Title, "vkQuake");
    EXPECT_EQ(entries[0].Path, "c:\\home\\games\\quake\\vkquake.exe");
}

TEST_F(EngineEntriesTest, AreOfEnginesThatPlayTheRowAlone) {
    AddQuake();
    AddEngine("quakespasm");
    AddEngine("q2pro");
    const auto entries =
        EngineEntries(run, launcher.Engines, LookAround(run, launcher.Engines), kQuake, "C:\\HOME\\games\\quake");
    ASSERT_EQ(entries.size(), 1u);
    EXPECT_EQ(entries[0].Title, "QuakeSpasm");
}

TEST_F(EngineEntriesTest, AProgramOfTheEnginesNameInTheTreeTakesNoSeat) {
    AddQuake();
    AddEngine("quakespasm");
    system.Disk.AddFile("C:\\HOME\\games\\quake\\quakespasm");
    const auto entries =
        EngineEntries(run, launcher.Engines, LookAround(run, launcher.Engines), kQuake, "C:\\HOME\\games\\quake");
    ASSERT_EQ(entries.size(), 1u);
    EXPECT_EQ(Stored("Engines", "Seats"), "(none)");
}

TEST_F(EngineEntriesTest, WhereLinksCannotBeMadeTheReasonIsToldOnce) {
    AddQuake();
    AddEngine("quakespasm");
    AddEngine("darkplaces");
    system.Disk.ReadOnly.insert("c:\\home\\games\\quake");
    system.Disk.AddFile("C:\\lorvane3d");  // in the way of the directory
    user.Expect({"Lorvane 3D",
                 "This game cannot be played where it lies:\r\n\r\n\tC:\\HOME\\games\\quake\r\n\r\n"
                 "and links to it could not be made in c:\\lorvane3d\\quake-"});
    EXPECT_TRUE(
        EngineEntries(run, launcher.Engines, LookAround(run, launcher.Engines), kQuake, "C:\\HOME\\games\\quake")
            .empty());
}

TEST_F(EngineEntriesTest, NothingIsToBeInstalledWhereOnlyTheLinksAreMissing) {
    AddQuake();
    AddEngine("quakespasm");
    system.Disk.ReadOnly.insert("c:\\home\\games\\quake");
    system.Disk.AddFile("C:\\lorvane3d");  // in the way of the directory
    user.Expect({"Lorvane 3D", "This game cannot be played where it lies:"});
    ExpectTold("No supported executables were found\r\nin the selected directories.");
    EXPECT_FALSE(SetUpFoundGames());
    EXPECT_EQ(Stored("Engines", "Advised"), "(none)");
}

TEST_F(EngineEntriesTest, ASettingsFileThatCannotBeReadIsToldOfOnceAndAllElseIsPlayed) {
    AddQuake();
    AddEngine("quakespasm");
    AddEngine("darkplaces");
    AddEngine("mvdsv");
    system.Disk.AddSparseFile("C:\\HOME\\games\\quake\\id1\\config.cfg", "x", kLargestWholeFile + 1);
    system.Disk.ReadOnly.insert("c:\\home\\games\\quake");
    user.Expect({"Settings Left Out", "\tid1\\config.cfg\r\n"});
    EXPECT_TRUE(SetUpFoundGames());
    EXPECT_TRUE(Executables().starts_with("QuakeSpasm;c:\\lorvane3d\\quake-")) << Executables();
}

TEST_F(EngineEntriesTest, ServersStandBehindWhatPlaysTheGame) {
    AddQuake();
    AddEngine("mvdsv");
    AddEngine("darkplaces-server");
    AddEngine("quakespasm");
    SetUpFoundGames();
    const Text list = Executables();
    EXPECT_TRUE(list.starts_with("QuakeSpasm;c:\\home\\games\\quake\\quakespasm;")) << list;
    EXPECT_NE(list.find(";DarkPlaces server;c:\\home\\games\\quake\\darkplaces-server"), Text::npos) << list;
    EXPECT_NE(list.find(";mvdsv server;c:\\home\\games\\quake\\mvdsv"), Text::npos) << list;
}

TEST_F(EngineEntriesTest, AServerAloneMakesNoGameOfATree) {
    AddQuake();
    AddEngine("mvdsv");
    user.Expect({"Nothing Here to Play It With", "apt install quakespasm"});
    ExpectTold("No supported executables were found\r\nin the selected directories.");
    EXPECT_FALSE(SetUpFoundGames());
    EXPECT_EQ(Stored("Engines", "Seats"), "(none)");
}

TEST_F(EngineEntriesTest, ServersStandBesideTheOriginalProgramsToo) {
    AddQuake();
    AddEngine("mvdsv");
    system.Disk.AddFile("C:\\HOME\\games\\quake\\quake.exe");
    SetUpFoundGames();
    EXPECT_EQ(Executables(), "Quake;c:\\home\\games\\quake\\quake.exe;mvdsv server;c:\\home\\games\\quake\\mvdsv");
}

TEST_F(EngineEntriesTest, AnEngineGetsNoDataThatItCannotUse) {
    system.Disk.AddFile("C:\\HOME\\games\\quake2\\rerelease\\baseq2\\pak0.pak");
    system.Disk.AddFile("C:\\HOME\\games\\quake2\\rerelease\\baseq2\\pak1.pak");
    AddEngine("yquake2");
    AddEngine("q2pro");
    const auto entries = EngineEntries(run, launcher.Engines, LookAround(run, launcher.Engines), kQuake2,
                                       "C:\\HOME\\games\\quake2\\rerelease");
    ASSERT_EQ(entries.size(), 1u);
    EXPECT_EQ(entries[0].Title, "Q2PRO");
}

TEST_F(EngineEntriesTest, AnEngineThatIsInstalledMeanwhileIsFoundByTheNextOK) {
    AddQuake();
    user.Expect({"Nothing Here to Play It With", "apt install quakespasm"});
    ExpectTold("No supported executables were found\r\nin the selected directories.");
    user.In<Install_Frm>([&](Install_Frm& form) {
        Install_OK_Cmd_Click(form);
        AddEngine("quakespasm");
        Install_OK_Cmd_Click(form);
        EXPECT_TRUE(form.Closed);
    });
    EXPECT_TRUE(ShowInstallWizard(launcher));
    EXPECT_EQ(Executables(), "QuakeSpasm;c:\\home\\games\\quake\\quakespasm");
}

TEST_F(EngineEntriesTest, AnEngineIsNewUntilItHasAnEntryForTheTree) {
    AddQuake();
    AddEngine("quakespasm");
    AddEngine("mvdsv");
    const FoundGames found = LookAround(run, launcher.Engines);
    const auto isNew = [&](TextView list) {
        return HasNewEngine(run, launcher.Engines, found, kQuake, "C:\\HOME\\games\\quake", list);
    };
    EXPECT_TRUE(isNew(""));
    EXPECT_TRUE(isNew("QuakeSpasm;c:\\games\\quake\\quakespasm"));
    EXPECT_FALSE(isNew("Mine;C:\\Home\\games\\quake\\quakespasm"));
    EXPECT_FALSE(isNew(Join("Mine;", LinkedTreeDirectory("c:\\home\\games\\quake"), "\\quakespasm")));
    system.Disk.AddFile("C:\\HOME\\games\\quake\\vkquake");
    EXPECT_TRUE(isNew("Mine;c:\\home\\games\\quake\\quakespasm"));
    EXPECT_EQ(Stored("Engines", "Seats"), "(none)");
}

TEST_F(EngineEntriesTest, ABadRowFurtherDownLeavesNoSeatBehind) {
    AddQuake();
    AddEngine("quakespasm");
    user.In<Install_Frm>([this](Install_Frm& form) {
        Tick(form, kSin);
        form.GamePath_Txt[kSin].Text = "C:\\NOWHERE";
        ExpectTold("Sin Path does not exist.");
        Install_OK_Cmd_Click(form);
        EXPECT_FALSE(form.Closed);
        Install_Cancel_Cmd_Click(form);
    });
    EXPECT_FALSE(ShowInstallWizard(launcher));
    EXPECT_EQ(Stored("Engines", "Seats"), "(none)");
    EXPECT_EQ(Executables(), "(none)");
}

}  // namespace lv
