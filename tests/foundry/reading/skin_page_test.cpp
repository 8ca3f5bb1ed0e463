#include "foundry/reading/skin_page.h"

#include <gtest/gtest.h>

#include "foundry/reading/open_script.h"
#include "platform/memory/memory_platform.h"
#include "tests/foundry/reading.h"
#include "tests/support/scripted_user.h"

namespace lv {
namespace {

class SkinPageTest : public ::testing::Test {
  protected:
    SkinPageTest() {
        run.DefaultGameDirectory = "C:\\QUAKE2";
        run.BaseGameDir = "BASEQ2";
        for (const char* file :
             {"male\\grunt.pcx", "male\\grunt_i.pcx", "male\\cipher.PCX", "male\\weapon.pcx", "male\\pain.pcx",
              "male\\tris.md2", "female\\athena.pcx", "female\\Jezebel.pcx", "note.txt"}) {
            system.Disk.AddFile(Join("C:\\QUAKE2\\BASEQ2\\players\\", file));
        }
        document.CurrentScriptDirectory = "C:\\QUAKE2\\BASEQ2\\";
    }
    void Use(Game kind, bool quakeWorld = false) {
        run.GameKind = kind;
        run.ScriptFamily = DialectOf(kind).ScriptFamily;
        run.IsQuakeWorld = quakeWorld;
        document.Dialect = DialectOfRun(run);
    }

    MemoryPlatform system;
    ScriptedUser user;
    lv::Run run{system.Services, user};
    ScriptDocument document;
};

using Names = std::vector<Text>;

TEST_F(SkinPageTest, ListsTheModelsAndTheSkinsOfTheFirst) {
    Use(Game::Quake2);
    PrepareSkinPage(run, document);
    EXPECT_EQ(document.Sex_Cbo.Items, (Names{"female", "male"}));
    EXPECT_EQ(document.Sex_Cbo.ListIndex, 0);
    EXPECT_EQ(document.Skin_Cbo.Items, (Names{"athena", "Jezebel"}));
    EXPECT_EQ(document.Skin_Cbo.ListIndex, -1);
}

TEST_F(SkinPageTest, ListsTheSkinsOfTheChosenModel) {
    Use(Game::Quake2);
    PrepareSkinPage(run, document);
    document.Sex_Cbo.ListIndex = 1;
    Sex_Cbo_Click(run, document);
    EXPECT_EQ(document.Skin_Cbo.Items, (Names{"cipher", "grunt"}));
}

TEST_F(SkinPageTest, TakesTheSkinsFromTheDirectoryOfTheScript) {
    Use(Game::Quake2);
    system.Disk.AddFile("C:\\QUAKE2\\CTF\\players\\female\\ctf_r.pcx");
    document.CurrentScriptDirectory = "C:\\QUAKE2\\CTF\\";
    PrepareSkinPage(run, document);
    EXPECT_EQ(document.Skin_Cbo.Items, Names{"ctf_r"});
}

TEST_F(SkinPageTest, IsEmptyWithoutThePlayersDirectory) {
    Use(Game::HalfLife);
    run.DefaultGameDirectory = "C:\\HALFLIFE";
    PrepareSkinPage(run, document);
    EXPECT_TRUE(document.Sex_Cbo.Items.empty());
    EXPECT_EQ(document.Sex_Cbo.ListIndex, -1);
    EXPECT_TRUE(document.Skin_Cbo.Items.empty());
}

TEST_F(SkinPageTest, TellsThatTheModelsCannotBeRead) {
    Use(Game::Quake2);
    system.Disk.Unreadable.insert("c:\\quake2\\baseq2\\players");
    user.Expect({.Title = "Error",
                 .Text_ = "The following error occured attempting to build the models list...\r\n"
                          "Error #75 - Path/File access error\r\nCurrent File = \r\n"
                          "Q2dir$ = C:\\QUAKE2\\BASEQ2\\players\\",
                 .Whole = true,
                 .Buttons = "OK"});
    PrepareSkinPage(run, document);
    EXPECT_TRUE(document.Sex_Cbo.Items.empty());
}

TEST_F(SkinPageTest, TellsThatTheSkinsCannotBeRead) {
    Use(Game::Quake2);
    system.Disk.Unreadable.insert("c:\\quake2\\baseq2\\players\\female");
    user.Expect({.Title = "Error", .Text_ = "attempting to build the skins list...", .Buttons = "OK"});
    PrepareSkinPage(run, document);
    EXPECT_TRUE(document.Skin_Cbo.Items.empty());
}

TEST_F(SkinPageTest, ListsTheSkinsOfQuakeWorld) {
    Use(Game::Quake, true);
    run.DefaultGameDirectory = "C:\\QUAKE";
    for (const char* file : {"b.pcx", "A.PCX", "c.txt"}) {
        system.Disk.AddFile(Join("C:\\QUAKE\\qw\\skins\\", file));
    }
    PrepareSkinPage(run, document);
    EXPECT_EQ(document.Skin_Fil.Path, "C:\\QUAKE\\qw\\skins");
    EXPECT_EQ(document.Skin_Fil.Pattern, "*.pcx");
    EXPECT_EQ(document.Skin_Fil.Items, (Names{"A.PCX", "b.pcx"}));
    EXPECT_EQ(document.Skin_Fil.ListIndex, -1);
    EXPECT_TRUE(document.Sex_Cbo.Items.empty());
}

TEST_F(SkinPageTest, PointsNowhereWithoutTheSkinsOfQuakeWorld) {
    Use(Game::Quake, true);
    PrepareSkinPage(run, document);
    EXPECT_EQ(document.Skin_Fil.Path, "");
    EXPECT_TRUE(document.Skin_Fil.Items.empty());
}

TEST_F(SkinPageTest, ReadsModelAndSkinOfAScript) {
    Use(Game::Quake2);
    ScriptView view;
    system.Disk.AddFile("C:\\QUAKE2\\BASEQ2\\my.cfg", "// Setup Foundry   //\nskin male/GRUNT");
    EXPECT_TRUE(OpenScript(run, document, view, "C:\\QUAKE2\\BASEQ2\\my.cfg"));
    EXPECT_EQ(document.Sex_Cbo.Selected(), "male");
    EXPECT_EQ(document.Skin_Cbo.Selected(), "grunt");
    EXPECT_EQ(document.Skin_Cbo.Items, (Names{"cipher", "grunt"}));
}

}  // namespace
}  // namespace lv
