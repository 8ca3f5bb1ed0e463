#include "foundry/versions/script_versions.h"

#include <gtest/gtest.h>

#include "foundation/field_strings.h"
#include "platform/memory/memory_platform.h"
#include "tests/support/scripted_user.h"

namespace lv {

namespace {

constexpr TextView kScript = "C:\\GAME\\ID1\\my.cfg";

class ScriptVersions : public ::testing::Test {
  protected:
    ScriptVersions() { system.Places.IsData = "C:\\HOME\\share"; }
    void Put(TextView text) { system.Disk.AddFile(kScript, text); }
    void SaveOver(TextView text) {
        ASSERT_EQ(KeepVersion(run, kScript).Fault.Number, 0);
        Put(text);
    }
    std::vector<Text> Texts(TextView script = kScript) {
        std::vector<Text> texts;
        for (const ScriptVersion& version : VersionsOf(run, script)) {
            texts.push_back(version.Text);
        }
        return texts;
    }
    Text FilePath() { return VersionFilePathOf(run, kScript); }

    MemoryPlatform system;
    ScriptedUser user;
    lv::Run run{system.Services, user};
};

}  // namespace

TEST_F(ScriptVersions, AreWhatSavesHaveReplacedNewestFirst) {
    Put("one");
    SaveOver("two");
    SaveOver("three");
    EXPECT_EQ(Texts(), (std::vector<Text>{"two", "one"}));
    EXPECT_EQ(Texts("c:\\game\\id1\\MY.CFG"), (std::vector<Text>{"two", "one"}));
    EXPECT_EQ(Texts("C:\\GAME\\ID1\\other.cfg"), std::vector<Text>());
}

TEST_F(ScriptVersions, AScriptThatIsNotThereLeavesNone) {
    EXPECT_EQ(KeepVersion(run, kScript).Fault.Number, 0);
    EXPECT_FALSE(system.Disk.FileExists(FilePath()));
}

TEST_F(ScriptVersions, LieInTheDirectoryForData) {
    EXPECT_EQ(FilePath(), "C:\\HOME\\share\\lorvane3d\\versions\\6984774b21144a50.txt");
}

TEST_F(ScriptVersions, LieBesideTheProgramWhereThereIsNoSuchDirectory) {
    system.Places.IsData.clear();
    run.AppDirectory = "C:\\LORVANE";
    EXPECT_TRUE(FilePath().starts_with("C:\\LORVANE\\versions\\")) << FilePath();
}

TEST_F(ScriptVersions, TheSameTextIsKeptOnceAsTheNewest) {
    Put("one");
    SaveOver("one");
    SaveOver("two");
    SaveOver("one");
    SaveOver("three");
    EXPECT_EQ(Texts(), (std::vector<Text>{"one", "two"}));
}

TEST_F(ScriptVersions, TheOldestOfMoreThanFiftyGoes) {
    for (int i = 0; i <= 60; ++i) {
        Put(std::to_string(i));
        ASSERT_EQ(KeepVersion(run, kScript).Fault.Number, 0);
    }
    const std::vector<Text> texts = Texts();
    EXPECT_EQ(texts.size(), 50u);
    EXPECT_EQ(texts.front(), "60");
    EXPECT_EQ(texts.back(), "11");
}

TEST_F(ScriptVersions, AreForTheirOwnerAlone) {
    Put("one");
    SaveOver("two");
    EXPECT_TRUE(system.Disk.Private.contains(LowerCase(FilePath())));
}

TEST_F(ScriptVersions, OneThatIsBroughtBackLeavesWhatItReplaces) {
    Put("one");
    SaveOver("two");
    ASSERT_EQ(BringBack(run, kScript, VersionsOf(run, kScript)[0]).Fault.Number, 0);
    EXPECT_EQ(system.Disk.Bytes(kScript), "one");
    EXPECT_EQ(Texts(), (std::vector<Text>{"two", "one"}));
}

TEST_F(ScriptVersions, ADamagedFileIsKeptAsideAndWhatIsIntactOfItGoesOn) {
    Put("one");
    SaveOver("two");
    SaveOver("three");
    Text bytes = system.Disk.Bytes(FilePath());
    bytes.resize(bytes.size() - 3);
    system.Disk.AddFile(FilePath(), bytes);
    const Text aside = Join(FilePath(), ".damaged");
    EXPECT_EQ(KeepVersion(run, kScript).Value, aside);
    EXPECT_EQ(Texts(), (std::vector<Text>{"three", "two"}));
    EXPECT_EQ(system.Disk.Bytes(aside), bytes);
    EXPECT_EQ(KeepVersion(run, kScript).Value, "");
    EXPECT_EQ(DamagedVersionFiles(run, kScript), std::vector<Text>{aside});
}

TEST_F(ScriptVersions, ASecondDamagedFileDoesNotReplaceTheFirst) {
    Put("one");
    const Text aside = Join(FilePath(), ".damaged");
    for (const TextView damaged : {"nothing", "nothing", "no more", "nothing"}) {
        system.Disk.AddFile(FilePath(), damaged);
        EXPECT_EQ(KeepVersion(run, kScript).Value, damaged == "no more" ? Join(aside, "2") : aside);
    }
    EXPECT_EQ(system.Disk.Bytes(aside), "nothing");
    EXPECT_EQ(system.Disk.Bytes(Join(aside, "2")), "no more");
    EXPECT_EQ(DamagedVersionFiles(run, kScript), (std::vector<Text>{aside, Join(aside, "2")}));
    EXPECT_EQ(DamagedVersionFiles(run, "C:\\GAME\\ID1\\other.cfg"), std::vector<Text>());
}

TEST_F(ScriptVersions, ADamagedFileThatCannotBeKeptStays) {
    Put("one");
    system.Disk.AddFile(FilePath(), "nothing");
    system.Disk.Refused[LowerCase(Join(FilePath(), ".damaged"))] = MakeError(error::kDiskFull);
    EXPECT_EQ(KeepVersion(run, kScript).Fault.Number, error::kDiskFull);
    EXPECT_EQ(system.Disk.Bytes(FilePath()), "nothing");
}

TEST_F(ScriptVersions, AnEmptyFileIsKeptAsideOnceAsADamagedOne) {
    Put("one");
    SaveOver("two");
    system.Disk.AddFile(FilePath(), "");
    EXPECT_TRUE(ReadVersions(run, kScript).IsDamaged);
    EXPECT_EQ(KeepVersion(run, kScript).Value, Join(FilePath(), ".damaged"));
    EXPECT_EQ(Texts(), std::vector<Text>{"two"});
    EXPECT_FALSE(ReadVersions(run, kScript).IsDamaged);
    EXPECT_EQ(KeepVersion(run, kScript).Value, "");
}

TEST_F(ScriptVersions, OnlyWhereNoFileIsThereAreThereNone) {
    const VersionFile none = ReadVersions(run, kScript);  // nor a directory for it
    EXPECT_FALSE(none.IsDamaged);
    EXPECT_FALSE(none.Unread);
    Put("one");
    SaveOver("two");
    const VersionFile others = ReadVersions(run, "C:\\GAME\\ID1\\other.cfg");
    EXPECT_FALSE(others.IsDamaged);
    EXPECT_FALSE(others.Unread);
}

TEST_F(ScriptVersions, AFileThatCannotBeReadIsNotDamagedAndStays) {
    Put("one");
    SaveOver("two");
    const Text bytes = system.Disk.Bytes(FilePath());
    for (const int number : {error::kPermissionDenied, error::kDeviceFault}) {
        system.Disk.RefusedReads[LowerCase(FilePath())] = MakeError(number);
        const VersionFile file = ReadVersions(run, kScript);
        EXPECT_EQ(file.Unread.Number, number);
        EXPECT_FALSE(file.IsDamaged);
        EXPECT_TRUE(file.Versions.empty());
        EXPECT_EQ(KeepVersion(run, kScript).Fault.Number, number);
        EXPECT_EQ(BringBack(run, kScript, {{}, "zero"}).Fault.Number, number);
        EXPECT_EQ(system.Disk.Bytes(kScript), "two");
    }
    system.Disk.RefusedReads.clear();
    EXPECT_EQ(system.Disk.Bytes(FilePath()), bytes);
    EXPECT_EQ(DamagedVersionFiles(run, kScript), std::vector<Text>());
}

TEST_F(ScriptVersions, ADirectoryInThePlaceOfTheFileIsNamedAndStays) {
    Put("one");
    system.Disk.AddDirectory(FilePath());
    const Text reason = Join("Path/File access error: ", FilePath(), " is a directory. Rename it, or remove it.");
    EXPECT_EQ(ReadVersions(run, kScript).Unread.Text, reason);
    EXPECT_EQ(KeepVersion(run, kScript).Fault.Text, reason);
    EXPECT_TRUE(system.Disk.DirectoryExists(FilePath()));
}

TEST_F(ScriptVersions, AFileLargerThanAnyThatIsWrittenIsADamagedOne) {
    Put("one");
    system.Disk.AddSparseFile(FilePath(), "", 2 * kMostVersionBytes + 1);
    EXPECT_TRUE(ReadVersions(run, kScript).IsDamaged);
    EXPECT_FALSE(ReadVersions(run, kScript).Unread);
    EXPECT_EQ(KeepVersion(run, kScript).Value, Join(FilePath(), ".damaged"));
    EXPECT_EQ(Texts(), std::vector<Text>{"one"});
}

TEST_F(ScriptVersions, ADamagedFileIsToldOfByItsPlace) {
    EXPECT_EQ(KeptAsideText("C:\\V.txt.damaged"),
              "The file that keeps the older versions of this script was damaged. What could be read of it goes on;\r\n"
              "the damaged file itself is kept as -->\r\n\r\n\"C:\\V.txt.damaged\"");
}

TEST_F(ScriptVersions, AScriptThatIsTooLargeIsAnError) {
    Put(Text(kLargestVersion + 1, 'x'));
    EXPECT_EQ(KeepVersion(run, kScript).Fault.Number, error::kOutOfMemory);
}

TEST_F(ScriptVersions, ADiskThatTakesNothingIsAnErrorAndChangesNothing) {
    Put("one");
    SaveOver("two");
    system.Disk.Refused[LowerCase(FilePath())] = MakeError(error::kDiskFull);
    EXPECT_EQ(KeepVersion(run, kScript).Fault.Number, error::kDiskFull);
    EXPECT_EQ(BringBack(run, kScript, {{}, "zero"}).Fault.Number, error::kDiskFull);
    EXPECT_EQ(system.Disk.Bytes(kScript), "two");
}

TEST_F(ScriptVersions, TogetherTakeNoMoreThanTheirBound) {
    for (int i = 0; i < 12; ++i) {
        Put(Text(kLargestVersion, static_cast<char>('a' + i)));
        ASSERT_EQ(KeepVersion(run, kScript).Fault.Number, 0);
    }
    EXPECT_EQ(Texts().size(), kMostVersionBytes / kLargestVersion);
}

}  // namespace lv
