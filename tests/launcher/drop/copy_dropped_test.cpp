#include "launcher/drop/copy_dropped.h"

#include <gmock/gmock.h>

#include "foundation/padded_item.h"
#include "launcher/drop/offer_dropped.h"
#include "tests/launcher/drop/drop_fixture.h"

namespace lv {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;

class CopyDropped : public DropTest {
  protected:
    void Answer(TextView question, int answer, TextView buttons) {
        user.Expect({"Dropped File", Text(question), answer, false, false, Text(buttons)});
    }
    void Drop(TextView path) {
        ASSERT_TRUE(NoteDropped(launcher, {.Word = Text(path), .Count = 1, .Fault = {}}));
        OfferDropped(launcher);
    }
    Text Bytes(TextView path) { return system.Disk.Bytes(path); }

    static constexpr TextView kCopy = "&Copy It,&Cancel";
    static constexpr TextView kCopyArchive = "&Copy It,Other &Name,&Cancel";
};

TEST_F(CopyDropped, AnArchiveBecomesAModificationThatIsPicked) {
    LoadGames();
    Put("C:\\D\\Fortress.pak", kPak);
    Answer("to become the modification \"fortress\" of \"Quake\"?\r\n\r\n\t\"C:\\QUAKE\\fortress\\pak0.pak\"", 0,
           kCopyArchive);
    Drop("C:\\D\\Fortress.pak");
    EXPECT_EQ(Bytes("C:\\QUAKE\\fortress\\pak0.pak"), kPak);
    EXPECT_EQ(Bytes("C:\\D\\Fortress.pak"), kPak) << "the original stays";
    EXPECT_EQ(run.CurrentGameDir, "fortress");
    EXPECT_EQ(ItemTitle(window.Game_Cbo.Selected()), "Team Fortress");
    EXPECT_EQ(window.Box(Option::Game_Chk).Value, 1);
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(CopyDropped, CancelWritesNothing) {
    LoadGames();
    Put("C:\\D\\Fortress.pak", kPak);
    const std::size_t writes = system.Settings.Log.size();
    Answer("Shall it be copied", 2, kCopyArchive);
    Drop("C:\\D\\Fortress.pak");
    EXPECT_FALSE(system.Disk.DirectoryExists("C:\\QUAKE\\fortress"));
    EXPECT_THAT(system.Disk.Log, IsEmpty());
    EXPECT_EQ(system.Settings.Log.size(), writes);
}

TEST_F(CopyDropped, ADirectoryOfThatNameStaysAsItIs) {
    LoadGames();
    Put("C:\\D\\ctf.pak", "PACKnew");
    Answer("has a modification \"ctf\" already, which stays as it is", 0, "Other &Name,&Cancel");
    user.InputAnswers.emplace_back("ctf two");
    Answer("A modification's name has letters, digits", 0, "&OK");
    user.InputAnswers.emplace_back("ctf2");
    Answer("to become the modification \"ctf2\"", 0, kCopyArchive);
    Drop("C:\\D\\ctf.pak");
    EXPECT_EQ(Bytes("C:\\QUAKE\\CTF\\pak0.pak"), kPak);
    EXPECT_EQ(Bytes("C:\\QUAKE\\ctf2\\pak0.pak"), "PACKnew");
}

TEST_F(CopyDropped, ANameThatIsGivenUpAsksAgain) {
    LoadGames();
    Put("C:\\D\\Fortress.pak", kPak);
    Answer("\"fortress\"", 1, kCopyArchive);
    user.InputAnswers.emplace_back(std::nullopt);
    Answer("\"fortress\"", 2, kCopyArchive);
    Drop("C:\\D\\Fortress.pak");
    EXPECT_THAT(system.Disk.Log, IsEmpty());
}

TEST_F(CopyDropped, AFullDiskLeavesNoEmptyModification) {
    LoadGames();
    Put("C:\\D\\Fortress.pak", kPak);
    system.Disk.Refused["c:\\quake\\fortress\\pak0.pak"] = MakeError(error::kDiskFull);
    Answer("Shall it be copied", 0, kCopyArchive);
    Answer("Error Number = 61", 0, "&OK");
    Drop("C:\\D\\Fortress.pak");
    EXPECT_FALSE(system.Disk.DirectoryExists("C:\\QUAKE\\fortress"));
    EXPECT_EQ(window.Box(Option::Game_Chk).Value, 0);
}

TEST_F(CopyDropped, AFileThatIsTooLargeIsToldOfAndNotCopied) {
    LoadGames();
    system.Disk.AddDirectory("C:\\D");
    system.Disk.AddSparseFile("C:\\D\\huge.pak", "PACK", kLargestWholeFile + 1);
    Answer("Shall it be copied", 0, kCopyArchive);
    Answer("Error Number = 7", 0, "&OK");
    Drop("C:\\D\\huge.pak");
    EXPECT_FALSE(system.Disk.DirectoryExists("C:\\QUAKE\\huge"));
}

TEST_F(CopyDropped, AZipIsForEnginesOfToday) {
    LoadGames();
    Put("C:\\D\\arena.pk3", "PK\x03\x04");
    Answer("\"Quake\" is none. Pick one of them first.", 0, "&OK");
    Drop("C:\\D\\arena.pk3");
    EXPECT_THAT(system.Disk.Log, IsEmpty());
    system.Disk.AddFile("C:\\QUAKE\\darkplaces.exe");
    window.Exe_Cbo.Items.push_back({"DP", "C:\\QUAKE\\darkplaces.exe", "", ""});
    PickExe("C:\\QUAKE\\darkplaces.exe");
    Answer("\"C:\\QUAKE\\arena\\arena.pk3\"", 0, kCopyArchive);
    Drop("C:\\D\\arena.pk3");
    EXPECT_EQ(Bytes("C:\\QUAKE\\arena\\arena.pk3"), "PK\x03\x04");
    EXPECT_EQ(run.CurrentGameDir, "arena");
}

TEST_F(CopyDropped, AnArchiveInTheTopOfAGameIsCopiedWithinIt) {
    LoadGames();
    PickExe("C:\\QUAKE2\\QUAKE2.EXE");
    Put("C:\\QUAKE\\shrak.pak", kPak);
    Answer("the modification \"shrak\" of \"Quake\"?", 0, kCopyArchive);
    Drop("C:\\QUAKE\\shrak.pak");
    EXPECT_EQ(run.GameKind, Game::Quake);
    EXPECT_EQ(run.CurrentGameDir, "shrak");
}

TEST_F(CopyDropped, AMapGoesToTheBaseGameAndIsTicked) {
    LoadGames();
    Put("C:\\D\\DM3.bsp", kMap);
    Answer("\"C:\\QUAKE\\ID1\\maps\\DM3.bsp\"", 0, kCopy);
    Drop("C:\\D\\DM3.bsp");
    EXPECT_EQ(Bytes("C:\\QUAKE\\ID1\\maps\\DM3.bsp"), kMap);
    EXPECT_EQ(window.Map_Cbo.Selected(), "DM3");
    EXPECT_EQ(window.Box(Option::Map_Chk).Value, 1);
}

TEST_F(CopyDropped, WithAModificationTickedAMapGoesThere) {
    LoadGames();
    Click(Option::Game_Chk, 1);
    Put("C:\\D\\dm3.bsp", kMap);
    Answer("\"C:\\QUAKE\\CTF\\maps\\dm3.bsp\"", 0, kCopy);
    Drop("C:\\D\\dm3.bsp");
    EXPECT_EQ(Bytes("C:\\QUAKE\\CTF\\maps\\dm3.bsp"), kMap);
    EXPECT_EQ(window.Box(Option::Game_Chk).Value, 1);
    EXPECT_EQ(window.Map_Cbo.Selected(), "DM3");
}

TEST_F(CopyDropped, AMapDirectoryIsMadeWhereThereIsNone) {
    LoadGames();
    PickExe("C:\\QUAKE2\\QUAKE2.EXE");
    Put("C:\\D\\q2dm1.bsp", "IBSP");
    Answer("\\maps\\q2dm1.bsp\"", 0, kCopy);
    Drop("C:\\D\\q2dm1.bsp");
    EXPECT_EQ(Bytes("C:\\QUAKE2\\BASEQ2\\maps\\q2dm1.bsp"), "IBSP");
    EXPECT_EQ(window.Map_Cbo.Selected(), "Q2DM1");
}

TEST_F(CopyDropped, AMapOfThatNameIsPickedOrReplacedAsTheUserSays) {
    LoadGames();
    Put("C:\\D\\start.bsp", TextView("\x1D\0\0\0new", 7));
    const TextView buttons = "&Pick That One,&Replace It,&Cancel";
    Answer("has a map of that name already", 2, buttons);
    Drop("C:\\D\\start.bsp");
    EXPECT_EQ(window.Box(Option::Map_Chk).Value, 0);
    Answer("has a map of that name already", 0, buttons);
    Drop("C:\\D\\start.bsp");
    EXPECT_EQ(window.Box(Option::Map_Chk).Value, 1);
    EXPECT_EQ(Bytes("C:\\QUAKE\\ID1\\maps\\start.bsp"), kMap);
    Answer("has a map of that name already", 1, buttons);
    Drop("C:\\D\\start.bsp");
    EXPECT_EQ(Bytes("C:\\QUAKE\\ID1\\maps\\start.bsp").size(), 7u);
}

TEST_F(CopyDropped, AWorldsClientGetsTheMapAndNoTick) {
    LoadGames();
    PickExe("C:\\QUAKE\\QWCL.EXE");
    Put("C:\\D\\dm3.bsp", kMap);
    Answer("Shall it be copied into the game of \"QuakeWorld\"?", 0, kCopy);
    Drop("C:\\D\\dm3.bsp");
    EXPECT_EQ(Bytes("C:\\QUAKE\\ID1\\maps\\dm3.bsp"), kMap);
    EXPECT_EQ(window.Box(Option::Map_Chk).Value, 0);
    Put("C:\\D\\dm3.bsp", Join(kMap, "new"));
    Answer("Shall it be replaced by this one?", 0, "&Leave It,&Replace It");
    Drop("C:\\D\\dm3.bsp");
    EXPECT_EQ(Bytes("C:\\QUAKE\\ID1\\maps\\dm3.bsp"), kMap);
}

TEST_F(CopyDropped, UnrealsMapGoesBesideSystemWithItsEndingInSmallLetters) {
    LoadGames();
    PickExe("C:\\UNREAL\\SYSTEM\\UNREAL.EXE");
    Put("C:\\D\\DM-Test.UNR", "\xC1\x83\x2A\x9E");
    Answer("\"C:\\UNREAL\\Maps\\DM-Test.unr\"", 0, kCopy);
    Drop("C:\\D\\DM-Test.UNR");
    EXPECT_EQ(window.Map_Cbo.Selected(), "DM-TEST");
}

TEST_F(CopyDropped, AMapThatNoConsoleTakesIsRefused) {
    LoadGames();
    Put("C:\\D\\a;quit.bsp", kMap);
    Answer("No game's console takes a map of that name.", 0, "&OK");
    Drop("C:\\D\\a;quit.bsp");
    EXPECT_THAT(system.Disk.Log, IsEmpty());
}

TEST_F(CopyDropped, AScriptThatNoLaunchTakesIsRefused) {
    LoadGames();
    Put("C:\\D\\qu'ote\".cfg", "bind w +forward");
    Answer("No launch takes a script of that name. Rename it first.", 0, "&OK");
    Drop("C:\\D\\qu'ote\".cfg");
    EXPECT_THAT(system.Disk.Log, IsEmpty());
    EXPECT_THAT(Opened, IsEmpty());
}

TEST_F(CopyDropped, WhatTheCommandProcessorWouldMisreadIsRefusedWhereItReads) {
    LoadGames();
    Put("C:\\D\\50%.cfg", "bind w +forward");
    Put("C:\\D\\a&b.bsp", kMap);
    system.Programs.Reader = LineReader::kCommandProcessor;
    Answer("No launch takes a script of that name.", 0, "&OK");
    Drop("C:\\D\\50%.cfg");
    Answer("No game's console takes a map of that name.", 0, "&OK");
    Drop("C:\\D\\a&b.bsp");
    EXPECT_THAT(system.Disk.Log, IsEmpty());
    system.Programs.Reader = LineReader::kNobody;
    Answer("\"C:\\QUAKE\\ID1\\50%.cfg\"", 0, kCopy);
    Drop("C:\\D\\50%.cfg");
    EXPECT_THAT(Opened, testing::SizeIs(1));
}

TEST_F(CopyDropped, WhatWindowsTakesForADeviceIsRefusedOrGetsAnotherName) {
    LoadGames();
    Put("C:\\D\\con.bsp", kMap);
    Put("C:\\D\\aux.cfg", "bind w +forward");
    Put("C:\\D\\CON.pak", kPak);
    Answer("On Windows that is the name of a device, and no file can have it. Rename it first.", 0, "&OK");
    Drop("C:\\D\\con.bsp");
    Answer("On Windows that is the name of a device, and no file can have it. Rename it first.", 0, "&OK");
    Drop("C:\\D\\aux.cfg");
    EXPECT_THAT(system.Disk.Log, IsEmpty());
    Answer("to become the modification \"newmod\"", 1, kCopyArchive);
    user.InputAnswers.emplace_back("con");
    Answer("no device of Windows'", 0, "&OK");
    user.InputAnswers.emplace_back(std::nullopt);
    Answer("to become the modification \"newmod\"", 0, kCopyArchive);
    Drop("C:\\D\\CON.pak");
    EXPECT_EQ(Bytes("C:\\QUAKE\\newmod\\pak0.pak"), kPak);
}

TEST_F(CopyDropped, AMapOfAnotherGameIsToldOf) {
    LoadGames();
    Put("C:\\D\\q2dm1.bsp", "IBSP");
    Answer("This start map is for Quake2 or Heretic2. \"Quake\" plays Quake.", 0, "&OK");
    Drop("C:\\D\\q2dm1.bsp");
    EXPECT_THAT(system.Disk.Log, IsEmpty());
}

TEST_F(CopyDropped, WithoutAPickedGameNothingIsCopied) {
    Load();
    run.MainFormLoaded = true;
    Put("C:\\D\\dm.bsp", kMap);
    Answer("No game is picked.", 0, "&OK");
    Drop("C:\\D\\dm.bsp");
    EXPECT_THAT(system.Disk.Log, IsEmpty());
}

TEST_F(CopyDropped, AScriptIsCopiedAndOpened) {
    LoadGames();
    Put("C:\\D\\Duel.cfg", "bind w +forward");
    Answer("\"C:\\QUAKE\\ID1\\Duel.cfg\"", 0, kCopy);
    Drop("C:\\D\\Duel.cfg");
    EXPECT_EQ(Bytes("C:\\QUAKE\\ID1\\Duel.cfg"), "bind w +forward");
    EXPECT_EQ(Opened, (std::vector<Text>{"c:\\quake\\id1\\duel.cfg"}));
}

TEST_F(CopyDropped, AScriptWithTheGamesOwnEndingIsListedToo) {
    LoadGames();
    Put("C:\\D\\Duel.qs", "bind w +forward");
    Answer("Setup Foundry", 0, kCopy);
    Drop("C:\\D\\Duel.qs");
    EXPECT_EQ(Opened, (std::vector<Text>{"c:\\quake\\id1\\duel.qs"}));
}

TEST_F(CopyDropped, AScriptOfThatNameIsOpenedOrKeptAndNeverReplaced) {
    LoadGames();
    Put("C:\\D\\my.cfg", "new");
    const TextView buttons = "&Open That One,Other &Name,&Cancel";
    Answer("has a script of that name already, which stays as it is", 0, buttons);
    Drop("C:\\D\\my.cfg");
    EXPECT_EQ(Opened, (std::vector<Text>{"c:\\quake\\id1\\my.cfg"}));
    Answer("has a script of that name already", 1, buttons);
    user.InputAnswers.emplace_back("..\\evil.cfg");
    Answer("A script's name has no", 0, "&OK");
    user.InputAnswers.emplace_back("other");
    Answer("\"C:\\QUAKE\\ID1\\other.cfg\"", 0, kCopy);
    Drop("C:\\D\\my.cfg");
    EXPECT_EQ(Bytes("C:\\QUAKE\\ID1\\MY.CFG"), "");
    EXPECT_EQ(Bytes("C:\\QUAKE\\ID1\\other.cfg"), "new");
    EXPECT_EQ(Opened.back(), "c:\\quake\\id1\\other.cfg");
}

TEST_F(CopyDropped, AScriptInAnotherPlaceOfAGameGoesToItsBaseDirectory) {
    LoadGames();
    Click(Option::Game_Chk, 1);
    PickExe("C:\\QUAKE\\QUAKE.EXE");
    EXPECT_EQ(run.CurrentGameDir, "CTF");
    PickExe("C:\\HL\\HL.EXE");
    Put("C:\\QUAKE\\duel.cfg", "bind");
    Answer("\"C:\\QUAKE\\id1\\duel.cfg\"", 0, kCopy);
    Drop("C:\\QUAKE\\duel.cfg");
    EXPECT_EQ(Opened, (std::vector<Text>{"c:\\quake\\id1\\duel.cfg"}));
    EXPECT_EQ(run.CurrentGameDir, "ID1");
}

TEST_F(CopyDropped, APlaceThatIsALinkOutOfTheGameIsAskedAbout) {
    LoadGames();
    system.Disk.AddDirectory("C:\\ELSEWHERE");
    system.Disk.AddLink("C:\\QUAKE2\\BASEQ2\\maps", "C:\\ELSEWHERE");
    PickExe("C:\\QUAKE2\\QUAKE2.EXE");
    Put("C:\\D\\q2dm1.bsp", "IBSP");
    Answer("\\maps\\q2dm1.bsp\"", 0, kCopy);
    user.Expect({"Link To Another Place", "leads out of the game", 0});
    Drop("C:\\D\\q2dm1.bsp");
    EXPECT_FALSE(system.Disk.FileExists("C:\\ELSEWHERE\\q2dm1.bsp"));
}

}  // namespace
}  // namespace lv
