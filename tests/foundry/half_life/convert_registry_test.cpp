#include "foundry/half_life/convert_registry.h"

#include "tests/foundry/half_life_fixture.h"
#include "tests/foundry/script_fixture.h"

namespace lv {
namespace {

TEST_F(HalfLifeTest, WritesTheSelectedProfile) {
    BeQuiet();
    Select("Gordon");
    Hold("gordon", "|chat nickname", "Dr. Freeman");
    Hold("gordon", "\\kb|119", "+forward");
    Hold("gordon", "\\cvar|plate color", "30");
    Hold("player", "|chat nickname", "Somebody else");
    ConvertRegistryToScript(run, kPath);
    EXPECT_EQ(CountLines(Script(), "name \"Dr. Freeman\""), 1);
    EXPECT_EQ(CountLines(Script(), "bind \"w\"             \"+forward\""), 1);
    EXPECT_EQ(CountLines(Script(), "plate_color 30"), 1);
    EXPECT_EQ(CountLines(Script(), "//* 11/21/1999      *//"), 1);
}

TEST_F(HalfLifeTest, WithoutASelectedProfileThePlayersNameIsPlayer) {
    BeQuiet();
    Hold("player", "|chat nickname", "Unknown soldier");
    ConvertRegistryToScript(run, kPath);
    EXPECT_EQ(CountLines(Script(), "name \"Unknown soldier\""), 1);
    Select("");
    ConvertRegistryToScript(run, kPath);
    EXPECT_EQ(CountLines(Script(), "name \"Unknown soldier\""), 1);
}

TEST_F(HalfLifeTest, AnEmptyRegistryGivesAScriptWithFewerLines) {
    BeQuiet();
    ConvertRegistryToScript(run, kPath);
    EXPECT_EQ(CountLines(Script(), "name \"\""), 1);
    EXPECT_FALSE(Holds(Script(), "bind"));
}

TEST_F(HalfLifeTest, WritesANumberAsItsDigits) {
    BeQuiet();
    system.Registry.Values[Join(kProfiles, "player\\cvar|rate")] = {kRegistryNumber, "", 3500};
    system.Registry.Values[Join(kProfiles, "player\\cvar|gamma")] = {3, "bytes", 0};
    ConvertRegistryToScript(run, kPath);
    EXPECT_EQ(CountLines(Script(), "Rate 3500"), 1);
    EXPECT_FALSE(Holds(Script(), "gamma"));
}

TEST_F(HalfLifeTest, TheSecondConversionOverwritesTheFirst) {
    BeQuiet();
    system.Disk.AddFile(kPath, "a script that somebody has edited");
    Hold("player", "|chat nickname", "first");
    ConvertRegistryToScript(run, kPath);
    Hold("player", "|chat nickname", "second");
    ConvertRegistryToScript(run, kPath);
    EXPECT_EQ(CountLines(Script(), "name \"second\""), 1);
    EXPECT_FALSE(Holds(Script(), "first"));
}

TEST_F(HalfLifeTest, AddsTheScriptToTheCatalogOnce) {
    BeQuiet();
    ConvertRegistryToScript(run, kPath);
    ConvertRegistryToScript(run, kPath);
    EXPECT_EQ(Stored(kOptions, "Scripts"), "Registry Settings;c:\\hl\\valve\\lv3dhlrg.cfg");
}

TEST_F(HalfLifeTest, TellsOfTheConversionUntilToldNotTo) {
    ExpectTold(kPath);
    ConvertRegistryToScript(run, kPath);
    EXPECT_NE(Stored("ShowMessage", "HalfLifeRegConversion"), "0");
    ExpectTold(kPath, true);
    ConvertRegistryToScript(run, kPath);
    EXPECT_EQ(Stored("ShowMessage", "HalfLifeRegConversion"), "0");
    ConvertRegistryToScript(run, kPath);
}

TEST_F(HalfLifeTest, TellsOfTheConversionOnlyIfTheSettingIsOne) {
    Save(run, "ShowMessage", "HalfLifeRegConversion", "2");
    ConvertRegistryToScript(run, kPath);
    EXPECT_TRUE(user.Asked.empty());
}

TEST_F(HalfLifeTest, AScriptThatCannotBeWrittenIsToldAndLeftAsItWas) {
    for (const int number : {61, 70, 75}) {
        system.Disk.AddFile(kPath, "the old one");
        system.Disk.Refused["c:\\hl\\valve\\lv3dhlrg.cfg"] = MakeError(number);
        ExpectFailure(number);
        ConvertRegistryToScript(run, kPath);
        EXPECT_EQ(Script(), "the old one");
        EXPECT_EQ(Stored(kOptions, "Scripts"), "(none)");
    }
}

TEST_F(HalfLifeTest, ARegistryThatDoesNotAnswerCostsNobodyHisScript) {
    system.Disk.AddFile(kPath, "the old one");
    system.Registry.RefuseQueries = MakeError(error::kDeviceFault);
    ExpectFailure(57);
    ConvertRegistryToScript(run, kPath);
    EXPECT_EQ(Script(), "the old one");
}

TEST_F(HalfLifeTest, WritesAScriptsSettingsToTheSelectedProfile) {
    Select("Gordon");
    system.Disk.AddFile("C:\\HL\\VALVE\\my.cfg", "name \"Me\"\r\nbind w \"+forward\"\r\nrate 2500\r\n+mlook\r\n");
    EXPECT_FALSE(ConvertScriptToRegistry(run, "c:\\hl\\valve\\MY.CFG"));
    EXPECT_EQ(Held("gordon", "|chat nickname"), "Me");
    EXPECT_EQ(Held("gordon", "\\kb|119"), "+forward");
    EXPECT_EQ(Held("gordon", "\\cvar|rate"), "2500");
    EXPECT_EQ(Held("gordon", "\\cvar|mlook"), "1");
    EXPECT_EQ(system.Registry.Values.size(), 5u);
}

TEST_F(HalfLifeTest, WritesBackWhatTheEditorHasRenamed) {
    system.Disk.AddFile("C:\\HL\\VALVE\\my.cfg", "s_volume 0.7\r\ns_mixahead 0.15\r\n");
    EXPECT_FALSE(ConvertScriptToRegistry(run, "C:\\HL\\VALVE\\my.cfg"));
    EXPECT_EQ(Held("player", "\\cvar|volume"), "0.7");
    EXPECT_EQ(Held("player", "\\cvar|_snd_mixahead"), "0.15");
    EXPECT_EQ(system.Registry.Values.size(), 2u);
}

TEST_F(HalfLifeTest, WritesTheMixAheadUnderItsOwnName) {
    system.Disk.AddFile("C:\\HL\\VALVE\\my.cfg", "_snd_mixahead 0.2");
    EXPECT_FALSE(ConvertScriptToRegistry(run, "C:\\HL\\VALVE\\my.cfg"));
    EXPECT_EQ(Held("player", "\\cvar|_snd_mixahead"), "0.2");
}

TEST_F(HalfLifeTest, NamesAKeyByThreeDigits) {
    system.Disk.AddFile("C:\\HL\\VALVE\\my.cfg", "bind tab x\nbind space y\nbind pause z\n");
    EXPECT_FALSE(ConvertScriptToRegistry(run, "C:\\HL\\VALVE\\my.cfg"));
    EXPECT_EQ(Held("player", "\\kb|009"), "x");
    EXPECT_EQ(Held("player", "\\kb|032"), "y");
    EXPECT_EQ(Held("player", "\\kb|255"), "z");
}

TEST_F(HalfLifeTest, LeavesWhatTheScriptDoesNotSet) {
    Hold("player", "\\kb|119", "+back");
    Hold("player", "\\cvar|gamma", "2");
    system.Disk.AddFile("C:\\HL\\VALVE\\my.cfg", "unbindall\ngamma\nbind w \"\"\nhello 1\n");
    const auto before = system.Registry.Values.size();
    EXPECT_FALSE(ConvertScriptToRegistry(run, "C:\\HL\\VALVE\\my.cfg"));
    EXPECT_EQ(Held("player", "\\kb|119"), "+back");
    EXPECT_EQ(Held("player", "\\cvar|gamma"), "2");
    EXPECT_EQ(system.Registry.Values.size(), before);
}

TEST_F(HalfLifeTest, WritesTextAsText) {
    system.Disk.AddFile("C:\\HL\\VALVE\\my.cfg", "gamma 2");
    EXPECT_FALSE(ConvertScriptToRegistry(run, "C:\\HL\\VALVE\\my.cfg"));
    EXPECT_EQ(system.Registry.Values[Join(kProfiles, "player\\cvar|gamma")].Type, kRegistryText);
}

TEST_F(HalfLifeTest, AScriptThatCannotBeOpenedIsToldAndNoError) {
    user.Expect(
        {"Script Not Opened",
         Join("Error opening specified script file.\r\n\r\nError Number = 53\r\nError String = ", MakeError(53).Text),
         0, false, true, "&OK"});
    EXPECT_FALSE(ConvertScriptToRegistry(run, "C:\\HL\\VALVE\\gone.cfg"));
    EXPECT_TRUE(system.Registry.Values.empty());
}

TEST_F(HalfLifeTest, PassesOnTheRegistrysErrors) {
    system.Disk.AddFile("C:\\HL\\VALVE\\my.cfg", "gamma 2");
    system.Registry.RefuseWrites = Error{5, "Access is denied."};
    EXPECT_EQ(ConvertScriptToRegistry(run, "C:\\HL\\VALVE\\my.cfg").Number, 5);
    system.Registry.RefuseQueries = MakeError(57);
    EXPECT_EQ(ConvertScriptToRegistry(run, "C:\\HL\\VALVE\\my.cfg").Number, 57);
}

TEST_F(HalfLifeTest, ReplacesALinkOfTheScriptsName) {
    BeQuiet();
    system.Disk.AddFile("C:\\HOME\\.bashrc", "mine");
    system.Disk.AddFileLink(kPath, "C:\\HOME\\.bashrc");
    ConvertRegistryToScript(run, kPath);
    EXPECT_EQ(system.Disk.Bytes("C:\\HOME\\.bashrc"), "mine");
    EXPECT_TRUE(Holds(Script(), "Setup Foundry"));
}

TEST_F(HalfLifeTest, AValveDirectoryThatIsALinkOutOfTheGameIsAskedAbout) {
    BeQuiet();
    system.Disk.AddDirectory("C:\\SRV");
    system.Disk.AddLink("C:\\HL\\valve", "C:\\SRV");
    run.DefaultGameDirectory = "C:\\HL";
    user.Expect({.Title = "Link To Another Place", .Text_ = "\"c:\\srv\"", .Answer = 0});
    ConvertRegistryToScript(run, kPath);
    EXPECT_FALSE(system.Disk.FileExists("C:\\SRV\\lv3dhlrg.cfg"));
    user.Expect({.Title = "Link To Another Place", .Text_ = "\"c:\\srv\"", .Answer = 1});
    ConvertRegistryToScript(run, kPath);
    EXPECT_TRUE(system.Disk.FileExists("C:\\SRV\\lv3dhlrg.cfg"));
}

TEST_F(HalfLifeTest, NoLaunchReadsALargeScript) {
    system.Disk.AddSparseFile("C:\\HL\\VALVE\\config.cfg", "bind w +forward\n", (8U << 20U) + 1);
    user.Expect({"Script Not Opened",
                 "Error opening specified script file.\r\n\r\nError Number = 7\r\nError String = The file is larger "
                 "than 8 MB: C:\\HL\\VALVE\\config.cfg"});
    EXPECT_FALSE(ConvertScriptToRegistry(run, "C:\\HL\\VALVE\\config.cfg"));
    EXPECT_TRUE(system.Registry.Values.empty());
    system.Disk.AddSparseFile("C:\\HL\\VALVE\\config.cfg", "bind w +forward\n", 8U << 20U);
    EXPECT_FALSE(ConvertScriptToRegistry(run, "C:\\HL\\VALVE\\config.cfg"));
    EXPECT_EQ(Held("player", "\\kb|119"), "+forward");
}

TEST_F(HalfLifeTest, NoLaunchReadsUtf16Text) {
    system.Disk.AddFile("C:\\HL\\VALVE\\config.cfg", TextView("\xFF\xFE"
                                                              "b\0",
                                                              4));
    user.Expect({"Script Not Opened",
                 "Error opening specified script file.\r\n\r\nError Number = 75\r\nError String = The file is UTF-16 "
                 "text: C:\\HL\\VALVE\\config.cfg. Save it as plain text (ANSI) first."});
    EXPECT_FALSE(ConvertScriptToRegistry(run, "C:\\HL\\VALVE\\config.cfg"));
    EXPECT_TRUE(system.Registry.Values.empty());
}

}  // namespace
}  // namespace lv
