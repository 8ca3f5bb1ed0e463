#include "foundry/writing/save_script.h"

#include <new>

#include "foundry/reading/bind_line.h"
#include "foundry/versions/script_versions.h"
#include "tests/foundry/script_fixture.h"
#include "tests/foundry/watching_view.h"
#include "tests/support/launcher_fixture.h"

namespace lv {
namespace {

constexpr TextView kPath = "C:\\QUAKE\\ID1\\MY.CFG";

constexpr TextView kWhereConfigGoes =
    "You have selected to save this script as\r\n\tconfig.cfg\r\n"
    "Quake 2 / Sin / Heretic2 may ruin some of your changes\r\n"
    "because Quake 2 / Sin / Heretic2 owns the config.cfg.";
constexpr TextView kHowToAvoidIt =
    "Press 'Save As...', and name the script\r\n"
    "something like 'myscript.cfg'. Then select\r\n"
    "the script from the script list box on the\r\n"
    "main launch window. Check the box next to the\r\n"
    "script list box. Quake 2 will not mess with\r\n"
    "this new file, and Lorvane will execute it.";

class SaveScriptTest : public LauncherTest {
  protected:
    SaveScriptTest() {
        system.Disk.AddDirectory("C:\\QUAKE\\ID1");
        system.Disk.AddFile(kPath, "the old script");
        BeIn(kQuakeDialect);
        document.CurrentScriptPath = kPath;
        document.ScriptClean = false;
        document.Name_Txt.Text = "Me";
    }

    void BeIn(const ScriptDialect& dialect) {
        run.GameKind = dialect.GameKind;
        run.ScriptFamily = dialect.ScriptFamily;
        run.DefaultGameDirectory = "c:\\quake";
        run.CurrentGameDir = "ID1";
        document.Dialect = dialect;
    }

    bool Save(const SaveManner& manner = {}) { return SaveScript(run, launcher.Lists, document, view, manner); }

    void ExpectSuccess() {
        user.Expect({"Setup Foundry", "The script was saved successfully!", 0, false, true, "&OK"});
    }
    void ExpectNotSaved() { user.Expect({"Setup Foundry", "Script NOT saved.", 0, false, true, "&OK"}); }
    void ExpectConfigQuestion(int answer) {
        user.Expect({"Setup Foundry", Text(kWhereConfigGoes), answer, false, true,
                     "&I Don't Care,&Cancel,&Tell Me How To Avoid This"});
    }
    void ExpectAdvice(int answer) {
        user.Expect({"Setup Foundry", Text(kHowToAvoidIt), answer, false, true,
                     "&Screw That - Save This Anyway,&Cancel and I'll Try That"});
    }

