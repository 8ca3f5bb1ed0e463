#include "transfer/path_moves.h"

#include <gtest/gtest.h>

namespace lv {

namespace {

using Moves = std::vector<PathMove>;
using Values = std::vector<StoredValue>;

const Moves kMoves = {{"C:\\GAMES\\QUAKE", "D:\\Play\\Quake"}, {"C:\\UNREAL", "Z:\\home\\me\\unreal"}};
const Moves kBack = {{"D:\\Play\\Quake", "C:\\GAMES\\QUAKE"}, {"Z:\\home\\me\\unreal", "C:\\UNREAL"}};

}  // namespace

TEST(PathMoves, MoveWhatLiesInTheDirectoryAndTheDirectoryItself) {
    EXPECT_EQ(MovedPath("C:\\GAMES\\QUAKE\\QUAKE.EXE", kMoves), "D:\\Play\\Quake\\QUAKE.EXE");
    EXPECT_EQ(MovedPath("C:\\GAMES\\QUAKE\\ID1\\My.cfg", kMoves), "D:\\Play\\Quake\\ID1\\My.cfg");
    EXPECT_EQ(MovedPath("C:\\GAMES\\QUAKE", kMoves), "D:\\Play\\Quake");
    EXPECT_EQ(MovedPath("C:\\GAMES\\QUAKE\\", kMoves), "D:\\Play\\Quake\\");
}

TEST(PathMoves, TakeWholeComponentsOnly) {
    for (const char* const path :
         {"C:\\GAMES\\QUAKE2\\QUAKE2.EXE", "C:\\GAMES", "D:\\GAMES\\QUAKE\\A", "GAMES\\QUAKE\\A", "", "notepad.exe"}) {
        EXPECT_EQ(MovedPath(path, kMoves), path);
    }
}

TEST(PathMoves, MindNoLetterCaseAndNoKindOfSeparator) {
    EXPECT_EQ(MovedPath("C:\\Games\\Quake\\Q.EXE", kMoves), "D:\\Play\\Quake\\Q.EXE");
    EXPECT_EQ(MovedPath("C:/GAMES/QUAKE/ID1/a.cfg", kMoves), "D:\\Play\\Quake/ID1/a.cfg");
    EXPECT_EQ(MovedPath("C:\\JEUX\\NO\xCBL\\a", {{"c:\\jeux\\no\xEBl", "D:\\x"}}), "D:\\x\\a");
}

TEST(PathMoves, LeaveALowerCasePathInLowerCase) {
    EXPECT_EQ(MovedPath("c:\\games\\quake\\id1\\My.cfg", kMoves), "d:\\play\\quake\\id1\\My.cfg");
    EXPECT_EQ(MovedPath("c:\\unreal\\system\\MAPS", kMoves), "z:\\home\\me\\unreal\\system\\MAPS");
}

TEST(PathMoves, MoveToAndFromTheRootOfADrive) {
    const Moves toRoot = {{"C:\\QUAKE", "D:\\"}};
    EXPECT_EQ(MovedPath("C:\\QUAKE\\ID1\\a.cfg", toRoot), "D:\\ID1\\a.cfg");
    EXPECT_EQ(MovedPath("C:\\QUAKE", toRoot), "D:\\");
    EXPECT_EQ(MovedPath("D:\\ID1\\a.cfg", {{"D:\\", "C:\\QUAKE"}}), "C:\\QUAKE\\ID1\\a.cfg");
}

TEST(PathMoves, TakeTheDeepestDirectoryAndEachPathOnce) {
    const Moves nested = {{"C:\\GAMES", "D:\\G"}, {"C:\\GAMES\\QUAKE", "E:\\Q"}, {"D:\\G", "F:\\never"}};
    EXPECT_EQ(MovedPath("C:\\GAMES\\QUAKE\\a", nested), "E:\\Q\\a");
    EXPECT_EQ(MovedPath("C:\\GAMES\\HL\\a", nested), "D:\\G\\HL\\a");
    EXPECT_EQ(MovedPath("C:\\Q", {{"C:\\Q", "D:\\Q"}, {"D:\\Q", "C:\\Q"}}), "D:\\Q");
}

TEST(PathMoves, KeepAListsFieldsAndTheirBlanks) {
    EXPECT_EQ(MovedFields("Quake;C:\\GAMES\\QUAKE\\Q.EXE; Unreal ;  C:\\UNREAL\\System\\U.EXE ;", kMoves),
              "Quake;D:\\Play\\Quake\\Q.EXE; Unreal ;  Z:\\home\\me\\unreal\\System\\U.EXE ;");
    EXPECT_EQ(MovedFields("", kMoves), "");
    EXPECT_EQ(MovedFields(";;", kMoves), ";;");
}

TEST(PathMoves, SayWhyAPlaceCannotStandInAList) {
    for (const char* const place : {"D:\\Play", "D:\\", "D:", "\\\\server\\games", "D:\\a b%c\xE9"}) {
        EXPECT_EQ(FaultOfPlace(place), "") << place;
    }
    EXPECT_EQ(FaultOfPlace("D:\\a;b"), "\"D:\\a;b\" can't stand in the lists: \";\" parts their entries.");
    EXPECT_EQ(FaultOfPlace("games\\quake"), "\"games\\quake\" is no whole path, with its drive.");
    for (const char* const place : {"", "D", "\\", "\\\\", "/home/me", "D:\\a\nb", "D:\\a\tb", "D:\\\x7F"}) {
        EXPECT_NE(FaultOfPlace(place), "") << place;
    }
}

TEST(PathMoves, RewriteTheExecutableAndTheScriptOfASetup) {
    EXPECT_EQ(
        RewriteSetup("1;Executable=C:\\GAMES\\QUAKE\\Q.EXE;Ticked=Game_Chk;Script=c:\\games\\quake\\id1\\a%3Bb%25.cfg;"
                     "CommandLine=C:\\GAMES\\QUAKE",
                     [](TextView path) { return MovedPath(path, kMoves); }),
        "1;Executable=D:\\Play\\Quake\\Q.EXE;Ticked=Game_Chk;Script=d:\\play\\quake\\id1\\a%3Bb%25.cfg;"
        "CommandLine=C:\\GAMES\\QUAKE");
}

TEST(PathMoves, LeaveWhatIsNoPathOfASetupToTheLetter) {
    const auto never = [](TextView) { return Text("moved"); };
    for (const char* const text : {"", "1=Duel;3=Practice", "2;Executable", "1;Script=%zz", "xExecutable=C:\\a"}) {
        EXPECT_EQ(RewriteSetup(text, never), text);
    }
    EXPECT_EQ(RewriteSetup("1;Executable=a", never), "1;Executable=moved");
}

TEST(PathMoves, ReachEveryValueThatHoldsAPathAndNoOther) {
    const Values before = {
        {"Options", "Executables", "Quake;C:\\GAMES\\QUAKE\\Q.EXE;Unreal;C:\\UNREAL\\System\\U.EXE"},
        {"Options", "Scripts", "a.cfg;c:\\games\\quake\\id1\\a.cfg"},
        {"Options", "Games", "C:\\GAMES\\QUAKE;-game ctf"},
        {"Options", "GameSpyLocation", "C:\\GAMES\\QUAKE\\Spy"},
        {"Options", "ScriptEditor", "C:\\GAMES\\QUAKE\\edit.exe"},
        {"Options", "CustomCommandLineText", "C:\\GAMES\\QUAKE"},
        {"DefaultScript", "c:\\games\\quake\\ID1", "c:\\games\\quake\\id1\\a.cfg"},
        {"Engines", "Seats", "C:\\GAMES\\QUAKE\\quakespasm;Z:\\usr\\games\\quakespasm;"},
        {"Setups", "Setup1", "1;Executable=C:\\GAMES\\QUAKE\\Q.EXE"},
    };
    const Values after = {
        {"Options", "Executables", "Quake;D:\\Play\\Quake\\Q.EXE;Unreal;Z:\\home\\me\\unreal\\System\\U.EXE"},
        {"Options", "Scripts", "a.cfg;d:\\play\\quake\\id1\\a.cfg"},
        {"Options", "Games", "C:\\GAMES\\QUAKE;-game ctf"},
        {"Options", "GameSpyLocation", "D:\\Play\\Quake\\Spy"},
        {"Options", "ScriptEditor", "D:\\Play\\Quake\\edit.exe"},
        {"Options", "CustomCommandLineText", "C:\\GAMES\\QUAKE"},
        {"DefaultScript", "d:\\play\\quake\\ID1", "d:\\play\\quake\\id1\\a.cfg"},
        {"Engines", "Seats", "D:\\Play\\Quake\\quakespasm;Z:\\usr\\games\\quakespasm;"},
        {"Setups", "Setup1", "1;Executable=D:\\Play\\Quake\\Q.EXE"},
    };
    EXPECT_EQ(MoveValues(before, kMoves).Value, after);
    EXPECT_EQ(MoveValues(after, kBack).Value, before);
}

TEST(PathMoves, KeepTheFirstOfTwoKeysThatBecomeOne) {
    const Values values = {{"DefaultScript", "C:\\A\\ID1", "a"}, {"DefaultScript", "C:\\B\\ID1", "b"}};
    EXPECT_EQ(MoveValues(values, {{"C:\\A", "D:\\Q"}, {"C:\\B", "d:\\q"}}).Value,
              (Values{{"DefaultScript", "D:\\Q\\ID1", "a"}}));
}

TEST(PathMoves, RefuseAPlaceThatWouldBreakALists) {
    const auto moved = MoveValues({{"Options", "Executables", "Q;C:\\A\\Q.EXE"}}, {{"C:\\A", "D:\\a;b"}});
    EXPECT_EQ(moved.Fault.Number, 5);
    EXPECT_EQ(moved.Fault.Text, "\"D:\\a;b\" can't stand in the lists: \";\" parts their entries.");
    EXPECT_TRUE(moved.Value.empty());
}

TEST(PathMoves, RefuseAListThatWouldBeTooLong) {
    Text list;
    while (list.size() < 15900) {
        list += "Q;C:\\A\\Q.EXE;";
    }
    const auto moved = MoveValues({{"Options", "Executables", list}}, {{"C:\\A", "D:\\a longer one"}});
    EXPECT_EQ(moved.Fault.Number, 5);
    EXPECT_EQ(moved.Fault.Text,
              "The list \"Executables\" would be too long with the new places in it. Shorter paths would do.");
}

}  // namespace lv
