#include "gamespy/spy_files.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

Text Shown(const RegistryTriple& triple) {
    return triple.Key + "|" + triple.Name + "|" + triple.Value;
}

std::vector<Text> Shown(const SpyGames& games) {
    std::vector<Text> shown;
    for (const RegistryTriple& triple : SpyRegistry(games)) {
        shown.push_back(Shown(triple));
    }
    return shown;
}

SpyGames AllGames() {
    return {MakeSpyGame(0, "C:\\QUAKE\\quake.exe"),   MakeSpyGame(1, "C:\\QW\\qwcl.exe"),
            MakeSpyGame(2, "C:\\HEXEN2\\h2.exe"),     MakeSpyGame(3, "D:\\Q2\\quake2.exe"),
            MakeSpyGame(4, "D:\\UNREAL\\unreal.exe"), MakeSpyGame(5, "D:\\SIN\\sin.exe")};
}

SpyBatchParts Parts() {
    return {"", "-zone 512 %1 %2 %3 %4 %5 %6 %7 %8 %9 +exec lvgs_666.qs ", "-nosound ", std::nullopt};
}

TEST(SpyRegistry, HoldsAllValuesForAllGames) {
    EXPECT_EQ(Shown(AllGames()), (std::vector<Text>{
                                     "software\\gamespy\\gamespy 3d\\qspy quake|workdir|C:\\QW\\",
                                     "software\\gamespy\\gamespy 3d\\qspy quake|cmdline|QSL1_666.bat",
                                     "software\\gamespy\\gamespy 3d\\quakeworld|cmdlineqw|QSL2_666.bat",
                                     "software\\gamespy\\gamespy 3d\\hexen2|workdir|C:\\HEXEN2\\",
                                     "software\\gamespy\\gamespy 3d\\hexen2|cmdline|QSL3_666.bat",
                                     "software\\gamespy\\gamespy 3d\\quake2|workdir|D:\\Q2\\",
                                     "software\\gamespy\\gamespy 3d\\quake2|cmdline|QSL4_666.bat",
                                     "software\\gamespy\\gamespy 3d\\unreal|workdir|D:\\UNREAL\\",
                                     "software\\gamespy\\gamespy 3d\\unreal|cmdline|QSL5_666.bat",
                                     "software\\gamespy\\gamespy 3d\\sin|workdir|D:\\SIN\\",
                                     "software\\gamespy\\gamespy 3d\\sin|cmdline|QSL6_666.bat",
                                 }));
}

TEST(SpyRegistry, QuakesWorkingDirectoryIsABackslashWithoutQuakeWorld) {
    SpyGames games;
    games[0] = MakeSpyGame(0, "C:\\QUAKE\\quake.exe");
    EXPECT_EQ(Shown(games), (std::vector<Text>{
                                "software\\gamespy\\gamespy 3d\\qspy quake|workdir|\\",
                                "software\\gamespy\\gamespy 3d\\qspy quake|cmdline|QSL1_666.bat",
                            }));
}

TEST(SpyRegistry, QuakesWorkingDirectoryIsWrittenForAnyGame) {
    SpyGames games;
    games[5] = MakeSpyGame(5, "D:\\SIN\\sin.exe");
    EXPECT_EQ(Shown(games), (std::vector<Text>{
                                "software\\gamespy\\gamespy 3d\\qspy quake|workdir|\\",
                                "software\\gamespy\\gamespy 3d\\sin|workdir|D:\\SIN\\",
                                "software\\gamespy\\gamespy 3d\\sin|cmdline|QSL6_666.bat",
                            }));
}

TEST(MakeSpyGame, WrapsEveryExecutableOfQuake) {
    EXPECT_EQ(MakeSpyGame(0, "C:\\QUAKE\\glquake.exe").Command, "qlaunch quakeudp.dll GLQUAKE.EXE ");
    EXPECT_EQ(MakeSpyGame(1, "C:\\QUAKE\\glqwcl.exe").Command, "GLQWCL.EXE ");
    EXPECT_EQ(MakeSpyGame(1, "C:\\QUAKE\\glqwcl.exe").Drive, "C:");
    EXPECT_EQ(MakeSpyGame(1, "C:\\QUAKE\\glqwcl.exe").Directory, "C:\\QUAKE");
}

TEST(MakeSpyGame, OfAnEmptyPathHasEmptyNamesAndStaysInUse) {
    const SpyGame game = MakeSpyGame(0, "");
    EXPECT_TRUE(game.InUse);
    EXPECT_EQ(game.Command, "");
    EXPECT_EQ(game.Drive, "");
    EXPECT_EQ(game.Directory, "");
}