    ScriptDocument document = EmptyDocument(kQuakeDialect);
    WatchingView view;
};

TEST_F(SaveScriptTest, ReplacesTheFileAndTellsOfIt) {
    ExpectSuccess();
    EXPECT_TRUE(Save());
    const Text script = system.Disk.Bytes(kPath);
    EXPECT_EQ(CountLines(script, "name \"Me\""), 1);
    EXPECT_EQ(CountLines(script, "//* 11/21/1999      *//"), 1);
    EXPECT_TRUE(document.ScriptClean);
    EXPECT_EQ(document.CurrentScriptPath, kPath);
    EXPECT_EQ(document.Caption, "Setup Foundry - [C:/QUAKE/ID1/MY.CFG]");
    EXPECT_TRUE(user.FileRequests.empty());
}

TEST_F(SaveScriptTest, IsSilentWhenTheProgramSavesByItself) {
    EXPECT_TRUE(Save({SaveName::Same, true, false}));
    EXPECT_TRUE(user.Asked.empty());
}

TEST_F(SaveScriptTest, AddsTheScriptToTheCatalogOnce) {
    EXPECT_TRUE(Save({SaveName::Same, true, false}));
    EXPECT_EQ(Stored(kOptions, "Scripts"), "my.cfg;c:\\quake\\id1\\my.cfg");
    ASSERT_EQ(window.Script_Cbo.Items.size(), 1u);
    EXPECT_EQ(window.Script_Cbo.Items[0].substr(100), "c:\\quake\\id1\\my.cfg");
    EXPECT_TRUE(Save({SaveName::Same, true, false}));
    EXPECT_EQ(Stored(kOptions, "Scripts"), "my.cfg;c:\\quake\\id1\\my.cfg");
}

TEST_F(SaveScriptTest, KeepsTheTitleThatTheCatalogHasForIt) {
    lv::Save(run, kOptions, "Scripts", TextView("Mine;C:\\Quake\\ID1\\my.cfg"));
    EXPECT_TRUE(Save({SaveName::Same, true, false}));
    EXPECT_EQ(Stored(kOptions, "Scripts"), "Mine;C:\\Quake\\ID1\\my.cfg");
}

TEST_F(SaveScriptTest, FreesAKeyThatWasBoundToTheEmptyCommand) {
    Bind(document, 24, "\"\"");
    Bind(document, 25, "+back");
    EXPECT_TRUE(Save({SaveName::Same, true, false}));
    EXPECT_EQ(CountLines(system.Disk.Bytes(kPath), "bind \"x\"             \"\""), 1);
    EXPECT_EQ(document.KeyBinding[24], "");
    EXPECT_EQ(document.KeyBinding[25], "+back");
}

TEST_F(SaveScriptTest, AKeyThatIsFreedSoLeavesItsRowToo) {
    document = MakeScriptDocument(kQuakeDialect);
    document.CurrentScriptPath = kPath;
    BindLine(document, view, "x", "");
    EXPECT_EQ(document.Setting_Lbl[501].Caption, "{X}");
    EXPECT_TRUE(Save({SaveName::Same, true, false}));
    EXPECT_EQ(document.KeyBinding[24], "");
    EXPECT_EQ(document.Setting_Lbl[501].Caption, "");
    EXPECT_TRUE(document.ScriptClean);
}

TEST_F(SaveScriptTest, ShowsThatAKeyFreedByTheSaveIsFree) {
    document = MakeScriptDocument(kQuakeDialect);
    document.CurrentScriptPath = kPath;
    BindLine(document, view, "home", "");
    BindLine(document, view, "w", "+forward");
    const Color moving = view.KeyColor(23);
    EXPECT_NE(view.KeyColor(67), kWhite);
    EXPECT_NE(view.KeyColor(84), kWhite);
    view.ClearedTips.clear();
    view.ChangedSlots.clear();
    EXPECT_TRUE(Save({SaveName::Same, true, false}));
    EXPECT_EQ(view.KeyColor(67), kWhite);
    EXPECT_EQ(view.KeyColor(84), kWhite);  // the keypad's Home is the same key in Quake
    EXPECT_EQ(view.KeyColor(23), moving);
    EXPECT_EQ(view.ClearedTips, std::vector<KeyIndex>{67});
    EXPECT_EQ(view.ChangedSlots, std::vector<SlotNumber>{501});
}

TEST_F(SaveScriptTest, AfterAFailureTheOldFileAndTheDocumentAreAsTheyWere) {
    for (const int number : {61, 70, 75, 57}) {
        system.Disk.Refused["c:\\quake\\id1\\my.cfg"] = MakeError(number);
        Bind(document, 24, "\"\"");
        user.Expect({"Error During Save",
                     Join("Error Number = ", std::to_string(number), "\r\nError String = ", MakeError(number).Text), 0,
                     false, true, "&OK"});
        EXPECT_FALSE(Save());
        EXPECT_EQ(system.Disk.Bytes(kPath), "the old script");
        EXPECT_FALSE(document.ScriptClean);
        EXPECT_EQ(document.Caption, "");
        EXPECT_EQ(document.KeyBinding[24], "\"\"");
        EXPECT_EQ(Stored(kOptions, "Scripts"), "(none)");
    }
}

TEST_F(SaveScriptTest, AFailureIsToldAlsoWhenTheProgramSavesByItself) {
    document.CurrentScriptPath = "C:\\GONE\\MY.CFG";
    user.Expect({"Error During Save", "Error Number = 76"});
    EXPECT_FALSE(Save({SaveName::Same, true, false}));
}

TEST_F(SaveScriptTest, AFailureUnderANewNameLeavesTheOldName) {
    user.FileAnswers = {std::optional<Text>("C:\\QUAKE\\ID1\\NEW.CFG")};
    system.Disk.Refused["c:\\quake\\id1\\new.cfg"] = MakeError(error::kDiskFull);
    user.Expect({"Error During Save", "Error Number = 61"});
    EXPECT_FALSE(Save({SaveName::AskForIt}));
    EXPECT_EQ(document.CurrentScriptPath, kPath);
    EXPECT_EQ(system.Disk.Bytes("C:\\QUAKE\\ID1\\NEW.CFG"), "(none)");
}

TEST_F(SaveScriptTest, TouchesTheFileInOneStepOnly) {
    system.Disk.Log.clear();
    EXPECT_TRUE(Save({SaveName::Same, true, false}));
    const std::vector<std::string> log = {Join("replace ", VersionFilePathOf(run, kPath)),
                                          "replace C:\\QUAKE\\ID1\\MY.CFG"};
    EXPECT_EQ(system.Disk.Log, log);
}

TEST_F(SaveScriptTest, KeepsWhatItReplacesAsAVersion) {
    EXPECT_TRUE(Save({SaveName::Same, true, false}));
    const std::vector<ScriptVersion> versions = VersionsOf(run, kPath);
    ASSERT_EQ(versions.size(), 1u);
    EXPECT_EQ(versions[0].Text, "the old script");
}

TEST_F(SaveScriptTest, TellsOnceThatADamagedFileOfVersionsWasKeptAside) {
    const Text versions = VersionFilePathOf(run, kPath);
    system.Disk.AddFile(versions, "nothing");
    user.Expect({"Setup Foundry", KeptAsideText(Join(versions, ".damaged"))});
    ExpectSuccess();
    EXPECT_TRUE(Save());
    ExpectSuccess();
    EXPECT_TRUE(Save());
    EXPECT_EQ(system.Disk.Bytes(Join(versions, ".damaged")), "nothing");
}

TEST_F(SaveScriptTest, TellsOnceThatAnEmptyFileOfVersionsWasKeptAside) {
    const Text versions = VersionFilePathOf(run, kPath);
    system.Disk.AddFile(versions, "");
    user.Expect({"Setup Foundry", KeptAsideText(Join(versions, ".damaged"))});
    ExpectSuccess();
    EXPECT_TRUE(Save());
    ExpectSuccess();
    EXPECT_TRUE(Save());
}

TEST_F(SaveScriptTest, AsksWhereTheFileOfVersionsCannotBeRead) {
    const Text versions = VersionFilePathOf(run, kPath);
    system.Disk.AddFile(versions, "nothing");
    system.Disk.RefusedReads[LowerCase(versions)] = MakeError(error::kPermissionDenied);
    user.Expect({"Setup Foundry",
                 Join("What the file holds now could not be kept as a version, to be brought back later:\r\n\r\n"
                      "Error Number = 70\r\nError String = Permission denied: ",
                      versions),
                 1, false, true, "&Save Anyway,&Cancel"});
    ExpectNotSaved();
    EXPECT_FALSE(Save());
    EXPECT_TRUE(Save({SaveName::Same, true, false}));
    EXPECT_FALSE(system.Disk.FileExists(Join(versions, ".damaged")));
}

TEST_F(SaveScriptTest, WithoutAVersionGoesOnOnlyIfTheUserWantsIt) {
    system.Disk.Refused[LowerCase(VersionFilePathOf(run, kPath))] = MakeError(error::kDiskFull);
    for (const int answer : {1, 0}) {
        user.Expect({"Setup Foundry", "What the file holds now could not be kept as a version", answer, false, false,
                     "&Save Anyway,&Cancel"});
        answer == 0 ? ExpectSuccess() : ExpectNotSaved();
        EXPECT_EQ(Save(), answer == 0);
        EXPECT_EQ(system.Disk.Bytes(kPath) == "the old script", answer == 1);
    }
}

TEST_F(SaveScriptTest, ByItselfAsksNothingForWantOfAVersion) {
    system.Disk.Refused[LowerCase(VersionFilePathOf(run, kPath))] = MakeError(error::kDiskFull);
    EXPECT_TRUE(Save({SaveName::Same, true, false}));
}

TEST_F(SaveScriptTest, UnderANewNameAsksInTheGamesDirectory) {
    user.FileAnswers = {std::optional<Text>("C:\\QUAKE\\ID1\\New One.cfg")};
    ExpectSuccess();
    EXPECT_TRUE(Save({SaveName::AskForIt}));
    ASSERT_EQ(user.FileRequests.size(), 1u);
    EXPECT_EQ(user.FileRequests[0].Filter, "Quake Scripts (*.cfg, *.qs)|*.cfg;*.qs|All Files (*.*)|*.*");
    EXPECT_EQ(user.FileRequests[0].InitialDirectory, "c:\\quake\\ID1");
    EXPECT_EQ(user.FileRequests[0].FileName, "MY.CFG");
    EXPECT_TRUE(user.FileRequests[0].ForSaving);
    EXPECT_EQ(user.FileRequests[0].MaxFileSize, 32000U);
    EXPECT_EQ(system.Disk.Bytes(kPath), "the old script");
    EXPECT_EQ(CountLines(system.Disk.Bytes("C:\\QUAKE\\ID1\\New One.cfg"), "name \"Me\""), 1);
    EXPECT_EQ(document.CurrentScriptPath, "C:\\QUAKE\\ID1\\New One.cfg");
    EXPECT_EQ(document.Caption, "Setup Foundry - [C:/QUAKE/ID1/New One.cfg]");
    EXPECT_TRUE(Stored(kOptions, "Scripts").starts_with("new one.cfg;c:\\quake\\id1\\new one.cfg"));
}

TEST_F(SaveScriptTest, OfUnrealAsksInTheScriptsDirectory) {
    BeIn(kUnrealDialect);
    document.CurrentScriptPath = "C:\\UNREAL\\OTHER\\Mine.ini";
    user.FileAnswers = {std::optional<Text>()};
    EXPECT_FALSE(Save({SaveName::AskForIt}));
    EXPECT_EQ(user.FileRequests.at(0).InitialDirectory, "C:\\UNREAL\\OTHER");
    EXPECT_EQ(user.FileRequests.at(0).Filter, "Unreal INIs (*.ini)|*.ini|All Files (*.*)|*.*");
}

TEST_F(SaveScriptTest, OffersTheScriptsOwnExtension) {
    document.CurrentScriptPath = "C:\\QUAKE\\ID1\\quake.RC";
    user.FileAnswers = {std::optional<Text>()};
    EXPECT_FALSE(Save({SaveName::AskForIt}));
    EXPECT_EQ(user.FileRequests.at(0).Filter, "Quake Scripts (*.cfg, *.qs, *.rc)|*.cfg;*.qs;*.rc|All Files (*.*)|*.*");
}

TEST_F(SaveScriptTest, EndsSilentlyOnACancelAndOnAnEmptyName) {
    user.FileAnswers = {std::optional<Text>(), Error{32755, "Cancel was selected."}, std::optional<Text>("")};
    for (int i = 0; i < 3; ++i) {
        EXPECT_FALSE(Save({SaveName::AskForIt}));
    }
    EXPECT_EQ(system.Disk.Bytes(kPath), "the old script");
    EXPECT_FALSE(document.ScriptClean);
}

TEST_F(SaveScriptTest, TellsOfADialogThatFails) {
    user.FileAnswers = {Error{7, "Out of memory"}};
    user.Expect({"A Windows Related Error Occured",
                 "Error Number = 7\r\nError String = Out of memory\r\n\r\n"
                 "Lorvane 3D setting have not been altered.",
                 0, false, true, "&OK"});
    EXPECT_FALSE(Save({SaveName::AskForIt}));
}

TEST_F(SaveScriptTest, NamesTheLibraryOfADialogThatIsTooOld) {
    user.FileAnswers = {Error{20476, "Buffer too small"}};
    user.Expect({"A Windows Related Error Occured",
                 "Error Number = 20476\r\nError String = Buffer too small\r\n\r\n"
                 "You probably need to update the file 'comdlg32.ocx'.\r\n"
                 "Version 5.00.3714 or higher is recommended.\r\n"
                 "This file is typically located in your 'c:\\windows\\system' directory.\r\n"
                 "Please contact technical support.\r\n"
                 "Lorvane 3D setting have not been altered.",
                 0, false, true, "&OK"});
    EXPECT_FALSE(Save({SaveName::AskForIt}));
}

TEST_F(SaveScriptTest, TakesNoPathBeyondTheDialogsLimit) {
    user.FileAnswers = {std::optional<Text>("C:\\QUAKE\\ID1\\" + Text(32001 - 13, 'x'))};
    user.Expect({"A Windows Related Error Occured", "Error Number = 20476"});
    EXPECT_FALSE(Save({SaveName::AskForIt}));
    EXPECT_EQ(document.CurrentScriptPath, kPath);
    EXPECT_EQ(system.Disk.Bytes(kPath), "the old script");
}

TEST_F(SaveScriptTest, ShowsTheDialogsLimitForDiagnosis) {
    user.FileAnswers = {Error{7, "Out of memory"}};
    user.Expect({"A Windows Related Error Occured", "MaxFileSize is 32000\r\nError Number = 7"});
    EXPECT_FALSE(Save({SaveName::AskForIt, false, true}));
}

TEST_F(SaveScriptTest, WarnsOfTheConfigThatTheGameOwns) {
    BeIn(kSinDialect);
    const std::optional<Text> config("C:\\QUAKE\\ID1\\Config.CFG");
    user.FileAnswers = {config, config, config, config};

    ExpectConfigQuestion(1);
    ExpectNotSaved();
    EXPECT_FALSE(Save({SaveName::AskForIt}));

    ExpectConfigQuestion(2);
    ExpectAdvice(1);
    ExpectNotSaved();
    EXPECT_FALSE(Save({SaveName::AskForIt}));
    EXPECT_EQ(system.Disk.Bytes("C:\\QUAKE\\ID1\\Config.CFG"), "(none)");

    ExpectConfigQuestion(2);
    ExpectAdvice(0);
    ExpectSuccess();
    EXPECT_TRUE(Save({SaveName::AskForIt}));

    ExpectConfigQuestion(0);
    ExpectSuccess();
    EXPECT_TRUE(Save({SaveName::AskForIt}));
}

TEST_F(SaveScriptTest, DoesNotWarnOfTheConfigWhereTheGameLeavesItAlone) {
    user.FileAnswers = {std::optional<Text>("C:\\QUAKE\\ID1\\config.cfg")};
    ExpectSuccess();
    EXPECT_TRUE(Save({SaveName::AskForIt}));
}

TEST_F(SaveScriptTest, DoesNotWarnOfAConfigThatWasOpenedAsOne) {
    BeIn(kQuake2Dialect);
    document.CurrentScriptPath = "C:\\QUAKE\\ID1\\config.cfg";
    ExpectSuccess();
    EXPECT_TRUE(Save());
}

TEST_F(SaveScriptTest, AScriptWhosePathNoListCanHoldIsSavedAllTheSame) {
    document.CurrentScriptPath = "C:\\QUAKE\\ID1\\a;b.cfg";
    ExpectSuccess();
    EXPECT_TRUE(Save());
    EXPECT_EQ(Stored(kOptions, "Scripts"), "(none)");
}

TEST_F(SaveScriptTest, AForeignScriptIsNotWrittenOverWithoutACopyOfIt) {
    document.BackupDue = "c:\\quake\\id1\\my.cfg";
    system.Disk.Refused["c:\\quake\\id1\\my.setupfoundry_config_backup"] = MakeError(error::kDiskFull);
    for (const bool quiet : {false, true}) {
        user.Expect({"Error During Save",
                     "Script NOT saved. SetupFoundry has not edited it before, and no backup copy could be stored as "
                     "-->\r\n\r\n\"C:\\QUAKE\\ID1\\MY.SetupFoundry_Config_Backup\"\r\n\r\n"
                     "Error Number = 61\r\nError String = Disk full\r\n\r\n"
                     "Make room for the copy and save again, or save the script under another name.",
                     0, false, true, "&OK"});
        EXPECT_FALSE(Save({SaveName::Same, quiet, false}));
    }
    EXPECT_EQ(system.Disk.Bytes(kPath), "the old script");
    EXPECT_FALSE(document.ScriptClean);
}

TEST_F(SaveScriptTest, AForeignScriptIsWrittenOnceItsCopyCouldBeKept) {
    document.BackupDue = kPath;
    EXPECT_TRUE(Save({SaveName::Same, true, false}));
    EXPECT_EQ(system.Disk.Bytes("C:\\QUAKE\\ID1\\MY.SetupFoundry_Config_Backup"), "the old script");
    EXPECT_EQ(document.BackupDue, "");
    EXPECT_TRUE(Save({SaveName::Same, true, false}));
    EXPECT_EQ(system.Disk.Bytes("C:\\QUAKE\\ID1\\MY.SetupFoundry_Config_Backup"), "the old script");
}

TEST_F(SaveScriptTest, AForeignScriptWithoutACopyIsSavedUnderAnotherName) {
    document.BackupDue = kPath;
    system.Disk.Refused["c:\\quake\\id1\\my.setupfoundry_config_backup"] = MakeError(error::kDiskFull);
    user.FileAnswers = {std::optional<Text>("C:\\QUAKE\\ID1\\new.cfg")};
    EXPECT_TRUE(Save({SaveName::AskForIt, true, false}));
    EXPECT_EQ(system.Disk.Bytes(kPath), "the old script");
}

TEST_F(SaveScriptTest, AForeignScriptThatHasGoneNeedsNoCopy) {
    document.BackupDue = kPath;
    (void)system.Disk.Delete(kPath);
    EXPECT_TRUE(Save({SaveName::Same, true, false}));
}

TEST_F(SaveScriptTest, ALinkToAnotherPlaceIsFollowedOnlyIfTheUserAgreesAndThenWithoutAnotherWord) {
    system.Disk.AddFile("C:\\ETC\\PASSWD", "theirs");
    system.Disk.AddFileLink(kPath, "C:\\ETC\\PASSWD");
    user.Expect({.Title = "Link To Another Place", .Text_ = "c:\\etc\\passwd", .Answer = 0});
    ExpectNotSaved();
    EXPECT_FALSE(Save());
    EXPECT_EQ(system.Disk.Bytes("C:\\ETC\\PASSWD"), "theirs");
    EXPECT_FALSE(document.ScriptClean);
    user.Expect({.Title = "Link To Another Place", .Text_ = "c:\\etc\\passwd", .Answer = 1});
    EXPECT_TRUE(Save({SaveName::Same, true, false}));
    EXPECT_NE(system.Disk.Bytes("C:\\ETC\\PASSWD"), "theirs");
    EXPECT_TRUE(Save({SaveName::Same, true, false}));
}

TEST_F(SaveScriptTest, ALinkWithinTheHomeStaysALink) {
    system.Disk.AddFile("C:\\HOME\\quake.cfg", "old");
    system.Disk.AddFileLink(kPath, "C:\\HOME\\quake.cfg");
    EXPECT_TRUE(Save({SaveName::Same, true, false}));
    EXPECT_EQ(CountLines(system.Disk.Bytes("C:\\HOME\\quake.cfg"), "name \"Me\""), 1);
}

TEST_F(SaveScriptTest, WantOfMemoryIsToldAndChangesNothing) {
    class Crowded : public MemoryFiles {
      public:
        Error Replace(std::string_view, std::string_view) override { throw std::bad_alloc(); }
    };
    Crowded disk;
    disk.AddFile(kPath, "the old script");
    Platform services{system.Settings, system.Registry, disk, system.Programs, system.Clip, system.Time};
    lv::Run other{services, user};
    user.Expect({"Error During Save", "Error Number = 7\r\nError String = Out of memory", 0, false, true, "&OK"});
    EXPECT_FALSE(SaveScript(other, launcher.Lists, document, view));
    EXPECT_EQ(disk.Bytes(kPath), "the old script");
    EXPECT_FALSE(document.ScriptClean);
}

TEST_F(SaveScriptTest, AnIniLeavesTheEmptyCommandWithItsKey) {
    BeIn(kUnrealDialect);
    document.Sections.front().Name = "[Engine.Input]";
    Bind(document, 24, "\"\"");
    EXPECT_TRUE(Save({SaveName::Same, true, false}));
    EXPECT_EQ(CountLines(system.Disk.Bytes(kPath), "X="), 1);
    EXPECT_EQ(document.KeyBinding[24], "\"\"");
}

TEST_F(SaveScriptTest, WarnsOfAnyPathThatHoldsTheConfigsName) {
    BeIn(kQuake2Dialect);
    user.FileAnswers = {std::optional<Text>("C:\\QUAKE\\ID1\\config.cfg.txt"),
                        std::optional<Text>("C:\\QUAKE\\ID1\\myconfig.cfg")};
    ExpectConfigQuestion(1);
    ExpectNotSaved();
    EXPECT_FALSE(Save({SaveName::AskForIt}));
    ExpectSuccess();
    EXPECT_TRUE(Save({SaveName::AskForIt}));
}

}  // namespace
}  // namespace lv
