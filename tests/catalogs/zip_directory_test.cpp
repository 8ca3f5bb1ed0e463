#include "catalogs/zip_directory.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_files.h"
#include "tests/catalogs/packed_files.h"

namespace lv {
namespace {

std::unique_ptr<RandomAccessFile> Opened(const Text& bytes) {
    static MemoryFiles disk;
    disk.AddFile("C:\\a.pk3", bytes);
    return std::move(disk.Open("C:\\a.pk3").Value);
}

Text Names(const Text& bytes) {
    const auto entries = ReadZipEntries(*Opened(bytes));
    Text all;
    for (const ArchiveEntry& entry : entries.value_or(std::vector<ArchiveEntry>())) {
        all += Join(all.empty() ? "" : ", ", entry.Name);
    }
    return entries ? all : "none";
}

}  // namespace

TEST(ReadZipEntries, LeavesDirectoriesOut) {
    EXPECT_EQ(Names(ZippedFiles({StoredFile("maps/", ""), StoredFile("maps/a.cfg", "x")})), "maps/a.cfg");
    EXPECT_EQ(Names(ZippedFiles({})), "");
    EXPECT_EQ(Names("PK"), "none");
}

TEST(ReadZipEntries, FindsTheDirectoryAheadOfAComment) {
    EXPECT_EQ(Names(ZippedFiles({StoredFile("a", "1")}, Text(0xFFFF, 'c'))), "a");
    EXPECT_EQ(Names(ZippedFiles({StoredFile("a", "1")}, "PK")), "a");
}

TEST(ReadZipEntries, KnowsWhatItCannotUnpack) {
    const auto how = [](const Zipped& file) { return ReadZipEntries(*Opened(ZippedFiles({file})))->at(0).How; };
    EXPECT_EQ(how({"a", "1", 1, 0}), Packing::Zip);
    EXPECT_EQ(how({"a", "1", 1, 8}), Packing::Deflated);
    EXPECT_EQ(how({"a", "1", 1, 14}), Packing::Unknown);
    EXPECT_EQ(how({"a", "1", 1, 0, 1}), Packing::Unknown);
}

TEST(ReadZipEntries, EndsWithADamagedEntry) {
    Text zip = ZippedFiles({StoredFile("a", "1"), StoredFile("b", "2"), StoredFile("c", "3")});
    const std::size_t second = zip.find("PK\1\2", zip.find("PK\1\2") + 1);
    zip[second] = 'X';
    EXPECT_EQ(Names(zip), "a");
}

TEST(StartOfZipEntry, StandsBehindTheFilesOwnHeader) {
    const auto archive = Opened(ZippedFiles({StoredFile("name", "1")}));
    EXPECT_EQ(StartOfZipEntry(*archive, 0), 30 + 4 + 5);
    EXPECT_FALSE(StartOfZipEntry(*archive, 1));
    EXPECT_FALSE(StartOfZipEntry(*archive, 1U << 20U));
}

}  // namespace lv
