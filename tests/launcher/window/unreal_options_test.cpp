#include "launcher/window/unreal_options.h"

#include <gmock/gmock.h>

#include "launcher/window/launch_flow.h"
#include "tests/support/launcher_fixture.h"

namespace lv {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

constexpr const char* kIni = "C:\\UNREAL\\SYSTEM\\unreal.ini";
constexpr const char* kMyIni = "C:\\UNREAL\\SYSTEM\\my.ini";
constexpr const char* kWorkFile = "C:\\UNREAL\\SYSTEM\\temp666_.ini";

constexpr const char* kOld =
    "[Core.System]\r\nCdPath=D:\\\r\n[WinDrv.WindowsClient]\r\nViewportX=320\r\nViewportY=200\r\n"
    "StartupFullScreen=False\r\n[Engine.Engine]\r\n";
constexpr const char* kNew =
    "[Core.System]\r\nCdPath=D:\\\r\n[WinDrv.WindowsClient]\r\nViewPortX=640\r\nViewPortY=480\r\n"
    "StartupFullScreen=True\r\nBrightness=0.8\r\n[Engine.Engine]\r\n";
constexpr const char* kChanged = "ViewPortX=640\r\nViewPortY=480\r\nStartupFullScreen=True\r\nBrightness=0.8\r\n";

class UnrealOptions : public LauncherTest {
  protected:
    void SetUp() override {
        AddGames();
        system.Disk.AddFile(kIni, kOld);
        system.Disk.AddFile(kMyIni, kOld);
        Load();
        PickExe("C:\\UNREAL\\SYSTEM\\UNREAL.EXE");
        Save(run, kOptions, "VidCard", "0");
        Save(run, kOptions, "UseRez", "1");
        Save(run, kOptions, "ResolutionsPos_Content", Text("640x480") + Text(93, ' ') + "-width 640");
        Save(run, kOptions, "UnrealBrightness", "1");
        Save(run, kOptions, "UnrealBrightnessSetting_Content", "0.8");
        system.Disk.Log.clear();
    }

    void PickScript(TextView path) {
        const auto& items = window.Script_Cbo.Items;
        for (std::size_t i = 0; i < items.size(); ++i) {
            if (SameText(items[i].substr(100), path)) {
                window.Script_Cbo.ListIndex = static_cast<int>(i);
                return;
            }
        }
        FAIL() << "no such script: " << path;
    }

