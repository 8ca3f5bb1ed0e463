#include "launcher/menu/transfer_menu.h"

#include "catalogs/editors/path_window.h"
#include "foundation/browse.h"
#include "launcher/menu/backups_frm.h"
#include "launcher/menu/menu_table.h"
#include "tests/support/launcher_fixture.h"
#include "transfer/backups.h"
#include "transfer/settings_text.h"

namespace lv {

namespace {

using Values = std::vector<StoredValue>;

constexpr TextView kFile = "C:\\HOME\\mine.lv3d";
constexpr const char* kPlaces = "Where Are These Games?";

class TransferMenu : public LauncherTest {
  protected:
    TransferMenu() {
        system.Disk.AddDirectory("C:\\HOME\\share");
        system.Places.IsData = "C:\\HOME\\share";
        AddGames();
        Load();
    }

    void Choose(TextView path) { user.FileAnswers.emplace_back(std::optional<Text>(path)); }
    void PutFile(const Values& values) { system.Disk.AddFile(kFile, WriteSettingsText(values).Value); }
    /// A file that is chosen, with an answer to the question whether to import.
    void ChooseFile(const Values& values, int answer = 0) {
        PutFile(values);
        Choose(kFile);
        user.Expect({"Import Settings", "in the place of yours?", answer, false, false, "&Import,&Cancel"});
    }
    static Values Elsewhere() {
        return {{"Options", "Executables", "Quake;C:\\GAMES\\Q\\QUAKE.EXE;GL;C:\\GAMES\\Q\\GLQUAKE.EXE"},
                {"Options", "Scripts", "my.cfg;c:\\games\\q\\id1\\my.cfg"}};
    }
    std::vector<Text> Titles() {
        std::vector<Text> titles;
        for (const ImageComboItem& item : window.Exe_Cbo.Items) {
            titles.push_back(item.Title);
        }
        return titles;
    }
};

using Lines = std::vector<Text>;

}  // namespace

TEST_F(TransferMenu, ExportsToTheChosenFileAndSaysWhatIsInIt) {
    Choose(kFile);
    user.Expect({"Export Settings", "The passwords of your servers are among them: it is for you alone."});
    Menu_Click(launcher, MenuItem::ExportSettings_Bar);
    const auto values = ReadSettingsText(system.Disk.Bytes(kFile));
    EXPECT_EQ(values.Fault.Text, "");
    ASSERT_NE(FindValue(values.Value, "Options", "Executables"), nullptr);
    EXPECT_EQ(FindValue(values.Value, "Options", "Executables")->Value, Stored("Options", "Executables"));
    ASSERT_EQ(user.FileRequests.size(), 1u);
    EXPECT_TRUE(user.FileRequests[0].ForSaving);
    EXPECT_EQ(user.FileRequests[0].FileName, "settings.lv3d");
    EXPECT_EQ(user.FileRequests[0].Filter, "Settings of Lorvane 3D (*.lv3d)|*.lv3d|All Files (*.*)|*.*");
}

TEST_F(TransferMenu, ExportsNothingOnACancel) {
    user.FileAnswers.emplace_back(std::optional<Text>());
    ExportSettings_Bar_Click(launcher);
    user.FileAnswers.emplace_back(Error{kDialogCancelled, "cancel"});
    ExportSettings_Bar_Click(launcher);
}

TEST_F(TransferMenu, TellsWhatCouldNotBeExported) {
    system.Disk.Refused[LowerCase(kFile)] = MakeError(error::kDiskFull);
    Choose(kFile);
    user.Expect({"Export Settings", "The settings were not exported."});
    ExportSettings_Bar_Click(launcher);
    system.Disk.Refused.clear();
    EXPECT_EQ(system.Settings.Write("Lorvane 3D", "Options", "Long", Text(16001, 'x')).Number, 0);
    Choose(kFile);
    user.Expect({"Export Settings", "Such a file cannot hold, as they are too long:\r\n\r\n\tOptions\\Long"});
    ExportSettings_Bar_Click(launcher);
}

TEST_F(TransferMenu, ExportsOverAFileThatTheDialogHasAskedAboutAndOverNothingElse) {
    system.Disk.AddFile(kFile, "my notes");
    Choose(kFile);
    user.Expect({"Export Settings", "The passwords of your servers are among them"});
    ExportSettings_Bar_Click(launcher);
    EXPECT_TRUE(system.Disk.Bytes(kFile).starts_with("Lorvane 3D settings 1\n"));

    system.Disk.AddFile("C:\\HOME\\other.txt", "other");
    system.Disk.AddFileLink("C:\\HOME\\link.lv3d", "C:\\HOME\\other.txt");
    Choose("C:\\HOME\\link.lv3d");
    user.Expect({"Export Settings", "This is a link, a pipe or a device, and stays what it is; give another name"});
    ExportSettings_Bar_Click(launcher);
    EXPECT_EQ(system.Disk.Bytes("C:\\HOME\\link.lv3d"), "other");
}

TEST_F(TransferMenu, ImportsAndShowsTheNewState) {
    const Text before = Stored("Options", "Executables");
    ChooseFile({{"Options", "Executables", "Only;C:\\QUAKE\\QUAKE.EXE"},
                {"Options", "UseDemos", "0"},
                {"Options", "Dedicated", "1"},
                {"Options", "CustomCommandLineText", "+skill 3"},
                {"Options", "VideoProfileList", "Base;Mine"},
                {"Options", "VideoProfilePos", "1"},
                {"Options", "MemoryPos", "4"}});
    user.Expect({"Import Settings", "Tools, Backups brings it back."});
    Menu_Click(launcher, MenuItem::ImportSettings_Bar);
    EXPECT_EQ(Titles(), Lines{"Only"});
    EXPECT_EQ(window.Exe_Cbo.ListIndex, 0);
    EXPECT_EQ(window.Box(Option::Demo_Chk).Value, 0);
    EXPECT_EQ(window.Box(Option::Dedicated_Chk).Value, 1);
    EXPECT_EQ(window.CommandLineAdditions_Txt.Text, "+skill 3");
    EXPECT_EQ(window.VideoProfiles_Cbo.Items, (Lines{"Base", "Mine"}));
    EXPECT_EQ(run.VideoProfileSection, "Mine");
    EXPECT_EQ(window.Mem_Cbo.ListIndex, 4);
    EXPECT_EQ(run.GameKind, Game::Quake);
    ASSERT_EQ(Backups(run).size(), 1u);
    const auto kept = ReadSettingsFile(run, Backups(run)[0].Path);
    EXPECT_EQ(FindValue(kept.Value, "Options", "Executables")->Value, before);
}

TEST_F(TransferMenu, SaysBeforehandWhatAnImportChanges) {
    const auto now = CarriedNow(run);
    Values values = now.Value;
    for (StoredValue& value : values) {
        value.Value += value.Key == "Executables" ? ";Only;C:\\QUAKE\\QUAKE.EXE" : "";
    }
    ChooseFile(values, 1);
    ImportSettings_Bar_Click(launcher);
    const Text& question = user.Asked.back().Question_Txt.Text;
    EXPECT_NE(question.find("This changes 1 list entry"), Text::npos) << question;
    EXPECT_NE(question.find("import only what you trust"), Text::npos);
}

TEST_F(TransferMenu, ImportsNothingOnACancel) {
    const Values before = system.Settings.All("Lorvane 3D").Value;
    user.FileAnswers.emplace_back(std::optional<Text>());
    ImportSettings_Bar_Click(launcher);
    ChooseFile(Elsewhere(), 1);
    ImportSettings_Bar_Click(launcher);
    EXPECT_EQ(system.Settings.All("Lorvane 3D").Value, before);
    EXPECT_TRUE(Backups(run).empty());
}

TEST_F(TransferMenu, TellsADamagedFileAndChangesNothing) {
    const Values before = system.Settings.All("Lorvane 3D").Value;
    system.Disk.AddFile(kFile, "Lorvane 3D settings 1\nOptions\tGames\n");
    Choose(kFile);
    user.Expect({"Import Settings", "in line 2 are not a section, a key and a value"});
    ImportSettings_Bar_Click(launcher);
    EXPECT_EQ(system.Settings.All("Lorvane 3D").Value, before);
}

TEST_F(TransferMenu, AsksWhereATreeIsAndMovesAllThatLiesInIt) {
    ChooseFile(Elsewhere());
    user.Expect({kPlaces, "\tC:\\GAMES\\Q\r\n\r\non this machine. In it lay:\r\n\r\n\tQuake\r\n\tGL\r\n", 0, false,
                 false, "&Show Where,&Leave It,Leave &All"});
    user.In<Path_Frm>([](Path_Frm& form) {
        EXPECT_EQ(form.Caption, "Where Is Q?");
        form.Path_Lbl.Caption = "C:\\QUAKE";
        Path_OK_Cmd_Click(form);
    });
    user.Expect({"Import Settings", "Tools, Backups"});
    ImportSettings_Bar_Click(launcher);
    EXPECT_EQ(Stored("Options", "Executables"), "Quake;C:\\QUAKE\\QUAKE.EXE;GL;C:\\QUAKE\\GLQUAKE.EXE");
    EXPECT_TRUE(Stored("Options", "Scripts").starts_with("my.cfg;c:\\quake\\id1\\my.cfg"));
}

TEST_F(TransferMenu, OffersTheNeighbourOfAPlaceThatIsKnown) {
    system.Disk.AddFile("D:\\PLAY\\A\\QUAKE.EXE");
    system.Disk.AddFile("D:\\PLAY\\B\\QUAKE.EXE");
    ChooseFile({{"Options", "Executables", "One;C:\\GAMES\\A\\QUAKE.EXE;Two;C:\\GAMES\\B\\QUAKE.EXE"}});
    user.Expect({kPlaces, "C:\\GAMES\\A", 0});
    user.In<Path_Frm>([](Path_Frm& form) {
        form.Path_Lbl.Caption = "D:\\PLAY\\A";
        Path_OK_Cmd_Click(form);
    });
    user.Expect({kPlaces, "Is it this one here?\r\n\r\n\tD:\\PLAY\\B", 0, false, false,
                 "&That's It,&Show Where,&Leave It,Leave &All"});
    user.Expect({"Import Settings", "Tools, Backups"});
    ImportSettings_Bar_Click(launcher);
    EXPECT_EQ(Stored("Options", "Executables"), "One;D:\\PLAY\\A\\QUAKE.EXE;Two;D:\\PLAY\\B\\QUAKE.EXE");
}

TEST_F(TransferMenu, LeavesAPlaceByAButtonAndAsksAnewBehindTheWindowsCancel) {
    ChooseFile({{"Options", "Executables", "One;C:\\X\\A.EXE;Two;C:\\Y\\B.EXE;Here;C:\\QUAKE\\QUAKE.EXE"}});
    user.Expect({kPlaces, "C:\\X", 1});
    user.Expect({kPlaces, "C:\\Y", 0});
    user.In<Path_Frm>([](Path_Frm& form) { Path_Cancel_Cmd_Click(form); });
    user.Expect({kPlaces, "C:\\Y", 1});
    user.Expect({"Import Settings", "Not here, and left as the file has them:\r\n\r\n\tC:\\X\r\n\tC:\\Y"});
    user.Expect({"Game Not Found...", "C:\\X\\A.EXE", 2});
    user.Expect({"Game Not Found...", "C:\\Y\\B.EXE", 2});
    ImportSettings_Bar_Click(launcher);
    EXPECT_EQ(Titles(), (Lines{"One", "Two", "Here"}));
}

TEST_F(TransferMenu, LeavesAllPlacesByOneButton) {
    ChooseFile({{"Options", "Executables", "One;C:\\X\\A.EXE;Two;C:\\Y\\B.EXE"}});
    user.Expect({kPlaces, "C:\\X", 2});
    user.Expect({"Import Settings", "\tC:\\X\r\n\tC:\\Y"});
    user.Expect({"Game Not Found...", "C:\\X\\A.EXE", 2});
    user.Expect({"Game Not Found...", "C:\\Y\\B.EXE", 2});
    ImportSettings_Bar_Click(launcher);
}

TEST_F(TransferMenu, AsksAgainForAPlaceThatCannotStandInAList) {
    ChooseFile({{"Options", "Executables", "One;C:\\X\\A.EXE"}});
    const auto choose = [this](const char* path) {
        user.In<Path_Frm>([path](Path_Frm& form) {
            form.Path_Lbl.Caption = path;
            Path_OK_Cmd_Click(form);
        });
    };
    user.Expect({kPlaces, "C:\\X", 0});
    choose("D:\\a;b");
    user.Expect({kPlaces, "\"D:\\a;b\" can't stand in the lists: \";\" parts their entries."});
    user.Expect({kPlaces, "C:\\X", 0});
    choose("C:\\QUAKE");
    user.Expect({kPlaces, "\tA.EXE", 0});
    user.Expect({"Import Settings", "Tools, Backups"});
    user.Expect({"Game Not Found...", "C:\\QUAKE\\A.EXE", 2});
    ImportSettings_Bar_Click(launcher);
    EXPECT_EQ(Stored("Options", "Executables"), "One;C:\\QUAKE\\A.EXE");
}

TEST_F(TransferMenu, SaysWhichProgramsAreNotInTheChosenDirectoryAndAsksAgain) {
    ChooseFile({{"Options", "Executables", "Quake;d:\\Games\\Quake\\glquake.exe;W;d:\\Games\\Quake\\qwcl.exe"}});
    user.Expect({kPlaces, "d:\\Games\\Quake", 0});
    user.In<Path_Frm>([](Path_Frm& form) {
        EXPECT_EQ(form.Path_Lbl.Caption, "C:\\QUAKE") << "a directory of that name is known";
        form.Path_Lbl.Caption = "C:\\";
        Path_OK_Cmd_Click(form);
    });
    user.Expect({kPlaces,
                 "In the directory -->\r\n\r\n\tC:\\\r\n\r\nthese are missing, which the file has in "
                 "d:\\Games\\Quake:\r\n\r\n\tglquake.exe\r\n\tqwcl.exe",
                 1, false, false, "&Take It Anyway,&Show Where,&Leave as They Are"});
    user.In<Path_Frm>([](Path_Frm& form) {
        EXPECT_EQ(form.Path_Lbl.Caption, "C:\\");
        form.Path_Lbl.Caption = "C:\\QUAKE";
        Path_OK_Cmd_Click(form);
    });
    user.Expect({"Import Settings", "Tools, Backups"});
    ImportSettings_Bar_Click(launcher);
    EXPECT_EQ(Stored("Options", "Executables"), "Quake;C:\\QUAKE\\glquake.exe;W;C:\\QUAKE\\qwcl.exe");
}

TEST_F(TransferMenu, LeavesAPlaceWhoseProgramsAreMissingInTheChosenOne) {
    ChooseFile({{"Options", "Executables", "One;D:\\X\\A.EXE"}});
    user.Expect({kPlaces, "D:\\X", 0});
    user.In<Path_Frm>([](Path_Frm& form) {
        EXPECT_EQ(form.Path_Lbl.Caption, "C:\\") << "where the first game lies";
        Path_OK_Cmd_Click(form);
    });
    user.Expect({kPlaces, "\tA.EXE", 2});
    user.Expect({"Import Settings", "Not here, and left as the file has them:\r\n\r\n\tD:\\X"});
    user.Expect({"Game Not Found...", "D:\\X\\A.EXE", 2});
    ImportSettings_Bar_Click(launcher);
    EXPECT_EQ(Stored("Options", "Executables"), "One;D:\\X\\A.EXE");
}

TEST_F(TransferMenu, TellsAStoreThatTakesNothing) {
    const Text before = Stored("Options", "Executables");
    system.Settings.RefuseGroups = MakeError(error::kDiskFull);
    ChooseFile({{"Options", "Executables", "Only;C:\\QUAKE\\QUAKE.EXE"}});
    user.Expect({"Import Settings", "The settings are as they were."});
    ImportSettings_Bar_Click(launcher);
    EXPECT_EQ(Stored("Options", "Executables"), before);
    EXPECT_GT(Titles().size(), 1u);
}

TEST_F(TransferMenu, BringsABackupBackAndShowsIt) {
    ASSERT_EQ(KeepBackup(run).Fault.Number, 0);
    const Lines before = Titles();
    Save(run, kOptions, "Executables", "Only;C:\\QUAKE\\QUAKE.EXE");
    user.In<Backups_Frm>([this](Backups_Frm& form) {
        user.Expect({"Backups of the Settings", "Bring back the settings of 1999-11-21 12:30:00?", 0});
        user.Expect({"Backups of the Settings", "is another now."});
        Backups_BringBackup_Cmd_Click(form);
        EXPECT_TRUE(form.Closed);
    });
    Menu_Click(launcher, MenuItem::Backups_Bar);
    EXPECT_EQ(Titles(), before);
    EXPECT_EQ(Backups(run).size(), 2u);
}

TEST_F(TransferMenu, ClosingTheBackupsChangesNothing) {
    user.In<Backups_Frm>([](Backups_Frm& form) { Backups_CloseBackups_Cmd_Click(form); });
    const std::size_t writes = system.Settings.Log.size();
    Backups_Bar_Click(launcher);
    EXPECT_EQ(system.Settings.Log.size(), writes);
}

}  // namespace lv
