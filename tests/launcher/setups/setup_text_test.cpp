#include "launcher/setups/setup_text.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

using enum Option;

Setup Flag() {
    lv::Setup setup;
    setup.ExecutablePath = "C:\\QUAKE\\GLQUAKE.EXE";
    setup.Ticked = {Game_Chk, Map_Chk};
    setup.Modification = "-game ctf";
    setup.Map = "CTF1";
    setup.VideoProfile = "Base";
    setup.CommandLineAdditions = "+skill 3; +map \"%1\"";
    return setup;
}

TEST(SetupText, IsOneLineOfFields) {
    EXPECT_EQ(TextOfSetup(Flag()),
              "1;Executable=C:\\QUAKE\\GLQUAKE.EXE;Ticked=Game_Chk,Map_Chk;Modification=-game ctf;Map=CTF1;"
              "VideoProfile=Base;CommandLine=+skill 3%3B +map \"%251\"");
}

TEST(SetupText, ReadsBackAllThatASetupHolds) {
    EXPECT_EQ(SetupOfText(TextOfSetup(Flag())), Flag());
    lv::Setup full = Flag();
    full.Memory = "-winmem 16";
    full.Script = "c:\\quake\\ctf\\flag.cfg";
    full.Demo = "";
    full.Server = "club.example;26000;0; pass ";
    for (std::size_t i = 0; i < kOptionCount; ++i) {
        full.Ticked.Set(static_cast<Option>(i));
    }
    EXPECT_EQ(SetupOfText(TextOfSetup(full)), full);
}

TEST(SetupText, KeepsEveryByte) {
    Text all;
    for (int byte = 0; byte < 256; ++byte) {
        all += static_cast<char>(byte);
    }
    EXPECT_EQ(Unescaped(Escaped(all)), all);
    for (const char character : Escaped(all)) {
        EXPECT_NE(character, ';');
        EXPECT_GE(static_cast<unsigned char>(character), 0x20);
        EXPECT_NE(character, 0x7F);
    }
}

TEST(SetupText, EscapesBlanksAtItsEndsAlone) {
    EXPECT_EQ(Escaped(" a b "), "%20a b%20");
    EXPECT_EQ(Escaped(" "), "%20");
    EXPECT_EQ(Escaped(""), "");
    EXPECT_EQ(Escaped("100%"), "100%25");
    EXPECT_EQ(Escaped("\r\n\t"), "%0D%0A%09");
}

TEST(SetupText, RefusesWhatIsNoEscape) {
    EXPECT_EQ(Unescaped("%"), std::nullopt);
    EXPECT_EQ(Unescaped("%2"), std::nullopt);
    EXPECT_EQ(Unescaped("%G0"), std::nullopt);
    EXPECT_EQ(Unescaped("%3b"), std::nullopt);
    EXPECT_EQ(Unescaped("a%20b"), "a b");
}

TEST(SetupText, RefusesWhatIsDamaged) {
    for (const char* text : {"", "1", "2;Executable=C:\\A.EXE", "Executable=C:\\A.EXE", "1;Executable=",
                             "1;Ticked=Game_Chk", "1;Executable=C:\\A.EXE;", "1;Executable=C:\\A.EXE;Map",
                             "1;Executable=C:\\A.EXE;Colour=red", "1;Executable=C:\\A.EXE;Ticked=Game_Chk,No_Chk",
                             "1;Executable=C:\\A.EXE;Map=%1", "1;;Executable=C:\\A.EXE"}) {
        EXPECT_EQ(SetupOfText(text), std::nullopt) << text;
    }
}

TEST(SetupText, TakesFieldsThatAreNotThereAsEmpty) {
    lv::Setup setup;
    setup.ExecutablePath = "C:\\A.EXE";
    EXPECT_EQ(SetupOfText("1;Executable=C:\\A.EXE"), setup);
    EXPECT_EQ(SetupOfText("1;Executable=C:\\A.EXE;Ticked="), setup);
}

}  // namespace
}  // namespace lv
