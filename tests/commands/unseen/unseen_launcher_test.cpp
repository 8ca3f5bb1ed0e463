#include "commands/unseen/unseen_launcher.h"

#include "tests/support/launcher_fixture.h"

namespace lv {
namespace {

class UnseenLauncherTest : public LauncherTest {};

TEST_F(UnseenLauncherTest, LoadsWhatTheMainWindowWouldShow) {
    AddGames();
    Save(run, kOptions, "ExecutablesPos", 3);
    Save(run, kOptions, "NoCDAudio", 1);
    const CommandPlace place{system.Services};
    UnseenLauncher unseen(place);
    EXPECT_EQ(unseen.Load(), "");
    EXPECT_EQ(unseen.TheRun.GameKind, Game::Quake2);
    EXPECT_EQ(unseen.Its.Window.Box(Option::NOCDAUDIO_Chk).Value, 1);
    EXPECT_EQ(unseen.TheRun.AppDirectory, "C:\\LORVANE");
    EXPECT_EQ(unseen.User.Said(), "");
}

TEST_F(UnseenLauncherTest, AsksNothingAndStoresNothingOnAFirstRunEither) {
    AddGames();
    Save(run, kStuff, "FirstTime", 1);
    const std::size_t writes = system.Settings.Log.size();
    const CommandPlace place{system.Services, {}, {}, [](Launcher& launcher) {
                                 launcher.ShowInstallWizard = [] { return ADD_FAILURE(), false; };
                             }};
    UnseenLauncher unseen(place);
    EXPECT_EQ(unseen.Load(), "");
    EXPECT_EQ(system.Settings.Log.size(), writes);
}

TEST_F(UnseenLauncherTest, MissingProgramsAreNotToldAtEachStart) {
    AddGames();
    (void)system.Disk.Delete("C:\\HL\\HL.EXE");
    const CommandPlace place{system.Services};
    UnseenLauncher unseen(place);
    EXPECT_EQ(unseen.Load(), "");
    EXPECT_EQ(unseen.User.Said(), "");
    EXPECT_TRUE(Stored(kOptions, "Executables").find("HL.EXE") != Text::npos);
}

TEST_F(UnseenLauncherTest, ADamagedCatalogIsTheReason) {
    AddGames();
    Save(run, kOptions, "Executables", "Quake;C:\\QUAKE\\QUAKE.EXE;More");
    const CommandPlace place{system.Services};
    UnseenLauncher unseen(place);
    EXPECT_TRUE(unseen.Load().find("experienced a probable registry error.") != Text::npos);
}

TEST_F(UnseenLauncherTest, ThereIsNoClipboard) {
    NoClipboard clip;
    EXPECT_TRUE(clip.SetText("x"));
    EXPECT_EQ(clip.GetText(), "");
}

}  // namespace
}  // namespace lv