    Error Rewrite() { return SetUnrealVideoOptionsForLaunch(launcher); }
};

TEST_F(UnrealOptions, AreSetInTheGameDirectorysOwnIni) {
    EXPECT_EQ(Rewrite().Number, 0);
    EXPECT_EQ(system.Disk.Bytes(kIni), kNew);
    EXPECT_EQ(system.Disk.Bytes(kMyIni), kOld);
    EXPECT_EQ(window.ChangedIniLines, kChanged);
}

TEST_F(UnrealOptions, AreSetInTheTickedScript) {
    PickScript(kMyIni);
    window.Box(Option::Script_Chk).Value = 1;
    EXPECT_EQ(Rewrite().Number, 0);
    EXPECT_EQ(system.Disk.Bytes(kMyIni), kNew);
    EXPECT_EQ(system.Disk.Bytes(kIni), kOld);
}

TEST_F(UnrealOptions, PassOverAScriptThatIsNotTickedOrNotChosen) {
    PickScript(kMyIni);
    window.Box(Option::Script_Chk).Value = 2;
    EXPECT_EQ(Rewrite().Number, 0);
    window.Box(Option::Script_Chk).Value = 1;
    window.Script_Cbo.ListIndex = -1;
    EXPECT_EQ(Rewrite().Number, 0);
    EXPECT_EQ(system.Disk.Bytes(kMyIni), kOld);
    EXPECT_EQ(system.Disk.Bytes(kIni), kNew);
}

TEST_F(UnrealOptions, AreThoseOfTheCurrentProfile) {
    Save(run, "My profile", "Windowed", "1");
    run.VideoProfileSection = "My profile";
    EXPECT_EQ(Rewrite().Number, 0);
    EXPECT_EQ(window.ChangedIniLines, "StartupFullScreen=False\r\n");
}

TEST_F(UnrealOptions, WithoutAStoredResolutionAreThoseOfTheDefault) {
    Save(run, "My profile", "UseRez", "1");
    run.VideoProfileSection = "My profile";
    EXPECT_EQ(Rewrite().Number, 0);
    EXPECT_EQ(window.ChangedIniLines, "ViewPortX=512\r\nViewPortY=384\r\nStartupFullScreen=True\r\n");
}

TEST_F(UnrealOptions, SetTheCdPathWithItsBoxTicked) {
    window.Box(Option::UnrealNoCDNeeded_Chk).Value = 2;
    EXPECT_EQ(Rewrite().Number, 0);
    EXPECT_THAT(system.Disk.Bytes(kIni), HasSubstr("CdPath=D:\\\r\n"));
    window.Box(Option::UnrealNoCDNeeded_Chk).Value = 1;
    EXPECT_EQ(Rewrite().Number, 0);
    EXPECT_THAT(system.Disk.Bytes(kIni), HasSubstr("CdPath=c:\\unreal\\\r\n"));
}

TEST_F(UnrealOptions, ForAGivenIniMakeItsDirectoryTheGames) {
    run.DefaultGameDirectory = "C:\\QUAKE";
    window.Box(Option::UnrealNoCDNeeded_Chk).Value = 1;
    system.Disk.AddFile("D:\\Games\\Unreal\\System\\other.ini", kOld);
    system.Disk.AddFile("D:\\Games\\Unreal\\System\\temp666_.ini", "left behind");
    EXPECT_EQ(SetUnrealVideoOptionsForLaunch(launcher, "D:\\Games\\Unreal\\System\\other.ini").Number, 0);
    EXPECT_EQ(run.DefaultGameDirectory, "D:\\Games\\Unreal\\System");
    EXPECT_THAT(system.Disk.Bytes("D:\\Games\\Unreal\\System\\other.ini"), HasSubstr("CdPath=D:\\Games\\Unreal\\\r\n"));
    EXPECT_FALSE(system.Disk.FileExists("D:\\Games\\Unreal\\System\\temp666_.ini"));
    EXPECT_EQ(system.Disk.Bytes(kIni), kOld);
}

TEST_F(UnrealOptions, ForAGivenIniThatIsMissingAreAnErrorBehindTheChangeOfDirectory) {
    run.DefaultGameDirectory.clear();
    EXPECT_EQ(SetUnrealVideoOptionsForLaunch(launcher, "C:\\UNREAL\\SYSTEM\\none.ini").Number, error::kFileNotFound);
    EXPECT_EQ(run.DefaultGameDirectory, "C:\\UNREAL\\SYSTEM");
}

TEST_F(UnrealOptions, WithoutAGameDirectoryAreSetNowhere) {
    system.Disk.AddFile("C:\\unreal.ini", kOld);
    run.DefaultGameDirectory.clear();
    window.ChangedIniLines = "of the last launch";
    EXPECT_EQ(Rewrite().Number, 0);
    EXPECT_EQ(window.ChangedIniLines, "");
    EXPECT_THAT(system.Disk.Log, ElementsAre());
}

TEST_F(UnrealOptions, ReplaceTheIniInOneStepAndLeaveNoWorkFile) {
    EXPECT_EQ(Rewrite().Number, 0);
    EXPECT_THAT(system.Disk.Log, ElementsAre("replace c:\\unreal\\system\\unreal.ini"));
    EXPECT_FALSE(system.Disk.FileExists(kWorkFile));
}

TEST_F(UnrealOptions, TakeAwayAWorkFileThatAnEndedRunHasLeft) {
    system.Disk.AddFile(kWorkFile, Text(5000, 'x'));
    EXPECT_EQ(Rewrite().Number, 0);
    EXPECT_FALSE(system.Disk.FileExists(kWorkFile));
    EXPECT_EQ(system.Disk.Bytes(kIni), kNew);
}

TEST_F(UnrealOptions, AreSetBesideAWorkFileThatCannotBeDeleted) {
    system.Disk.AddFile(kWorkFile, "kept by another program");
    system.Disk.RefusedDeletes.insert("c:\\unreal\\system\\temp666_.ini");
    EXPECT_EQ(Rewrite().Number, 0);
    EXPECT_EQ(system.Disk.Bytes(kIni), kNew);
}

TEST_F(UnrealOptions, KeepAUsersIniThatHasTheWorkFilesName) {
    system.Disk.AddFile(kWorkFile, kOld);
    EXPECT_EQ(SetUnrealVideoOptionsForLaunch(launcher, kWorkFile).Number, 0);
    EXPECT_EQ(system.Disk.Bytes(kWorkFile), kNew);
}

TEST_F(UnrealOptions, LeaveTheOldIniWhereTheNewOneCannotBeWritten) {
    system.Disk.Refused["c:\\unreal\\system\\unreal.ini"] = MakeError(error::kDiskFull);
    system.Disk.AddFile(kWorkFile, "left behind");
    EXPECT_EQ(Rewrite().Number, error::kDiskFull);
    EXPECT_EQ(system.Disk.Bytes(kIni), kOld);
    EXPECT_FALSE(system.Disk.FileExists(kWorkFile));
}

TEST_F(UnrealOptions, KeepTheOldEndBehindAShorterIni) {
    system.Disk.AddFile(kIni, "[URL]     \r\nName=Player\r\n");
    EXPECT_EQ(Rewrite().Number, 0);
    EXPECT_EQ(system.Disk.Bytes(kIni), "[URL]\r\nName=Player\r\nyer\r\n");
}

TEST_F(UnrealOptions, ForgetTheLinesOfTheLastLaunch) {
    EXPECT_EQ(Rewrite().Number, 0);
    (void)system.Disk.Delete(kIni);
    EXPECT_EQ(Rewrite().Number, error::kFileNotFound);
    EXPECT_EQ(window.ChangedIniLines, "");
}

// The launch.

TEST_F(UnrealOptions, AreSetByEachOfTheThreeButtonsAheadOfTheBatch) {
    DoIt_Cmd_Click(launcher, 2);
    EXPECT_THAT(system.Disk.Log,
                ElementsAre("replace c:\\unreal\\system\\unreal.ini", "replace c:\\unreal\\system\\lv_666.bat"));
    EXPECT_EQ(system.Disk.Bytes(kIni), kNew);
    system.Disk.AddFile(kIni, kOld);
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(system.Disk.Bytes(kIni), kNew);
    EXPECT_EQ(system.Programs.Started.size(), 1u);
}

TEST_F(UnrealOptions, AreShownByView) {
    user.Expect({"Viewing Commands",
                 "AppDir = C:\\LORVANE\r\n\r\nBatch File = \r\nC:\r\ncd c:\\unreal\\system\r\n"
                 "UNREAL.EXE -nohard \r\n\r\nScript File = \r\n" +
                     Text(kChanged),
                 0, false, true, "&Cool - Thanks Man!,P&lace in Clipboard,Launch Me!"});
    DoIt_Cmd_Click(launcher, 1);
    EXPECT_EQ(system.Disk.Bytes(kIni), kNew);
}

TEST_F(UnrealOptions, AreSetInTheIniThatTheCommandLineNames) {
    PickScript(kMyIni);
    window.Box(Option::Script_Chk).Value = 1;
    DoIt_Cmd_Click(launcher, 2);
    EXPECT_EQ(system.Disk.Bytes(kMyIni), kNew);
    EXPECT_TRUE(system.Disk.Bytes("C:\\UNREAL\\SYSTEM\\lv_666.bat").ends_with("\r\nUNREAL.EXE -nohard INI=my.ini "));
}

TEST_F(UnrealOptions, WithoutAnIniAreReportedAndEndTheClick) {
    (void)system.Disk.Delete(kIni);
    user.Expect(
        {"Lorvane 3D",
         "Error Number = 53\r\nError Code = EC00040\r\nError String = File not found: c:\\unreal\\system\\unreal.ini. "
         "The game makes it when it is started by itself.\r\n"
         "Curreny System Directory = C:\\\r\nDefault Game Directory = c:\\unreal\\system\r\n"
         "Current Command Line = UNREAL.EXE ",
         0, false, true});
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_FALSE(system.Disk.FileExists("C:\\UNREAL\\SYSTEM\\lv_666.bat"));
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(UnrealOptions, ThatCannotBeWrittenAreReportedAndEndTheClick) {
    system.Disk.Refused["c:\\unreal\\system\\unreal.ini"] = MakeError(error::kPermissionDenied);
    user.Expect({"Lorvane 3D",
                 "Error Number = 70\r\nError Code = EC00040\r\nError String = Permission denied: "
                 "c:\\unreal\\system\\unreal.ini\r\n",
                 0});
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(system.Disk.Bytes(kIni), kOld);
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(UnrealOptions, AreNoMatterForAnotherGame) {
    PickExe("C:\\QUAKE\\GLQUAKE.EXE");
    system.Disk.AddFile("C:\\QUAKE\\unreal.ini", kOld);
    window.ChangedIniLines = "of the last launch";
    system.Disk.Log.clear();
    user.Expect({"Viewing Commands", "GLQUAKE.EXE", 0});
    DoIt_Cmd_Click(launcher, 1);
    EXPECT_EQ(system.Disk.Bytes("C:\\QUAKE\\unreal.ini"), kOld);
    EXPECT_THAT(system.Disk.Log, Not(Contains(HasSubstr("unreal"))));
}

TEST_F(UnrealOptions, AreNotSetInAnIniOfATerabyte) {
    system.Disk.AddSparseFile(kIni, kOld, 1ULL << 40U);
    user.Expect({"Lorvane 3D",
                 "Error Number = 7\r\nError Code = EC00040\r\nError String = The file is larger than 64 MB: "
                 "c:\\unreal\\system\\unreal.ini\r\n",
                 0});
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(UnrealOptions, AreNotSetInAnIniOfUtf16Text) {
    for (const TextView ini : {TextView("\xFF\xFE[\0A\0]\0", 8), TextView("\xFE\xFF\0[\0A\0]", 8)}) {
        system.Disk.AddFile(kIni, ini);
        user.Expect({"Lorvane 3D",
                     "Error Number = 75\r\nError Code = EC00040\r\nError String = The file is UTF-16 text: "
                     "c:\\unreal\\system\\unreal.ini. Save it as plain text (ANSI) first.\r\n",
                     0});
        DoIt_Cmd_Click(launcher, 0);
        EXPECT_EQ(system.Disk.Bytes(kIni), ini);
        EXPECT_EQ(window.ChangedIniLines, "");
        EXPECT_FALSE(system.Disk.FileExists("C:\\UNREAL\\SYSTEM\\lv_666.bat"));
        EXPECT_TRUE(system.Programs.Started.empty());
    }
}

TEST_F(UnrealOptions, AreSetInAnIniOfExactlyTheMost) {
    system.Disk.AddSparseFile(kIni, kOld, 64U << 20U);
    EXPECT_EQ(Rewrite().Number, 0);
    EXPECT_TRUE(system.Disk.Bytes(kIni).starts_with(kNew));
    system.Disk.AddSparseFile(kIni, kOld, (64U << 20U) + 1);
    EXPECT_EQ(Rewrite().Number, 7);
}

TEST_F(UnrealOptions, FollowALinkThatStaysWithTheGame) {
    system.Disk.AddFile("C:\\UNREAL\\SAVED\\mine.ini", kOld);
    system.Disk.AddFileLink(kIni, "C:\\UNREAL\\SAVED\\mine.ini");
    EXPECT_EQ(Rewrite().Number, 0);
    EXPECT_EQ(system.Disk.Bytes("C:\\UNREAL\\SAVED\\mine.ini"), kNew);
}

TEST_F(UnrealOptions, LeaveAnIniAloneThatIsALinkToAnotherPlaceUnlessTheUserAgrees) {
    system.Disk.AddFile("C:\\ELSE\\their.ini", kOld);
    system.Disk.AddFileLink(kIni, "C:\\ELSE\\their.ini");
    user.Expect({.Title = "Link To Another Place", .Text_ = "c:\\else\\their.ini", .Answer = 0});
    DoIt_Cmd_Click(launcher, 0);
    EXPECT_EQ(system.Disk.Bytes("C:\\ELSE\\their.ini"), kOld);
    EXPECT_EQ(window.ChangedIniLines, "");
    EXPECT_EQ(system.Programs.Started.size(), 1u);
    user.Expect({.Title = "Link To Another Place", .Text_ = "c:\\else\\their.ini", .Answer = 1});
    EXPECT_EQ(Rewrite().Number, 0);
    EXPECT_EQ(system.Disk.Bytes("C:\\ELSE\\their.ini"), kNew);
}

}  // namespace
}  // namespace lv
