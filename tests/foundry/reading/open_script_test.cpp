#include "foundry/reading/open_script.h"

#include <gtest/gtest.h>

#include "foundation/settings.h"
#include "platform/memory/memory_platform.h"
#include "tests/foundry/reading.h"
#include "tests/foundry/watching_view.h"
#include "tests/support/scripted_user.h"

namespace lv {
namespace {

constexpr const char* kOurs = "//* Setup Foundry   *//\r\n";

class OpenScriptTest : public ::testing::Test {
  protected:
    OpenScriptTest() {
        system.Disk.AddDirectory("C:\\QUAKE\\ID1");
        Use(Game::Quake);
        run.DefaultGameDirectory = "C:\\QUAKE";
        run.BaseGameDir = "ID1";
    }
    void Use(Game kind, bool quakeWorld = false) {
        run.GameKind = kind;
        run.ScriptFamily = DialectOf(kind).ScriptFamily;
        run.IsQuakeWorld = quakeWorld;
    }
    bool Open(TextView bytes, TextView path = "C:\\QUAKE\\ID1\\my.cfg") {
        system.Disk.AddFile(path, bytes);
        return OpenScript(run, document, view, path);
    }
    void ExpectNotOpened(int number, TextView text) {
        user.Expect({.Title = "Script Not Opened",
                     .Text_ = Join("Error opening specified script file.\r\n\r\nError Number = ",
                                   std::to_string(number), "\r\nError String = ", text),
                     .Whole = true,
                     .Buttons = "&OK"});
    }
    void ExpectBackupTold(TextView copy, bool notAgain = false) {
        user.Expect(
            {.Title = "SetupFoundry Information",
             .Text_ = Join("SetupFoundry has not edited this script before. A backup copy has been stored as -->"
                           "\r\n\r\n\"",
                           copy, "\""),
             .TickNotAgain = notAgain,
             .Whole = true,
             .Buttons = "&Thanks SetupFoundry!"});
    }