TEST(SpyScriptText, CallsTheChosenScriptBeforeTheLaunchsLines) {
    EXPECT_EQ(SpyScriptText("c:\\quake\\id1\\my.cfg", "gl_polyblend 0\r\n"), "exec my.cfg\r\ngl_polyblend 0\r\n");
    EXPECT_EQ(SpyScriptText("", "gl_polyblend 0\r\n"), "gl_polyblend 0\r\n");
    EXPECT_EQ(SpyScriptText("c:\\quake\\id1\\my.cfg", ""), "exec my.cfg\r\n");
    EXPECT_EQ(SpyScriptText("", ""), "");
}

TEST(SpyBatchText, StandsInThisOrderWithoutALastLineEnd) {
    SpyBatchParts parts = Parts();
    parts.EnvironmentLines = "SET SST_RGAMMA=1.7\r\n";
    EXPECT_EQ(SpyBatchText(3, AllGames()[3], parts),
              "SET SST_RGAMMA=1.7\r\nD:\r\ncd \"D:\\Q2\"\r\n"
              "QUAKE2.EXE -zone 512 %1 %2 %3 %4 %5 %6 %7 %8 %9 +exec lvgs_666.qs ");
}

TEST(SpyBatchText, QuotesTheDirectoryAlways) {
    EXPECT_NE(SpyBatchText(0, MakeSpyGame(0, "C:\\Q\\quake.exe"), Parts()).find("cd \"C:\\Q\"\r\n"), Text::npos);
    EXPECT_NE(SpyBatchText(0, MakeSpyGame(0, "C:\\A B\\quake.exe"), Parts()).find("cd \"C:\\A B\"\r\n"), Text::npos);
}

TEST(SpyBatchText, UnrealHasItsOwnTailAndItsIni) {
    SpyGame game = AllGames()[4];
    EXPECT_EQ(SpyBatchText(4, game, Parts()),
              "D:\r\ncd \"D:\\UNREAL\"\r\nUNREAL.EXE -nosound %1 %2 %3 %4 %5 %6 %7 %8 %9");
    game.Script = "d:\\unreal\\unreal.ini";
    EXPECT_EQ(SpyBatchText(4, game, Parts()),
              "D:\r\ncd \"D:\\UNREAL\"\r\nUNREAL.EXE -nosound %1 %2 %3 %4 %5 %6 %7 %8 %9 INI=unreal.ini");
}

Text CommandWithMemory(std::size_t slot, TextView path) {
    SpyBatchParts parts = Parts();
    parts.GameTail = "TAIL";
    parts.Memory = "-winmem 16";
    const Text batch = SpyBatchText(slot, MakeSpyGame(slot, path), parts);
    return batch.substr(batch.rfind('\n') + 1);
}

TEST(SpyBatchText, MemoryIsAHeapSizeInThousandsForGlAndWinExecutables) {
    EXPECT_EQ(CommandWithMemory(1, "C:\\Q\\glqwcl.exe"), "GLQWCL.EXE -heapsize 16000 TAIL");
    EXPECT_EQ(CommandWithMemory(2, "C:\\H\\glh2.exe"), "GLH2.EXE -heapsize 16000 TAIL");
}

TEST(SpyBatchText, MemoryIsTheItemForOtherExecutables) {
    EXPECT_EQ(CommandWithMemory(1, "C:\\Q\\qwcl.exe"), "QWCL.EXE -winmem 16 TAIL");
    EXPECT_EQ(CommandWithMemory(2, "C:\\H\\h2.exe"), "H2.EXE -winmem 16 TAIL");
}

TEST(SpyBatchText, MemoryOfQuakeIsTheItemWhateverTheExecutable) {
    EXPECT_EQ(CommandWithMemory(0, "C:\\Q\\glquake.exe"), "qlaunch quakeudp.dll GLQUAKE.EXE -winmem 16 TAIL");
    EXPECT_EQ(CommandWithMemory(0, "C:\\Q\\winquake.exe"), "qlaunch quakeudp.dll WINQUAKE.EXE -winmem 16 TAIL");
}

TEST(SpyBatchText, TheOtherGamesHaveNoMemory) {
    EXPECT_EQ(CommandWithMemory(3, "C:\\Q2\\quake2.exe"), "QUAKE2.EXE TAIL");
    EXPECT_EQ(CommandWithMemory(5, "C:\\SIN\\sin.exe"), "SIN.EXE TAIL");
    EXPECT_EQ(CommandWithMemory(4, "C:\\U\\unreal.exe"), "UNREAL.EXE -nosound %1 %2 %3 %4 %5 %6 %7 %8 %9");
}

}  // namespace
}  // namespace lv
