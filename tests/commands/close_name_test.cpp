#include "commands/close_name.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

TEST(CloseName, AFewSlipsAreSeen) {
    const std::vector<Text> names = {"--launch", "--list", "--map"};
    EXPECT_EQ(CloseName("--lanch", names), "--launch");
    EXPECT_EQ(CloseName("--LAUNCH", names), "--launch");
    EXPECT_EQ(CloseName("--lits", names), "--list");
    EXPECT_EQ(CloseName("--mapp", names), "--map");
}

TEST(CloseName, TheOnlyNameThatBeginsSoIsMeantAheadOfOneThatIsCloser) {
    const std::vector<Text> names = {"--help", "--list", "--launch", "--export", "--import"};
    EXPECT_EQ(CloseName("--exp", names), "--export");
    EXPECT_EQ(CloseName("--EX", names), "--export");
    EXPECT_EQ(CloseName("--l", names), std::nullopt) << "two begin so";
    EXPECT_EQ(CloseName("half", {"Halo", "Half-Life (Windows)"}), "Half-Life (Windows)");
    EXPECT_EQ(CloseName("half", {"Half-Life (Windows)", "HALF-LIFE (Windows)"}), "Half-Life (Windows)");
    EXPECT_EQ(CloseName("ha", {"Half-Life (Windows)"}), std::nullopt);
}

TEST(CloseName, AnotherWordIsNotClose) {
    EXPECT_EQ(CloseName("Unreal", {"Quake", "Half-Life"}), std::nullopt);
    EXPECT_EQ(CloseName("Quake", {}), std::nullopt);
}

TEST(CloseName, TheClosestIsMeant) {
    EXPECT_EQ(CloseName("Quake 2", {"Quake 3", "Quake 2x", "quake 2"}), "quake 2");
}

TEST(CloseName, LongNamesCostNoMoreThanTheirBeginning) {
    const Text longest(1'000'000, 'a');
    EXPECT_EQ(CloseName(longest, {longest + "b"}), longest + "b");
}

TEST(CloseName, ANameNeverCommandsATerminal) {
    EXPECT_EQ(MeantWords("Quak", {"Quake\n"}), " Did you mean \"Quake?\"?");
    EXPECT_EQ(MeantWords("Unreal", {"Quake"}), "");
}

}  // namespace
}  // namespace lv
