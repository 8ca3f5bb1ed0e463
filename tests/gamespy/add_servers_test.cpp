#include "gamespy/add_servers.h"

#include "catalogs/editors/add_server.h"
#include "launcher/menu/menu_table.h"
#include "tests/gamespy/game_spy_fixture.h"

namespace lv {
namespace {

class AddServers : public GameSpyTest {
  protected:
    AddServers() {
        AddGames();
        Load();
        PickExe("C:\\QUAKE\\GLQUAKE.EXE");
    }

    void Capture(Text copied) {
        ShowGameSpy(std::move(copied));
        AddCurrentGameSpyServers(run, launcher.Lists);
    }
    void AnswerType(Index type) {
        user.In<SelectServerType_Frm>([type](SelectServerType_Frm& form) {
            SelectServerType_Server_Opt_Click(form, type);
            SelectServerType_OK_Cmd_Click(form);
        });
    }
    static Text Repeated(int lines) {
        Text copied;
        for (int i = 0; i < lines; ++i) {
            copied += "10.0.0." + std::to_string(i + 1) + ":27500\r\n";
        }
        return copied;
    }
    static Text Row(Text title, TextView record) {
        title.resize(100, ' ');
        return title.append(record);
    }
};

TEST_F(AddServers, OneServerFillsItsDialog) {
    user.In<AddServer_Frm>([](AddServer_Frm& form) {
        EXPECT_EQ(form.Caption, "Add Server");
        EXPECT_EQ(form.ServerTitle_Txt.Text, "Home of the Brave");
        EXPECT_EQ(form.ServerPath_Txt.Text, "10.0.0.1");
        EXPECT_EQ(form.Port_Txt.Text, "27500");
        EXPECT_EQ(form.Password_Txt.Text, "");
        EXPECT_EQ(form.ServerType, 0);
        AddServer_OK_Cmd_Click(form);
    });
    ExpectTold("Lorvane 3D", "Home of the Brave now references 10.0.0.1:27500");
    user.Expected.back().Buttons = "&Cool";
    Capture("43      10.0.0.1        27500 Home of the Brave\r\n");
    EXPECT_EQ(Stored(kOptions, "NetServers"), "Home of the Brave;10.0.0.1;27500;0;");
}

TEST_F(AddServers, OneAddressFillsItsDialogWithoutATitle) {
    user.In<AddServer_Frm>([](AddServer_Frm& form) {
        EXPECT_EQ(form.ServerTitle_Txt.Text, "");
        EXPECT_EQ(form.ServerPath_Txt.Text, "10.0.0.1");
        EXPECT_EQ(form.Port_Txt.Text, "27500");
        Entry_Cancel_Cmd_Click(form);
    });
    Capture("10.0.0.1:27500");
    EXPECT_EQ(Stored(kOptions, "NetServers"), "(none)");
}

TEST_F(AddServers, ASemicolonInAPortDoesNotBreakTheCatalog) {
    user.In<AddServer_Frm>([](AddServer_Frm& form) {
        EXPECT_EQ(form.ServerPath_Txt.Text, "");  // digits alone are a port, and without one this is no address
        EXPECT_EQ(form.Port_Txt.Text, "");
        form.ServerPath_Txt.Text = "10.0.0.1";
        form.Port_Txt.Text = "27;5";
        form.ServerTitle_Txt.Text = "Mine";
        AddServer_OK_Cmd_Click(form);
        EXPECT_FALSE(form.Closed);
        Entry_Cancel_Cmd_Click(form);
    });
    ExpectTold("Lorvane 3D", "The Server Port may not contain a semi-colon.");
    Capture("10.0.0.1:27;5\r\n");
    EXPECT_EQ(Stored(kOptions, "NetServers"), "(none)");
}

TEST_F(AddServers, NoHostThatIsMoreThanAnAddressGetsIntoTheCatalog) {
    AnswerType(0);
    ExpectTold("Lorvane 3D", "1 Servers Added");
    Capture("10.0&calc&.0.1:27015\r\n1.%COMSPEC%.3.4:27015\r\n10.0.0.2:27015\r\n");
    EXPECT_EQ(Stored(kOptions, "NetServers"), "Server 10.0.0.2:27015;10.0.0.2;27015;0;");
}

TEST_F(AddServers, OneServersDialogBeginsWithTheCurrentGame) {
    PickExe("C:\\QUAKE\\QWCL.EXE");
    user.In<AddServer_Frm>([](AddServer_Frm& form) { EXPECT_EQ(form.ServerType, 1); });
    Capture("10.0.0.1:27500");
    PickExe("C:\\QUAKE2\\QUAKE2.EXE");
    user.In<AddServer_Frm>([](AddServer_Frm& form) { EXPECT_EQ(form.ServerType, 3); });
    Capture("10.0.0.1:27910");
}

TEST_F(AddServers, SeveralOfTheCurrentGameBecomeRows) {
    user.In<SelectServerType_Frm>([](SelectServerType_Frm& form) {
        EXPECT_EQ(form.Caption, "Select Server Type...");
        EXPECT_EQ(form.Message_Lbl.Caption, "Please select the game type of these servers.");
        EXPECT_EQ(form.ServerType, 0);
        SelectServerType_OK_Cmd_Click(form);
    });
    ExpectTold("Lorvane 3D", "2 Servers Added");
    Capture("43      10.0.0.1        27500 Home\r\n121     10.0.0.2        27501 Away\r\n");
    const Lines rows = {Row("Home", "10.0.0.1;27500;0;"), Row("Away", "10.0.0.2;27501;0;")};
    EXPECT_EQ(window.Server_Cbo.Items, rows);
    EXPECT_EQ(Stored(kOptions, "NetServers"), "Home;10.0.0.1;27500;0;;Away;10.0.0.2;27501;0;");
}

TEST_F(AddServers, SeveralMayHaveTwoWordsBeforeTheAddress) {
    AnswerType(0);
    ExpectTold("Lorvane 3D", "3 Servers Added");
    Capture("QW  43      10.0.0.1        27500 Home\r\nQW  121 10.0.0.2  27501 Away\r\n43 10.0.0.3 27502 Near\r\n");
    EXPECT_EQ(Stored(kOptions, "NetServers"), "Home;10.0.0.1;27500;0;;Away;10.0.0.2;27501;0;;Near;10.0.0.3;27502;0;");
}

TEST_F(AddServers, SeveralOfAnotherGameAreHidden) {
    AnswerType(3);
    ExpectTold("Lorvane 3D", "2 Servers Added");
    Capture("43      10.0.0.1        27910 Home\r\n121     10.0.0.2        27911 Away");
    EXPECT_TRUE(window.Server_Cbo.Items.empty());
    EXPECT_EQ(launcher.Lists.HiddenServers, "Home;10.0.0.1;27910;3;;Away;10.0.0.2;27911;3;");
    EXPECT_EQ(Stored(kOptions, "NetServers"), "Home;10.0.0.1;27910;3;;Away;10.0.0.2;27911;3;");
}

TEST_F(AddServers, HiddenOnesAreRowsOnceTheirGameIsPicked) {
    AnswerType(3);
    ExpectTold("Lorvane 3D", "2 Servers Added");
    Capture("43 10.0.0.1 27910 Home\r\n121 10.0.0.2 27911 Away");
    PickExe("C:\\QUAKE2\\QUAKE2.EXE");
    EXPECT_EQ(window.Server_Cbo.Items, (Lines{Row("Home", "10.0.0.1;27910;3;"), Row("Away", "10.0.0.2;27911;3;")}));
}

TEST_F(AddServers, AddressesOnlyAreSaidToHaveNoNames) {
    user.In<SelectServerType_Frm>([](SelectServerType_Frm& form) {
        EXPECT_EQ(form.Message_Lbl.Caption,
                  "Please select the game type of these servers. Note: to add the server names from GameSpy also, "
                  "please deselect the 'copy IP address only' option in GameSpy.");
        SelectServerType_OK_Cmd_Click(form);
    });
    ExpectTold("Lorvane 3D", "2 Servers Added");
    Capture("10.0.0.1:27500\r\n10.0.0.2:27501");
    const Lines rows = {Row("Server 10.0.0.1:27500", "10.0.0.1;27500;0;"),
                        Row("Server 10.0.0.2:27501", "10.0.0.2;27501;0;")};
    EXPECT_EQ(window.Server_Cbo.Items, rows);
}

TEST_F(AddServers, ACancelledTypeAddsNothing) {
    user.In<SelectServerType_Frm>([](SelectServerType_Frm& form) { Entry_Cancel_Cmd_Click(form); });
    Capture(Repeated(3));
    EXPECT_TRUE(window.Server_Cbo.Items.empty());
    EXPECT_EQ(Stored(kOptions, "NetServers"), "(none)");
}

TEST_F(AddServers, TwentyLinesAreAccepted) {
    AnswerType(0);
    ExpectTold("Lorvane 3D", "20 Servers Added");
    Capture(Repeated(20));
    EXPECT_EQ(window.Server_Cbo.Items.size(), 20u);
}

TEST_F(AddServers, TwentyOneLinesAreRefused) {
    ExpectTold("Lorvane 3D", "You have selected 21 servers to add.\r\nThe limit is 20 per add session.");
    Capture(Repeated(21));
    EXPECT_TRUE(window.Server_Cbo.Items.empty());
}

TEST_F(AddServers, ABarInANameIsStoredAsI) {
    AnswerType(0);
    ExpectTold("Lorvane 3D", "2 Servers Added");
    Capture("43 10.0.0.1 27500 |LoC| Home\r\n43 10.0.0.2 27500 Away");
    EXPECT_EQ(Stored(kOptions, "NetServers"), "ILoCI Home;10.0.0.1;27500;0;;Away;10.0.0.2;27500;0;");
}

TEST_F(AddServers, ASemicolonInANameDoesNotBreakTheCatalog) {
    AnswerType(0);
    ExpectTold("Lorvane 3D", "2 Servers Added");
    Capture("43 10.0.0.1 27500 a;b;c\r\n43 10.0.0.2 27500 Away");
    EXPECT_EQ(Stored(kOptions, "NetServers"), "a,b,c;10.0.0.1;27500;0;;Away;10.0.0.2;27500;0;");
    PickExe("C:\\QUAKE\\GLQUAKE.EXE");  // reads the catalog again
    EXPECT_FALSE(user.ProgramEnded);
    EXPECT_EQ(window.Server_Cbo.Items.size(), 2u);
}

TEST_F(AddServers, LinesWithoutAnAddressAreLeftOutAndNotCounted) {
    AnswerType(0);
    ExpectTold("Lorvane 3D", "2 Servers Added");
    Capture("43 10.0.0.1 27500 Home\r\n\r\nend\r\n43 10.0.0.2 27500 Away");
    EXPECT_EQ(Stored(kOptions, "NetServers"), "Home;10.0.0.1;27500;0;;Away;10.0.0.2;27500;0;");
}

TEST_F(AddServers, TheyStandBehindTheRowsThatAreThere) {
    window.Server_Cbo.Items = {Row("Old", "10.0.0.9;26000;0;pw")};
    window.Server_Cbo.ListIndex = 0;
    AnswerType(0);
    ExpectTold("Lorvane 3D", "2 Servers Added");
    Capture(Repeated(2));
    EXPECT_EQ(window.Server_Cbo.Items.size(), 3u);
    EXPECT_EQ(window.Server_Cbo.ListIndex, 0);
    EXPECT_TRUE(Stored(kOptions, "NetServers").starts_with("Old;10.0.0.9;26000;0;pw;Server 10.0.0.1:27500;10.0.0.1;"));
}

TEST_F(AddServers, ACatalogThatWouldGrowTooLongStaysAsItWas) {
    launcher.Lists.HiddenServers = "x;" + Text(15990, 'x') + ";1;1;";
    AnswerType(0);
    user.Expect({"Lorvane 3D", ""});
    Capture(Repeated(2));
    EXPECT_TRUE(window.Server_Cbo.Items.empty());
    EXPECT_EQ(Stored(kOptions, "NetServers"), "(none)");
}

TEST_F(AddServers, AnEmptyClipboardIsToldOnceAndShowsNoDialog) {
    ExpectTold("Error Getting GameSpy Data", "No data was retrieved from GameSpy");
    Capture("");
    EXPECT_EQ(user.Asked.size(), 1u);
    EXPECT_EQ(Stored(kOptions, "NetServers"), "(none)");
}

TEST_F(AddServers, WithoutGameSpyNothingIsAsked) {
    ExpectTold("Error Looking for GameSpy 3D", "GameSpy 3D was not found.");
    AddCurrentGameSpyServers(run, launcher.Lists);
}

TEST_F(AddServers, TheMenuItemAddsThem) {
    AnswerType(0);
    ExpectTold("Lorvane 3D", "2 Servers Added");
    ShowGameSpy(Repeated(2));
    Menu_Click(launcher, MenuItem::ServerAddCurrentGameSpy_Bar);
    EXPECT_EQ(window.Server_Cbo.Items.size(), 2u);
}

TEST_F(AddServers, ASecondClickWhileGameSpyIsWaitedForDoesNothing) {
    AnswerType(0);
    ExpectTold("Lorvane 3D", "2 Servers Added");
    ShowGameSpy(Repeated(2));
    user.OnPump = [this] { Menu_Click(launcher, MenuItem::ServerAddCurrentGameSpy_Bar); };
    Menu_Click(launcher, MenuItem::ServerAddCurrentGameSpy_Bar);
    EXPECT_EQ(system.Windows.Log, (Lines{"front 7", "keys %s", "keys c"}));
}

}  // namespace
}  // namespace lv
