#include "catalogs/editors/view_all.h"

#include "tests/catalogs/editors/editors_fixture.h"

namespace lv {

class ViewAll : public EditorsTest {
  protected:
    void ExpectView(TextView title, TextView text) { user.Expect({Text(title), Text(text), 0, false, true, "&Cool"}); }
};

TEST_F(ViewAll, ExecutablesArePaddedToTheWidestTitle) {
    lists.Exe_Cbo.Items = {{"Quake", "C:\\Q.EXE", "", ""}, {"Quake 2", "C:\\Q2.EXE", "", ""}};
    ExpectView("View All Executables",
               "Executable Title  /  Executable Path\r\n------------------------------------\r\n"
               "Quake  \t  /  C:\\Q.EXE\r\nQuake 2\t  /  C:\\Q2.EXE");
    ViewAllExecutables(run, lists);
}

TEST_F(ViewAll, Games) {
    lists.Game_Cbo.Items = {Item("Flags", "-game CTF")};
    ExpectView("View All Games",
               "Game Title  /  -game Directory\r\n------------------------------\r\nFlags\t  /  -game CTF");
    ViewAllGames(run, lists);
}

TEST_F(ViewAll, Scripts) {
    lists.Script_Cbo.Items = {Item("Own", "c:\\own.cfg")};
    ExpectView("View All Scripts",
               "Script Title  /  Script File Path & Name\r\n----------------------------------------\r\n"
               "Own\t  /  c:\\own.cfg");
    ViewAllScripts(run, lists);
}

TEST_F(ViewAll, Demos) {
    lists.Demo_Cbo.Items = {Item("One", "playdemo demo1.dem")};
    ExpectView("View All Demos",
               "Demo Title  /  Demo File Name\r\n-----------------------------\r\nOne\t  /  playdemo demo1.dem");
    ViewAllDemos(run, lists);
}

TEST_F(ViewAll, Memory) {
    lists.Mem_Cbo.Items = {Item("8 megabytes", "-winmem 8")};
    ExpectView("View All Memory",
               "Memory Title  /  -winmem Megabytes\r\n----------------------------------\r\n"
               "8 megabytes\t  /  -winmem 8");
    ViewAllMemory(run, lists);
}

TEST_F(ViewAll, ServersShowAddressAndPort) {
    lists.Server_Cbo.Items = {Item("Home", "10.0.0.1;26000;0;secret")};
    run.GameKind = Game::Quake;
    const char* text =
        "Server Title  /  Server Address\r\n-------------------------------\r\nHome\t  /  10.0.0.1:26000";
    ExpectView("View All Quake Servers", text);
    ViewAllServers(run, lists);
    run.IsQuakeWorld = true;
    ExpectView("View All QuakeWorld Servers", text);
    ViewAllServers(run, lists);
    run.GameKind = Game::Hexen2;
    ExpectView("View All Hexen2 Servers", text);
    ViewAllServers(run, lists);
    run.GameKind = Game::Quake2;
    ExpectView("View All Quake2 Servers", text);
    ViewAllServers(run, lists);
}

TEST_F(ViewAll, ServersOfOtherGamesHaveNoTitle) {
    for (const Game kind : {Game::Unreal, Game::Sin, Game::Heretic2, Game::HalfLife}) {
        run.GameKind = kind;
        ExpectView("Lorvane 3D", "Server Title  /  Server Address\r\n-------------------------------");
        ViewAllServers(run, lists);
    }
}

}  // namespace lv
