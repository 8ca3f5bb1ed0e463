#include "foundation/browse.h"

#include "tests/catalogs/editors/editors_fixture.h"

namespace lv {

using Browsing = EditorsTest;

TEST_F(Browsing, GivesTheDialogItsFilterAndDirectory) {
    user.FileAnswers.push_back(std::optional<Text>("C:\\A.CFG"));
    EXPECT_EQ(BrowseForFile(run, "Scripts|*.cfg", "C:\\QUAKE"), "C:\\A.CFG");
    EXPECT_EQ(user.FileRequests.at(0).Filter, "Scripts|*.cfg");
    EXPECT_EQ(user.FileRequests.at(0).InitialDirectory, "C:\\QUAKE");
}

TEST_F(Browsing, ForAProgramWithoutAnEndingShowsAllFilesFirst) {
    user.FileAnswers = {std::optional<Text>(), std::optional<Text>(), std::optional<Text>()};
    BrowseForProgram(run, "Programs|*.exe|Batches|*.bat|All Files|*.*", "C:\\");
    EXPECT_EQ(user.FileRequests.at(0).FilterIndex, 2);
    EXPECT_EQ(user.FileRequests.at(0).Filter, "Programs|*.exe|Batches|*.bat|All Files|*.*");
    system.Disk.KnowsStandIns = false;
    BrowseForProgram(run, "Programs|*.exe|All Files|*.*", "C:\\");
    EXPECT_EQ(user.FileRequests.at(1).FilterIndex, 0);
    BrowseForFile(run, "Scripts|*.cfg", "C:\\");
    EXPECT_EQ(user.FileRequests.at(2).FilterIndex, 0);
}

TEST_F(Browsing, BeginsAtThePathInTheBoxAsFarAsItIsThere) {
    for (const char* directory : {"C:\\QUAKE\\ID1", "C:\\LAST", "C:\\USUAL", "C:\\HOME\\games"}) {
        system.Disk.AddDirectory(directory);
    }
    run.LastBrowsed = "C:\\LAST";
    EXPECT_EQ(BrowseStart(run, " C:\\QUAKE\\ID1 "), "C:\\QUAKE\\ID1");
    EXPECT_EQ(BrowseStart(run, "C:\\QUAKE\\ID1\\my.cfg", "C:\\USUAL"), "C:\\QUAKE\\ID1");
    EXPECT_EQ(BrowseStart(run, "C:/QUAKE/GONE/"), "C:\\QUAKE");
    EXPECT_EQ(BrowseStart(run, "C:\\GONE"), "C:\\");
    EXPECT_EQ(BrowseStart(run, "C:"), "C:\\");
    EXPECT_EQ(BrowseStart(run, "~/games/quake"), "C:\\HOME\\games");
}

TEST_F(Browsing, BeginsElseInTheUsualPlaceElseWhereTheLastEndedElseAtHome) {
    system.Disk.AddDirectory("C:\\USUAL");
    system.Disk.AddDirectory("C:\\LAST");
    run.LastBrowsed = "C:\\LAST";
    EXPECT_EQ(BrowseStart(run, "", "C:\\USUAL"), "C:\\USUAL");
    EXPECT_EQ(BrowseStart(run, "Q:\\NODRIVE", "C:\\GONE"), "C:\\LAST");
    EXPECT_EQ(BrowseStart(run, "quake"), "C:\\LAST");
    run.LastBrowsed = "C:\\GONE";
    EXPECT_EQ(BrowseStart(run, ""), "C:\\HOME");
}

TEST_F(Browsing, NotesWhereAChoiceEndedAndNotWhereItWasLeft) {
    user.FileAnswers.push_back(std::optional<Text>("C:\\QUAKE\\A.CFG"));
    BrowseForFile(run, "x", "C:\\");
    EXPECT_EQ(run.LastBrowsed, "C:\\QUAKE");
    user.FileAnswers.push_back(std::optional<Text>());
    BrowseForFile(run, "x", "C:\\");
    EXPECT_EQ(run.LastBrowsed, "C:\\QUAKE");
}

TEST_F(Browsing, ACancelIsSilent) {
    user.FileAnswers.push_back(std::optional<Text>());
    EXPECT_EQ(BrowseForFile(run, "x", ""), std::nullopt);
    user.FileAnswers.push_back(Error{32755, "Cancel was selected."});
    EXPECT_EQ(BrowseForFile(run, "x", ""), std::nullopt);
    EXPECT_TRUE(user.Asked.empty());
}

TEST_F(Browsing, AFailedDialogIsTold) {
    user.FileAnswers.push_back(Error{7, "Out of memory"});
    ExpectTold("Error Number = 7\r\nError String = Out of memory\r\n\r\nLorvane 3D setting have not been altered.",
               "A Windows Related Error Occured");
    EXPECT_EQ(BrowseForFile(run, "x", ""), std::nullopt);
}

TEST_F(Browsing, TakesAPathOfAllLengthsUpToTheLimit) {
    FileRequest request;
    const auto answer = [&](TextView path) {
        user.FileAnswers.push_back(std::optional<Text>(path));
        return AskForFile(run, request);
    };
    EXPECT_EQ(answer(Text(40000, 'x')).Value, Text(40000, 'x'));
    request.MaxFileSize = 8;
    EXPECT_EQ(answer("C:\\A.CFG").Value, "C:\\A.CFG");
    EXPECT_EQ(answer("C:\\AB.CFG").Fault.Number, 20476);
}

TEST_F(Browsing, AnOutdatedDialogTellsWhatToUpdate) {
    EXPECT_EQ(DialogFailureText({20476, "Buffer too small"}),
              "Error Number = 20476\r\nError String = Buffer too small\r\n\r\n"
              "You probably need to update the file 'comdlg32.ocx'.\r\n"
              "Version 5.00.3714 or higher is recommended.\r\n"
              "This file is typically located in your 'c:\\windows\\system' directory.\r\n"
              "Please contact technical support.\r\n"
              "Lorvane 3D setting have not been altered.");
}

}  // namespace lv
