#include "launcher/drop/join_server.h"

#include "catalogs/editors/add_server.h"
#include "launcher/drop/offer_dropped.h"
#include "launcher/setups/setup.h"
#include "tests/launcher/drop/drop_fixture.h"

namespace lv {
namespace {

class JoinServer : public DropTest {
  protected:
    std::vector<Text> Titles(TextView link) {
        const DroppedThing thing = ThingOf(system.Disk, link);
        EXPECT_EQ(thing.Kind, DroppedKind::Server) << link;
        std::vector<Text> titles;
        for (const JoinChoice& choice : ChoicesThatJoin(launcher, thing.Server)) {
            titles.push_back(choice.Words.substr(0, choice.Words.find(" (")));
        }
        return titles;
    }
    void AddEngine(TextView title, TextView program) {
        system.Disk.AddFile(program);
        window.Exe_Cbo.Items.push_back({Text(title), Text(program), "", ""});
    }
    void Drop(TextView word, const std::function<void(JoinServer_Frm&)>& act) {
        user.In<JoinServer_Frm>(act);
        ASSERT_TRUE(NoteDropped(launcher, {.Word = Text(word), .Count = 1, .Fault = {}}));
        OfferDropped(launcher);
    }
};

TEST_F(JoinServer, EachKindOfLinkListsTheProgramsOfItsGame) {
    LoadGames();
    AddEngine("ez", "C:\\QUAKE\\ezquake");
    AddEngine("fte", "C:\\QUAKE\\fteqw");
    AddEngine("mvd", "C:\\QUAKE\\mvdsv");
    AddEngine("yq2", "C:\\QUAKE2\\yquake2");
    EXPECT_EQ(Titles("qw://host"), (std::vector<Text>{"QuakeWorld", "ez", "fte"}));
    EXPECT_EQ(Titles("quake://host"), (std::vector<Text>{"Quake", "Plain Quake", "QuakeWorld", "ez", "fte"}));
    EXPECT_EQ(Titles("quake2://host"), (std::vector<Text>{"Quake 2", "yq2"}));
    EXPECT_EQ(Titles("host.example:1"), (std::vector<Text>{"Quake", "Plain Quake", "QuakeWorld", "Quake 2", "Unreal",
                                                           "Half-Life", "ez", "fte", "yq2"}));
}

TEST_F(JoinServer, TheDialogShowsTheAddressAndStandsOnCancel) {
    LoadGames();
    PickExe("C:\\QUAKE\\QWCL.EXE");
    Drop("QW://Host.example:27500/x", [](JoinServer_Frm& form) {
        EXPECT_EQ(form.Caption, "Join Server");
        EXPECT_EQ(form.JoinAddress_Txt.Text, "qw://Host.example:27500");
        EXPECT_EQ(form.JoinPrograms_Lst.Items, (std::vector<Text>{"QuakeWorld (C:\\QUAKE\\QWCL.EXE)"}));
        EXPECT_EQ(form.JoinPrograms_Lst.ListIndex, 0);
        EXPECT_TRUE(form.Cancel_Cmd.Default);
        EXPECT_FALSE(form.Join_Cmd.Default);
        EXPECT_EQ(form.Focus, "Cancel_Cmd");
        EXPECT_EQ(form.Join_Cmd.Caption, "&Join");
        EXPECT_EQ(form.JoinAdd_Cmd.Caption, "&Add to List");
        EXPECT_EQ(form.Cancel_Cmd.Caption, "&Cancel");
        JoinServer_Cancel_Cmd_Click(form);
    });
    EXPECT_TRUE(system.Programs.Started.empty());
    EXPECT_EQ(Stored(kOptions, "NetServers"), "(none)");
}

TEST_F(JoinServer, ThePickedProgramIsOfferedFirst) {
    LoadGames();
    PickExe("C:\\QUAKE\\QUAKE.EXE");
    Drop("quake://host", [](JoinServer_Frm& form) { EXPECT_EQ(form.JoinPrograms_Lst.ListIndex, 1); });
    PickExe("C:\\QUAKE2\\QUAKE2.EXE");
    Drop("quake://host", [](JoinServer_Frm& form) { EXPECT_EQ(form.JoinPrograms_Lst.ListIndex, 0); });
}

TEST_F(JoinServer, JoinPicksAddsTicksAndLaunches) {
    LoadGames();
    Click(Option::Map_Chk, 1);
    Drop("quake2://host.example:27910", [](JoinServer_Frm& form) {
        JoinServer_Join_Cmd_Click(form);
        EXPECT_TRUE(form.Closed);
    });
    EXPECT_EQ(run.GameKind, Game::Quake2);
    EXPECT_EQ(Stored(kOptions, "NetServers"), "host.example:27910;host.example;27910;3;");
    EXPECT_EQ(window.Box(Option::Server_Chk).Value, 1);
    EXPECT_EQ(window.Box(Option::Map_Chk).Value, 0);
    EXPECT_EQ(system.Programs.Started, (std::vector<std::string>{"c:\\quake2\\lv_666.bat"}));
    EXPECT_EQ(system.Disk.Bytes("C:\\QUAKE2\\BASEQ2\\lv_666.qs"), "connect host.example:27910\r\n");
}

TEST_F(JoinServer, ASetupOfSuchAProgramJoinsWithAllThatIsInIt) {
    LoadGames();
    Click(Option::Game_Chk, 1);
    lv::Setup setup = SetupOf(launcher);
    setup.Name = "Flags";
    ASSERT_TRUE(KeepSetup(run, launcher.Setups, setup));
    Click(Option::Game_Chk, 0);
    PickExe("C:\\HL\\HL.EXE");
    EXPECT_EQ(Titles("quake://host"), (std::vector<Text>{"Quake", "Plain Quake", "QuakeWorld", "Setup: Flags"}));
    EXPECT_EQ(Titles("quake2://host"), (std::vector<Text>{"Quake 2"}));
    Drop("quake://host:26000", [](JoinServer_Frm& form) {
        form.JoinPrograms_Lst.ListIndex = 3;
        JoinServer_Join_Cmd_Click(form);
    });
    EXPECT_EQ(window.Exe_Cbo.ListIndex, 0);
    EXPECT_EQ(run.CurrentGameDir, "CTF");
    EXPECT_EQ(window.Box(Option::Server_Chk).Value, 1);
    EXPECT_EQ(window.Server_Cbo.Selected().substr(0, 10), "host:26000");
    EXPECT_EQ(system.Programs.Started.size(), 1u);
}

TEST_F(JoinServer, AListedServerIsPickedWithItsPassword) {
    AddGames();
    Save(run, kOptions, "NetServers", "Home;10.0.0.1;26000;0;;Club;club.example;26000;0;Secret");
    Load();
    PickExe("C:\\QUAKE\\GLQUAKE.EXE");
    run.MainFormLoaded = true;
    Drop("quake://CLUB.example:26000", [](JoinServer_Frm& form) { JoinServer_Join_Cmd_Click(form); });
    EXPECT_EQ(window.Server_Cbo.ListIndex, 1);
    EXPECT_EQ(window.Server_Cbo.Items.size(), 2u);
    EXPECT_EQ(Stored(kOptions, "NetServers"), "Home;10.0.0.1;26000;0;;Club;club.example;26000;0;Secret");
    EXPECT_EQ(system.Programs.Started.size(), 1u);
}

TEST_F(JoinServer, AGameSpyBoxThatWasLeftTickedDoesNotGoWithIt) {
    LoadGames();
    window.Box(Option::Server_Chk).Value = 1;
    window.Box(Option::QSpy_Chk).Value = 1;
    Drop("quake://host:26000", [](JoinServer_Frm& form) { JoinServer_Join_Cmd_Click(form); });
    EXPECT_EQ(window.Box(Option::QSpy_Chk).Value, 0);
    EXPECT_EQ(system.Programs.Started.size(), 1u);
}

TEST_F(JoinServer, AddToListOpensTheEditorFilledInAndStartsNothing) {
    LoadGames();
    user.In<JoinServer_Frm>([](JoinServer_Frm& form) { JoinServer_JoinAdd_Cmd_Click(form); });
    user.In<AddServer_Frm>([](AddServer_Frm& form) {
        EXPECT_EQ(form.ServerTitle_Txt.Text, "host.example:27500");
        EXPECT_EQ(form.ServerPath_Txt.Text, "host.example");
        EXPECT_EQ(form.Port_Txt.Text, "27500");
        EXPECT_EQ(form.ServerType, 1);
    });
    NoteDropped(launcher, {.Word = "qw://host.example:27500", .Count = 1, .Fault = {}});
    OfferDropped(launcher);
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(JoinServer, WithoutAProgramOfThatKindThereIsNothingToJoinWith) {
    AddGames();
    Save(run, kOptions, "Executables", "Quake 2;C:\\QUAKE2\\QUAKE2.EXE");
    Load();
    run.MainFormLoaded = true;
    Drop("qw://host", [](JoinServer_Frm& form) {
        EXPECT_FALSE(form.Join_Cmd.Enabled);
        EXPECT_EQ(form.JoinHint_Lbl.Caption, "No listed program can join a server of this kind.");
        JoinServer_Join_Cmd_Click(form);
        EXPECT_FALSE(form.Closed);
    });
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(JoinServer, WithoutASelectedRowJoinRests) {
    LoadGames();
    Drop("quake://host", [](JoinServer_Frm& form) {
        form.JoinPrograms_Lst.ListIndex = -1;
        JoinServer_JoinPrograms_Lst_Click(form);
        EXPECT_FALSE(form.Join_Cmd.Enabled);
        form.JoinPrograms_Lst.ListIndex = 1;
        JoinServer_JoinPrograms_Lst_Click(form);
        EXPECT_TRUE(form.Join_Cmd.Enabled);
    });
}

}  // namespace
}  // namespace lv
