#include "platform/linux/linux_desktop_lists.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "tests/platform/scratch_directory.h"
#include "tests/support/game_yard.h"

namespace lv {

namespace {

namespace fs = std::filesystem;

class DesktopFiles : public ::testing::Test {
  protected:
    ScratchDirectory scratch;
    fs::path config = scratch / "config";
    fs::path data = scratch / "data";
    ScopedVariable Config{"XDG_CONFIG_HOME", config.c_str()};
    ScopedVariable Data{"XDG_DATA_HOME", data.c_str()};
    ScopedVariable Desktop{"XDG_CURRENT_DESKTOP", "X-Test:KDE::../evil:none"};
    fs::path list = config / "mimeapps.list";
    LinuxDesktopLists lists;
};

}  // namespace

TEST_F(DesktopFiles, AreEmptyBeforeThereAreAny) {
    EXPECT_EQ(lists.Defaults().Value, "");
    EXPECT_TRUE(lists.Defaults().Ok());
    EXPECT_EQ(lists.Entry("a.desktop").Value, "");
    EXPECT_TRUE(lists.StrongerDefaults().empty());
    EXPECT_FALSE(lists.RemoveEntry("a.desktop"));
}

TEST_F(DesktopFiles, AreMadeWhereTheRulesHaveThem) {
    EXPECT_FALSE(lists.SetDefaults("[X]\n"));
    EXPECT_FALSE(lists.SetEntry("a.desktop", "[Desktop Entry]\n"));
    EXPECT_EQ(ReadBytes(list), "[X]\n");
    EXPECT_EQ(ReadBytes(data / "applications/a.desktop"), "[Desktop Entry]\n");
    EXPECT_EQ(lists.Defaults().Value, "[X]\n");
    EXPECT_EQ(lists.Entry("a.desktop").Value, "[Desktop Entry]\n");
    EXPECT_FALSE(lists.RemoveEntry("a.desktop"));
    EXPECT_FALSE(fs::exists(data / "applications/a.desktop"));
}

TEST_F(DesktopFiles, AListThatIsALinkStaysOneAndAnEntryIsReplaced) {
    fs::create_directories(config);
    fs::create_directories(data / "applications");
    WriteBytes(scratch / "dotfiles.list", "old");
    WriteBytes(scratch / "precious", "keep");
    fs::create_symlink(scratch / "dotfiles.list", list);
    fs::create_symlink(scratch / "precious", data / "applications/a.desktop");
    EXPECT_FALSE(lists.SetDefaults("new"));
    EXPECT_FALSE(lists.SetEntry("a.desktop", "ours"));
    EXPECT_TRUE(fs::is_symlink(list));
    EXPECT_EQ(ReadBytes(scratch / "dotfiles.list"), "new");
    EXPECT_FALSE(fs::is_symlink(data / "applications/a.desktop"));
    EXPECT_EQ(ReadBytes(scratch / "precious"), "keep");
}

TEST_F(DesktopFiles, APipeIsNotWaitedForAndALongListRefused) {
    fs::create_directories(config);
    ASSERT_EQ(mkfifo(list.c_str(), 0600), 0);
    EXPECT_EQ(lists.Defaults().Fault.Number, error::kPathFileAccess);
    EXPECT_NE(lists.Defaults().Fault.Text.find("mimeapps.list"), std::string::npos);
    fs::remove(list);
    WriteBytes(list, std::string(kLongestDesktopList, 'x'));
    EXPECT_EQ(lists.Defaults().Value.size(), kLongestDesktopList);
    WriteBytes(list, std::string(kLongestDesktopList + 1, 'x'));
    EXPECT_EQ(lists.Defaults().Fault.Number, error::kOutOfMemory);
}

TEST_F(DesktopFiles, AListThatCannotBeReplacedIsNamed) {
    fs::create_directories(list);
    const Error failed = lists.SetDefaults("x");
    EXPECT_EQ(failed.Number, error::kPathFileAccess);
    EXPECT_NE(failed.Text.find("mimeapps.list"), std::string::npos);
}

TEST_F(DesktopFiles, TheDesktopsOwnListsComeInItsOrder) {
    fs::create_directories(config);
    WriteBytes(config / "kde-mimeapps.list", "kde");
    WriteBytes(config / "x-test-mimeapps.list", "test");
    WriteBytes(scratch / "evil-mimeapps.list", "evil");
    EXPECT_EQ(lists.StrongerDefaults(), (std::vector<std::string>{"test", "kde"}));
}

TEST_F(DesktopFiles, TheProgramLiesBesideTheOneThatRuns) {
    EXPECT_EQ(lists.ProgramFile(), (fs::read_symlink("/proc/self/exe").parent_path() / "lorvane3d").string());
}

}  // namespace lv
