#include "platform/linux/files/drives.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include "tests/platform/scratch_directory.h"

namespace lv {

namespace {

namespace fs = std::filesystem;

struct Home {
    ScratchDirectory Scratch;
    DriveDirectories Directories{Scratch / "data/drives", Scratch / "wine", Scratch / "program"};
    fs::path Data = Scratch / "data";
    fs::path Devices = Scratch / "wine/dosdevices";
};

}  // namespace

TEST(MakeFirstDrives, MakesCAndZ) {
    const Home home;
    EXPECT_EQ(MakeFirstDrives(home.Directories).Number, 0);
    EXPECT_EQ(DriveLetters(home.Directories), (std::vector<char>{'C', 'Z'}));
    EXPECT_TRUE(fs::is_directory(fs::symlink_status(home.Data / "drive_c")));
    EXPECT_EQ(fs::canonical(home.Data / "drives/c:"), home.Data / "drive_c");
    EXPECT_EQ(fs::read_symlink(home.Data / "drives/z:"), "/");
    EXPECT_EQ(std::distance(fs::directory_iterator(home.Data), fs::directory_iterator()), 2);
}

TEST(MakeFirstDrives, SharesWinesDriveC) {
    const Home home;
    fs::create_directories(home.Scratch / "wine/drive_c");
    EXPECT_EQ(MakeFirstDrives(home.Directories).Number, 0);
    EXPECT_EQ(fs::canonical(home.Data / "drives/c:"), fs::canonical(home.Scratch / "wine/drive_c"));
    EXPECT_FALSE(fs::exists(home.Data / "drive_c"));
    EXPECT_EQ(MendDrives(home.Directories).Number, 0);
    EXPECT_FALSE(fs::exists(home.Data / "drive_c"));
}

TEST(MakeFirstDrives, FillsAnEmptyDirectory) {
    const Home home;
    fs::create_directories(home.Data / "drives");
    EXPECT_EQ(MakeFirstDrives(home.Directories).Number, 0);
    EXPECT_EQ(DriveLetters(home.Directories), (std::vector<char>{'C', 'Z'}));
}

TEST(MakeFirstDrives, LeavesTheUsersOwnDrivesAlone) {
    const Home home;
    fs::create_directories(home.Data / "drives/d:");
    EXPECT_EQ(MakeFirstDrives(home.Directories).Number, 0);
    EXPECT_EQ(DriveLetters(home.Directories), (std::vector<char>{'D'}));
    EXPECT_FALSE(fs::exists(home.Data / "drive_c"));
}

TEST(MakeFirstDrives, KeepsAPlainDirectoryThatIsThere) {
    const Home home;
    fs::create_directories(home.Data / "drive_c/QUAKE");
    EXPECT_EQ(MakeFirstDrives(home.Directories).Number, 0);
    EXPECT_TRUE(fs::exists(home.Data / "drives/c:/QUAKE"));
}

TEST(MakeFirstDrives, TellsWhatItCannotMake) {
    const Home home;
    WriteBytes(home.Data, "a file");
    EXPECT_EQ(MakeFirstDrives(home.Directories).Number, 76);
    EXPECT_EQ(BytesOf(home.Data), "a file");
}

TEST(MakeFirstDrives, PutsAFileInPlaceOfTheDrivesAside) {
    const Home home;
    fs::create_directories(home.Data);
    WriteBytes(home.Data / "drives", "a file");
    EXPECT_EQ(MakeFirstDrives(home.Directories).Number, 0);
    EXPECT_EQ(BytesOf(home.Data / "drives.old"), "a file");
    EXPECT_EQ(DriveLetters(home.Directories), (std::vector<char>{'C', 'Z'}));
}

TEST(MakeFirstDrives, NamesALinkThatLeadsNowhereNow) {
    const Home home;
    fs::create_directories(home.Data);
    fs::create_symlink("gone", home.Data / "drives");
    const Error failed = MakeFirstDrives(home.Directories);
    EXPECT_EQ(failed.Number, 76);
    EXPECT_TRUE(failed.Text.ends_with(": " + (home.Data / "drives").string() +
                                      " is a link to what is not there. Make that directory, or remove the link."))
        << failed.Text;
    EXPECT_EQ(fs::read_symlink(home.Data / "drives"), "gone");
}

TEST(MakeFirstDrives, TakesAwayWhatAKilledStartHasLeft) {
    const Home home;
    fs::create_directories(home.Data / ".drives_999999999");
    fs::create_symlink("/", home.Data / ".drives_999999999/z:");
    fs::create_directories(home.Data / (".drives_" + std::to_string(getpid())));
    fs::create_directories(home.Data / ".drives_1");  // of a process that lives
    fs::create_directories(home.Data / ".drives_of_mine");
    EXPECT_EQ(MakeFirstDrives(home.Directories).Number, 0);
    EXPECT_EQ(DriveLetters(home.Directories), (std::vector<char>{'C', 'Z'}));
    EXPECT_FALSE(fs::exists(home.Data / ".drives_999999999"));
    EXPECT_FALSE(fs::exists(home.Data / (".drives_" + std::to_string(getpid()))));
    EXPECT_TRUE(fs::exists(home.Data / ".drives_1"));
    EXPECT_TRUE(fs::exists(home.Data / ".drives_of_mine"));
}

TEST(MendDrives, MakesAMissingZ) {
    const Home home;
    fs::create_directories(home.Data / "drives/d:");
    EXPECT_EQ(MendDrives(home.Directories).Number, 0);
    EXPECT_EQ(fs::read_symlink(home.Data / "drives/z:"), "/");
    EXPECT_EQ(DriveLetters(home.Directories), (std::vector<char>{'D', 'Z'}));
}

TEST(MendDrives, LeavesAZOfTheWinePrefixToIt) {
    const Home home;
    fs::create_directories(home.Data / "drives/d:");
    fs::create_directories(home.Devices);
    fs::create_symlink("/", home.Devices / "z:");
    EXPECT_EQ(MendDrives(home.Directories).Number, 0);
    EXPECT_FALSE(fs::exists(fs::symlink_status(home.Data / "drives/z:")));
}

TEST(MendDrives, PutsAZThatLeadsNowhereAside) {
    const Home home;
    fs::create_directories(home.Data / "drives");
    fs::create_symlink("/media/no such disk", home.Data / "drives/z:");
    EXPECT_EQ(MendDrives(home.Directories).Number, 0);
    EXPECT_EQ(fs::read_symlink(home.Data / "drives/z:"), "/");
    EXPECT_EQ(fs::read_symlink(home.Data / "drives/z:.old"), "/media/no such disk");
}

TEST(MendDrives, KeepsAFileInPlaceOfZBesideEarlierOnes) {
    const Home home;
    fs::create_directories(home.Data / "drives");
    WriteBytes(home.Data / "drives/z:", "a file");
    WriteBytes(home.Data / "drives/z:.old", "an older file");
    EXPECT_EQ(MendDrives(home.Directories).Number, 0);
    EXPECT_EQ(fs::read_symlink(home.Data / "drives/z:"), "/");
    EXPECT_EQ(BytesOf(home.Data / "drives/z:.old"), "an older file");
    EXPECT_EQ(BytesOf(home.Data / "drives/z:.old2"), "a file");
}

TEST(MendDrives, KeepsAZThatIsADirectoryOfTheUsers) {
    const Home home;
    fs::create_directories(home.Data / "drives");
    fs::create_directories(home.Scratch / "program");
    fs::create_symlink(home.Scratch.Path(), home.Data / "drives/z:");
    EXPECT_EQ(MendDrives(home.Directories).Number, 0);
    EXPECT_EQ(fs::read_symlink(home.Data / "drives/z:"), home.Scratch.Path());
    EXPECT_EQ(DriveLetters(home.Directories), (std::vector<char>{'Z'}));
}

TEST(MendDrives, GivesAProgramThatLiesOnNoDriveTheLastFreeLetter) {
    const Home home;
    fs::create_directories(home.Data / "drives/y:");
    fs::create_directories(home.Data / "other");
    fs::create_symlink("../other", home.Data / "drives/z:");
    EXPECT_EQ(MendDrives(home.Directories).Number, 0);
    EXPECT_EQ(fs::read_symlink(home.Data / "drives/x:"), "/");
    EXPECT_EQ(fs::read_symlink(home.Data / "drives/z:"), "../other");
}

TEST(MendDrives, MakesTheOwnDirectoryOfCAgain) {
    const Home home;
    ASSERT_EQ(MakeFirstDrives(home.Directories).Number, 0);
    fs::remove(home.Data / "drive_c");
    EXPECT_EQ(MendDrives(home.Directories).Number, 0);
    EXPECT_TRUE(fs::is_directory(home.Data / "drives/c:"));
}

TEST(MendDrives, LeavesACWhoseDiskIsNotIn) {
    const Home home;
    ASSERT_EQ(MakeFirstDrives(home.Directories).Number, 0);
    fs::remove(home.Data / "drives/c:");
    fs::create_symlink("/media/no such disk", home.Data / "drives/c:");
    EXPECT_EQ(MendDrives(home.Directories).Number, 0);
    EXPECT_EQ(fs::read_symlink(home.Data / "drives/c:"), "/media/no such disk");
}

TEST(MendDrives, PutsACThatCanBeNoDiskAside) {
    for (const bool circle : {false, true}) {
        const Home home;
        ASSERT_EQ(MakeFirstDrives(home.Directories).Number, 0);
        fs::remove(home.Data / "drives/c:");
        if (circle) {
            fs::create_symlink("c:", home.Data / "drives/c:");
        } else {
            WriteBytes(home.Data / "drives/c:", "a file");
        }
        EXPECT_EQ(MendDrives(home.Directories).Number, 0);
        EXPECT_EQ(fs::read_symlink(home.Data / "drives/c:"), "../drive_c");
        EXPECT_TRUE(fs::exists(fs::symlink_status(home.Data / "drives/c:.old")));
    }
}

TEST(MendDrives, ChangesNothingOfWholeDrives) {
    const Home home;
    ASSERT_EQ(MakeFirstDrives(home.Directories).Number, 0);
    fs::create_symlink("/media/no such disk", home.Data / "drives/e:");
    EXPECT_EQ(MendDrives(home.Directories).Number, 0);
    EXPECT_EQ(std::distance(fs::directory_iterator(home.Data / "drives"), fs::directory_iterator()), 3);
}

TEST(MendDrives, TellsWhatItCannotMake) {
    const Home home;
    WriteBytes(home.Data, "a file");
    EXPECT_EQ(MendDrives(home.Directories).Number, 76);
}

TEST(DriveEntry, LooksInTheWinePrefixForALetterThatIsMissing) {
    const Home home;
    fs::create_directories(home.Data / "drives/d:");
    fs::create_directories(home.Devices / "d:");
    fs::create_directories(home.Devices / "e:");
    EXPECT_EQ(DriveEntry(home.Directories, 'd'), (home.Data / "drives/d:").string());
    EXPECT_EQ(DriveEntry(home.Directories, 'E'), (home.Devices / "e:").string());
    EXPECT_EQ(DriveEntry(home.Directories, 'f'), std::nullopt);
}

TEST(DriveEntry, NeverTouchesAAndB) {
    const Home home;
    fs::create_directories(home.Data / "drives/a:");
    fs::create_directories(home.Devices / "b:");
    EXPECT_EQ(DriveEntry(home.Directories, 'a'), std::nullopt);
    EXPECT_EQ(DriveEntry(home.Directories, 'A'), std::nullopt);
    EXPECT_EQ(DriveEntry(home.Directories, 'B'), std::nullopt);
    EXPECT_EQ(DriveLetters(home.Directories), std::vector<char>());
}

TEST(DriveEntry, KnowsNothingButLetters) {
    const Home home;
    EXPECT_EQ(DriveEntry(home.Directories, '.'), std::nullopt);
    EXPECT_EQ(DriveEntry(home.Directories, '\xE9'), std::nullopt);
    EXPECT_EQ(DriveEntry(home.Directories, '\0'), std::nullopt);
}

TEST(DriveEntry, ThatIsNotMadeLeadsWhereItWouldLead) {
    Home home;
    home.Directories.areMade = false;
    EXPECT_EQ(DriveEntry(home.Directories, 'c'), (home.Data / "drive_c").string());
    EXPECT_EQ(DriveEntry(home.Directories, 'Z'), "/.");
    EXPECT_EQ(DriveEntry(home.Directories, 'd'), std::nullopt);
    EXPECT_EQ(DriveLetters(home.Directories), (std::vector<char>{'C', 'Z'}));
    fs::create_directories(home.Scratch / "wine/drive_c");
    EXPECT_EQ(DriveEntry(home.Directories, 'c'), (home.Scratch / "wine/drive_c").string());
    EXPECT_FALSE(fs::exists(home.Data));
}

TEST(DriveEntry, ThatIsNotMendedLeadsWhereItWouldLead) {
    Home home;
    home.Directories.areMade = false;
    fs::create_directories(home.Data / "drives");
    fs::create_symlink("../drive_c", home.Data / "drives/c:");
    fs::create_symlink("/nowhere/at/all", home.Data / "drives/z:");
    fs::create_symlink("/media/gone", home.Data / "drives/e:");
    EXPECT_EQ(DriveEntry(home.Directories, 'c'), (home.Data / "drive_c").string());
    EXPECT_EQ(DriveEntry(home.Directories, 'z'), "/.");
    EXPECT_EQ(DriveEntry(home.Directories, 'e'), (home.Data / "drives/e:").string()) << "its disk may not be in";
    fs::create_directory(home.Data / "drive_c");
    EXPECT_EQ(DriveEntry(home.Directories, 'c'), (home.Data / "drives/c:").string());
    EXPECT_EQ(fs::read_symlink(home.Data / "drives/z:"), "/nowhere/at/all");
}

TEST(DriveLetters, AreThoseOfBothPlacesInOrder) {
    const Home home;
    for (const char* const name : {"x:", "c:"}) {
        fs::create_directories(home.Data / "drives" / name);
    }
    for (const char* const name : {"d:", "c:", "d::", "com1"}) {
        fs::create_directories(home.Devices / name);
    }
    EXPECT_EQ(DriveLetters(home.Directories), (std::vector<char>{'C', 'D', 'X'}));
}

TEST(DriveLetters, CountALinkThatLeadsNowhereNow) {
    const Home home;
    fs::create_directories(home.Data / "drives");
    fs::create_symlink("/media/no such disk", home.Data / "drives/e:");
    EXPECT_EQ(DriveLetters(home.Directories), (std::vector<char>{'E'}));
}

}  // namespace lv
