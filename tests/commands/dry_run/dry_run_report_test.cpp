#include "commands/dry_run/dry_run_report.h"

#include "launcher/setups/row_picks.h"
#include "tests/support/launcher_fixture.h"

namespace lv {
namespace {

class DryRunReportTest : public LauncherTest {
  protected:
    void Open() {
        AddGames();
        Load();
        ASSERT_TRUE(PickExecutable(launcher, "C:\\QUAKE\\GLQUAKE.EXE"));
    }
    DryRunReport Report(TextView said = "") {
        return ReportOf({disk, programs, registry, launcher, {}, lv::Text(said)});
    }
    RehearsedFiles disk{system.Disk};
    RehearsedPrograms programs{system.Programs, disk};
    RehearsedRegistry registry{system.Registry};
};

TEST_F(DryRunReportTest, NamesTheGameTheFilesAndWhatWouldBeStarted) {
    Open();
    (void)disk.Replace("C:\\QUAKE\\lv_666.bat", "c:\r\ncd C:\\QUAKE\r\nGLQUAKE.EXE");
    (void)programs.StartBatch("C:\\QUAKE", "lv_666.bat");
    const DryRunReport report = Report();
    EXPECT_FALSE(report.IsMissingSomething);
    EXPECT_EQ(report.Text,
              "A dry run: nothing was written, and nothing was started.\r\n"
              "\r\n"
              "Title       Quake\r\n"
              "Program     C:\\QUAKE\\GLQUAKE.EXE\r\n"
              "Game        Quake\r\n"
              "Data        ID1\r\n"
              "Profile     Base\r\n"
              "\r\n"
              "Would be written:\r\n"
              "    C:\\QUAKE\\lv_666.bat (28 bytes)\r\n"
              "        c:\r\n"
              "        cd C:\\QUAKE\r\n"
              "        GLQUAKE.EXE\r\n"
              "\r\n"
              "Would be started:\r\n"
              "    C:\\QUAKE\\lv_666.bat\r\n"
              "    in C:\\QUAKE\r\n");
}

TEST_F(DryRunReportTest, WhatWouldNotBeStartedMissesSomething) {
    Open();
    const DryRunReport report = Report("Oh no.\r\n");
    EXPECT_TRUE(report.IsMissingSomething);
    EXPECT_TRUE(report.Text.ends_with("Would be started:\r\n    nothing\r\n\r\nWould be said:\r\n        Oh no.\r\n"))
        << report.Text;
}

TEST_F(DryRunReportTest, APlanThatFailsSaysWhy) {
    Open();
    programs.Plan = Error{error::kFileNotFound, "Wine is needed"};
    const DryRunReport report = Report();
    EXPECT_TRUE(report.IsMissingSomething);
    EXPECT_TRUE(report.Text.find("    nothing: Wine is needed\r\n") != lv::Text::npos);
}

TEST_F(DryRunReportTest, EachKindOfChange) {
    Open();
    (void)disk.Delete("C:\\QUAKE\\ID1\\MY.CFG");
    (void)disk.Link("C:\\QUAKE\\QUAKE.EXE", "C:\\QUAKE\\q.exe");
    (void)disk.MakeDirectory("C:\\QUAKE\\NEW");
    (void)disk.RemoveDirectory("C:\\QUAKE\\CTF");
    (void)disk.Replace("C:\\QUAKE\\lv_666.pif", lv::Text("a\0b", 3));
    (void)registry.Set("Software", "x", {});
    const lv::Text text = Report().Text;
    for (const lv::Text part :
         {"    C:\\QUAKE\\ID1\\MY.CFG (deleted)\r\n", "    C:\\QUAKE\\q.exe (a link to C:\\QUAKE\\QUAKE.EXE)\r\n",
          "    C:\\QUAKE\\NEW (a directory)\r\n", "    C:\\QUAKE\\CTF (a directory, removed)\r\n",
          "    C:\\QUAKE\\lv_666.pif (3 bytes)\r\n\r\n", "    1 settings in the registry\r\n"}) {
        if (part.find("pif") == lv::Text::npos) {
            EXPECT_TRUE(text.find(part) != lv::Text::npos) << part << text;
        }
    }
    EXPECT_TRUE(text.find("lv_666.pif (3 bytes)\r\n        ") == lv::Text::npos) << "bytes are not shown";
}

TEST_F(DryRunReportTest, LongFilesAndManyChangesAreCut) {
    Open();
    (void)disk.Replace("C:\\QUAKE\\long.cfg", lv::Text(100'000, 'x'));
    for (int i = 0; i < 300; ++i) {
        (void)disk.Replace(Join("C:\\QUAKE\\f", std::to_string(i)), "");
    }
    const lv::Text text = Report().Text;
    EXPECT_LT(text.size(), 40'000U);
    EXPECT_TRUE(text.find("    and 101 more\r\n") != lv::Text::npos);
}

}  // namespace
}  // namespace lv
