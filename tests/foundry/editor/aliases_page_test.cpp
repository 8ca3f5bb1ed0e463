#include "foundry/editor/aliases_page.h"

#include "foundry/document/bindings.h"
#include "foundry/editor/alias_frm.h"
#include "tests/foundry/editor/fig_fixture.h"

namespace lv {
namespace {

constexpr KeyIndex kA = 1;

class AliasesPage : public FigTest {
  protected:
    void SetUp() override {
        Open(kQuakeDialect, "alias zoom \"fov 20\"\nalias jump2 \"+jump;wait;-jump\"\nbind a zoom\n");
        FillAliasList(form);
    }
};

TEST_F(AliasesPage, TheListShowsBoxNamePaddedToThreeTabsAndBody) {
    EXPECT_EQ(form.Alias_Lst.Items, (std::vector<Text>{" [_] jump2                   +jump;wait;-jump",
                                                       " [X] zoom                    fov 20"}));
    EXPECT_EQ(form.Alias_Lst.ListIndex, -1);
}

TEST_F(AliasesPage, ANameOfThreeTabsOrMoreIsNotPadded) {
    Open(kQuakeDialect);
    AddAlias(form.Document, "a_name_of_24_characters_", "x");
    AddAlias(form.Document, "a_name_of_more_than_24_characters", "y");
    FillAliasList(form);
    EXPECT_EQ(form.Alias_Lst.Items,
              (std::vector<Text>{" [_] a_name_of_24_characters_x", " [_] a_name_of_more_than_24_charactersy"}));
}

TEST_F(AliasesPage, TenThousandAliasesAreListedInOrderWithOneMeasurementEach) {
    struct Counting : ScriptedUser {
        int TextWidth(TextView line) override {
            ++Measured;
            return ScriptedUser::TextWidth(line);
        }
        int Measured = 0;
    };
    Counting counting;
    lv::Run ownRun{system.Services, counting};
    Fig_Frm many(ownRun, launcher.Lists);
    for (int i = 19999; i >= 10000; --i) {
        AddAlias(many.Document, "a" + std::to_string(i), "wait");
    }
    FillAliasList(many);
    ASSERT_EQ(many.Alias_Lst.Items.size(), 10000U);
    EXPECT_EQ(many.Alias_Lst.Items.front(), " [_] a10000                  wait");
    EXPECT_EQ(many.Alias_Lst.Items.back(), " [_] a19999                  wait");
    EXPECT_LT(counting.Measured, 10010);
}

TEST_F(AliasesPage, AliasesReadFromAFileAreLowerCasedAndTheFirstOfANameStays) {
    Open(kQuakeDialect, "alias ZOOM \"FOV 20\"\nalias zoom \"fov 30\"\n");
    FillAliasList(form);
    EXPECT_EQ(form.Alias_Lst.Items, (std::vector<Text>{" [_] zoom                    fov 20"}));
}

TEST_F(AliasesPage, ShowAliasSelectsItsRow) {
    ShowAlias(form, "ZOOM");
    EXPECT_EQ(form.Alias_Lst.ListIndex, 1);
    ShowAlias(form, "other");
    EXPECT_EQ(form.Alias_Lst.ListIndex, -1);
}

TEST_F(AliasesPage, ANewAliasIsAskedForInAnEmptyDialog) {
    user.In<Alias_Frm>([](Alias_Frm& dialog) {
        EXPECT_FALSE(dialog.EditedName.has_value());
        EXPECT_EQ(dialog.AliasName_Txt.Text, "");
        dialog.AliasName_Txt.Text = "x";
        dialog.AliasBody_Txt.Text = "wait";
        Alias_OK_Cmd_Click(dialog);
    });
    AddCustomAlias_Cmd_Click(form);
    EXPECT_EQ(form.Alias_Lst.Items[1], " [_] x                       wait");
}

TEST_F(AliasesPage, TheSelectedAliasIsEdited) {
    form.Alias_Lst.ListIndex = 1;
    user.In<Alias_Frm>([](Alias_Frm& dialog) { EXPECT_EQ(dialog.AliasName_Txt.Text, "zoom"); });
    EditAlias_Cmd_Click(form);
}

TEST_F(AliasesPage, NothingIsEditedOrDeletedWithoutASelection) {
    for (int i = 0; i < 2; ++i) {
        user.Expect({.Title = "Setup Foundry", .Text_ = "No alias is selected.", .Whole = true, .Buttons = "&OK"});
    }
    EditAlias_Cmd_Click(form);
    DeleteAlias_Cmd_Click(form);
}

TEST_F(AliasesPage, DeletingABoundAliasFreesItsKeys) {
    form.Alias_Lst.ListIndex = 1;
    EXPECT_EQ(KeyColor(kA), 0xff80ffU);
    user.Expect({.Title = "Confirm Deletion",
                 .Text_ = "Do you want to delete this alias?",
                 .Whole = true,
                 .Buttons = "&Yes,&No"});
    DeleteAlias_Cmd_Click(form);
    EXPECT_EQ(form.Alias_Lst.Items, (std::vector<Text>{" [_] jump2                   +jump;wait;-jump"}));
    EXPECT_EQ(form.Document.AliasTable.AliasCount(), 1U);
    EXPECT_EQ(Command(kA), "");
    EXPECT_EQ(KeyColor(kA), kWhite);
    EXPECT_EQ(form.Document.Bound_Lbl[601].Caption, "");
    EXPECT_EQ(form.Document.SlotCommand[601], "");
    EXPECT_FALSE(form.Document.ScriptClean);
}

TEST_F(AliasesPage, DeletingMovesTheEntriesBehindItDown) {
    form.Alias_Lst.ListIndex = 0;
    user.Expect({.Title = "Confirm Deletion", .Text_ = ""});
    DeleteAlias_Cmd_Click(form);
    EXPECT_EQ(form.Document.AliasTable[0].Name, "zoom");
    EXPECT_EQ(Command(kA), "zoom");
    EXPECT_EQ(form.Alias_Lst.ListIndex, -1);
}

TEST_F(AliasesPage, NoKeepsTheAlias) {
    form.Alias_Lst.ListIndex = 0;
    user.Expect({.Title = "Confirm Deletion", .Text_ = "", .Answer = 1});
    DeleteAlias_Cmd_Click(form);
    EXPECT_EQ(form.Document.AliasTable.AliasCount(), 2U);
    EXPECT_TRUE(form.Document.ScriptClean);
}

TEST_F(AliasesPage, AnAliasThatIsGoneCannotBeDeleted) {
    form.Document.AliasTable.Clear();
    form.Alias_Lst.ListIndex = 0;
    user.Expect({.Title = "Confirm Deletion", .Text_ = ""});
    user.Expect({.Title = "Internal Error", .Text_ = "Unable to delete alias.", .Whole = true});
    DeleteAlias_Cmd_Click(form);
}

}  // namespace
}  // namespace lv
