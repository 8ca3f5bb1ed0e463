#include "launcher/drop/pick_dropped.h"

#include "foundation/padded_item.h"
#include "launcher/drop/offer_dropped.h"
#include "tests/launcher/drop/drop_fixture.h"

namespace lv {
namespace {

class PickDropped : public DropTest {
  protected:
    void Offer(TextView path, int answer, TextView question, TextView buttons = "&Pick It,&Cancel") {
        user.Expect({"Dropped File", Text(question), answer, false, false, Text(buttons)});
        ASSERT_TRUE(NoteDropped(launcher, {.Word = Text(path), .Count = 1, .Fault = {}}));
        OfferDropped(launcher);
    }
};

TEST_F(PickDropped, AMapOfAModificationPicksGameModificationAndMap) {
    LoadGames();
    PickExe("C:\\QUAKE2\\QUAKE2.EXE");
    Offer("C:\\QUAKE\\CTF\\maps\\ctf1.bsp", 0,
          "pick this program and the modification \"CTF\", and tick the start map \"CTF1\"?");
    EXPECT_EQ(window.Exe_Cbo.ListIndex, 0);
    EXPECT_EQ(run.CurrentGameDir, "CTF");
    EXPECT_EQ(window.Box(Option::Game_Chk).Value, 1);
    EXPECT_EQ(window.Map_Cbo.Selected(), "CTF1");
    EXPECT_EQ(window.Box(Option::Map_Chk).Value, 1);
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(PickDropped, CancelChangesNothing) {
    LoadGames();
    PickExe("C:\\QUAKE2\\QUAKE2.EXE");
    const std::size_t writes = system.Settings.Log.size();
    Offer("C:\\QUAKE\\CTF\\maps\\ctf1.bsp", 1, "Shall Lorvane 3D pick");
    EXPECT_EQ(window.Exe_Cbo.ListIndex, 3);
    EXPECT_EQ(window.Box(Option::Map_Chk).Value, 0);
    EXPECT_EQ(system.Settings.Log.size(), writes);
}

TEST_F(PickDropped, AMapOfTheBaseGameUnticksTheModification) {
    LoadGames();
    Click(Option::Game_Chk, 1);
    Offer("C:\\QUAKE\\ID1\\maps\\start.bsp", 0, "pick this program and the game as it is");
    EXPECT_EQ(window.Box(Option::Game_Chk).Value, 0);
    EXPECT_EQ(run.CurrentGameDir, "ID1");
    EXPECT_EQ(window.Map_Cbo.Selected(), "START");
}

TEST_F(PickDropped, AnArchivePicksItsModification) {
    LoadGames();
    Offer("C:\\QUAKE\\CTF\\pak0.pak", 0, "This archive belongs to \"Quake\"");
    EXPECT_EQ(run.CurrentGameDir, "CTF");
    EXPECT_EQ(window.Box(Option::Game_Chk).Value, 1);
    EXPECT_TRUE(system.Disk.Log.empty()) << "nothing is written";
}

TEST_F(PickDropped, ADirectoryThatTheScanPassesOverGetsARow) {
    LoadGames();
    Put("C:\\QUAKE\\arena\\arena.pk3", "PK\x03\x04");
    Offer("C:\\QUAKE\\arena", 0, "the modification \"arena\"");
    EXPECT_EQ(ItemValue(window.Game_Cbo.Selected()), "-game arena");
    EXPECT_NE(Stored(kOptions, "Games").find("-game arena"), Text::npos);
    EXPECT_EQ(run.CurrentGameDir, "arena");
}

TEST_F(PickDropped, AScriptOpensInSetupFoundry) {
    LoadGames();
    Offer("C:\\QUAKE\\CTF\\flag.cfg", 0, "and open the script in Setup Foundry?", "&Open It,&Cancel");
    EXPECT_EQ(Opened, (std::vector<Text>{"c:\\quake\\ctf\\flag.cfg"}));
    EXPECT_EQ(run.CurrentGameDir, "CTF");
}

TEST_F(PickDropped, AScriptThatNoListHasGetsARowFirst) {
    LoadGames();
    Put("C:\\QUAKE\\ID1\\autoexec.cfg", "bind w +forward");
    Offer("C:\\QUAKE\\ID1\\autoexec.cfg", 0, "Setup Foundry", "&Open It,&Cancel");
    EXPECT_EQ(Opened, (std::vector<Text>{"c:\\quake\\id1\\autoexec.cfg"}));
}

TEST_F(PickDropped, UnrealsMapAndScriptLieInPlacesOfTheirOwn) {
    LoadGames();
    Put("C:\\UNREAL\\MAPS\\dm.unr", "\xC1\x83\x2A\x9E");
    Offer("C:\\UNREAL\\MAPS\\dm.unr", 0, "tick the start map \"DM\"");
    EXPECT_EQ(run.GameKind, Game::Unreal);
    EXPECT_EQ(window.Map_Cbo.Selected(), "DM");
    Offer("C:\\UNREAL\\SYSTEM\\unreal.ini", 0, "Setup Foundry", "&Open It,&Cancel");
    EXPECT_EQ(Opened, (std::vector<Text>{"c:\\unreal\\system\\unreal.ini"}));
}

TEST_F(PickDropped, AProgramOfTheListIsPicked) {
    LoadGames();
    Put("C:\\QUAKE2\\QUAKE2.EXE", "MZ");
    Offer("c:\\quake2\\quake2.exe", 0, "pick it?");
    EXPECT_EQ(run.GameKind, Game::Quake2);
}

TEST_F(PickDropped, AWorldsClientBeginsOnNoMap) {
    LoadGames();
    Save(run, kOptions, "Executables", "QuakeWorld;C:\\QUAKE\\QWCL.EXE");
    window.Exe_Cbo.Items = {window.Exe_Cbo.Items[2]};
    window.Exe_Cbo.ListIndex = 0;
    PickExe("C:\\QUAKE\\QWCL.EXE");
    user.Expect({"Dropped File", "start map", 0});
    user.Expect({"Dropped File", "plays on servers alone", 0});
    NoteDropped(launcher, {.Word = "C:\\QUAKE\\ID1\\maps\\start.bsp", .Count = 1, .Fault = {}});
    OfferDropped(launcher);
    EXPECT_EQ(window.Box(Option::Map_Chk).Value, 0);
}

TEST_F(PickDropped, AStrangersNameIsShownWithoutItsControls) {
    LoadGames();
    Put("C:\\QUAKE\\CTF\\a\rb.pak", kPak);
    Offer("C:\\QUAKE\\CTF\\a\rb.pak", 1, "\"C:\\QUAKE\\CTF\\a?b.pak\"");
}

}  // namespace
}  // namespace lv
