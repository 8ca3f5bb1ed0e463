#include "foundry/reading/archived_skins.h"

#include <gtest/gtest.h>

#include "foundry/reading/skin_page.h"
#include "platform/memory/memory_platform.h"
#include "tests/catalogs/pak_file.h"
#include "tests/foundry/reading.h"
#include "tests/support/scripted_user.h"

namespace lv {
namespace {

using Names = std::vector<Text>;

class ArchivedSkinsTest : public ::testing::Test {
  protected:
    void Add(TextView path, const Names& names) { system.Disk.AddFile(path, PakFile(names)); }
    Names Models(Game kind = Game::Quake2) { return ArchivedModels(system.Disk, "C:\\Q2\\BASEQ2", kind); }
    Names Skins(TextView model, Game kind = Game::Quake2) {
        return ArchivedSkins(system.Disk, "C:\\Q2\\BASEQ2", model, kind);
    }

    /// The lists as a script in the base directory has them.
    void Prepare(Game kind, bool quakeWorld = false) {
        run.DefaultGameDirectory = "C:\\Q2";
        run.BaseGameDir = "BASEQ2";
        document.CurrentScriptDirectory = "C:\\Q2\\BASEQ2\\";
        document.Dialect = DialectOf(kind, quakeWorld);
        PrepareSkinPage(run, document);
    }

