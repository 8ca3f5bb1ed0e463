#include "platform/linux/files/host_names.h"

#include <gtest/gtest.h>

#include "tests/platform/scratch_directory.h"

namespace lv {

namespace {

namespace fs = std::filesystem;
using Parts = std::vector<std::string>;

const DrivePath kCurrent{'D', {"QUAKE", "ID1"}};

std::string Taken(std::string_view path) {
    const auto taken = TakeApart(path, kCurrent);
    return taken ? PutTogether(*taken) : "(nothing)";
}

}  // namespace

TEST(TakeApart, KnowsDriveRootAndCurrentDirectory) {
    EXPECT_EQ(Taken("C:\\QUAKE\\ID1"), "C:\\QUAKE\\ID1");
    EXPECT_EQ(Taken("c:\\quake"), "C:\\quake");
    EXPECT_EQ(Taken("C:"), "C:\\");
    EXPECT_EQ(Taken("C:\\"), "C:\\");
    EXPECT_EQ(Taken("C:QUAKE"), "C:\\QUAKE");
    EXPECT_EQ(Taken("\\HEXEN2"), "D:\\HEXEN2");
    EXPECT_EQ(Taken("PAK0.PAK"), "D:\\QUAKE\\ID1\\PAK0.PAK");
}

TEST(TakeApart, DropsEmptyPartsAndDots) {
    EXPECT_EQ(Taken("C:\\\\QUAKE\\.\\ID1\\"), "C:\\QUAKE\\ID1");
    EXPECT_EQ(Taken("."), "D:\\QUAKE\\ID1");
}

TEST(TakeApart, GoesUpByTheTextAndStopsAtTheRoot) {
    EXPECT_EQ(Taken(".."), "D:\\QUAKE");
    EXPECT_EQ(Taken("..\\HIPNOTIC"), "D:\\QUAKE\\HIPNOTIC");
    EXPECT_EQ(Taken("..\\..\\..\\..\\X"), "D:\\X");
    EXPECT_EQ(Taken("C:\\.."), "C:\\");
}

TEST(TakeApart, TakesTheSlashAsASeparator) {
    EXPECT_EQ(Taken("C:/QUAKE/ID1\\PAK0.PAK"), "C:\\QUAKE\\ID1\\PAK0.PAK");
}

TEST(TakeApart, RefusesNothingAndCharacter0) {
    EXPECT_EQ(Taken(""), "(nothing)");
    EXPECT_EQ(Taken(std::string_view("C:\\A\0B", 6)), "(nothing)");
}

TEST(HostPathBelow, TakesANameAsSpelledBeforeAnyOther) {
    const ScratchDirectory scratch;
    WriteBytes(scratch / "ID1", "");
    WriteBytes(scratch / "id1", "");
    const std::string root = scratch.Path().string();
    EXPECT_EQ(HostPathBelow(root, {"id1"}), root + "/id1");
    EXPECT_EQ(HostPathBelow(root, {"ID1"}), root + "/ID1");
}

TEST(HostPathBelow, TakesTheFirstInByteOrderOfSeveral) {
    const ScratchDirectory scratch;
    for (const char* const name : {"pak0.pak", "Pak0.pak", "PaK0.pak"}) {
        WriteBytes(scratch / name, "");
    }
    const std::string root = scratch.Path().string();
    EXPECT_EQ(HostPathBelow(root, {"PAK0.PAK"}), root + "/PaK0.pak");
}

TEST(HostPathBelow, LooksAtEachPartForItself) {
    const ScratchDirectory scratch;
    fs::create_directories(scratch.Path() / "Quake" / "id1" / "Maps");
    const std::string root = scratch.Path().string();
    EXPECT_EQ(HostPathBelow(root, {"QUAKE", "id1", "MAPS"}), root + "/Quake/id1/Maps");
}

TEST(HostPathBelow, KeepsTheSpellingOfWhatIsNotThere) {
    const ScratchDirectory scratch;
    fs::create_directories(scratch.Path() / "Quake");
    const std::string root = scratch.Path().string();
    EXPECT_EQ(HostPathBelow(root, {"QUAKE", "New", "File.CFG"}), root + "/Quake/New/File.CFG");
}

TEST(HostPathBelow, GoesBackToAnotherSpellingWhereALaterPartIsNotThere) {
    const ScratchDirectory scratch;
    fs::create_directories(scratch / "games/doom");
    fs::create_directories(scratch / "Games/Quake/Id1");
    WriteBytes(scratch / "Games/Quake/Id1/PAK0.PAK", "");
    const std::string root = scratch.Path().string();
    EXPECT_EQ(HostPathBelow(root, {"games", "quake"}), root + "/Games/Quake");
    EXPECT_EQ(HostPathBelow(root, {"games", "quake", "id1"}), root + "/Games/Quake/Id1");
    EXPECT_EQ(HostPathBelow(root, {"games", "quake", "id1", "pak0.pak"}), root + "/Games/Quake/Id1/PAK0.PAK");
    EXPECT_EQ(HostPathBelow(root, {"games", "doom"}), root + "/games/doom");
}

TEST(HostPathBelow, GoesBackMoreThanOnce) {
    const ScratchDirectory scratch;
    fs::create_directories(scratch / "A/B");
    fs::create_directories(scratch / "a/B");
    fs::create_directories(scratch / "a/b/x");
    fs::create_directories(scratch / "A/b/c/D");
    const std::string root = scratch.Path().string();
    EXPECT_EQ(HostPathBelow(root, {"a", "b", "c", "d"}), root + "/A/b/c/D");
}

TEST(HostPathBelow, StaysWithTheFirstSpellingWhereItFits) {
    const ScratchDirectory scratch;
    fs::create_directories(scratch / "games/Quake/id1");
    fs::create_directories(scratch / "Games/quake/id1");
    const std::string root = scratch.Path().string();
    EXPECT_EQ(HostPathBelow(root, {"games", "quake", "id1"}), root + "/games/Quake/id1");
    EXPECT_EQ(HostPathBelow(root, {"GAMES", "quake", "id1"}), root + "/Games/quake/id1");
}

TEST(HostPathBelow, PutsANewFileIntoTheFirstDirectoryThatIsThere) {
    const ScratchDirectory scratch;
    fs::create_directories(scratch / "games");
    fs::create_directories(scratch / "Games/quake");
    const std::string root = scratch.Path().string();
    EXPECT_EQ(HostPathBelow(root, {"games", "new.cfg"}), root + "/games/new.cfg");
    EXPECT_EQ(HostPathBelow(root, {"games", "quake", "new.cfg"}), root + "/Games/quake/new.cfg");
}

TEST(HostPathBelow, NeverTakesAFileOutOfTheOtherDirectory) {
    const ScratchDirectory scratch;
    fs::create_directories(scratch / "games/quake");
    fs::create_directories(scratch / "Games/quake");
    WriteBytes(scratch / "Games/quake/autoexec.cfg", "");
    const std::string root = scratch.Path().string();
    EXPECT_EQ(HostPathBelow(root, {"games", "quake", "autoexec.cfg"}), root + "/games/quake/autoexec.cfg");
}

TEST(HostPathBelow, GoesBackBehindAFileThatStandsInTheWay) {
    const ScratchDirectory scratch;
    WriteBytes(scratch / "games", "");
    fs::create_directories(scratch / "Games/quake");
    const std::string root = scratch.Path().string();
    EXPECT_EQ(HostPathBelow(root, {"games", "quake"}), root + "/Games/quake");
}

TEST(HostPathBelow, GivesUpWhereThereAreTooManyWays) {
    const ScratchDirectory scratch;
    fs::create_directory_symlink(".", scratch / "a");
    fs::create_directory_symlink(".", scratch / "A");
    const std::string root = scratch.Path().string();
    Parts parts(30, "a");
    parts.emplace_back("none");
    std::string expected = root;
    for (const std::string& part : parts) {
        expected += "/" + part;
    }
    EXPECT_EQ(HostPathBelow(root, parts), expected);
}

TEST(HostPathBelow, FoldsAccentedLettersAndConvertsThem) {
    const ScratchDirectory scratch;
    WriteBytes(scratch / "\xC3\xA9t\xC3\xA9.cfg", "");
    const std::string root = scratch.Path().string();
    EXPECT_EQ(HostPathBelow(root, {"\xC9T\xC9.CFG"}), root + "/\xC3\xA9t\xC3\xA9.cfg");
}

TEST(HostPathBelow, PassesOverNamesWithoutAForm) {
    const ScratchDirectory scratch;
    WriteBytes(scratch / "\xFF", "");
    WriteBytes(scratch / "\xE6\x97\xA5", "");
    const std::string root = scratch.Path().string();
    EXPECT_EQ(HostPathBelow(root, {"?"}), root + "/?");
}

TEST(HostPathBelow, FindsTheNameOfALinkThatLeadsNowhere) {
    const ScratchDirectory scratch;
    fs::create_symlink("gone", scratch / "Autoexec.cfg");
    const std::string root = scratch.Path().string();
    EXPECT_EQ(HostPathBelow(root, {"AUTOEXEC.CFG"}), root + "/Autoexec.cfg");
}

TEST(HostPathBelow, PutsOneSlashBehindTheRootOfAll) {
    EXPECT_EQ(HostPathBelow("/", {"no such thing"}), "/no such thing");
    EXPECT_EQ(HostPathBelow("/", {}), "/");
}

TEST(PartsAsFound, GivesTheHostsSpelling) {
    const ScratchDirectory scratch;
    fs::create_directories(scratch.Path() / "Quake" / "id1");
    EXPECT_EQ(PartsAsFound(scratch.Path().string(), {"QUAKE", "ID1", "New"}), (Parts{"Quake", "id1", "New"}));
}

TEST(NameFromHost, RefusesWhatCouldNeverBeAskedFor) {
    EXPECT_EQ(NameFromHost("pak0.pak"), "pak0.pak");
    EXPECT_EQ(NameFromHost("\xC3\xA9"), "\xE9");
    EXPECT_EQ(NameFromHost("\xE6\x97\xA5"), std::nullopt);
    EXPECT_EQ(NameFromHost("\xE9"), std::nullopt);
    EXPECT_EQ(NameFromHost("a\\b"), std::nullopt);
}

}  // namespace lv
