#include "launcher/window/links_launch.h"

#include "games/engines/engine_seats.h"
#include "games/engines/playing_directory.h"
#include "gamespy/game_spy_config.h"
#include "launcher/window/launch_flow.h"
#include "tests/support/launcher_fixture.h"
#include "tests/support/shipped_engines.h"

namespace lv {

class LinksLaunch : public LauncherTest {
  protected:
    /// QuakeSpasm plays a game that cannot be written, through links.
    void SetUp() override {
        MemoryFiles& disk = system.Disk;
        AddGames();
        launcher.Engines = ShippedEngines();
        disk.AddFile("Z:\\usr\\games\\quakespasm");
        disk.AddFile("Z:\\share\\quake\\id1\\pak0.pak");
        disk.AddFile("Z:\\share\\quake\\id1\\pak1.pak");
        disk.ReadOnly.insert("z:\\share\\quake");
        links = PlayingDirectory(run, ShippedEngine("QuakeSpasm"), "Z:\\share\\quake").Value;
        const Text seat = Join(links, "\\quakespasm");
        ASSERT_TRUE(SeatEngine(run, seat, "Z:\\usr\\games\\quakespasm"));
        Save(run, kOptions, "Executables", Join("The engine;", seat));
        Load();
        PickExe(seat);
        disk.AddFile(Join(links, "\\id1\\mine.cfg"), "bind x quit");
    }
    bool IsThere(TextView below) { return system.Disk.FileExists(Join(links, "\\", below)); }
    bool HasLink(TextView below) { return !system.Disk.LeadsInto(Join(links, "\\", below), kTree).empty(); }
    void TakeDiskOut() {
        for (const char* const file : {"\\id1\\pak0.pak", "\\id1\\pak1.pak"}) {
            ASSERT_EQ(system.Disk.Delete(Join(kTree, file)).Number, 0);
        }
    }

    static constexpr TextView kTree = "Z:\\share\\quake";
    Text links;
};

TEST_F(LinksLaunch, FollowTheGameAndLeaveWhatIsTheUsers) {
    system.Disk.AddFile("Z:\\share\\quake\\ctf\\pak0.pak");
    ASSERT_EQ(system.Disk.Delete("Z:\\share\\quake\\id1\\pak1.pak").Number, 0);
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_TRUE(IsThere("ctf\\pak0.pak"));
    EXPECT_FALSE(HasLink("id1\\pak1.pak"));
    EXPECT_EQ(system.Disk.Bytes(Join(links, "\\id1\\mine.cfg")), "bind x quit");
    EXPECT_EQ(system.Programs.Started, (std::vector<std::string>{Join(links, "\\lv_666.bat")}));
}

TEST_F(LinksLaunch, SayThatTheGameIsNotThereAndStayAsTheyAre) {
    TakeDiskOut();
    user.Expect({"Game Not There", Join("\r\n\r\n\t", kTree, "\r\n\r\nand there is no game now.")});
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_TRUE(HasLink("id1\\pak0.pak"));
    EXPECT_TRUE(HasLink("id1\\pak1.pak"));
    EXPECT_FALSE(IsThere("lv_666.bat"));
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(LinksLaunch, FollowTheGameForGameSpyToo) {
    TakeDiskOut();
    window.Box(Option::LaunchQspy_Chk).Value = 1;
    user.In<GameSpyConfig_Frm>([](GameSpyConfig_Frm& form) { form.DialogResult = 1; });
    user.Expect({"Game Not There", Join("\r\n\r\n\t", kTree, "\r\n\r\nand there is no game now.")});
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_FALSE(IsThere("lv_666.bat"));
}

TEST_F(LinksLaunch, AskWhetherToGoOnWhereTheyCannotFollow) {
    system.Disk.AddFile("Z:\\share\\quake\\id1\\new.pak");
    system.Disk.ReadOnly.insert(LowerCase(Join(links, "\\id1")));
    user.Expect({"Links Not Up To Date", "\r\n\r\n\tZ:\\share\\quake\r\n\r\ncould not be brought up to date: ", 1,
                 false, false, "&Launch All the Same,&Abort Launch"});
    DoIt_Cmd_Click(launcher, 2);
    EXPECT_FALSE(IsThere("lv_666.bat"));
    user.Expect({"Links Not Up To Date", "What is new there may be missing.", 0});
    EXPECT_TRUE(LinksAreUpToDate(run, links));
}

TEST_F(LinksLaunch, SayOnceThatNotAllFilesAreLinked) {
    system.Time.Step = 2;
    user.Expect({"Links Not Up To Date", "Not all files could be linked", 0, true});
    EXPECT_TRUE(LinksAreUpToDate(run, links));
    EXPECT_TRUE(LinksAreUpToDate(run, links));
}

TEST_F(LinksLaunch, AskNothingForAGameThatIsPlayedWhereItLies) {
    TakeDiskOut();
    EXPECT_TRUE(LinksAreUpToDate(run, "C:\\QUAKE"));
    EXPECT_TRUE(LinksAreUpToDate(run, "C:\\lorvane3d\\of-an-older-store"));
}

}  // namespace lv
