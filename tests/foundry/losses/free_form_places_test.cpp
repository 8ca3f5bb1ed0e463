#include "foundry/losses/free_form_places.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

constexpr TextView kFile = "echo a // why\nbind ESCAPE x\n  echo b\necho a\nbind WINDOWS y";

Text With(TextView freeForm, TextView line, std::size_t fileLine) {
    FreeFormPlaces places(freeForm, kFile);
    places.Insert(line, fileLine);
    return places.Joined();
}

}  // namespace

TEST(FreeFormPlaces, PutALineWhereTheFileHasIt) {
    EXPECT_EQ(With("echo a\r\necho b\r\necho a", "KEPT", 2), "echo a\r\nKEPT\r\necho b\r\necho a");
    EXPECT_EQ(With("echo a\r\necho b\r\necho a", "KEPT", 5), "echo a\r\necho b\r\necho a\r\nKEPT");
}

TEST(FreeFormPlaces, LeaveLinesThatTheFileLacksWithThoseBefore) {
    EXPECT_EQ(With("echo a\r\nmine\r\necho b", "KEPT", 2), "echo a\r\nmine\r\nKEPT\r\necho b");
}

TEST(FreeFormPlaces, PutALineBehindAll) {
    EXPECT_EQ(With("echo a\r\necho b", "KEPT", kBehindAll), "echo a\r\necho b\r\nKEPT");
    EXPECT_EQ(With("", "KEPT", 1), "KEPT");
}

TEST(FreeFormPlaces, KeepTheTextThatIsThere) {
    EXPECT_EQ(FreeFormPlaces("\r\n\r\necho z\r\n\r\nx", kFile).Joined(), "\r\n\r\necho z\r\n\r\nx");
    EXPECT_EQ(FreeFormPlaces("", kFile).Joined(), "");
}

}  // namespace lv
