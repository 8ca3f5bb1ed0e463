#include "foundry/look/alias_graph_frm.h"

#include "console/checks/named_bodies.h"
#include "tests/foundry/look/game_start.h"

namespace lv {

class AliasGraphForm : public GameStart {
  protected:
    AliasGraphForm()
        : bodies(NamedBodiesOf("alias shoot \"aim; +attack\"\nalias aim \"fov 30\"\nalias loop \"loop2\"\n"
                               "alias loop2 \"loop\"\nbind x shoot\n",
                               Console::Quake)),
          form(run, bodies, Console::Quake) {}
    void Select(int row) {
        form.Tree_Lst.ListIndex = row;
        AliasGraph_Tree_Lst_Click(form);
    }

    std::vector<NamedBody> bodies;
    AliasGraph_Frm form;
};

TEST_F(AliasGraphForm, ListsAliasesAndThenKeysByName) {
    EXPECT_EQ(form.Tree_Lst.Items, (std::vector<Text>{"   aim", "+  loop   (calls itself)", "+  loop2   (calls itself)",
                                                      "+  shoot", "+  key x"}));
    EXPECT_EQ(form.Tree_Lbl.Caption, "Right opens a row, Left closes it. Aliases that call themselves: 2");
}

TEST_F(AliasGraphForm, OpensAndClosesRowByRow) {
    Select(4);
    AliasGraph_OpenRow(form);
    ASSERT_EQ(form.Tree_Lst.Items.size(), 6u);
    EXPECT_EQ(form.Tree_Lst.Items[4], "-  key x");
    EXPECT_EQ(form.Tree_Lst.Items[5], "    +  shoot");
    Select(5);
    AliasGraph_OpenRow(form);
    EXPECT_EQ(form.Tree_Lst.Items[6], "           aim");
    Select(4);
    AliasGraph_CloseRow(form);
    EXPECT_EQ(form.Tree_Lst.Items.size(), 5u);
    EXPECT_EQ(form.Tree_Lst.Items[4], "+  key x");
}

TEST_F(AliasGraphForm, MarksWhereALoopComesBack) {
    Select(1);
    AliasGraph_OpenRow(form);
    Select(2);
    AliasGraph_OpenRow(form);
    EXPECT_EQ(form.Tree_Lst.Items[3], "           loop   (A LOOP: it stands above already)");
    Select(3);
    EXPECT_FALSE(form.Open_Cmd.Enabled);
}

TEST_F(AliasGraphForm, LeftGoesToTheRowAbove) {
    Select(4);
    AliasGraph_OpenRow(form);
    Select(5);
    AliasGraph_CloseRow(form);
    EXPECT_EQ(form.Tree_Lst.ListIndex, 4);
}

TEST_F(AliasGraphForm, TurnsRoundToWhoCallsEach) {
    form.Way_Cbo.ListIndex = 1;
    AliasGraph_Way_Cbo_Click(form);
    EXPECT_EQ(form.Tree_Lst.Items[0], "+  aim");
    AliasGraph_Open_Cmd_Click(form);
    EXPECT_EQ(form.Tree_Lst.Items[1], "    +  shoot");
    EXPECT_EQ(form.Open_Cmd.Caption, "C&lose the Row");
    AliasGraph_Open_Cmd_Click(form);
    EXPECT_EQ(form.Open_Cmd.Caption, "&Open the Row");
}

TEST_F(AliasGraphForm, AScriptWithoutAnyIsToldOf) {
    const AliasGraph_Frm empty(run, {}, Console::Quake);
    EXPECT_EQ(empty.Tree_Lbl.Caption, "This script has neither an alias nor a bound key.");
    EXPECT_FALSE(empty.Open_Cmd.Enabled);
}

}  // namespace lv
