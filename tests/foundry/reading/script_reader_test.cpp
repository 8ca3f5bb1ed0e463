#include "foundry/reading/script_reader.h"

#include <gtest/gtest.h>

#include "foundry/reading/list_finder.h"
#include "tests/foundry/reading.h"

namespace lv {
namespace {

/// The free-form text of the only section.
Text FreeFormOf(TextView script, Game kind = Game::Quake) {
    return ReadScript(kind, script).Sections.at(0).Text;
}

Text AliasesIn(TextView script, Game kind = Game::Quake) {
    return AliasesOf(ReadScript(kind, script));
}

bool IsForeign(TextView script, Game kind = Game::Quake) {
    ScriptView view;
    ScriptDocument document = MakeScriptDocument(DialectOf(kind));
    ReadInto(document, script, view);
    return document.Foreign;
}

/// The sections as "[Name]text", with "|" for a line end, joined by " ".
Text SectionsOf(const ScriptDocument& document) {
    Text all;
    for (const ScriptSection& section : document.Sections) {
        Text text;
        for (const char c : section.Text) {
            text += c == '\r' ? Text() : c == '\n' ? Text("|") : Text(1, c);
        }
        all += Join(all.empty() ? "" : " ", section.Name, text);
    }
    return all;
}

TEST(ReadAliases, LowersNameAndBody) {
    EXPECT_EQ(AliasesIn("Alias RJ \"+Jump; wait; +Attack\""), "rj=+jump; wait; +attack");
}

TEST(ReadAliases, WithoutQuotesKeepTheFirstWordOnly) {
    EXPECT_EQ(AliasesIn("alias rj +jump; wait; +attack"), "rj=+jump;");
}

TEST(ReadAliases, NeedANameAndABody) {
    EXPECT_EQ(AliasesIn("alias\nalias rj\nalias rj \"\"\nalias \"\" x"), "");
}

TEST(ReadAliases, KeepTheFirstDefinition) {
    EXPECT_EQ(AliasesIn("alias rj one\nalias RJ two"), "rj=one");
}

TEST(ReadAliases, AreSorted) {
    EXPECT_EQ(AliasesIn("alias b 1\nalias c 2\nalias a 3"), "a=3, b=1, c=2");
}

TEST(ReadAliases, StripQuotesFromKeywordAndName) {
    EXPECT_EQ(AliasesIn("\"alias\" \"rj\" x"), "rj=x");
}

TEST(ReadAliases, TakeEveryWordThatBeginsWithAlias) {
    EXPECT_EQ(AliasesIn("aliases rj x"), "rj=x");
    EXPECT_EQ(FreeFormOf("aliases rj x"), "aliases rj x");  // no keyword of the second pass
}

TEST(ReadAliases, DoNotSeeASetBeforeThem) {
    EXPECT_EQ(AliasesIn("set alias rj x"), "");
}

TEST(ReadAliases, AreCutAtAComment) {
    EXPECT_EQ(AliasesIn("alias rj x // y\n// alias a b\nalias c \"say http://x\""), "c=say http:, rj=x");
}

TEST(ReadAliases, OfUnrealStandInTheInputSection) {
    EXPECT_EQ(AliasesIn("[Engine.Input]\nAliases[0]=(Command=\"Fire | Jump\",Alias=Both)\n", Game::Unreal),
              "Both=Fire | Jump");
    EXPECT_EQ(AliasesIn("[engine.INPUT]\naliases[0]=(Command=\"Fire\",Alias=None)\n", Game::Unreal), "");
    EXPECT_EQ(AliasesIn("[Other]\nAliases[0]=(Command=\"Fire\",Alias=x)\n", Game::Unreal), "");
    EXPECT_EQ(AliasesIn("Aliases[0]=(Command=\"Fire\",Alias=x)\n[Engine.Input]\n", Game::Unreal), "");
    EXPECT_EQ(AliasesIn("[Engine.Input]\n[Other]\nAliases[0]=(Command=\"Fire\",Alias=x)\n", Game::Unreal), "");
}

TEST(ReadAliases, AreNotKeptInTheTextOfTheSection) {
    EXPECT_EQ(FreeFormOf("alias rj x\nalias broken"), "");
    EXPECT_EQ(SectionsOf(ReadScript(Game::Unreal, "[Engine.Input]\nAliases[0]=(Command=\"\",Alias=None)")),
              "[Engine.Input]");
}

TEST(ReadAliases, BeyondTheMostAreKeptInTheText) {
    Text script;
    for (int number = 0; number < 32769; ++number) {
        script += "alias n" + std::to_string(number) + " x\n";
    }
    const ScriptDocument document = ReadScript(Game::Quake, script);
    EXPECT_EQ(document.AliasTable.AliasCount(), 32767);
    EXPECT_EQ(document.Sections[0].Text, "alias n32767 x\r\nalias n32768 x");
}

TEST(ReadLines, BindsAndLosesTheComment) {
    const ScriptDocument document = ReadScript(Game::Quake, "bind a \"+attack\" // fire");
    EXPECT_EQ(BindingOf(document, "a"), "+attack");
    EXPECT_EQ(document.Sections[0].Text, "");
}

TEST(ReadLines, BindsInAnyCase) {
    const ScriptDocument document = ReadScript(Game::Quake, "BIND \"A\" \"+ATTACK\"");
    EXPECT_EQ(BindingOf(document, "a"), "+attack");
    EXPECT_EQ(document.Setting_Lbl[111].Caption, "{A}");
}

TEST(ReadLines, BindsTheFirstWordOfACommandWithoutQuotes) {
    EXPECT_EQ(BindingOf(ReadScript(Game::Quake, "bind a say hello"), "a"), "say");
}

TEST(ReadLines, DropsABindWithoutKeyOrCommand) {
    const ScriptDocument document = ReadScript(Game::Quake, "bind a\nbind \"\" x\nbind b \"\"\nbind\nset bind c d");
    EXPECT_EQ(BindingOf(document, "a"), "");
    EXPECT_EQ(BindingOf(document, "c"), "");
    EXPECT_EQ(document.Sections[0].Text, "");
}

TEST(ReadLines, KeepsTheLastBindingOfAKey) {
    const ScriptDocument document = ReadScript(Game::Quake, "bind < +attack\nbind , +jump");
    EXPECT_EQ(BindingOf(document, ","), "+jump");
    EXPECT_EQ(document.Setting_Lbl[111].Caption, "");
}

TEST(ReadLines, GivesTheKeypadItsOwnKeys) {
    EXPECT_EQ(ReadScript(Game::Quake2, "bind KP_HOME +attack").KeyBinding[84], "+attack");
    EXPECT_EQ(ReadScript(Game::Quake2, "bind numpad7 +attack").KeyBinding[84], "+attack");
}

TEST(ReadLines, FillsTwoMessagesWithTheSameWordsToTheTeam) {
    const ScriptDocument document = ReadScript(Game::Quake, "bind x \"say_team hello\"\nbind y \"say_team hello\"");
    EXPECT_EQ(document.Bound_Lbl[801].Caption, " hello");
    EXPECT_EQ(document.Bound_Lbl[802].Caption, " hello");
    EXPECT_EQ(BindingOf(document, "y"), "say_team hello");
}

TEST(ReadLines, TakesTheCommandOfAnotherKindsWeaponForItsSlot) {
    const ScriptDocument document = ReadScript(Game::Quake, "bind q \"use blaster\"");
    EXPECT_EQ(document.Setting_Lbl[201].Caption, "{Q}");
    EXPECT_EQ(BindingOf(document, "q"), "impulse 1");
}

TEST(ReadLines, TakesCaptureTheFlagInQuakeOnly) {
    EXPECT_EQ(ReadScript(Game::Quake, "bind a \"impulse 20\"").Setting_Lbl[1001].Caption, "{A}");
    EXPECT_EQ(BindingOf(ReadScript(Game::Quake2, "bind a \"impulse 20\""), "a"), "");
}

TEST(ReadLines, BindsAnAliasThatIsDefinedBelow) {
    const ScriptDocument document = ReadScript(Game::Quake, "bind a rj\nalias rj \"+jump\"");
    EXPECT_EQ(document.Bound_Lbl[601].Caption, " rj");
    EXPECT_TRUE(document.AliasTable[0].Bound);
}

TEST(ReadLines, KeepsAnUnknownLineCutAtItsComment) {
    EXPECT_EQ(FreeFormOf("  gl_flashblend 0   // no glow\ncl_hightrack"), "gl_flashblend 0\r\ncl_hightrack");
}

TEST(ReadLines, KeepsUnbindAndOtherCommands) {
    EXPECT_EQ(FreeFormOf("unbind a\nexec other.cfg\nwait;wait"), "unbind a\r\nexec other.cfg\r\nwait;wait");
}

TEST(ReadLines, KeepsAFullLineComment) {
    EXPECT_EQ(FreeFormOf("  // mine  \n//mine too//\n//"), "// mine\r\n//mine too//\r\n//");
}

TEST(ReadLines, DropsTheWritersComments) {
    EXPECT_EQ(FreeFormOf("//*/////////////////*//\n//* Settings        *//\n//* anything"), "");
}

TEST(ReadLines, DropsTheOldMarkers) {
    EXPECT_EQ(FreeFormOf("/////////////////////\n//                 //\n// Setup Foundry   //\n// Settings        //\n"
                         "// Aliases         //\n// Bindings        //\n// Free Form       //"),
              "");
    EXPECT_EQ(FreeFormOf("// Settings        // x"), "// Settings        // x");
}

TEST(ReadLines, TellsAForeignScriptByItsBanner) {
    EXPECT_TRUE(IsForeign("bind a b"));
    EXPECT_FALSE(IsForeign("//* Setup Foundry   *//"));
    EXPECT_FALSE(IsForeign("// Setup Foundry   //"));
    EXPECT_FALSE(IsForeign("bind a b //* Setup Foundry   *//"));
    EXPECT_TRUE(IsForeign("//* SetupFoundry    *//"));
    EXPECT_TRUE(IsForeign("//* setup foundry   *//"));
    EXPECT_TRUE(IsForeign("Setup Foundry"));
}

TEST(ReadLines, TellsAForeignIniByTheOwnSection) {
    EXPECT_TRUE(IsForeign("[Engine.Input]\nA=Fire", Game::Unreal));
    EXPECT_FALSE(IsForeign("[Engine.Input]\nA=Fire\n[Lorvane 3D]\nLastEdited=11/21/1999", Game::Unreal));
}

TEST(ReadLines, ReadsAHardBlankAsABlank) {
    EXPECT_EQ(BindingOf(ReadScript(Game::Quake,
                                   "\xA0"
                                   "bind\xA0"
                                   "a\xA0+attack\xA0"),
                        "a"),
              "+attack");
    EXPECT_EQ(FreeFormOf("x\xA0y\xA0"), "x y");
    EXPECT_EQ(FreeFormOf("\xA0"), "");
    EXPECT_EQ(FreeFormOf("// x\xA0y"), "// x\xA0y");
}

TEST(ReadLines, PassesOverZeroBytes) {
    EXPECT_EQ(FreeFormOf(Text("r_a\0 1\n\0\nx\0y\n//\0 note", 21)), "r_a 1\r\nxy\r\n// note");
    const ScriptDocument document = ReadScript(Game::Quake, Text("\0bi\0nd w +for\0ward\nname \"M\0e\"\n"
                                                                 "bind x \"say he\0llo\"\nalias z\0oom \"fov\0 40\"\n",
                                                                 72));
    EXPECT_EQ(BindingOf(document, "w"), "+forward");
    EXPECT_EQ(document.Name_Txt.Text, "Me");
    EXPECT_EQ(BindingOf(document, "x"), "say hello");
    EXPECT_EQ(document.Bound_Lbl[801].Caption, " hello");
    EXPECT_EQ(AliasesOf(document), "zoom=fov 40");
}

TEST(ReadLines, PassesOverZeroBytesOfAnIni) {
    const ScriptDocument document =
        ReadScript(Game::Unreal, Text("[Engine.In\0put]\nW=Mo\0veForward\n[Cor\0e]\nx\0y=1\n", 45));
    EXPECT_EQ(BindingOf(document, "w"), "MoveForward");
    ASSERT_EQ(document.Sections.size(), 2U);
    EXPECT_EQ(document.Sections[1].Name, "[Core]");
    EXPECT_EQ(document.Sections[1].Text, "xy=1");
}

TEST(ReadLines, ReadsATabAsABlankOutsideQuotes) {
    const ScriptDocument document = ReadScript(Game::Quake,
                                               "bind w\t\"+forward\"\n"
                                               "\tbind\t\ts\t+back\t// and back\n"
                                               "sensitivity\t\"5\"\n"
                                               "set\tfov\t\"100\"\t\n"
                                               "name\t\"a\tb\"\n"
                                               "bind\tx \"say a\tb\"\n"
                                               "alias\tzoom\t\"fov\t40\"\n");
    EXPECT_EQ(BindingOf(document, "w"), "+forward");
    EXPECT_EQ(BindingOf(document, "s"), "+back");
    EXPECT_EQ(BindingOf(document, "x"), "say a\tb");
    EXPECT_EQ(document.MouseSensitivity_Cbo.Selected(), "5.0");
    EXPECT_EQ(document.fov_Cbo.Selected(), "100");
    EXPECT_EQ(document.Name_Txt.Text, "a\tb");
    EXPECT_EQ(AliasesOf(document), "zoom=fov\t40");
    EXPECT_EQ(document.Sections[0].Text, "");
}

TEST(ReadLines, KeepsTheTabsOfWhatItDoesNotKnow) {
    EXPECT_EQ(FreeFormOf("\tgl_max_size\t256\t\n\t// a\tcomment\n \t \nx"), "gl_max_size\t256\r\n// a\tcomment\r\nx");
}

TEST(ReadLines, ReadsATabOfAnIniAsABlank) {
    const ScriptDocument document = ReadScript(Game::Unreal,
                                               "[Engine.Input]\t\n"
                                               "W=\tMoveForward\n"
                                               "F10=\t Cancel\t\n"
                                               "MouseX=Axis\taMouseX Speed=\t6.0\n"
                                               "[Engine.PlayerPawn]\n"
                                               "Bob=\t0.016000\n"
                                               "Other=\t1\n");
    EXPECT_EQ(document.Setting_Lbl[101].Caption, "{W}");
    EXPECT_EQ(document.Setting_Lbl[411].Caption, "{F10}");
    EXPECT_EQ(document.MouseBind_Cbo[0].Selected(), "6.0");
    EXPECT_EQ(document.PlayerPawn_Cbo[1].Selected(), "0.016000");
    EXPECT_EQ(document.Sections[1].Text, "Other=\t1");
}

TEST(ReadLines, DropsBlankLines) {
    EXPECT_EQ(FreeFormOf("x\n\n   \ny"), "x\r\ny");
}

TEST(ReadLines, LosesAllBelowAHundredAndOneBlankLines) {
    const Text script = "x1\n" + Text(101, '\n') + "x2\nalias rj x\nbind a +attack";
    EXPECT_EQ(FreeFormOf(script), "x1");
    EXPECT_EQ(AliasesIn(script), "");
    EXPECT_EQ(BindingOf(ReadScript(Game::Quake, script), "a"), "");
    EXPECT_EQ(FreeFormOf("x1\n" + Text(100, '\n') + "x2"), "x1\r\nx2");
}

TEST(ReadLines, ReadsSetAsTheLineBehindIt) {
    const ScriptDocument document = ReadScript(Game::Quake, "set joystick 1\nSET fov 95\nset unknown 1\nset");
    EXPECT_EQ(document.JoyStick_Chk.Value, 1);
    EXPECT_EQ(document.fov_Cbo.Selected(), "95");
    EXPECT_EQ(document.Sections[0].Text, "set unknown 1\r\nset");
}

TEST(ReadLines, SetGivesOneValueOnly) {
    const ScriptDocument document = ReadScript(Game::Quake, "set color 3 4");
    EXPECT_EQ(document.PlayerColor_Lbl[0].Tag, 3);
    EXPECT_EQ(document.PlayerColor_Lbl[1].Tag, 3);
}

TEST(ReadLines, StripsQuotesFromTheKeyword) {
    EXPECT_EQ(ReadScript(Game::Quake, "\"FOV\" \"95\"").fov_Cbo.Selected(), "95");
}

TEST(ReadLines, KeepsTheLastValueOfARepeatedSetting) {
    EXPECT_EQ(ReadScript(Game::Quake, "fov 95\nfov 100").fov_Cbo.Selected(), "100");
}

TEST(ReadLines, DropsAKeywordAlone) {
    EXPECT_EQ(FreeFormOf("fov\ngamma \"\"\ncl_bob\ncolor\nvid_mode\nname\nm_pitch\ncl_run"), "");
    EXPECT_EQ(ReadScript(Game::Quake, "fov").fov_Cbo.ListIndex, -1);
}

TEST(ReadLines, OpensASectionAtABracketInAnyKind) {
    const ScriptDocument document = ReadScript(Game::Quake, "x\n[One]\ny\n [Two] // z\nw");
    EXPECT_EQ(SectionsOf(document), "[One]x|y [Two]w");
    EXPECT_FALSE(document.Section_Cbo.Visible);
}

TEST(ReadLines, KeepsTheTextOfEachSectionOfAnIni) {
    const ScriptDocument document =
        ReadScript(Game::Unreal, "; top\n[URL]\nProtocol=unreal\n\n[Engine.Pawn]\nX=1\nY=2");
    EXPECT_EQ(SectionsOf(document), "[URL]; top|Protocol=unreal [Engine.Pawn]X=1|Y=2");
    EXPECT_EQ(document.Section_Cbo.Items, (std::vector<Text>{"[URL]", "[Engine.Pawn]"}));
    EXPECT_EQ(document.Section_Cbo.ListIndex, 0);
    EXPECT_TRUE(document.Section_Cbo.Visible);
}

TEST(ReadLines, ShowsTheTextOfAnIniWithoutSections) {
    const ScriptDocument document = ReadScript(Game::Unreal, "X=1");
    EXPECT_EQ(document.Section_Cbo.Items, std::vector<Text>{""});
    EXPECT_EQ(document.Section_Cbo.ListIndex, 0);
    EXPECT_EQ(SectionsOf(document), "X=1");
    EXPECT_EQ(ReadScript(Game::Unreal, "").Section_Cbo.ListIndex, -1);
}

TEST(ReadLines, KeepsSectionsOfTheSameNameApart) {
    EXPECT_EQ(SectionsOf(ReadScript(Game::Unreal, "[A]\nx=1\n[A]\ny=2")), "[A]x=1 [A]y=2");
}

TEST(ReadLines, IgnoresTheOwnSectionAndItsLines) {
    const ScriptDocument document =
        ReadScript(Game::Unreal, "[URL]\nx=1\n[LORVANE 3d]\nLastEdited=1\nGamma=0.5\n// note\n[Engine.Pawn]\ny=2");
    EXPECT_EQ(SectionsOf(document), "[URL]x=1 [Engine.Pawn]y=2");
    EXPECT_EQ(document.gamma_Cbo.ListIndex, -1);
    EXPECT_EQ(document.Section_Cbo.Items.size(), 2);
}

TEST(ReadLines, ThatStandInTheOwnSectionFirstOpenNone) {
    const ScriptDocument document = ReadScript(Game::Unreal, "[Lorvane 3D]\nx=1\n[URL]\ny=2");
    EXPECT_EQ(SectionsOf(document), "[URL]y=2");
}

TEST(ReadLines, KeepsTheHeadsOfTooManySectionsAsLines) {
    Text script;
    for (int number = 0; number < 32768; ++number) {
        script += "[" + std::to_string(number) + "]\n";
    }
    const ScriptDocument document = ReadScript(Game::Unreal, script + "x=1");
    EXPECT_EQ(document.Sections.size(), 32767);
    EXPECT_EQ(document.Section_Cbo.Items.size(), 32767);
    EXPECT_EQ(document.Sections.back().Text, "[32767]\r\nx=1");
}

TEST(ReadLines, SetsTheConsolesListFromAnIni) {
    const ScriptDocument document = ReadScript(Game::Unreal, "[Any]\nGamma=0.5");
    EXPECT_EQ(document.gamma_Cbo.Selected(), "0.5");
    EXPECT_EQ(document.Sections[0].Text, "");
}

TEST(ReadLines, BindsTheKeysOfTheInputSection) {
    const ScriptDocument document =
        ReadScript(Game::Unreal,
                   "[Engine.Input]\nA=Fire\nLeftMouse=AltFire\nJ=\nEscape=Quit\nCapsLock=Quit\nEnter=jump\nB=Say hi");
    EXPECT_EQ(BindingOf(document, "a"), "Fire");
    EXPECT_EQ(BindingOf(document, "mouse1"), "AltFire");
    EXPECT_EQ(BindingOf(document, "j"), "");
    EXPECT_EQ(document.KeyBinding[75], "Jump");
    EXPECT_EQ(document.KeyBinding[93], "");
    EXPECT_EQ(BindingOf(document, "b"), "Say hi");
    EXPECT_EQ(document.Sections[0].Text, "");
}

TEST(ReadLines, KeepsAKeyThatUnrealAloneKnows) {
    const ScriptDocument document = ReadScript(Game::Unreal, "[Engine.Input]\nMinus=Fire\nA=Fire\nIME=Jump | Fire");
    EXPECT_EQ(document.Sections[0].Text, "minus=Fire\r\n\r\nime=Jump | Fire\r\n");
    EXPECT_EQ(document.Setting_Lbl[111].Caption, "{A}");
}

TEST(ReadLines, BindsWithoutTheKeywordInTheInputSectionOnly) {
    EXPECT_EQ(SectionsOf(ReadScript(Game::Unreal, "[Other]\nA=Fire")), "[Other]A=Fire");
}

TEST(ReadLines, ReadsTheSpeedOfTheMouse) {
    const ScriptDocument document =
        ReadScript(Game::Unreal, "[Engine.Input]\nMouseX=Axis aMouseX Speed=6.0\nMOUSEY=axis amousey speed=17.5");
    EXPECT_EQ(document.MouseBind_Cbo[0].Selected(), "6.0");
    EXPECT_EQ(document.MouseBind_Cbo[1].Selected(), "17.5");
    EXPECT_EQ(document.Sections[0].Text, "");
}

TEST(ReadLines, TakesAnotherUseOfTheMouseForAnUnknownKey) {
    const ScriptDocument document =
        ReadScript(Game::Unreal,
                   "[Engine.Input]\nMouseX=Axis aMouseY Speed=6.0\nMouseY=Axis aMouseX Speed=2\n"
                   "MouseY=Count bYAxis | Axis aMouseY Speed=6.0\nMouseX=Fire");
    EXPECT_EQ(document.Sections[0].Text,
              "mousex=Axis aMouseY Speed=6.0\r\n\r\nmousey=Axis aMouseX Speed=2\r\n\r\n"
              "mousey=Count bYAxis | Axis aMouseY Speed=6.0\r\n\r\nmousex=Fire\r\n");
    EXPECT_EQ(document.MouseBind_Cbo[0].ListIndex, -1);
}

TEST(ReadLines, DropsAMouseWithoutASpeed) {
    const ScriptDocument document =
        ReadScript(Game::Unreal, "[Engine.Input]\nMouseX=Axis aMouseX Speed\nMouseY=Axis aMouseY Speed=");
    EXPECT_EQ(document.MouseBind_Cbo[0].ListIndex, -1);
    EXPECT_EQ(document.MouseBind_Cbo[1].ListIndex, -1);
}

TEST(ReadLines, PutsTheWeaponsInTheOrderOfTheirPriority) {
    const ScriptDocument document =
        ReadScript(Game::Unreal,
                   "[Engine.PlayerPawn]\nWeaponPriority[0]=DispersionPistol\nWeaponPriority[1]=asmd\n"
                   "WeaponPriority[2]=None\nWeaponPriority[7]=Quadshot\nWeaponPriority[8]=ASMD\nWeaponPriority[9]=");
    EXPECT_EQ(document.WeaponsPriority_Lst.Items, (std::vector<Text>{"ASMD", "Quadshot", "DispersionPistol"}));
    EXPECT_EQ(document.WeaponPriority[1], "asmd");
    EXPECT_EQ(document.WeaponPriority[2], "");
    EXPECT_EQ(RowOf(document.WeaponsAvailable_Lst, "asmd"), -1);
    EXPECT_EQ(RowOf(document.WeaponsAvailable_Lst, "Quadshot"), -1);
    EXPECT_NE(RowOf(document.WeaponsAvailable_Lst, "Stinger"), -1);
    EXPECT_EQ(document.Sections[0].Text, "");
}

TEST(ReadLines, KeepsAWeaponWithoutAPlace) {
    const ScriptDocument document =
        ReadScript(Game::Unreal, "[P]\nWeaponPriority[51]=Stinger\nWeaponPriority[-1]=ASMD\nWeaponPriority[x]=Rifle");
    EXPECT_EQ(document.Sections[0].Text, "WeaponPriority[51]=Stinger\r\nWeaponPriority[-1]=ASMD");
    EXPECT_EQ(document.WeaponPriority[0], "Rifle");
}

TEST(ReadLines, LeavesTheWeaponListsAloneInConsoleScripts) {
    const ScriptDocument document = ReadScript(Game::Quake, "weaponpriority[0]=ASMD");
    EXPECT_EQ(document.Sections[0].Text, "weaponpriority[0]=ASMD");
    EXPECT_TRUE(document.WeaponsPriority_Lst.Items.empty());
}

TEST(ReadLines, KeepsLinesWithoutAnEqualsSignInAnIni) {
    EXPECT_EQ(SectionsOf(ReadScript(Game::Unreal, "[A]\nfoo\nset fov 90\n=x")), "[A]foo|set fov 90|=x");
}

TEST(ReadLines, ChoosesModelAndSkinWhenAllIsRead) {
    ScriptView view;
    ScriptDocument document = MakeScriptDocument(DialectOf(Game::Quake2));
    document.Sex_Cbo.Items = {"female", "male"};
    const Text script = "skin female/jezebel\nskin \"Male/Grunt\"";
    BytesFile file(script);
    int chosen = 0;
    ReadLines(file, document, view, 100, [&] {
        ++chosen;
        EXPECT_EQ(document.Sex_Cbo.Selected(), "male");
        document.Skin_Cbo.Items = {"cipher", "grunt"};
    });
    EXPECT_EQ(chosen, 1);
    EXPECT_EQ(document.Skin_Cbo.Selected(), "grunt");
}

TEST(ReadLines, AddsAModelAndASkinThatAreNotThere) {
    const ScriptDocument document = ReadScript(Game::Quake2, "skin cyborg/oni911");
    EXPECT_EQ(document.Sex_Cbo.Selected(), "cyborg");
    EXPECT_EQ(document.Skin_Cbo.Selected(), "oni911");
}

TEST(ReadLines, ChoosesOnlyTheHalfOfASkinThatIsThere) {
    EXPECT_EQ(ReadScript(Game::Quake2, "skin male").Skin_Cbo.ListIndex, -1);
    EXPECT_EQ(ReadScript(Game::Quake2, "skin male").Sex_Cbo.Selected(), "male");
    EXPECT_EQ(ReadScript(Game::Quake2, "skin /grunt").Sex_Cbo.ListIndex, -1);
    EXPECT_EQ(ReadScript(Game::Quake2, "skin /grunt").Skin_Cbo.Selected(), "grunt");
}

TEST(ReadLines, FindsTheSkinOfQuakeWorldWithItsEnding) {
    ScriptView view;
    for (const char* line : {"skin BASE", "skin base.pcx"}) {
        ScriptDocument document = MakeScriptDocument(DialectOf(Game::Quake, true));
        document.Skin_Fil.Items = {"a.pcx", "base.pcx"};
        ReadInto(document, line, view);
        EXPECT_EQ(document.Skin_Fil.ListIndex, 1) << line;
    }
}

TEST(ReadLines, SelectsNoSkinThatTheFileListLacks) {
    ScriptView view;
    ScriptDocument document = MakeScriptDocument(DialectOf(Game::Quake, true));
    document.Skin_Fil.Items = {"a.pcx"};
    ReadInto(document, "skin other", view);
    EXPECT_EQ(document.Skin_Fil.ListIndex, -1);
    EXPECT_EQ(document.Skin_Fil.Items.size(), 1);
    EXPECT_EQ(document.Sections[0].Text, "");
}

TEST(ReadLines, PassesBytesAbove127Through) {
    Text line = "x";
    for (int byte = 128; byte < 256; ++byte) {
        line += static_cast<char>(byte);
    }
    Text expected = line;
    std::ranges::replace(expected, '\xA0', ' ');
    EXPECT_EQ(FreeFormOf(line), expected);
}

TEST(ReadLines, OfAnEmptyFileGiveAnEmptyDocument) {
    const ScriptDocument document = ReadScript(Game::Quake, "");
    EXPECT_EQ(document.Sections.size(), 1);
    EXPECT_EQ(document.Sections[0].Text, "");
    EXPECT_TRUE(document.AliasTable.empty());
}

TEST(ReadLines, BindsTheKeysOfAnInputSectionInAConsoleScriptToo) {
    const ScriptDocument document =
        ReadScript(Game::Quake, "[engine.input]\nA=+attack\nMinus=+jump\nbind b +back\n[Other]\nc=+jump");
    EXPECT_EQ(BindingOf(document, "a"), "+attack");
    EXPECT_EQ(BindingOf(document, "b"), "");
    EXPECT_EQ(BindingOf(document, "c"), "");
    EXPECT_EQ(SectionsOf(document), "[engine.input] [Other]c=+jump");  // an unknown key is dropped without a word
}

TEST(ReadLines, IgnoreTheOwnSectionOfAConsoleScript) {
    const ScriptDocument document = ReadScript(Game::Quake, "x\n[Lorvane 3D]\nfov 97\n// y\n[Other]\nz");
    EXPECT_EQ(document.fov_Cbo.ListIndex, -1);
    EXPECT_EQ(SectionsOf(document), "[Other]x|z");
}

TEST(ReadLines, TakeTheOwnSectionOfAConsoleScriptForNoBanner) {
    EXPECT_TRUE(IsForeign("[Lorvane 3D]\nx"));
}

TEST(ReadLines, AddAModelAndASkinAsTheyAreSpelled) {
    const ScriptDocument document = ReadScript(Game::Quake2, "skin Cyborg/ONI911");
    EXPECT_EQ(document.Sex_Cbo.Selected(), "Cyborg");
    EXPECT_EQ(document.Skin_Cbo.Selected(), "ONI911");
}

}  // namespace
}  // namespace lv
