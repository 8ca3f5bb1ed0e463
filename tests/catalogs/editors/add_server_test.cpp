#include "catalogs/editors/add_server.h"

#include "tests/catalogs/editors/editors_fixture.h"

namespace lv {

class AddServer : public EditorsTest {
  protected:
    AddServer() {
        BeInQuake();
        lists.Server_Cbo.Items = {Item("Home", "10.0.0.1;26000;0;secret")};
        lists.Server_Cbo.ListIndex = 0;
        lists.HiddenServers = "World;q.example;27500;1;";
    }
    void Fill(AddServer_Frm& form, TextView title, TextView address, TextView port, TextView password) {
        form.ServerTitle_Txt.Text = title;
        form.ServerPath_Txt.Text = address;
        form.Port_Txt.Text = port;
        form.Password_Txt.Text = password;
    }
};

TEST_F(AddServer, HasItsCaptions) {
    const AddServer_Frm form(run, lists, EntryMode::Add, false);
    EXPECT_EQ(form.Caption, "Add Server");
    EXPECT_EQ(form.ServerTitle_Lbl.Caption, "Server Title");
    EXPECT_EQ(form.ServerPath_Lbl.Caption, "Server Address");
    EXPECT_EQ(form.Port_Lbl.Caption, "Server Port");
    EXPECT_EQ(form.Password_Lbl.Caption, "Server Password");
    EXPECT_EQ(form.Server_Fra.Caption, "Server Type");
    const std::array<Text, 10> types = {"Quake", "QuakeWorld", "Hexen2", "Quake2",  "Unreal",
                                        "SIN",   "Heretic2",   "Shogo",  "Blood 2", "Half-Life"};
    EXPECT_EQ(form.Server_Opt, types);
    EXPECT_EQ(form.ServerType, 0);
}

TEST_F(AddServer, BeginsWithTheGamesType) {
    run.IsQuakeWorld = true;
    EXPECT_EQ(AddServer_Frm(run, lists, EntryMode::Add, false).ServerType, 1);
    run.GameKind = Game::HalfLife;
    EXPECT_EQ(AddServer_Frm(run, lists, EntryMode::Add, false).ServerType, 9);
}

TEST_F(AddServer, EditAndCopyBeginWithTheRow) {
    const AddServer_Frm edit(run, lists, EntryMode::Edit, true);
    EXPECT_EQ(edit.Caption, "Edit Current Server");
    EXPECT_EQ(edit.ServerTitle_Txt.Text, "Home");
    EXPECT_EQ(edit.ServerPath_Txt.Text, "10.0.0.1");
    EXPECT_EQ(edit.Port_Txt.Text, "26000");
    EXPECT_EQ(edit.ServerType, 0);
    EXPECT_EQ(edit.Password_Txt.Text, "secret");
    const AddServer_Frm copy(run, lists, EntryMode::Add, true);
    EXPECT_EQ(copy.Caption, "Copy Current Server");
    EXPECT_EQ(copy.ServerPath_Txt.Text, "10.0.0.1");
}

TEST_F(AddServer, StopsAtTheFirstFault) {
    AddServer_Frm form(run, lists, EntryMode::Add, false);
    Fill(form, "", "", "", "");
    ExpectFault(form, AddServer_OK_Cmd_Click, "ServerTitle_Txt", "Enter a Title for the Server.");
    Fill(form, "a;b", "", "", "");
    ExpectFault(form, AddServer_OK_Cmd_Click, "ServerTitle_Txt", "The Title may not contain a semi-colon.");
    Fill(form, "a,b", " ", "", "");
    ExpectFault(form, AddServer_OK_Cmd_Click, "ServerPath_Txt", "Enter the Server Address.");
    Fill(form, "a", "b;c", "", "");
    ExpectFault(form, AddServer_OK_Cmd_Click, "ServerPath_Txt", "The Server Address may not contain a semi-colon.");
    Fill(form, "a", "b", "26000", "p;q");
    ExpectFault(form, AddServer_OK_Cmd_Click, "Password_Txt", "The Server Port may not contain a semi-colon.");
}

TEST_F(AddServer, APortWithACommaIsRefusedWithTheSemicolonMessage) {
    AddServer_Frm form(run, lists, EntryMode::Add, false);
    Fill(form, "a", "b", "26000,1", "");
    ExpectFault(form, AddServer_OK_Cmd_Click, "Port_Txt", "The Server Port may not contain a semi-colon.");
}

TEST_F(AddServer, OfTheCurrentTypeBecomesARow) {
    AddServer_Frm form(run, lists, EntryMode::Add, false);
    Fill(form, "New", "10.0.0.2", "26001", "pw");
    ExpectConfirmed("New now references 10.0.0.2:26001");
    AddServer_OK_Cmd_Click(form);
    EXPECT_EQ(Rows(lists.Server_Cbo), (TextList{"Home|10.0.0.1;26000;0;secret", "New|10.0.0.2;26001;0;pw"}));
    EXPECT_EQ(Stored("NetServers"), "Home;10.0.0.1;26000;0;secret;New;10.0.0.2;26001;0;pw;World;q.example;27500;1;");
}

TEST_F(AddServer, WithoutAPortTheAddressStandsAlone) {
    AddServer_Frm form(run, lists, EntryMode::Add, false);
    Fill(form, "New", "10.0.0.2", "", "");
    ExpectConfirmed("New now references 10.0.0.2");
    AddServer_OK_Cmd_Click(form);
    EXPECT_EQ(Rows(lists.Server_Cbo)[1], "New|10.0.0.2;;0;");
}

TEST_F(AddServer, OfAnotherGameStandsInTheCatalogButNotInTheList) {
    AddServer_Frm form(run, lists, EntryMode::Add, false);
    Fill(form, "Two", "q2.example", "27910", "");
    AddServer_Server_Opt_Click(form, 3);
    ExpectConfirmed("Two now references q2.example:27910");
    AddServer_OK_Cmd_Click(form);
    EXPECT_EQ(Rows(lists.Server_Cbo), (TextList{"Home|10.0.0.1;26000;0;secret"}));
    EXPECT_EQ(Stored("NetServers"), "Home;10.0.0.1;26000;0;secret;World;q.example;27500;1;;Two;q2.example;27910;3;");
}

TEST_F(AddServer, EditReplacesTheRow) {
    AddServer_Frm form(run, lists, EntryMode::Edit, true);
    form.ServerTitle_Txt.Text = "House";
    ExpectConfirmed("House now references 10.0.0.1:26000");
    AddServer_OK_Cmd_Click(form);
    EXPECT_EQ(Rows(lists.Server_Cbo), (TextList{"House|10.0.0.1;26000;0;secret"}));
}

TEST_F(AddServer, CopyKeepsTheRow) {
    AddServer_Frm form(run, lists, EntryMode::Add, true);
    form.ServerTitle_Txt.Text = "House";
    ExpectConfirmed("House now references 10.0.0.1:26000");
    AddServer_OK_Cmd_Click(form);
    EXPECT_EQ(Rows(lists.Server_Cbo), (TextList{"Home|10.0.0.1;26000;0;secret", "House|10.0.0.1;26000;0;secret"}));
}

TEST_F(AddServer, AnEditToAnotherGameMovesTheEntry) {
    AddServer_Frm form(run, lists, EntryMode::Edit, true);
    AddServer_Server_Opt_Click(form, 2);
    ExpectConfirmed("Home now references 10.0.0.1:26000");
    AddServer_OK_Cmd_Click(form);
    EXPECT_TRUE(lists.Server_Cbo.Items.empty());
    EXPECT_EQ(lists.Server_Cbo.ListIndex, -1);
    EXPECT_EQ(Stored("NetServers"), "World;q.example;27500;1;;Home;10.0.0.1;26000;2;secret");
}

TEST_F(AddServer, ACatalogThatWouldBeTooLongKeepsEverything) {
    lists.Server_Cbo.Items[0] = LongItem();
    AddServer_Frm form(run, lists, EntryMode::Add, false);
    Fill(form, "Two", "q2.example", "", "");
    AddServer_Server_Opt_Click(form, 3);
    user.Expect({"Lorvane 3D", ""});
    AddServer_OK_Cmd_Click(form);
    EXPECT_EQ(lists.HiddenServers, "World;q.example;27500;1;");
    EXPECT_FALSE(form.Closed);
}

TEST_F(AddServer, ATypeThatIsNoneIsNotTaken) {
    AddServer_Frm form(run, lists, EntryMode::Add, false);
    AddServer_Server_Opt_Click(form, 10);
    EXPECT_EQ(form.ServerType, 0);
}

TEST_F(AddServer, TheTypeOfSeveralIsGivenBack) {
    SelectServerType_Frm form(run, "Please select.");
    EXPECT_EQ(form.Caption, "Select Server Type...");
    EXPECT_EQ(form.Message_Lbl.Caption, "Please select.");
    EXPECT_EQ(form.LastEntry, "0");
    SelectServerType_Server_Opt_Click(form, 9);
    SelectServerType_OK_Cmd_Click(form);
    EXPECT_EQ(form.LastEntry, "9");
    EXPECT_TRUE(form.DialogResult);
    EXPECT_TRUE(form.Closed);
}

TEST_F(AddServer, ACancelledTypeIsNoResult) {
    SelectServerType_Frm form(run, "");
    Entry_Cancel_Cmd_Click(form);
    EXPECT_FALSE(form.DialogResult);
}

}  // namespace lv
