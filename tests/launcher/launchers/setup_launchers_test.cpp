#include "launcher/launchers/setup_launchers.h"

#include "tests/support/launcher_fixture.h"

namespace lv {
namespace {

using enum ShortcutPlace;

class SetupLaunchers : public LauncherTest {
  protected:
    static lv::Setup Called(TextView name) {
        lv::Setup setup;
        setup.Name = name;
        setup.ExecutablePath = "C:\\QUAKE\\QUAKE.EXE";
        return setup;
    }
    void Make(TextView name, std::vector<ShortcutPlace> places) {
        user.Expect({"Make a Launcher", "This was written:"});
        MakeLaunchers(launcher, Called(name), places);
    }
    [[nodiscard]] std::vector<Text> Paths() const {
        std::vector<Text> paths;
        for (const auto& [path, made] : system.Launchers.Made) {
            paths.push_back(path);
        }
        return paths;
    }
    /// A file of that name that somebody else has made.
    void Occupy(const Text& path) { system.Launchers.Made[path] = Shortcut{}; }
};

TEST_F(SetupLaunchers, AreMadeWhereTheyAreWantedAndTold) {
    user.Expect({"Make a Launcher",
                 "This was written:\r\n\r\n/menu/lorvane3d-setup-duel.desktop\r\n\r\n"
                 "/desktop/lorvane3d-setup-duel.desktop",
                 0, false, true, "&OK"});
    MakeLaunchers(launcher, Called("Duel"), kLauncherPlaces);
    EXPECT_EQ(Paths(),
              (std::vector<Text>{"/desktop/lorvane3d-setup-duel.desktop", "/menu/lorvane3d-setup-duel.desktop"}));
}

TEST_F(SetupLaunchers, ReplaceTheirOwnAndNeverAnothers) {
    Make("Duel", {Menu});
    Make("DUEL", {Menu});
    EXPECT_EQ(system.Launchers.Made["/menu/lorvane3d-setup-duel.desktop"].Name, "DUEL");
    Occupy("/desktop/lorvane3d-setup-duel.desktop");
    user.Expect({"Make a Launcher",
                 "This was written:\r\n\r\n/menu/lorvane3d-setup-duel.desktop\r\n\r\n"
                 "This could not be written:\r\n\r\n/desktop/lorvane3d-setup-duel.desktop\r\n"
                 "a file of this name is there that is no launcher of this setup. It was left as it is.",
                 0, false, true});
    MakeLaunchers(launcher, Called("Duel"), kLauncherPlaces);
    EXPECT_EQ(system.Launchers.Made["/desktop/lorvane3d-setup-duel.desktop"].Name, "");
}

TEST_F(SetupLaunchers, AFaultIsTold) {
    system.Launchers.Refuse = MakeError(error::kDiskFull);
    user.Expect({"Make a Launcher", "This could not be written:\r\n\r\n/menu/lorvane3d-setup-duel.desktop\r\nDisk full",
                 0, false, true});
    MakeLaunchers(launcher, Called("Duel"), std::vector{Menu});
}

TEST_F(SetupLaunchers, FollowTheNameAndNothingElseComesUp) {
    Make("Duel", {Desktop});
    LaunchersFollow(launcher, "Duel", Called("Evening"));
    EXPECT_EQ(Paths(), std::vector<Text>{"/desktop/lorvane3d-setup-evening.desktop"});
    EXPECT_EQ(system.Launchers.Made.begin()->second.Words[0], "--setup=Evening");
}

TEST_F(SetupLaunchers, FollowAChangeOfLetterCaseInTheirPlace) {
    Make("duel", {Menu});
    LaunchersFollow(launcher, "duel", Called("DUEL"));
    EXPECT_EQ(Paths(), std::vector<Text>{"/menu/lorvane3d-setup-duel.desktop"});
    EXPECT_EQ(system.Launchers.Made.begin()->second.Name, "DUEL");
}

TEST_F(SetupLaunchers, FollowANameThatGivesTheSameFile) {
    system.Launchers.OneName = true;
    Make("a/b", {Menu});
    LaunchersFollow(launcher, "a/b", Called("a:b"));
    ASSERT_EQ(Paths(), std::vector<Text>{"/menu/one.desktop"});
    EXPECT_EQ(system.Launchers.Made.begin()->second.Name, "a:b");
}

TEST_F(SetupLaunchers, StayWhereTheyCannotFollowAndThatIsTold) {
    Make("Duel", {Menu});
    Occupy("/menu/lorvane3d-setup-evening.desktop");
    user.Expect({"Make a Launcher",
                 "The launchers of this setup could not follow:\r\n\r\n/menu/lorvane3d-setup-evening.desktop\r\n"
                 "a file of this name is there that is no launcher of this setup. It was left as it is.",
                 0, false, true});
    LaunchersFollow(launcher, "Duel", Called("Evening"));
    EXPECT_EQ(Paths().size(), 2U);
}

TEST_F(SetupLaunchers, GoWithTheirSetupAndAnothersFileStays) {
    Make("Duel", {Menu});
    Occupy("/desktop/lorvane3d-setup-duel.desktop");
    TakeLaunchersAway(launcher, Called("Duel"));
    EXPECT_EQ(Paths(), std::vector<Text>{"/desktop/lorvane3d-setup-duel.desktop"});
}

TEST_F(SetupLaunchers, ThatCannotBeTakenAwayAreTold) {
    Make("Duel", {Menu});
    system.Launchers.Refuse = MakeError(error::kPermissionDenied);
    user.Expect({"Make a Launcher",
                 "The launchers of this setup could not be taken away:\r\n\r\n/menu/lorvane3d-setup-duel.desktop\r\n"
                 "Permission denied",
                 0, false, true});
    TakeLaunchersAway(launcher, Called("Duel"));
}

TEST_F(SetupLaunchers, AreNotMadeWithoutAPlaceForThem) {
    system.Services.Launchers = nullptr;
    EXPECT_FALSE(CanMakeLaunchers(run));
    MakeLaunchers(launcher, Called("Duel"), kLauncherPlaces);
    LaunchersFollow(launcher, "Duel", Called("Evening"));
    TakeLaunchersAway(launcher, Called("Duel"));
    EXPECT_TRUE(system.Launchers.Made.empty());
}

}  // namespace
}  // namespace lv
