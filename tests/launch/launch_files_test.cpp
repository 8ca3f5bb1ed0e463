#include "launch/launch_files.h"

#include <gtest/gtest.h>

#include "launch/environment_lines.h"
#include "tests/support/launch_input.h"

namespace lv {
namespace {

LaunchTexts TextsOf(TextView game, TextView unreal) {
    LaunchTexts texts;
    texts.GameCommand = game;
    texts.UnrealCommand = unreal;
    return texts;
}

LaunchTexts ScriptsOf(TextView quake, TextView quake2) {
    LaunchTexts texts;
    texts.QuakeScript = quake;
    texts.Quake2Script = quake2;
    return texts;
}

/// A launch that uses a bit of everything: a script, 16 megabytes, 640 across, Glide and OpenGL settings.
LaunchInput Example(LaunchInput input, TextView scriptPath) {
    input.Selected.Ticked.Set(Option::Script_Chk);
    input.Selected.Script = scriptPath;
    input.Selected.Ticked.Set(Option::Memory_Chk);
    input.Selected.Memory = "-winmem 16";
    input.Profile.UseRez = 1;
    input.Profile.ResolutionsPos = 4;
    input.Profile.ResolutionsPos_Content = Padded("640x480", "-width 640");
    Use(input.Profile, "FX_GLIDE_SWAPINTERVAL", "0");
    Use(input.Profile, "SST_RGAMMA", "1.7", 4);
    Use(input.Profile, "gl_polyblend", "0");
    return input;
}

struct Written {
    Text Script;
    Text Batch;
};

Written FilesOf(const LaunchInput& input) {
    LaunchTexts texts = input.Compose();
    Written files;
    files.Script = ScriptText(texts, input.Game);
    if (!files.Script.empty()) {
        AddScriptExec(texts);
    }
    files.Batch = BatchText(EnvironmentLines(input.Game, input.Profile), input.Selected.Ticked.Has(Option::ShowSet_Chk),
                            ExeDriveOf(input.Selected), input.Game.DefaultGameDirectory, texts, input.Game);
    return files;
}

TEST(LaunchFiles, OfQuakeByteForByte) {
    const LaunchInput input = Example(QuakeLaunch("GLQUAKE.EXE"), "C:\\QUAKE\\ID1\\MY.CFG");
    const Written files = FilesOf(input);
    EXPECT_EQ(files.Script, "exec MY.CFG\r\ngl_polyblend 0\r\n");
    EXPECT_EQ(files.Batch,
              "SET FX_GLIDE_SWAPINTERVAL=0\r\n"
              "SET SST_RGAMMA=1.7\r\n"
              "C:\r\n"
              "cd C:\\QUAKE\r\n"
              "GLQUAKE.EXE -zone 512 -heapsize 16384 -width 640 +exec lv_666.qs");
    EXPECT_EQ(ScriptFilePath(input.Game), "C:\\QUAKE\\ID1\\lv_666.qs");
    EXPECT_EQ(PifTemplateName(input.Game.GameKind), "lv_666.hid");
}

TEST(LaunchFiles, OfQuake2ByteForByte) {
    const LaunchInput input = Example(Quake2Launch(), "C:\\QUAKE2\\BASEQ2\\MY.CFG");
    const Written files = FilesOf(input);
    EXPECT_EQ(files.Script, "exec MY.CFG\r\nset gl_polyblend 0\r\nset sw_mode \"3\"\r\nset gl_mode \"3\"\r\n");
    EXPECT_EQ(files.Batch,
              "SET FX_GLIDE_SWAPINTERVAL=0\r\n"
              "SET SST_RGAMMA=1.7\r\n"
              "C:\r\n"
              "cd C:\\QUAKE2\r\n"
              "QUAKE2.EXE -zone 512 +exec lv_666.qs");
    EXPECT_EQ(ScriptFilePath(input.Game), "C:\\QUAKE2\\BASEQ2\\lv_666.qs");
    EXPECT_EQ(PifTemplateName(input.Game.GameKind), "lv_666_q2.hid");
}

TEST(LaunchFiles, OfHalfLifeByteForByte) {
    const LaunchInput input = Example(HalfLifeLaunch(), "C:\\SIERRA\\HALF-LIFE\\VALVE\\MY.CFG");
    const Written files = FilesOf(input);
    EXPECT_EQ(files.Script, "exec MY.CFG\r\ngl_polyblend 0\r\nsw_mode \"3\"\r\ngl_mode \"3\"\r\n");
    EXPECT_EQ(files.Batch,
              "SET FX_GLIDE_SWAPINTERVAL=0\r\n"
              "SET SST_RGAMMA=1.7\r\n"
              "C:\r\n"
              "cd C:\\SIERRA\\HALF-LIFE\r\n"
              "HL.EXE -console -zone 512 +exec lv_666.qs");
    EXPECT_EQ(ScriptFilePath(input.Game), "C:\\SIERRA\\HALF-LIFE\\VALVE\\lv_666.qs");
    EXPECT_EQ(PifTemplateName(input.Game.GameKind), "lv_666.hid");
}

TEST(LaunchFiles, OfUnrealByteForByte) {
    const LaunchInput input = Example(UnrealLaunch(), "C:\\Unreal\\System\\my.ini");
    const Written files = FilesOf(input);
    EXPECT_EQ(files.Script, "");
    EXPECT_EQ(files.Batch,
              "SET FX_GLIDE_SWAPINTERVAL=0\r\n"
              "SET SST_RGAMMA=1.7\r\n"
              "C:\r\n"
              "cd C:\\Unreal\\System\r\n"
              "UNREAL.EXE INI=my.ini ");
}

TEST(ScriptText, IsTheScriptOfTheGamesDialect) {
    const LaunchTexts texts = ScriptsOf("a 1\r\n", "set a 1\r\n");
    EXPECT_EQ(ScriptText(texts, QuakeLaunch().Game), "a 1\r\n");
    EXPECT_EQ(ScriptText(texts, Hexen2Launch().Game), "a 1\r\n");
    EXPECT_EQ(ScriptText(texts, Quake2Launch().Game), "set a 1\r\n");
    EXPECT_EQ(ScriptText(texts, SinLaunch().Game), "set a 1\r\n");
    EXPECT_EQ(ScriptText(texts, Heretic2Launch().Game), "set a 1\r\n");
}

TEST(ScriptText, OfHalfLifeLosesSetAnywhereInALine) {
    EXPECT_EQ(ScriptText(ScriptsOf("", "exec x\r\nset a 1\r\nset b 2\r\n"), HalfLifeLaunch().Game),
              "exec x\r\na 1\r\nb 2\r\n");
}

TEST(ScriptText, OfHalfLifeLosesTheseLettersInsideAWordToo) {
    EXPECT_EQ(ScriptText(ScriptsOf("", "exec y\r\nreset x\r\n"), HalfLifeLaunch().Game), "exec y\r\nrex\r\n");
}

TEST(ScriptText, OfHalfLifeKeepsASecondSetAtTheVeryFront) {
    EXPECT_EQ(ScriptText(ScriptsOf("", "set set a 1\r\n"), HalfLifeLaunch().Game), "set a 1\r\n");
    EXPECT_EQ(ScriptText(ScriptsOf("", "set a 1\r\nset b 2\r\n"), HalfLifeLaunch().Game), "a 1\r\nb 2\r\n");
}

TEST(ScriptText, OfOtherGamesKeepsItsSets) {
    EXPECT_EQ(ScriptText(ScriptsOf("", "reset x\r\n"), Quake2Launch().Game), "reset x\r\n");
}

TEST(HasScript, OfTextInADirectoryOfAGameButUnreal) {
    LaunchGame game;
    game.GameKind = Game::Quake;
    game.DefaultGameDirectory = "C:\\QUAKE";
    EXPECT_TRUE(HasScript("map start\r\n", game));
    EXPECT_FALSE(HasScript("", game));
    game.DefaultGameDirectory.clear();
    EXPECT_FALSE(HasScript("map start\r\n", game));
    game.DefaultGameDirectory = "C:\\UNREAL";
    game.GameKind = Game::Unreal;
    EXPECT_FALSE(HasScript("map start\r\n", game));
}

TEST(ScriptFilePath, LiesBesideTheBatchWithoutADataDirectory) {
    LaunchGame game;
    game.DefaultGameDirectory = "C:\\QUAKE";
    EXPECT_EQ(ScriptFilePath(game), "C:\\QUAKE\\lv_666.qs");
}

TEST(BatchText, HasThreeLinesWithoutSetLines) {
    EXPECT_EQ(BatchText("", false, "C:", "C:\\QUAKE", TextsOf("QUAKE.EXE -zone 512 ", ""), QuakeLaunch().Game),
              "C:\r\ncd C:\\QUAKE\r\nQUAKE.EXE -zone 512");
}

TEST(BatchText, QuotesADirectoryWithABlank) {
    EXPECT_EQ(BatchText("", false, "D:", "D:\\My Quake", TextsOf("QUAKE.EXE ", ""), QuakeLaunch().Game),
              "D:\r\ncd \"D:\\My Quake\"\r\nQUAKE.EXE");
}

TEST(BatchText, ShowsTheEnvironmentBehindTheLastSetLine) {
    EXPECT_EQ(BatchText("SET A=1\r\n", true, "C:", "C:\\Q", TextsOf("QUAKE.EXE ", ""), QuakeLaunch().Game),
              "SET A=1\r\nSET\r\nPAUSE\r\nC:\r\ncd C:\\Q\r\nQUAKE.EXE");
}

TEST(BatchText, TakesUnrealsCommandUntrimmed) {
    EXPECT_EQ(BatchText("", false, "C:", "C:\\U", TextsOf("GAME ", "UNREAL.EXE -nommx "), UnrealLaunch().Game),
              "C:\r\ncd C:\\U\r\nUNREAL.EXE -nommx ");
}

TEST(PifTemplateName, IsTheQuake2OneForQuake2AndSin) {
    EXPECT_EQ(PifTemplateName(Game::Quake2), "lv_666_q2.hid");
    EXPECT_EQ(PifTemplateName(Game::Sin), "lv_666_q2.hid");
    for (const Game kind : {Game::None, Game::Quake, Game::Hexen2, Game::Unreal, Game::Heretic2, Game::HalfLife}) {
        EXPECT_EQ(PifTemplateName(kind), "lv_666.hid") << NumberOf(kind);
    }
}

TEST(LaunchFileNames, AreFixed) {
    EXPECT_EQ(kLaunchScriptFile, "lv_666.qs");
    EXPECT_EQ(kLaunchBatchFile, "lv_666.bat");
    EXPECT_EQ(kLaunchPifFile, "lv_666.pif");
}

/// Each word that is no text of the user's, as it stands at its place in the batch, and what the game gets.
std::vector<Text> GivenOf(const LaunchInput& input) {
    LaunchTexts texts = input.Compose();
    AddCommandLineAdditions(input.Selected, texts);
    AddScriptExec(texts);
    const Text batch =
        BatchText("SET A=1\r\n", true, ExeDriveOf(input.Selected), input.Game.DefaultGameDirectory, texts, input.Game);
    std::vector<Text> given;
    for (const GivenWord& word : CommandOfBatch(batch, input.Selected, texts, input.Game).Given) {
        const Text whole = word.Option + word.Written;
        EXPECT_EQ(batch.substr(word.At, whole.size()), whole);
        EXPECT_TRUE(batch[word.At - 1] == ' ' && word.At + whole.size() <= batch.size()) << whole;
        given.push_back(batch.substr(word.At, whole.size()) + "|" + word.Option + word.Argument);
    }
    return given;
}

LaunchInput WithNames(LaunchInput input) {
    input.Selected.Ticked.Set(Option::Game_Chk);
    input.Selected.Ticked.Set(Option::Map_Chk);
    input.Selected.Ticked.Set(Option::Script_Chk);
    input.Selected.Ticked.Set(Option::Server_Chk);
    input.Selected.Ticked.Set(Option::CommandLineAdditions_Chk);
    input.Selected.Game = "-game 512 -GAME";
    input.Selected.Map = "START HERE";
    input.Selected.Server = "10.0.0.1;27500;0;\"my secret\"";
    input.Selected.CommandLineAdditions_Txt = "-own addition";
    return input;
}

using Strings = std::vector<Text>;

TEST(CommandOfBatch, SaysWhereAModificationStandsThatReadsLikeWhatIsAheadOfIt) {
    const LaunchInput input = WithNames(QuakeLaunch());
    EXPECT_EQ(GivenOf(input), (Strings{"512 -game|512 -game"}));
    LaunchTexts texts = input.Compose();
    const Text batch = BatchText("", false, "C:", "C:\\QUAKE", texts, input.Game);
    EXPECT_EQ(batch, "C:\r\ncd C:\\QUAKE\r\nGLQUAKE.EXE -zone 512 -game 512 -game");
    EXPECT_EQ(CommandOfBatch(batch, input.Selected, texts, input.Game).Given.at(0).At, batch.size() - 9);
    EXPECT_EQ(CommandOfBatch(batch, input.Selected, texts, input.Game).Program, "GLQUAKE.EXE");
}

TEST(CommandOfBatch, KnowsItBehindTheNetworkWrapper) {
    EXPECT_EQ(GivenOf(WithNames(QuakeLaunch("QUAKE.EXE"))), (Strings{"512 -game|512 -game"}));
}

TEST(CommandOfBatch, KnowsAModificationAsAVariableToo) {
    EXPECT_EQ(GivenOf(WithNames(Quake2Launch())), (Strings{"512 -game|512 -game"}));
}

TEST(CommandOfBatch, KnowsServerMapAndIniOfUnrealBehindWhatIsPutAheadOfThem) {
    LaunchInput input = WithNames(UnrealLaunch());
    input.Selected.Script = "C:\\Unreal\\System\\my own.ini";
    EXPECT_EQ(GivenOf(input), (Strings{"10.0.0.1:27500|10.0.0.1:27500", "start here.unr|start here.unr",
                                       "INI=\"my own.ini\"|INI=my own.ini"}));
}

TEST(CommandOfBatch, KnowsPasswordAndServerOfHalfLife) {
    EXPECT_EQ(GivenOf(WithNames(HalfLifeLaunch())),
              (Strings{"512 -game|512 -game", "\"my secret\"|my secret", "10.0.0.1:27500|10.0.0.1:27500"}));
    LaunchInput input = WithNames(HalfLifeLaunch());
    input.Selected.Ticked.Set(Option::Server_Chk, false);
    input.Selected.Ticked.Set(Option::QSpy_Chk);
    input.Hooks.GameSpyFetch = [] { return std::optional<Text>("10.0.0.2:27015"); };
    EXPECT_EQ(GivenOf(input), (Strings{"512 -game|512 -game", "10.0.0.2:27015|10.0.0.2:27015"}));
}

TEST(CommandOfBatch, KnowsNoWordWhereAServerHasNoName) {
    for (LaunchInput input : {HalfLifeLaunch(), UnrealLaunch()}) {
        input.Selected.Ticked.Set(Option::Server_Chk);
        input.Selected.Server = ";;0;";
        EXPECT_EQ(GivenOf(input), Strings());
    }
}

TEST(CommandOfBatch, LeavesAnOptionThatTheUserHasTypedToTheUser) {
    LaunchInput input = QuakeLaunch();
    input.Selected.Ticked.Set(Option::Game_Chk);
    input.Selected.Game = "-hipnotic -game x";
    EXPECT_EQ(GivenOf(input), Strings());
}

}  // namespace
}  // namespace lv