    MemoryPlatform system;
    ScriptedUser user;
    lv::Run run{system.Services, user};
    ScriptView view;
    ScriptDocument document;
};

TEST_F(OpenScriptTest, ReadsTheFileUnderTheDialectOfTheGame) {
    Use(Game::Quake2);
    EXPECT_TRUE(Open(Join(kOurs, "bind kp_home +attack\nset fov 95\ngl_x 1\nalias rj x")));
    EXPECT_EQ(document.KeyBinding[84], "+attack");
    EXPECT_EQ(document.fov_Cbo.Selected(), "95");
    EXPECT_EQ(document.Sections.at(0).Text, "gl_x 1");
    EXPECT_EQ(AliasesOf(document), "rj=x");
    EXPECT_EQ(document.Dialect.GameKind, Game::Quake2);
    EXPECT_EQ(document.Dialect.ScriptFamily, Dialect::Quake2);
}

TEST_F(OpenScriptTest, NamesTheFile) {
    EXPECT_TRUE(Open(kOurs));
    EXPECT_EQ(document.CurrentScriptPath, "C:\\QUAKE\\ID1\\my.cfg");
    EXPECT_EQ(document.CurrentScriptDirectory, "C:\\QUAKE\\ID1\\");
    EXPECT_EQ(document.Caption, "Setup Foundry - [C:/QUAKE/ID1/my.cfg]");
}

TEST_F(OpenScriptTest, LeavesTheDocumentCleanAndNoLongerLoading) {
    EXPECT_TRUE(Open(Join(kOurs, "bind a +attack")));
    EXPECT_TRUE(document.ScriptClean);
    EXPECT_FALSE(document.ScriptLoading);
}

TEST_F(OpenScriptTest, IsLoadingWhileItBinds) {
    class Watcher : public ScriptView {
      public:
        explicit Watcher(const ScriptDocument& seen) : document(seen) {}
        void PaintKey(Index, Color) override { loading = document.ScriptLoading; }
        const ScriptDocument& document;
        bool loading = false;
    };
    Watcher watcher(document);
    system.Disk.AddFile("C:\\QUAKE\\a.cfg", Join(kOurs, "bind a +attack"));
    EXPECT_TRUE(OpenScript(run, document, watcher, "C:\\QUAKE\\a.cfg"));
    EXPECT_TRUE(watcher.loading);
}

TEST_F(OpenScriptTest, TellsThatAFileIsNotThere) {
    ExpectNotOpened(53, "File not found");
    EXPECT_FALSE(OpenScript(run, document, view, "C:\\QUAKE\\none.cfg"));
    ExpectNotOpened(76, "Path not found");
    EXPECT_FALSE(OpenScript(run, document, view, "C:\\NONE\\none.cfg"));
    EXPECT_FALSE(document.ScriptLoading);
}

TEST_F(OpenScriptTest, TellsThatADirectoryIsNoScript) {
    ExpectNotOpened(75, "Path/File access error");
    EXPECT_FALSE(OpenScript(run, document, view, "C:\\QUAKE\\ID1"));
}

TEST_F(OpenScriptTest, LeavesNewTablesWhenTheFileIsNotThere) {
    EXPECT_TRUE(Open(Join(kOurs, "bind a +attack\nfov 97\nx\nalias rj y\nbind b rj\nshowram 1")));
    ExpectNotOpened(53, "File not found");
    EXPECT_FALSE(OpenScript(run, document, view, "C:\\QUAKE\\none.cfg"));
    EXPECT_EQ(BindingOf(document, "a"), "");
    EXPECT_EQ(document.Bound_Lbl[601].Caption, "");
    EXPECT_TRUE(document.AliasTable.empty());
    EXPECT_TRUE(document.Sections.empty());
    EXPECT_EQ(document.ShowRAM_Chk.Value, 0);
    EXPECT_EQ(document.fov_Cbo.Items.size(), 70);  // 15 to 360 by 5
}

TEST_F(OpenScriptTest, MakesAllTablesAnewForAnotherFile) {
    EXPECT_TRUE(Open(Join(kOurs, "bind a +attack\nfov 97\nx\nunbindall")));
    EXPECT_TRUE(Open(Join(kOurs, "bind b +jump"), "C:\\QUAKE\\ID1\\other.cfg"));
    EXPECT_EQ(BindingOf(document, "a"), "");
    EXPECT_EQ(BindingOf(document, "b"), "+jump");
    EXPECT_EQ(document.Unbindall_Chk.Value, 0);
    EXPECT_EQ(document.fov_Cbo.Items.size(), 70);
    EXPECT_EQ(document.Sections.at(0).Text, "");
}

TEST_F(OpenScriptTest, ShowsThatTheKeysOfTheLastFileAreFree) {
    WatchingView watcher;
    system.Disk.AddFile("C:\\a.cfg", Join(kOurs, "bind a +attack\nbind 5 +jump"));
    system.Disk.AddFile("C:\\b.cfg", Join(kOurs, "bind b +jump"));
    EXPECT_TRUE(OpenScript(run, document, watcher, "C:\\a.cfg"));
    EXPECT_NE(watcher.KeyColor(1), kWhite);
    EXPECT_NE(watcher.KeyColor(88), kWhite);  // the keypad's 5
    watcher.ChangedSlots.clear();
    EXPECT_TRUE(OpenScript(run, document, watcher, "C:\\b.cfg"));
    EXPECT_EQ(watcher.KeyColor(1), kWhite);
    EXPECT_EQ(watcher.KeyColor(88), kWhite);
    EXPECT_NE(watcher.KeyColor(2), kWhite);
    EXPECT_GE(watcher.ChangedSlots.size(), SlotNumbers().size());
}

TEST_F(OpenScriptTest, OpensTheDocumentsOwnPathAgain) {
    EXPECT_TRUE(Open(Join(kOurs, "bind a +attack")));
    EXPECT_TRUE(OpenScript(run, document, view, document.CurrentScriptPath));
    EXPECT_EQ(document.CurrentScriptPath, "C:\\QUAKE\\ID1\\my.cfg");
    EXPECT_EQ(BindingOf(document, "a"), "+attack");
}

TEST_F(OpenScriptTest, TellsThatTheFileIsGoneBeforeTheSecondPass) {
    class Vanishing : public MemoryFiles {
      public:
        Result<std::unique_ptr<RandomAccessFile>> Open(std::string_view path) override {
            return ++opened == 2 ? MakeError(error::kPermissionDenied) : MemoryFiles::Open(path);
        }
        int opened = 0;
    };
    Vanishing disk;
    disk.AddFile("C:\\a.cfg", "alias rj x\nbind a rj");
    Platform services{system.Settings, system.Registry, disk, system.Programs, system.Clip, system.Time};
    lv::Run other{services, user};
    other.GameKind = Game::Quake;
    ExpectNotOpened(70, "Permission denied");
    EXPECT_FALSE(OpenScript(other, document, view, "C:\\a.cfg"));
    EXPECT_FALSE(document.ScriptLoading);
    EXPECT_EQ(BindingOf(document, "a"), "");
}

TEST_F(OpenScriptTest, KeepsACopyOfAForeignScript) {
    ExpectBackupTold("C:\\QUAKE\\ID1\\my.SetupFoundry_Config_Backup");
    EXPECT_TRUE(Open("bind a +attack\n"));
    EXPECT_EQ(system.Disk.Bytes("C:\\QUAKE\\ID1\\my.SetupFoundry_Config_Backup"), "bind a +attack\n");
    EXPECT_TRUE(document.ScriptClean);
}

TEST_F(OpenScriptTest, PutsTheCopyOverAnOlderOne) {
    system.Disk.AddFile("C:\\QUAKE\\ID1\\my.SetupFoundry_Config_Backup", "old");
    ExpectBackupTold("C:\\QUAKE\\ID1\\my.SetupFoundry_Config_Backup");
    EXPECT_TRUE(Open("new"));
    EXPECT_EQ(system.Disk.Bytes("C:\\QUAKE\\ID1\\my.SetupFoundry_Config_Backup"), "new");
}

TEST_F(OpenScriptTest, KeepsNoCopyOfItsOwnScript) {
    EXPECT_TRUE(Open(kOurs));
    EXPECT_FALSE(system.Disk.FileExists("C:\\QUAKE\\ID1\\my.SetupFoundry_Config_Backup"));
}

TEST_F(OpenScriptTest, TellsOfTheCopyNoMoreOnceToldNotTo) {
    ExpectBackupTold("C:\\QUAKE\\ID1\\my.SetupFoundry_Config_Backup", true);
    EXPECT_TRUE(Open("x"));
    EXPECT_EQ(GetSetting(run, run.AppName, "ShowMessage", "BackupScript"), "0");
    EXPECT_TRUE(Open("y"));
    EXPECT_EQ(system.Disk.Bytes("C:\\QUAKE\\ID1\\my.SetupFoundry_Config_Backup"), "y");
}

TEST_F(OpenScriptTest, TellsOfTheCopyOnlyIfTheSettingIsOne) {
    Save(run, "ShowMessage", "BackupScript", "2");
    EXPECT_TRUE(Open("x"));
    EXPECT_TRUE(user.Asked.empty());
}

TEST_F(OpenScriptTest, TellsThatNoCopyCouldBeKept) {
    system.Disk.Refused["c:\\quake\\id1\\my.setupfoundry_config_backup"] = MakeError(error::kDiskFull);
    user.Expect({.Title = "SetupFoundry Information",
                 .Text_ = "SetupFoundry has not edited this script before, and no backup copy could be stored.\r\n"
                          "Until there is one, the script can be saved under another name only.\r\n\r\n"
                          "Error Number = 61\r\nError String = Disk full",
                 .Whole = true,
                 .Buttons = "&OK"});
    EXPECT_TRUE(Open("bind a +attack"));
    EXPECT_EQ(BindingOf(document, "a"), "+attack");
    EXPECT_EQ(document.BackupDue, "C:\\QUAKE\\ID1\\my.cfg");
    system.Disk.Refused.clear();
    EXPECT_TRUE(Open(kOurs));
    EXPECT_EQ(document.BackupDue, "");
}

TEST_F(OpenScriptTest, PutsTheCopyInALinksPlaceAndNeverWhereThatLeads) {
    system.Disk.AddFile("C:\\HOME\\.bashrc", "mine");
    system.Disk.AddFileLink("C:\\QUAKE\\ID1\\my.SetupFoundry_Config_Backup", "C:\\HOME\\.bashrc");
    ExpectBackupTold("C:\\QUAKE\\ID1\\my.SetupFoundry_Config_Backup");
    EXPECT_TRUE(Open("new"));
    EXPECT_EQ(system.Disk.Bytes("C:\\HOME\\.bashrc"), "mine");
    EXPECT_EQ(system.Disk.Bytes("C:\\QUAKE\\ID1\\my.SetupFoundry_Config_Backup"), "new");
}

TEST_F(OpenScriptTest, TellsThatAScriptIsTooLarge) {
    system.Disk.AddSparseFile("C:\\QUAKE\\huge.cfg", "bind a +attack\n", 1ULL << 40U);
    ExpectNotOpened(7, "The file is larger than 256 MB: C:\\QUAKE\\huge.cfg");
    EXPECT_FALSE(OpenScript(run, document, view, "C:\\QUAKE\\huge.cfg"));
    system.Disk.AddSparseFile("C:\\QUAKE\\huge.cfg", "bind a +attack\n", (256U << 20U) + 1);
    ExpectNotOpened(7, "The file is larger than 256 MB: C:\\QUAKE\\huge.cfg");
    EXPECT_FALSE(OpenScript(run, document, view, "C:\\QUAKE\\huge.cfg"));
}

TEST_F(OpenScriptTest, TellsThatAnIniIsTooLarge) {
    Use(Game::Unreal);
    system.Disk.AddSparseFile("C:\\QUAKE\\huge.ini", "[x]\n", (64U << 20U) + 1);
    ExpectNotOpened(7, "The file is larger than 64 MB: C:\\QUAKE\\huge.ini");
    EXPECT_FALSE(OpenScript(run, document, view, "C:\\QUAKE\\huge.ini"));
}

TEST_F(OpenScriptTest, TellsThatAPipeIsNoScript) {
    system.Disk.AddDevice("C:\\QUAKE\\pipe.cfg");
    ExpectNotOpened(75, "Path/File access error");
    EXPECT_FALSE(OpenScript(run, document, view, "C:\\QUAKE\\pipe.cfg"));
}

TEST_F(OpenScriptTest, LeavesACopyThatIsOpenedItselfAlone) {
    EXPECT_TRUE(Open("x", "C:\\QUAKE\\ID1\\my.setupfoundry_config_backup"));
    EXPECT_TRUE(user.Asked.empty());
    EXPECT_TRUE(system.Disk.Log.empty());
}

TEST_F(OpenScriptTest, HasTheRatePageForQuakeWorldAndTheNewerGames) {
    Open(kOurs);
    EXPECT_FALSE(document.Options_Tab[4].Enabled);
    EXPECT_FALSE(document.Options_Tab[3].Enabled);
    Use(Game::Quake, true);
    Open(kOurs);
    EXPECT_TRUE(document.Options_Tab[4].Enabled);
    EXPECT_TRUE(document.Options_Tab[3].Enabled);
    for (const Game kind : std::initializer_list<Game>{Game::Quake2, Game::Sin, Game::Heretic2, Game::HalfLife}) {
        Use(kind);
        Open(kOurs);
        EXPECT_TRUE(document.Options_Tab[4].Enabled) << NumberOf(kind);
        EXPECT_FALSE(document.Options_Tab[3].Enabled) << NumberOf(kind);
    }
    for (const Game kind : std::initializer_list<Game>{Game::Hexen2, Game::Unreal}) {
        Use(kind);
        Open(kind == Game::Unreal ? "[Lorvane 3D]" : kOurs);
        EXPECT_FALSE(document.Options_Tab[4].Enabled) << NumberOf(kind);
        EXPECT_FALSE(document.Options_Tab[3].Enabled) << NumberOf(kind);
    }
}

TEST_F(OpenScriptTest, TakesTheDecimalSeparatorOfTheLocale) {
    run.DecimalPointIsDot = false;
    EXPECT_TRUE(Open(Join(kOurs, "gamma 0.5\ncl_bob 0.0150")));
    EXPECT_EQ(document.gamma_Cbo.Selected(), "0,5");
    EXPECT_EQ(document.cl_bob_Cbo.Selected(), "0,015");
}

TEST_F(OpenScriptTest, ALargeScriptIsReadIfTheUserWantsToWait) {
    const auto expect = [this](int answer) {
        user.Expect({.Title = "A Large Script",
                     .Text_ = "The script -->\r\n\r\n\t\"C:\\QUAKE\\ID1\\my.cfg\"\r\n\r\n"
                              "has 9 MB. No player writes as much, and to read it may take a minute.",
                     .Answer = answer,
                     .Whole = true,
                     .Buttons = "&Leave It,&Read It"});
    };
    const Text script = Join(kOurs, "bind a +attack\n", Text(9U << 20U, ' '));
    expect(0);
    EXPECT_FALSE(Open(script));
    EXPECT_EQ(document.KeyBinding[1], "");
    expect(1);
    EXPECT_TRUE(Open(script));
    EXPECT_EQ(document.KeyBinding[1], "+attack");
    EXPECT_TRUE(Open(Join(kOurs, Text((8U << 20U) - 25, ' '))));
}

TEST_F(OpenScriptTest, KeepsZeroBytesInTheCopyAlone) {
    const Text bytes("bind a \"+att\0ack\"\nr_x\0y 1\n", 26);
    ExpectBackupTold("C:\\QUAKE\\ID1\\my.SetupFoundry_Config_Backup");
    EXPECT_TRUE(Open(bytes));
    EXPECT_EQ(BindingOf(document, "a"), "+attack");
    EXPECT_EQ(document.Sections.at(0).Text, "r_xy 1");
    EXPECT_EQ(system.Disk.Bytes("C:\\QUAKE\\ID1\\my.SetupFoundry_Config_Backup"), bytes);
}

TEST_F(OpenScriptTest, RefusesUtf16TextAndKeepsNoCopy) {
    for (const Game kind : {Game::Quake, Game::Unreal}) {
        Use(kind);
        for (const TextView bytes : {TextView("\xFF\xFE[\0A\0]\0", 8), TextView("\xFE\xFF\0[\0A\0]", 8)}) {
            ExpectNotOpened(75, "The file is UTF-16 text: C:\\QUAKE\\ID1\\my.cfg. Save it as plain text (ANSI) first.");
            EXPECT_FALSE(Open(bytes));
            EXPECT_EQ(system.Disk.Bytes("C:\\QUAKE\\ID1\\my.cfg"), bytes);
            EXPECT_FALSE(system.Disk.FileExists("C:\\QUAKE\\ID1\\my.SetupFoundry_Config_Backup"));
            EXPECT_EQ(document.BackupDue, "");
            EXPECT_FALSE(document.ScriptLoading);
        }
    }
}

TEST_F(OpenScriptTest, KeepsNoCopyInADirectoryThatIsALinkOutOfTheGame) {
    system.Disk.AddFile("C:\\SRV\\my.cfg", "bind a +attack\n");
    system.Disk.AddLink("C:\\QUAKE\\CTF", "C:\\SRV");
    EXPECT_TRUE(OpenScript(run, document, view, "C:\\QUAKE\\CTF\\my.cfg"));
    EXPECT_FALSE(system.Disk.FileExists("C:\\SRV\\my.SetupFoundry_Config_Backup"));
    EXPECT_EQ(document.BackupDue, "C:\\QUAKE\\CTF\\my.cfg");
}

TEST_F(OpenScriptTest, HasStoppedLoadingWhenItTellsOfTheCopy) {
    ExpectBackupTold("C:\\QUAKE\\ID1\\my.SetupFoundry_Config_Backup");
    int seen = 0;
    user.OnDialog = [&] {
        ++seen;
        EXPECT_FALSE(document.ScriptLoading);
    };
    EXPECT_TRUE(Open("x"));
    EXPECT_EQ(seen, 1);
}

}  // namespace
}  // namespace lv
