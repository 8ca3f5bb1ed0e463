#include "transfer/settings_file.h"

#include "tests/transfer/transfer_fixture.h"
#include "transfer/settings_text.h"

namespace lv {

namespace {

using Values = std::vector<StoredValue>;

constexpr TextView kFile = "C:\\HOME\\mine.txt";

class SettingsFile : public Transfer {
  protected:
    void PutFile(const Values& values) { here.System.Disk.AddFile(kFile, WriteSettingsText(values).Value); }
    Error FaultOfFile() {
        const auto read = ReadSettingsFile(here.Run, kFile);
        EXPECT_TRUE(read.Value.empty());
        return read.Fault;
    }
};

}  // namespace

TEST_F(SettingsFile, HoldsWhatGoesAndNothingElse) {
    here.Put("Options", "Games", "Capture;-game ctf");
    here.Put("Options", "ShowAll", "No");
    here.Put("LV-Stuff", "RunCount", "7");
    here.Put("LV-Stuff", "VP_Version", "1");
    here.Put("LV_Frm", "Top", "100");
    EXPECT_EQ(here.System.Settings.Write("User Registry", "Options", "Games", "of Wine's").Number, 0);
    const auto done = ExportSettings(here.Run, kFile);
    EXPECT_EQ(done.Fault.Number, 0);
    EXPECT_EQ(done.Value.Values, 2u);
    EXPECT_TRUE(done.Value.LeftOut.empty());
    EXPECT_EQ(here.System.Disk.Bytes(kFile),
              "Lorvane 3D settings 1\nLV-Stuff\tVP_Version\t1\nOptions\tGames\tCapture;-game ctf\nend 2 403df8b6\n");
    EXPECT_EQ(ReadSettingsFile(here.Run, kFile).Value,
              (Values{{"LV-Stuff", "VP_Version", "1"}, {"Options", "Games", "Capture;-game ctf"}}));
}

TEST_F(SettingsFile, IsForItsOwnerAlone) {
    EXPECT_EQ(ExportSettings(here.Run, kFile).Fault.Number, 0);
    EXPECT_TRUE(here.System.Disk.Private.contains(LowerCase(kFile)));
}

TEST_F(SettingsFile, NamesWhatItCannotHold) {
    here.Put("Options", "Long", Text(16001, 'x'));
    here.Put("Options", "Games", "g");
    const auto done = ExportSettings(here.Run, kFile);
    EXPECT_EQ(done.Value.Values, 1u);
    EXPECT_EQ(done.Value.LeftOut, std::vector<Text>{"Options\\Long"});
}

TEST_F(SettingsFile, ThatCannotBeWrittenIsAnError) {
    here.System.Disk.Refused[LowerCase(kFile)] = MakeError(error::kDiskFull);
    EXPECT_EQ(ExportSettings(here.Run, kFile).Fault.Number, 61);
}

TEST_F(SettingsFile, TakesThePlaceOfAnotherFileOnlyIfTheUserSaysSo) {
    here.System.Disk.AddFile(kFile, "my notes");
    here.Put("Options", "Games", "g");
    EXPECT_EQ(ExportSettings(here.Run, kFile).Fault.Number, 75);
    EXPECT_EQ(here.System.Disk.Bytes(kFile), "my notes");
    EXPECT_EQ(ExportSettings(here.Run, kFile, MayReplace::kAnyFile).Fault.Number, 0);
    EXPECT_EQ(ReadSettingsFile(here.Run, kFile).Value, (Values{{"Options", "Games", "g"}}));
    EXPECT_EQ(ExportSettings(here.Run, kFile).Fault.Number, 0);
}

TEST_F(SettingsFile, OfAStoreThatCannotBeReadIsAnErrorAndNoFile) {
    here.System.Settings.RefuseReads = MakeError(error::kAlreadyOpen);
    EXPECT_EQ(ExportSettings(here.Run, kFile).Fault.Number, 55);
    EXPECT_FALSE(here.System.Disk.FileExists(kFile));
}

TEST_F(SettingsFile, GivesNothingThatStaysThoughItStandsInIt) {
    PutFile({{"LV-Stuff", "RunCount", "7"}, {"LV_Frm", "Top", "1"}, {"Options", "Games", "g"}, {"Other", "a", "b"}});
    EXPECT_EQ(ReadSettingsFile(here.Run, kFile).Value, (Values{{"Options", "Games", "g"}}));
}

TEST_F(SettingsFile, ThatIsNotThereOrNoneAtAllIsAnError) {
    EXPECT_EQ(FaultOfFile().Number, 53);
    here.System.Disk.AddFile(kFile, "bind x +attack");
    EXPECT_EQ(FaultOfFile().Text, "This is no file of Lorvane 3D's settings");
    here.System.Disk.AddFile(kFile, "\xFF\xFEL\0o\0r\0");
    EXPECT_EQ(FaultOfFile().Number, 75);
    here.System.Disk.AddSparseFile(kFile, "Lorvane 3D settings 1\n", 1ULL << 40U);
    EXPECT_EQ(FaultOfFile().Number, 7);
}

TEST_F(SettingsFile, WithAListThatNoStartWouldGetOverIsAnError) {
    PutFile({{"Options", "Games", "g"}, {"Options", "Scripts", "an odd list of;three;fields"}});
    const Error fault = FaultOfFile();
    EXPECT_EQ(fault.Number, 75);
    EXPECT_EQ(fault.Text, "The list \"Scripts\" of section \"Options\" is damaged. Nothing of the file was used");
}

}  // namespace lv
