#include "launcher/setups/setup_words.h"

#include "launcher/setups/row_picks.h"
#include "tests/support/launcher_fixture.h"

namespace lv {
namespace {

using SetupWords = LauncherTest;
using enum Option;

TEST(SetupTexts, LoseTheirControlCharacters) {
    EXPECT_EQ(ShownText("a\tb\r\nc\x7F \xE9&d"), "abc \xE9&d");
    EXPECT_EQ(MenuText("Q&A\tF2"), "Q&&AF2");
}

TEST_F(SetupWords, NameTheGameByItsTitleAndWhatIsTicked) {
    AddGames();
    Load();
    lv::Setup setup;
    setup.ExecutablePath = "c:\\quake\\glquake.exe";
    setup.Modification = "-game ctf";
    setup.Server = "club.example;26000;0;Secret";
    setup.Map = "START";
    EXPECT_EQ(WordsOf(launcher, setup), "Quake");
    setup.Ticked = {Game_Chk, Server_Chk};
    EXPECT_EQ(WordsOf(launcher, setup), "Quake, ctf, on club.example:26000");
    setup.Ticked = {Map_Chk, Dedicated_Chk};
    EXPECT_EQ(WordsOf(launcher, setup), "Quake, at START, dedicated server");
    setup.Ticked = {Listen_Chk};
    EXPECT_EQ(WordsOf(launcher, setup), "Quake, listen server");
    setup.Ticked = {LaunchQspy_Chk, Map_Chk};
    EXPECT_EQ(WordsOf(launcher, setup), "Quake, through GameSpy 3D");
}

TEST_F(SetupWords, SayOfAGameThatIsGoneThatItIs) {
    lv::Setup setup;
    setup.ExecutablePath = "C:\\DOOM\\DOOM.EXE";
    EXPECT_EQ(WordsOf(launcher, setup), "DOOM.EXE, which is not in the list of games");
}

TEST_F(SetupWords, OfferTheGameAndItsModificationAsAName) {
    EXPECT_EQ(OfferedName(launcher), "");
    AddGames();
    Load();
    PickExe("C:\\QUAKE\\GLQUAKE.EXE");
    EXPECT_EQ(OfferedName(launcher), "Quake");
    Click(Game_Chk, 1);
    EXPECT_EQ(OfferedName(launcher), "Quake, Capture the Flag");
    window.Exe_Cbo.Items[0].Title = Text(70, 'Q');
    EXPECT_EQ(OfferedName(launcher), Text(60, 'Q'));
}

}  // namespace
}  // namespace lv
