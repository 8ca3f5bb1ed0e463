#include "launcher/drop/copying.h"

#include "tests/launcher/drop/drop_fixture.h"

namespace lv {
namespace {

class CopyingTest : public DropTest {
  protected:
    Copying Of(TextView path, std::size_t row) {
        Put(path, kPak);
        thing = ThingOf(system.Disk, path);
        program = ListedPrograms(launcher)[row];
        return {launcher, thing, *program, "!"};
    }
    DroppedThing thing;
    std::optional<ListedProgram> program;
};

TEST_F(CopyingTest, EachQuestionSaysWhatWasDropped) {
    LoadGames();
    const Copying copy = Of("C:\\D\\a.pak", 0);
    EXPECT_EQ(copy.Name(), "a.pak");
    user.Expect({"Dropped File", "This archive was dropped -->\r\n\r\n\t\"C:\\D\\a.pak\"\r\n\r\nCopy it?!", 1, false,
                 true, "&Yes,&No"});
    EXPECT_EQ(copy.Ask("Copy it?", "&Yes,&No"), 1);
}

TEST_F(CopyingTest, AFileAndADirectoryTakeAName) {
    LoadGames();
    EXPECT_TRUE(IsTaken(system.Disk, "C:\\QUAKE\\ctf"));
    EXPECT_TRUE(IsTaken(system.Disk, "C:\\QUAKE\\ID1\\my.cfg"));
    EXPECT_FALSE(IsTaken(system.Disk, "C:\\QUAKE\\ID1\\other.cfg"));
}

TEST_F(CopyingTest, TheTickedModificationIsThePickedProgramsAlone) {
    LoadGames();
    Click(Option::Game_Chk, 1);
    EXPECT_EQ(DataDirectory(Of("C:\\D\\a.pak", 0)), "CTF");
    EXPECT_EQ(DataDirectory(Of("C:\\D\\a.pak", 1)), "id1");
    EXPECT_EQ(DataDirectory(Of("C:\\D\\a.pak", 3)), "baseq2");
}

TEST_F(CopyingTest, ThePickPlaysTheDataDirectory) {
    LoadGames();
    Click(Option::Game_Chk, 1);
    EXPECT_TRUE(PickProgram(Of("C:\\D\\a.pak", 1), ""));
    EXPECT_EQ(run.CurrentGameDir, "CTF");
    EXPECT_TRUE(PickProgram(Of("C:\\D\\a.pak", 1), "id1"));
    EXPECT_EQ(run.CurrentGameDir, "ID1");
    EXPECT_EQ(window.Exe_Cbo.ListIndex, 1);
}

TEST_F(CopyingTest, ADirectoryThatWasThereStaysWhenACopyFails) {
    LoadGames();
    system.Disk.AddDirectory("C:\\QUAKE\\there");
    system.Disk.Refused["c:\\quake\\there\\pak0.pak"] = MakeError(error::kPermissionDenied);
    user.Expect({"Dropped File", "\"C:\\QUAKE\\there\\pak0.pak\"", 0});
    EXPECT_FALSE(CopyInto(Of("C:\\D\\a.pak", 0), "C:\\QUAKE\\there", "pak0.pak"));
    EXPECT_TRUE(system.Disk.DirectoryExists("C:\\QUAKE\\there"));
    EXPECT_TRUE(CopyInto(Of("C:\\D\\a.pak", 0), "C:\\QUAKE\\new", "pak0.pak"));
    EXPECT_EQ(system.Disk.Bytes("C:\\QUAKE\\new\\pak0.pak"), kPak);
}

TEST_F(CopyingTest, ASourceThatHasGoneMeanwhileIsNamed) {
    LoadGames();
    const Copying copy = Of("C:\\D\\a.pak", 0);
    system.Disk.Delete("C:\\D\\a.pak");
    user.Expect({"Dropped File", ": C:\\D\\a.pak", 0});
    EXPECT_FALSE(CopyInto(copy, "C:\\QUAKE\\new", "pak0.pak"));
    EXPECT_FALSE(system.Disk.DirectoryExists("C:\\QUAKE\\new"));
}

TEST_F(CopyingTest, ANameIsAskedForUntilItIsOne) {
    LoadGames();
    user.InputAnswers = {std::optional<Text>("no"), std::optional<Text>(" yes ")};
    user.Expect({"Dropped File", "Say yes.", 0, false, true});
    const auto fits = [](TextView name) { return name == "yes"; };
    EXPECT_EQ(AskForName(run, "Well?", "perhaps", fits, "Say yes."), "yes");
    EXPECT_EQ(user.Inputs, (std::vector<Text>{"Another Name|Well?", "Another Name|Well?"}));
    EXPECT_EQ(user.Offered.front(), "perhaps");
    user.InputAnswers = {std::optional<Text>("  ")};
    EXPECT_FALSE(AskForName(run, "Well?", "perhaps", fits, "Say yes.").has_value());
}

}  // namespace
}  // namespace lv
