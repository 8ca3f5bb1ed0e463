#include "foundation/bounded_file.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_platform.h"

namespace lv {
namespace {

TEST(OpenBounded, TakesAFileOfExactlyTheMost) {
    MemoryFiles disk;
    disk.AddFile("C:\\a.ini", "12345");
    EXPECT_TRUE(OpenBounded(disk, "C:\\a.ini", 5).Ok());
    EXPECT_EQ(ReadBounded(disk, "C:\\a.ini", 5).Value, "12345");
    EXPECT_EQ(ReadBounded(disk, "C:\\a.ini", 6).Value, "12345");
}

TEST(OpenBounded, RefusesALargerFileAndSaysSo) {
    MemoryFiles disk;
    disk.AddSparseFile("C:\\a.ini", "[x]", kLargestIni + 1);
    disk.AddSparseFile("C:\\a.cfg", "bind", kLargestScript + 1);
    EXPECT_EQ(ReadBounded(disk, "C:\\a.ini", kLargestIni).Fault.Number, 7);
    EXPECT_EQ(ReadBounded(disk, "C:\\a.ini", kLargestIni).Fault.Text, "The file is larger than 64 MB: C:\\a.ini");
    EXPECT_EQ(OpenBounded(disk, "C:\\a.cfg", kLargestScript).Fault.Text, "The file is larger than 256 MB: C:\\a.cfg");
    EXPECT_TRUE(OpenBounded(disk, "C:\\a.ini", kLargestScript).Ok());
}

TEST(OpenBounded, RefusesUtf16TextAndSaysSo) {
    MemoryFiles disk;
    disk.AddFile("C:\\a.ini", TextView("\xFF\xFE[\0A\0]\0", 8));
    disk.AddFile("C:\\b.ini", TextView("\xFE\xFF\0[\0A\0]", 8));
    EXPECT_EQ(OpenBounded(disk, "C:\\a.ini", kLargestIni).Fault.Number, 75);
    EXPECT_EQ(OpenBounded(disk, "C:\\a.ini", kLargestIni).Fault.Text,
              "The file is UTF-16 text: C:\\a.ini. Save it as plain text (ANSI) first.");
    EXPECT_EQ(ReadBounded(disk, "C:\\b.ini", kLargestIni).Fault.Text,
              "The file is UTF-16 text: C:\\b.ini. Save it as plain text (ANSI) first.");
}

TEST(OpenBounded, TakesTextWithAnUtf8Mark) {
    MemoryFiles disk;
    disk.AddFile("C:\\a.ini", "\xEF\xBB\xBF[A]");
    EXPECT_EQ(ReadBounded(disk, "C:\\a.ini", kLargestIni).Value, "\xEF\xBB\xBF[A]");
}

TEST(OpenBounded, TellsWhyThereIsNoFile) {
    MemoryFiles disk;
    disk.AddDrive("C:");
    disk.AddDevice("C:\\pipe.cfg");
    EXPECT_EQ(OpenBounded(disk, "C:\\none.cfg", kLargestScript).Fault.Number, 53);
    EXPECT_EQ(ReadBounded(disk, "C:\\pipe.cfg", kLargestScript).Fault.Number, 75);
}

}  // namespace
}  // namespace lv
