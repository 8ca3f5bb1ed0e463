#include "launcher/launchers/setup_shortcut.h"

#include "tests/support/launcher_fixture.h"

namespace lv {
namespace {

lv::Setup Called(TextView name) {
    lv::Setup setup;
    setup.Name = name;
    setup.ExecutablePath = "C:\\QUAKE\\GLQUAKE.EXE";
    return setup;
}

TEST(EntryName, IsThatOfTheSetupInLowerCase) {
    EXPECT_EQ(EntryNameOf("Duel"), "lorvane3d-setup-duel.desktop");
    EXPECT_EQ(EntryNameOf("Flag-2"), EntryNameOf("FLAG-2"));
}

TEST(EntryName, NeverLeavesItsDirectory) {
    EXPECT_EQ(EntryNameOf("../x"), "lorvane3d-setup-_2E_2E_2Fx.desktop");
    EXPECT_EQ(EntryNameOf("a/b;rm"), "lorvane3d-setup-a_2Fb_3Brm.desktop");
    EXPECT_EQ(EntryNameOf("a\nb%"), "lorvane3d-setup-a_0Ab_25.desktop");
    EXPECT_EQ(EntryNameOf(TextView("a\0b", 3)), "lorvane3d-setup-a_00b.desktop");
    EXPECT_EQ(EntryNameOf(""), "lorvane3d-setup-.desktop");
}

TEST(EntryName, IsAnotherForEachSetup) {
    EXPECT_NE(EntryNameOf("a b"), EntryNameOf("a_20b"));
    EXPECT_NE(EntryNameOf("a:b"), EntryNameOf("a;b"));
    EXPECT_NE(EntryNameOf("\xE9"), EntryNameOf("e"));
}

TEST(EntryName, OfALongNameFitsAFile) {
    const Text name = EntryNameOf(Text(300, 'a'));
    EXPECT_EQ(name.size(), 16U + 80 + 1 + 8 + 8);
    EXPECT_TRUE(name.starts_with("lorvane3d-setup-" + Text(80, 'a') + "-")) << name;
    EXPECT_NE(name, EntryNameOf(Text(300, 'a') + "b"));
    EXPECT_LT(EntryNameOf(Text(60, '/')).size(), 255U);
}

TEST(EntryMark, IsOneLineInUtf8) {
    EXPECT_EQ(EntryMarkOf("Duel"), "X-Lorvane3D-Setup=duel");
    EXPECT_EQ(EntryMarkOf("\xC9t\xE9"), "X-Lorvane3D-Setup=\xC3\xA9t\xC3\xA9");
    EXPECT_EQ(EntryMarkOf("a\nExec=rm"), "X-Lorvane3D-Setup=a\\nexec=rm");
}

TEST(EntryOfSetup, IsADesktopEntry) {
    EXPECT_EQ(EntryOfSetup(Called("Duel"), "Quake, CTF", "/usr/lib/lorvane3d/lorvane3d", "/home/me/quake.png"),
              "[Desktop Entry]\n"
              "Type=Application\n"
              "Version=1.4\n"
              "Name=Duel\n"
              "Comment=Quake, CTF\n"
              "Exec=\"/usr/lib/lorvane3d/lorvane3d\" \"--setup=Duel\" \"--tell\"\n"
              "TryExec=/usr/lib/lorvane3d/lorvane3d\n"
              "Icon=/home/me/quake.png\n"
              "Terminal=false\n"
              "StartupNotify=false\n"
              "Categories=Game;\n"
              "X-Lorvane3D-Setup=duel\n");
}

TEST(EntryOfSetup, TakesNoNameForMoreThanAName) {
    const Text entry = EntryOfSetup(Called("50% \"x\" $HOME `id` \\\nExec=rm"), "", "/opt/my games/100%/lorvane3d", "");
    EXPECT_NE(entry.find("\nName=50% \"x\" $HOME `id` \\\\Exec=rm\n"), Text::npos) << entry;
    EXPECT_NE(entry.find(R"(
Exec="/opt/my games/100%%/lorvane3d" "--setup=50%% \\"x\\" \\$HOME \\`id\\` \\\\\nExec=rm" "--tell"
)"),
              Text::npos)
        << entry;
    EXPECT_NE(entry.find("\nTryExec=/opt/my games/100%/lorvane3d\n"), Text::npos) << entry;
    EXPECT_NE(entry.find("\nIcon=lorvane3d\n"), Text::npos) << entry;
    EXPECT_EQ(entry.find("\nExec=rm"), Text::npos);
}

TEST(EntryOfSetup, SaysNamesInUtf8) {
    const Text entry = EntryOfSetup(Called("\x80 \xFC"), "", "/l", "");
    EXPECT_NE(entry.find("\nName=\xE2\x82\xAC \xC3\xBC\n"), Text::npos) << entry;
    EXPECT_NE(entry.find("\"--setup=\xE2\x82\xAC \xC3\xBC\""), Text::npos) << entry;
}

using SetupShortcut = LauncherTest;

TEST_F(SetupShortcut, ShowsThePictureOfTheList) {
    AddGames();
    Load();
    launcher.PicturesOfGame = [](TextView image) {
        return std::vector<ShortcutPicture>{{16, image == "quake" ? "bytes" : "none"}};
    };
    lv::Setup setup = Called("Duel");
    setup.ExecutablePath = "C:\\QUAKE\\GLQUAKE.EXE";
    const Shortcut made = ShortcutOf(launcher, setup);
    EXPECT_EQ(made.Name, "Duel");
    EXPECT_EQ(made.Comment, "Quake");
    EXPECT_EQ(made.Words, (std::vector<Text>{"--setup=Duel", "--tell"}));
    EXPECT_EQ(made.PictureName, "quake");
    ASSERT_EQ(made.Pictures.size(), 1U);
    EXPECT_EQ(made.Pictures[0].Png, "bytes");
    EXPECT_EQ(made.EntryName, "lorvane3d-setup-duel.desktop");
    EXPECT_EQ(made.EntryMark, "X-Lorvane3D-Setup=duel");
    EXPECT_NE(made.Entry("/p", "/i.png").find("\nComment=Quake\n"), Text::npos);
}

TEST_F(SetupShortcut, OfAProgramThatIsNotListedShowsWhatIsKnownOfItsName) {
    lv::Setup setup = Called("Duel");
    setup.ExecutablePath = "D:\\GONE\\QUAKE2.EXE";
    EXPECT_EQ(ShortcutOf(launcher, setup).PictureName, "quake2");
    setup.ExecutablePath = "D:\\GONE\\..\\%.EXE";
    EXPECT_EQ(ShortcutOf(launcher, setup).PictureName, "question");
    EXPECT_TRUE(ShortcutOf(launcher, setup).Pictures.empty());
}

}  // namespace
}  // namespace lv
