#include "tests/foundry/editor/lifecycle_fixture.h"

namespace lv {
namespace {

class FreeFormPage : public Lifecycle {};

TEST_F(FreeFormPage, AConsoleScriptHasOneFreeForm) {
    OpenAndLoad(kQuakeDialect, "mycommand 1\n");
    EXPECT_FALSE(form.Document.Section_Cbo.Visible);
    EXPECT_EQ(FreeForm_Txt(form), "mycommand 1");
    FreeForm_Txt_Change(form, "mycommand 2\r\nanother");
    EXPECT_EQ(form.Document.Sections[0].Text, "mycommand 2\r\nanother");
    EXPECT_FALSE(form.Document.ScriptClean);
}

TEST_F(FreeFormPage, AnInisSectionsEachHaveTheirs) {
    OpenAndLoad(kUnrealDialect, "[One]\nA=1\n[Two]\nB=2\n", "C:\\GAME\\my.ini");
    EXPECT_EQ(form.Document.Section_Cbo.Items, (std::vector<Text>{"[One]", "[Two]"}));
    EXPECT_EQ(FreeForm_Txt(form), "A=1");
    form.Document.Section_Cbo.ListIndex = 1;
    Section_Cbo_Click(form);
    EXPECT_EQ(FreeForm_Txt(form), "B=2");
    EXPECT_TRUE(form.Document.ScriptClean);
    FreeForm_Txt_Change(form, "B=3");
    EXPECT_EQ(form.Document.Sections[0].Text, "A=1");
    EXPECT_EQ(form.Document.Sections[1].Text, "B=3");
    EXPECT_FALSE(form.Document.ScriptClean);
}

TEST_F(FreeFormPage, AnIniWithNoSectionPickedShowsTheFirst) {
    OpenAndLoad(kUnrealDialect, "[One]\nA=1\n[Two]\nB=2\n", "C:\\GAME\\my.ini");
    form.Document.Section_Cbo.ListIndex = -1;
    Section_Cbo_Click(form);
    EXPECT_EQ(form.Document.Section_Cbo.ListIndex, 0);
    EXPECT_EQ(FreeForm_Txt(form), "A=1");
}

TEST_F(FreeFormPage, AnIniWithoutAnySectionTakesAText) {
    OpenAndLoad(kUnrealDialect, "", "C:\\GAME\\my.ini");
    Section_Cbo_Click(form);
    EXPECT_EQ(form.Document.Section_Cbo.ListIndex, -1);
    FreeForm_Txt_Change(form, "A=1");
    EXPECT_EQ(FreeForm_Txt(form), "A=1");
    ExpectSuccess();
    View_Cmd_Click(form, 6);
    EXPECT_TRUE(IsWritten("A=1", "C:\\GAME\\my.ini"));
}

TEST_F(FreeFormPage, TheSameFreeFormIsNoEdit) {
    OpenAndLoad(kQuakeDialect, "mycommand 1\n");
    FreeForm_Txt_Change(form, "mycommand 1");
    EXPECT_TRUE(form.Document.ScriptClean);
}

TEST_F(FreeFormPage, AFreeFormThatChangesWhileTheReaderRunsIsIgnored) {
    OpenAndLoad(kQuakeDialect, "mycommand 1\n");
    form.Document.ScriptLoading = true;
    FreeForm_Txt_Change(form, "");
    EXPECT_EQ(form.Document.Sections[0].Text, "mycommand 1");
    EXPECT_TRUE(form.Document.ScriptClean);
}

}  // namespace
}  // namespace lv
