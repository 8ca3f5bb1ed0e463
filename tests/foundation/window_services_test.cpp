#include "foundation/window_services.h"

#include <gtest/gtest.h>

#include "foundation/settings.h"
#include "platform/memory/memory_platform.h"
#include "tests/support/scripted_user.h"

namespace lv {

namespace {

constexpr TwipsSize kScreen = {1000, 1000};

class WindowServices : public ::testing::Test {
  protected:
    Text Stored(TextView key) { return GetSetting(run, run.AppName, "LV_Frm", key, "(none)"); }

    WindowPlacement Loaded(double height = 400, double width = 200) {
        WindowPlacement placement;
        placement.Height = height;
        placement.Width = width;
        LoadPlacement(run, "LV_Frm", placement, kScreen);
        return placement;
    }

    MemoryPlatform system;
    ScriptedUser user;
    lv::Run run{system.Services, user};
};

}  // namespace

TEST_F(WindowServices, FifteenTwipsMakeAPixel) {
    EXPECT_EQ(ToTwips(640), 9600);
    EXPECT_EQ(ToPixels(9600), 640);
    EXPECT_EQ(ToPixels(9607), 640);
    EXPECT_EQ(ToPixels(9608), 641);
    EXPECT_EQ(ToPixels(-30), -2);
}

TEST_F(WindowServices, APixelCountBeyondAnyScreenIsHeld) {
    EXPECT_EQ(ToPixels(1e300), 100000);
}

TEST_F(WindowServices, TheScreenIsMeasuredInTwips) {
    user.ScreenIs = {1024, 768};
    EXPECT_EQ(ScreenInTwips(run).Width, 15360);
    EXPECT_EQ(ScreenInTwips(run).Height, 11520);
}

TEST_F(WindowServices, AWindowWithoutAStoredPlaceIsCentred) {
    const WindowPlacement placement = Loaded();
    EXPECT_EQ(placement.Top, 300);
    EXPECT_EQ(placement.Left, 400);
    EXPECT_EQ(placement.WindowState, 0);
}

TEST_F(WindowServices, TheDefaultPlaceIsAWholeNumber) {
    const WindowPlacement placement = Loaded(401, 199);
    EXPECT_EQ(placement.Top, 299);
    EXPECT_EQ(placement.Left, 400);
}

TEST_F(WindowServices, AStoredTopOf2000OnAScreenOf1000IsCentred) {
    Save(run, "LV_Frm", "Top", 2000);
    Save(run, "LV_Frm", "Left", 10);
    const WindowPlacement placement = Loaded();
    EXPECT_EQ(placement.Top, 300);
    EXPECT_EQ(placement.Left, 400);
}

TEST_F(WindowServices, AStoredTopOf900OnThatScreenIsTakenAsItIs) {
    Save(run, "LV_Frm", "Top", 900);
    Save(run, "LV_Frm", "Left", 10);
    const WindowPlacement placement = Loaded();
    EXPECT_EQ(placement.Top, 900);
    EXPECT_EQ(placement.Left, 10);
}

TEST_F(WindowServices, TheLimitItselfIsNotBeyondIt) {
    Save(run, "LV_Frm", "Top", 950);
    Save(run, "LV_Frm", "Left", 950);
    EXPECT_EQ(Loaded().Top, 950);
    EXPECT_EQ(Loaded().Left, 950);
}

TEST_F(WindowServices, ALeftBeyondTheLimitIsCentredToo) {
    Save(run, "LV_Frm", "Top", 5);
    Save(run, "LV_Frm", "Left", 951);
    EXPECT_EQ(Loaded().Top, 300);
    EXPECT_EQ(Loaded().Left, 400);
}

TEST_F(WindowServices, APlaceIsReadAsAFloatingPointNumber) {
    Save(run, "LV_Frm", "Top", "12.5");
    EXPECT_EQ(Loaded().Top, 12.5);
}

TEST_F(WindowServices, AStoredSizeIsNotRead) {
    Save(run, "LV_Frm", "Height", 77);
    Save(run, "LV_Frm", "Width", 88);
    EXPECT_EQ(Loaded().Height, 400);
    EXPECT_EQ(Loaded().Width, 200);
}

TEST_F(WindowServices, TheStoredStateIsApplied) {
    Save(run, "LV_Frm", "WindowState", 2);
    EXPECT_EQ(Loaded().WindowState, kWindowMaximised);
}

TEST_F(WindowServices, AStateThatThereIsNotIsNormal) {
    Save(run, "LV_Frm", "WindowState", 9);
    EXPECT_EQ(Loaded().WindowState, kWindowNormal);
}

TEST_F(WindowServices, ANormalWindowStoresAll) {
    SavePlacement(run, "LV_Frm", {150, 300.5, 4500, 6000, kWindowNormal});
    EXPECT_EQ(Stored("WindowState"), "0");
    EXPECT_EQ(Stored("Top"), "150");
    EXPECT_EQ(Stored("Left"), "300.5");
    EXPECT_EQ(Stored("Height"), "4500");
    EXPECT_EQ(Stored("Width"), "6000");
}

TEST_F(WindowServices, APlaceIsStoredWithItsScreen) {
    user.ScreenIs = {1920, 1080};
    SavePlacement(run, "LV_Frm", {150, 300, 4500, 6000, kWindowNormal});
    EXPECT_EQ(Stored("ScreenHeight"), "16200");
    EXPECT_EQ(Stored("ScreenWidth"), "28800");
}

TEST_F(WindowServices, APlaceOfAnotherScreenIsMarked) {
    user.ScreenIs = {1920, 1080};
    SavePlacement(run, "LV_Frm", {450, 900, 4500, 6000, kWindowNormal});
    EXPECT_TRUE(Loaded().LeftElsewhere);
    EXPECT_EQ(Loaded().Top, 450);
    EXPECT_EQ(Loaded().Left, 900);
    WindowPlacement placement;
    LoadPlacement(run, "LV_Frm", placement, {28800, 16200});
    EXPECT_FALSE(placement.LeftElsewhere);
    LoadPlacement(run, "LV_Frm", placement, {14400, 16200});
    EXPECT_TRUE(placement.LeftElsewhere);
    LoadPlacement(run, "LV_Frm", placement, {28800, 8100});
    EXPECT_TRUE(placement.LeftElsewhere);
}

TEST_F(WindowServices, APlaceWithoutAScreenCountsAsOneOfThisScreen) {
    Save(run, "LV_Frm", "Top", 900);
    EXPECT_FALSE(Loaded().LeftElsewhere);
}

TEST_F(WindowServices, AMaximisedWindowStoresItsStateAlone) {
    SavePlacement(run, "LV_Frm", {150, 300, 4500, 6000, kWindowMaximised});
    EXPECT_EQ(Stored("WindowState"), "2");
    EXPECT_EQ(Stored("Top"), "(none)");
    EXPECT_EQ(Stored("Width"), "(none)");
    EXPECT_EQ(Stored("ScreenWidth"), "(none)");
}

TEST_F(WindowServices, AWindowClosedWhileMinimisedKeepsTheLastNormalPlace) {
    SavePlacement(run, "LV_Frm", {150, 300, 4500, 6000, kWindowNormal});
    SavePlacement(run, "LV_Frm", {-32000, -32000, 20, 20, kWindowMinimised});
    EXPECT_EQ(Stored("WindowState"), "0");
    EXPECT_EQ(Stored("Top"), "150");
    EXPECT_EQ(Stored("Left"), "300");
}

TEST_F(WindowServices, EachWindowHasItsOwnSection) {
    SavePlacement(run, "Path_Frm", {1, 2, 3, 4, kWindowNormal});
    EXPECT_EQ(GetSetting(run, run.AppName, "Path_Frm", "Top"), "1");
    EXPECT_EQ(Stored("Top"), "(none)");
}

TEST_F(WindowServices, ALargerWindowIsCentredBeyondTheScreensEdge) {
    WindowPlacement placement;
    placement.Height = 1200;
    placement.Width = 1000;
    CenterOnScreen(placement, kScreen);
    EXPECT_EQ(placement.Top, -100);
    EXPECT_EQ(placement.Left, 0);
}

TEST_F(WindowServices, ADialogIsCentredOnItsOwner) {
    WindowPlacement placement;
    placement.Height = 100;
    placement.Width = 50;
    CenterOnOwner(placement, {200, 300, 400, 500, kWindowNormal});
    EXPECT_EQ(placement.Top, 350);
    EXPECT_EQ(placement.Left, 525);
}

TEST_F(WindowServices, TheDifferenceIsCutToAWholeNumberFirst) {
    WindowPlacement placement;
    placement.Height = 99.5;
    placement.Width = 100;
    CenterOnScreen(placement, {101, 200});
    EXPECT_EQ(placement.Top, 50);
    EXPECT_EQ(placement.Left, 0.5);
}

TEST_F(WindowServices, HelpIsLookedForInTheProgramsDirectoryFirst) {
    run.AppDirectory = "C:\\LORVANE";
    run.DefaultGameDirectory = "C:\\QUAKE";
    for (const char* path :
         {"C:\\QUAKE\\LV3D.hlp", "C:\\Progra~1\\ostran~1\\lorvan~1\\LV3D.hlp", "C:\\LORVANE\\LV3D.hlp"}) {
        system.Disk.AddFile(path);
    }
    EXPECT_EQ(HelpFiles(run), (std::vector<Text>{"C:\\LORVANE\\LV3D.hlp", "C:\\Progra~1\\ostran~1\\lorvan~1\\LV3D.hlp",
                                                 "C:\\QUAKE\\LV3D.hlp"}));
    (void)system.Disk.Delete("C:\\LORVANE\\LV3D.hlp");
    (void)system.Disk.Delete("C:\\Progra~1\\ostran~1\\lorvan~1\\LV3D.hlp");
    EXPECT_EQ(HelpFiles(run), (std::vector<Text>{"C:\\QUAKE\\LV3D.hlp"}));
    (void)system.Disk.Delete("C:\\QUAKE\\LV3D.hlp");
    EXPECT_TRUE(HelpFiles(run).empty());
}

TEST_F(WindowServices, TheManualIsShownByTheSystemsOwnViewer) {
    run.AppDirectory = "C:\\LORVANE";
    run.DefaultGameDirectory = "C:\\QUAKE";
    system.Disk.AddFile("C:\\LORVANE\\handbook\\handbook.hhp");
    system.Disk.AddFile("C:\\QUAKE\\LV3D.hlp");
    system.Programs.HasHelpViewer = true;
    OpenHelpFile(run);
    EXPECT_EQ(system.Programs.Started, (std::vector<std::string>{"winhlp32.exe|C:\\QUAKE\\LV3D.hlp"}));
    EXPECT_TRUE(user.Opened.empty());
}

TEST_F(WindowServices, WithoutThatViewerTheHandbookIsShown) {
    run.AppDirectory = "C:\\LORVANE";
    system.Disk.AddFile("C:\\LORVANE\\LV3D.hlp");
    system.Disk.AddFile("C:\\LORVANE\\handbook\\handbook.hhp");
    OpenHelpFile(run);
    EXPECT_EQ(user.Opened, (std::vector<Text>{"C:\\LORVANE\\handbook\\handbook.hhp"}));
    user.Opened.clear();
    system.Programs.HasHelpViewer = true;
    system.Programs.Refuse = {70, "Permission denied: winhlp32.exe"};
    OpenHelpFile(run);
    EXPECT_EQ(user.Opened, (std::vector<Text>{"C:\\LORVANE\\handbook\\handbook.hhp"}));
}

TEST_F(WindowServices, TheHandbookIsHelpToo) {
    run.AppDirectory = "C:\\LORVANE";
    system.Disk.AddFile("C:\\LORVANE\\handbook\\handbook.hhp");
    OpenHelpFile(run);
    EXPECT_EQ(user.Opened, (std::vector<Text>{"C:\\LORVANE\\handbook\\handbook.hhp"}));
}

TEST_F(WindowServices, MissingHelpIsTold) {
    user.Expect({"Lorvane 3D",
                 "Could not find help file. Eithor the help file is missing, or the properties of the Lorvane 3D icon "
                 "are incorrect. To check the Lorvane 3D icon, right click it, and select properties. Make sure the "
                 "path in 'Start in:' box is the same as the path in the 'Target:' box, without the '\\Lorvane "
                 "3D.exe'.",
                 0, false, true});
    OpenHelpFile(run);
    EXPECT_TRUE(user.Opened.empty());
}

TEST_F(WindowServices, AViewerThatFailsIsTold) {
    run.AppDirectory = "C:\\LORVANE";
    system.Disk.AddFile("C:\\LORVANE\\LV3D.hlp");
    system.Programs.HasHelpViewer = true;
    system.Programs.Refuse = {53, "File not found: winhlp32.exe"};
    user.Expect({"Lorvane 3D", "Error Number = 53\r\nError String = File not found: winhlp32.exe", 0, false, true});
    OpenHelpFile(run);
}

TEST_F(WindowServices, AHandbookThatFailsIsTold) {
    run.AppDirectory = "C:\\LORVANE";
    system.Disk.AddFile("C:\\LORVANE\\handbook\\handbook.hhp");
    user.HelpFails = {53, "File not found"};
    user.Expect({"Lorvane 3D", "Error Number = 53\r\nError String = File not found", 0, false, true});
    OpenHelpFile(run);
}

TEST_F(WindowServices, AWebPageOpensInTheBrowser) {
    OpenWebPage(run, "https://lorvane3d.example/");
    EXPECT_EQ(user.Opened, (std::vector<Text>{"https://lorvane3d.example/"}));
}

TEST_F(WindowServices, AMissingBrowserIsTold) {
    user.UrlFails = {53, "File not found"};
    user.Expect({"Error Opening Browser", "The default browser (if there is one) could not be started.", 0, false, true,
                 "DOH!"});
    OpenWebPage(run, "https://lorvane3d.example/");
}

TEST_F(WindowServices, APageThatFailsIsTold) {
    user.UrlFails = {5, "Invalid procedure call"};
    user.Expect({"Hmmmmmmm...", "The URL\r\nhttps://lorvane3d.example/\r\nfailed to load. Try again later.", 0, false,
                 true, "OK"});
    OpenWebPage(run, "https://lorvane3d.example/");
}

TEST_F(WindowServices, TheHandbookFirstComesUpLargeInTheMiddle) {
    user.ScreenIs = {1920, 1080};
    const WindowPlacement first = HandbookPlacement(run);
    EXPECT_EQ(first.Width, 1152 * 15);
    EXPECT_EQ(first.Height, 918 * 15);
    EXPECT_EQ(first.Left, 384 * 15);
    EXPECT_EQ(first.Top, 81 * 15);
    user.ScreenIs = {960, 540};
    EXPECT_EQ(HandbookPlacement(run).Width, 960 * 15);
    EXPECT_EQ(HandbookPlacement(run).Height, 459 * 15);
}

TEST_F(WindowServices, TheHandbookComesUpWhereItWasLeft) {
    user.ScreenIs = {1920, 1080};
    run.AppDirectory = "C:\\LORVANE";
    system.Disk.AddFile("C:\\LORVANE\\handbook\\handbook.hhp");
    OpenHelpFile(run);
    user.HelpPlaced.Keep({.Top = 150, .Left = 300, .Height = 9000, .Width = 12000});
    const WindowPlacement again = HandbookPlacement(run);
    EXPECT_EQ(again.Top, 150);
    EXPECT_EQ(again.Left, 300);
    EXPECT_EQ(again.Height, 9000);
    EXPECT_EQ(again.Width, 12000);
}

TEST_F(WindowServices, AHandbookLeftOnALargerScreenFitsThisOne) {
    Save(run, "Handbook_Frm", "Width", 60000);
    Save(run, "Handbook_Frm", "Height", 10);
    EXPECT_EQ(HandbookPlacement(run).Width, 1000 * 15);
    EXPECT_EQ(HandbookPlacement(run).Height, 300 * 15);
}

TEST_F(WindowServices, TheHandbookIsFoundBeforeTheProgramsDirectoryIsSettled) {
    system.Disk.AddFile("C:\\LORVANE\\handbook\\handbook.hhp");
    run.AppDirectory = "";
    EXPECT_EQ(HelpFiles(run), (std::vector<Text>{"C:\\LORVANE\\handbook\\handbook.hhp"}));
}

}  // namespace lv