    MemoryPlatform system;
    ScriptedUser user;
    lv::Run run{system.Services, user};
    ScriptDocument document;
};

TEST_F(ArchivedSkinsTest, ModelsAreTheDirectoriesOfPlayers) {
    Add("C:\\Q2\\BASEQ2\\pak0.pak", {"players/male/tris.md2", "players/male/grunt.pcx", "players/female/athena.pcx",
                                     "players/note.txt", "models/players/x/y.md2", "default.cfg"});
    EXPECT_EQ(Models(), (Names{"male", "female"}));
}

TEST_F(ArchivedSkinsTest, SkinsAreThePicturesOfTheModelWithoutItsIcons) {
    Add("C:\\Q2\\BASEQ2\\pak0.pak",
        {"players/male/grunt.pcx", "players/male/grunt_i.pcx", "players/male/weapon.pcx", "players/male/pain.pcx",
         "players/male/tris.md2", "players/male/old/rust.pcx", "players/male2/other.pcx", "Players/MALE/Cipher.PCX"});
    EXPECT_EQ(Skins("male"), (Names{"grunt", "Cipher"}));
}

TEST_F(ArchivedSkinsTest, ANameInTwoArchivesIsListedOnce) {
    Add("C:\\Q2\\BASEQ2\\pak1.pak", {"players/male/GRUNT.pcx", "players/male/new.pcx"});
    Add("C:\\Q2\\BASEQ2\\pak0.pak", {"players/male/grunt.pcx"});
    EXPECT_EQ(Skins("male"), (Names{"grunt", "new"}));
    EXPECT_EQ(Models(), Names{"male"});
}

TEST_F(ArchivedSkinsTest, SinHasArchivesOfItsOwn) {
    Add("C:\\Q2\\BASEQ2\\pak0.pak", {"players/male/grunt.pcx"});
    system.Disk.AddFile("C:\\Q2\\BASEQ2\\pak0.sin", SinFile({"players/blade/" + Text(60, 'b') + ".pcx"}));
    EXPECT_EQ(Models(Game::Sin), Names{"blade"});
    EXPECT_EQ(Skins("blade", Game::Sin), Names{Text(60, 'b')});
    EXPECT_EQ(Models(Game::Quake2), Names{"male"});
}

TEST_F(ArchivedSkinsTest, HereticsOwnPicturesAreSkinsToo) {
    Add("C:\\Q2\\BASEQ2\\Htic2-0.pak",
        {"players/male/Corvus.m8", "players/male/Corvus_i.m8", "players/male/CorvusDmg.m8", "players/male/reflect.m8",
         "players/male/tris.fm", "players/male/plain.pcx"});
    EXPECT_EQ(Skins("male", Game::Heretic2), (Names{"Corvus", "plain"}));
    EXPECT_EQ(Skins("male", Game::Quake2), Names{"plain"});
}

TEST_F(ArchivedSkinsTest, ADamagedArchiveCostsItsOwnNames) {
    system.Disk.AddFile("C:\\Q2\\BASEQ2\\pak0.pak", "PACK");
    Add("C:\\Q2\\BASEQ2\\pak1.pak", {"players/male/grunt.pcx"});
    EXPECT_EQ(Models(), Names{"male"});
}

TEST_F(ArchivedSkinsTest, ANameThatWouldEndTheScriptsLineIsNone) {
    Add("C:\\Q2\\BASEQ2\\pak0.pak", {"players/male\"; quit/a.pcx", "players/female/a\";quit.pcx", "players/../a.pcx"});
    EXPECT_EQ(Models(), Names{});
    EXPECT_EQ(Skins("male"), Names{});
}

TEST_F(ArchivedSkinsTest, ListsEndSomewhere) {
    Names names;
    for (int i = 0; i < 6000; ++i) {
        names.push_back(Join("players/male/s", std::to_string(i), ".pcx"));
    }
    Add("C:\\Q2\\BASEQ2\\pak0.pak", names);
    EXPECT_EQ(Skins("male").size(), 5000U);
}

TEST_F(ArchivedSkinsTest, ThePageShowsLooseAndArchivedNamesTogether) {
    system.Disk.AddFile("C:\\Q2\\BASEQ2\\players\\Male\\mine.pcx");
    system.Disk.AddFile("C:\\Q2\\BASEQ2\\players\\Male\\Grunt.pcx");
    Add("C:\\Q2\\BASEQ2\\pak0.pak", {"players/male/grunt.pcx", "players/male/cipher.pcx", "players/female/athena.pcx"});
    Prepare(Game::Quake2);
    EXPECT_EQ(document.Sex_Cbo.Items, (Names{"female", "Male"}));
    EXPECT_EQ(document.Sex_Cbo.ListIndex, 0);
    EXPECT_EQ(document.Skin_Cbo.Items, Names{"athena"});
    document.Sex_Cbo.ListIndex = 1;
    Sex_Cbo_Click(run, document);
    EXPECT_EQ(document.Skin_Cbo.Items, (Names{"cipher", "Grunt", "mine"}));
}

TEST_F(ArchivedSkinsTest, HereticsLooseSkinsAreItsPicturesAlone) {
    system.Disk.AddFile("C:\\Q2\\BASEQ2\\players\\male\\loose.m8");
    system.Disk.AddFile("C:\\Q2\\BASEQ2\\players\\male\\plain.pcx");
    Prepare(Game::Heretic2);
    EXPECT_EQ(document.Skin_Cbo.Items, Names{"plain"});
}

TEST_F(ArchivedSkinsTest, QuakeWorldsSkinsComeOutOfItsArchivesToo) {
    system.Disk.AddFile("C:\\Q2\\qw\\skins\\Base.pcx");
    Add("C:\\Q2\\qw\\pak0.pak",
        {"skins/base.pcx", "skins/Tron.PCX", "skins/more/x.pcx", "skins/readme.txt", "tron.pcx"});
    Prepare(Game::Quake, true);
    EXPECT_EQ(document.Skin_Fil.Items, (Names{"Base.pcx", "Tron.PCX"}));
    EXPECT_EQ(document.Skin_Fil.Path, "C:\\Q2\\qw\\skins");
}

TEST_F(ArchivedSkinsTest, QuakeWorldsArchivesServeWithoutADirectoryOfSkins) {
    Add("C:\\Q2\\qw\\pak0.pak", {"skins/base.pcx"});
    Prepare(Game::Quake, true);
    EXPECT_EQ(document.Skin_Fil.Items, Names{"base.pcx"});
    EXPECT_EQ(document.Skin_Fil.Path, "");
}

}  // namespace
}  // namespace lv
