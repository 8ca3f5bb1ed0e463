#include "transfer/export_place.h"

#include "tests/transfer/transfer_fixture.h"

namespace lv {

namespace {

class ExportPlace : public Transfer {
  protected:
    ExportPlace() {
        here.System.Places.IsConfig = "C:\\HOME\\config";
        disk.AddFile("C:\\HOME\\config\\lorvane3d\\settings.sqlite", "SQLite format 3");
        disk.AddDirectory("C:\\HOME\\share\\lorvane3d\\backups");
        disk.AddDirectory("C:\\PLAY");
    }
    Text Fault(TextView path, MayReplace mayReplace = MayReplace::kExportsAlone) {
        return FaultOfExport(here.Run, path, mayReplace).Text;
    }

    MemoryFiles& disk = here.System.Disk;
};

constexpr TextView kOther = "The file exists and is no file of settings; give another name";
constexpr TextView kOwn = "Lorvane 3D keeps its own files in this directory; give another one";
constexpr TextView kNoPlainFile = "This is a link, a pipe or a device, and stays what it is; give another name";
constexpr TextView kNoName = "This names a directory; give the name of a file";

}  // namespace

TEST_F(ExportPlace, IsAnyFreeNameInADirectoryThatIsThere) {
    EXPECT_EQ(Fault("C:\\PLAY\\mine.lv3d"), "");
    EXPECT_EQ(Fault("C:\\mine.lv3d"), "");
    EXPECT_EQ(FaultOfExport(here.Run, "C:\\NOWHERE\\mine.lv3d", MayReplace::kAnyFile).Number, 76);
    EXPECT_EQ(FaultOfExport(here.Run, "", MayReplace::kAnyFile).Number, 76);
}

TEST_F(ExportPlace, IsThatOfAnEarlierExport) {
    disk.AddFile("C:\\PLAY\\mine.lv3d", "Lorvane 3D settings 1\ncut");
    EXPECT_EQ(Fault("C:\\PLAY\\mine.lv3d"), "");
}

TEST_F(ExportPlace, IsNotThatOfAnotherFileUnlessTheUserSaysSo) {
    disk.AddFile("C:\\PLAY\\mine.txt", "my notes");
    disk.AddFile("C:\\PLAY\\empty.txt");
    EXPECT_EQ(Fault("C:\\PLAY\\mine.txt"), kOther);
    EXPECT_EQ(Fault("C:\\PLAY\\empty.txt"), kOther);
    EXPECT_EQ(Fault("C:\\PLAY\\mine.txt", MayReplace::kAnyFile), "");
}

TEST_F(ExportPlace, IsNoOtherSpellingOfAName) {
    disk.AddFile("C:\\PLAY\\mine.lv3d", "Lorvane 3D settings 1\n");
    for (const MayReplace may : {MayReplace::kExportsAlone, MayReplace::kAnyFile}) {
        EXPECT_EQ(Fault("C:\\PLAY\\MINE.lv3d", may),
                  "The name \"mine.lv3d\" differs in letter case alone; give that, or another one");
    }
}

TEST_F(ExportPlace, IsNeverWhatIsNoPlainFile) {
    disk.AddFile("C:\\PLAY\\old.lv3d", "Lorvane 3D settings 1\n");
    disk.AddFileLink("C:\\PLAY\\link.lv3d", "C:\\PLAY\\old.lv3d");
    disk.AddDevice("C:\\PLAY\\pipe");
    for (const MayReplace may : {MayReplace::kExportsAlone, MayReplace::kAnyFile}) {
        EXPECT_EQ(Fault("C:\\PLAY\\link.lv3d", may), kNoPlainFile);
        EXPECT_EQ(Fault("C:\\PLAY\\pipe", may), kNoPlainFile);
        EXPECT_EQ(Fault("C:\\PLAY", may), "This is a directory; give the name of a file");
    }
}

TEST_F(ExportPlace, IsNeverTheNameOfADirectory) {
    for (const TextView name :
         {"C:\\PLAY\\nodir\\", "C:\\PLAY\\nodir/", "C:\\PLAY\\.", "C:\\PLAY\\..", "C:", "/tmp/x/", "..", "x/."}) {
        EXPECT_EQ(FaultOfFileName(name).Text, kNoName) << name;
        EXPECT_EQ(Fault(name, MayReplace::kAnyFile), kNoName) << name;
    }
    EXPECT_EQ(FaultOfFileName("C:\\PLAY\\..x").Number, 0);
}

TEST_F(ExportPlace, IsNotWhereTheSettingsAndTheirCopiesAreKept) {
    disk.AddLink("C:\\LINK", "C:\\HOME\\config\\lorvane3d");
    for (const MayReplace may : {MayReplace::kExportsAlone, MayReplace::kAnyFile}) {
        EXPECT_EQ(Fault("C:\\HOME\\config\\lorvane3d\\settings.sqlite", may), kOwn);
        EXPECT_EQ(Fault("c:\\home\\CONFIG\\lorvane3d\\new.lv3d", may), kOwn);
        EXPECT_EQ(Fault("C:\\LINK\\settings.sqlite-wal", may), kOwn);
        EXPECT_EQ(Fault("C:\\HOME\\share\\lorvane3d\\backups\\new.lv3d", may), kOwn);
    }
    EXPECT_EQ(Fault("C:\\HOME\\config\\mine.lv3d"), "");
    disk.AddDirectory("C:\\HOME\\config\\lorvane3d2");
    EXPECT_EQ(Fault("C:\\HOME\\config\\lorvane3d2\\mine.lv3d"), "");
}

TEST_F(ExportPlace, IsNoneThatCannotBeLookedAt) {
    disk.Unreadable.insert("c:\\play");
    EXPECT_EQ(FaultOfExport(here.Run, "C:\\PLAY\\mine.lv3d", MayReplace::kAnyFile).Number, 75);
}

}  // namespace lv
