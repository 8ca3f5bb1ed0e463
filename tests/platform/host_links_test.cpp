#include "platform/linux/files/host_links.h"

#include <gtest/gtest.h>

#include "tests/platform/scratch_directory.h"

namespace lv {

namespace fs = std::filesystem;
using Parts = std::vector<fs::path>;

TEST(FollowLinks, LeavesAPathThatIsNoLink) {
    const ScratchDirectory scratch;
    WriteBytes(scratch / "plain", "x");
    EXPECT_EQ(FollowLinks((scratch / "plain").string()), (scratch / "plain").string());
    EXPECT_EQ(FollowLinks((scratch / "none").string()), (scratch / "none").string());
}

TEST(FollowLinks, GoesFromLinkToLink) {
    const ScratchDirectory scratch;
    fs::create_symlink(scratch / "none", scratch / "one");
    fs::create_symlink("one", scratch / "two");
    EXPECT_EQ(FollowLinks((scratch / "two").string()), (scratch / "none").string());
}

TEST(FollowLinks, HasNothingForLinksInACircle) {
    const ScratchDirectory scratch;
    fs::create_symlink("b", scratch / "a");
    fs::create_symlink("a", scratch / "b");
    EXPECT_EQ(FollowLinks((scratch / "a").string()), std::nullopt);
}

TEST(FollowAll, FollowsEachLinkOnThePathAndKeepsWhatIsNotThere) {
    const ScratchDirectory scratch;
    fs::create_directories(scratch / "real/id1");
    fs::create_directory_symlink("real", scratch / "link");
    EXPECT_EQ(FollowAll(scratch / "link/id1/../new.cfg"), scratch / "real/new.cfg");
    EXPECT_EQ(FollowAll(scratch / "link/new/./../other"), scratch / "real/other");
}

TEST(FollowAll, HasNoSlashAtTheEndButTheRoots) {
    const ScratchDirectory scratch;
    fs::create_directory(scratch / "real");
    EXPECT_EQ(FollowAll(scratch / "real/").string(), (scratch / "real").string());
    EXPECT_EQ(FollowAll(scratch / "none/").string(), (scratch / "none").string());
    EXPECT_EQ(FollowAll("/").string(), "/");
}

TEST(FollowButForAFile, KeepsALinkToAFileAndFollowsOneToADirectory) {
    const ScratchDirectory scratch;
    fs::create_directory(scratch / "real");
    WriteBytes(scratch / "real/engine", "x");
    fs::create_directory_symlink("real", scratch / "link");
    fs::create_symlink("engine", scratch / "real/game");
    EXPECT_EQ(FollowButForAFile(scratch / "link/game"), scratch / "real/game");
    EXPECT_EQ(FollowButForAFile(scratch / "link"), scratch / "real");
    EXPECT_EQ(FollowButForAFile(scratch / "link/"), scratch / "real");
}

TEST(PartsBelow, AreThePathsPartsBehindTheDirectory) {
    EXPECT_EQ(PartsBelow("/games", "/games/quake/id1"), (Parts{"quake", "id1"}));
    EXPECT_EQ(PartsBelow("/games", "/games"), Parts{});
    EXPECT_EQ(PartsBelow("/", "/games"), Parts{"games"});
}

TEST(PartsBelow, AreNoneForAPathElsewhere) {
    EXPECT_EQ(PartsBelow("/games", "/gamesome/quake"), std::nullopt);
    EXPECT_EQ(PartsBelow("/games/quake", "/games"), std::nullopt);
    EXPECT_EQ(PartsBelow("/games", "games/quake"), std::nullopt);
}

}  // namespace lv
