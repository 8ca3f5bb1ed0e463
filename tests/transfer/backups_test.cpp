#include "transfer/backups.h"

#include "tests/transfer/transfer_fixture.h"

namespace lv {

namespace {

constexpr TextView kDirectory = "C:\\HOME\\share\\lorvane3d\\backups";

class BackupsTest : public Transfer {
  protected:
    Text Path(TextView name) { return Join(kDirectory, "\\", name); }
    void Keep(TextView value) {
        here.Put("Options", "Games", value);
        EXPECT_EQ(KeepBackup(here.Run).Fault.Number, 0);
    }
    std::vector<Text> Names() {
        std::vector<Text> names;
        for (const Backup& backup : Backups(here.Run)) {
            names.push_back(backup.Path.substr(kDirectory.size() + 1));
        }
        return names;
    }
    /// The stored value in each, newest first.
    std::vector<Text> Kept() {
        std::vector<Text> kept;
        for (const Backup& backup : Backups(here.Run)) {
            const auto values = ReadSettingsFile(here.Run, backup.Path);
            kept.push_back(values.Ok() ? FindValue(values.Value, "Options", "Games")->Value : values.Fault.Text);
        }
        return kept;
    }
};

using Lines = std::vector<Text>;

}  // namespace

TEST_F(BackupsTest, HoldWhatGoesOfTheSettings) {
    here.Put("LV-Stuff", "RunCount", "7");
    here.Put("Options", "Games", "g");
    const auto kept = KeepBackup(here.Run);
    EXPECT_EQ(kept.Value, Path("settings 000000001 1999-11-21 12-30-00.txt"));
    EXPECT_EQ(here.System.Disk.Bytes(kept.Value), "Lorvane 3D settings 1\nOptions\tGames\tg\nend 1 64aafc6d\n");
    EXPECT_TRUE(here.System.Disk.Private.contains(LowerCase(kept.Value)));
    ASSERT_EQ(Backups(here.Run).size(), 1u);
    EXPECT_EQ(Backups(here.Run)[0].When, "1999-11-21 12:30:00");
}

TEST_F(BackupsTest, AreNotMadeBeforeThereIsAnything) {
    here.Put("LV-Stuff", "RunCount", "7");
    EXPECT_EQ(KeepBackup(here.Run).Value, "");
    EXPECT_FALSE(here.System.Disk.DirectoryExists(kDirectory));
}

TEST_F(BackupsTest, AreMadeWhereSomethingHasChanged) {
    Keep("a");
    Keep("a");
    here.Put("LV-Stuff", "RunCount", "8");
    EXPECT_EQ(KeepBackup(here.Run).Value, Path("settings 000000001 1999-11-21 12-30-00.txt"));
    EXPECT_EQ(Kept(), Lines{"a"});
    Keep("b");
    Keep("a");
    EXPECT_EQ(Kept(), (Lines{"a", "b", "a"}));
}

TEST_F(BackupsTest, OfOneSecondAreAllKept) {
    Keep("a");
    Keep("b");
    Keep("c");
    EXPECT_EQ(Names(),
              (Lines{"settings 000000003 1999-11-21 12-30-00.txt", "settings 000000002 1999-11-21 12-30-00.txt",
                     "settings 000000001 1999-11-21 12-30-00.txt"}));
    EXPECT_EQ(Kept(), (Lines{"c", "b", "a"}));
}

TEST_F(BackupsTest, AreInTheirOrderWhateverTheClockSays) {
    Keep("a");
    here.System.Time.Is = {1970, 1, 1, 0, 0, 0};
    Keep("b");
    here.System.Time.Is = {-5, 0, 99, 12345, -1, 60};
    Keep("c");
    here.System.Time.Is = {123456, 12, 31, 23, 59, 59};
    Keep("d");
    EXPECT_EQ(Kept(), (Lines{"d", "c", "b", "a"}));
    EXPECT_EQ(Backups(here.Run)[1].When, "0000-00-99 99:00:60");
}

TEST_F(BackupsTest, AreTenTheOldestGo) {
    for (int i = 1; i <= 13; ++i) {
        Keep(std::to_string(i));
    }
    EXPECT_EQ(Kept(), (Lines{"13", "12", "11", "10", "9", "8", "7", "6", "5", "4"}));
    EXPECT_EQ(here.System.Disk.List(kDirectory).Value.size(), 12u);  // with "." and ".."
}

TEST_F(BackupsTest, LeaveFilesOfOtherNamesAlone) {
    const Lines others = {"settings 1.txt", "settings 000000099 1999-11-21 12-30-0x.txt", "notes.txt",
                          "settings 000000099 1999-11-21 12-30-00.txt.bak",
                          "settings 99999999999 1999-11-21 12-30-00.txt"};
    for (const Text& name : others) {
        here.System.Disk.AddFile(Path(name), "mine");
    }
    here.System.Disk.AddDirectory(Path("settings 000000050 1999-11-21 12-30-00.txt"));
    for (int i = 1; i <= 12; ++i) {
        Keep(std::to_string(i));
    }
    EXPECT_EQ(Names().size(), 10u);
    for (const Text& name : others) {
        EXPECT_EQ(here.System.Disk.Bytes(Path(name)), "mine") << name;
    }
}

TEST_F(BackupsTest, MakeANewOneBesideADamagedOne) {
    Keep("a");
    here.System.Disk.AddFile(Path(Names()[0]), "Lorvane 3D settings 1\n");
    Keep("a");
    EXPECT_EQ(Kept(), (Lines{"a", "The file is damaged: in line 2 its end is missing. Nothing of it was used"}));
}

TEST_F(BackupsTest, GoOnWithTheHighestNumberThereCanBe) {
    here.System.Disk.AddFile(Path("settings 999999999 1999-11-21 12-30-00.txt"), "x");
    here.System.Time.Is.Hour = 13;
    Keep("a");
    Keep("b");
    EXPECT_EQ(Names().front(), "settings 999999999 1999-11-21 13-30-00.txt");
    EXPECT_EQ(Kept().front(), "b");
}

TEST_F(BackupsTest, LoseNoneWhereANewOneCannotBeWritten) {
    for (int i = 1; i <= 10; ++i) {
        Keep(std::to_string(i));
    }
    here.System.Disk.Refused[LowerCase(Path("settings 000000011 1999-11-21 12-30-00.txt"))] =
        MakeError(error::kDiskFull);
    here.Put("Options", "Games", "11");
    EXPECT_EQ(KeepBackup(here.Run).Fault.Number, 61);
    EXPECT_EQ(Kept().size(), 10u);
    EXPECT_EQ(Kept().back(), "1");
}

TEST_F(BackupsTest, ThatCannotBeDeletedDoNoHarm) {
    for (int i = 1; i <= 10; ++i) {
        Keep(std::to_string(i));
    }
    here.System.Disk.RefusedDeletes.insert(LowerCase(Path("settings 000000001 1999-11-21 12-30-00.txt")));
    Keep("11");
    Keep("12");
    EXPECT_EQ(Kept().front(), "12");
    EXPECT_EQ(Kept().size(), 11u);
}

TEST_F(BackupsTest, OfAStoreThatCannotBeReadAreAnError) {
    here.System.Settings.RefuseReads = MakeError(error::kAlreadyOpen);
    EXPECT_EQ(KeepBackup(here.Run).Fault.Number, 55);
    EXPECT_TRUE(Backups(here.Run).empty());
}

TEST_F(BackupsTest, WithoutADirectoryForThemAreAnError) {
    here.System.Places.IsData = "X:\\nowhere";
    here.Put("Options", "Games", "g");
    EXPECT_NE(KeepBackup(here.Run).Fault.Number, 0);
}

}  // namespace lv
