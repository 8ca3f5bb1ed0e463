#include "launcher/played/game_list_frm.h"

#include "launcher/menu/menu_table.h"
#include "tests/support/launcher_fixture.h"

namespace lv {
namespace {

using enum GameColumn;

constexpr LocalTime kToday{2024, 3, 1, 20, 0, 0};

std::vector<ListedGame> Games() {
    return {
        {"Quake", "Quake", "C:\\QUAKE\\GLQUAKE.EXE", {"2024-03-01 14:30:00", 3600, 12}},
        {"alone at night", "Unreal", "C:\\UNREAL\\SYSTEM\\UNREAL.EXE", {}},
        {"QuakeWorld", "Quake", "D:\\Old Games\\QWCL.EXE", {"2024-02-29 14:30:00", 90'000, 3}},
        {"Zero", "", "E:\\Z.EXE", {"2024-02-29 14:31:00", 0, 1}},
    };
}

std::vector<Text> Titles(const std::vector<ListedGame>& games) {
    std::vector<Text> titles;
    for (const ListedGame& game : games) {
        titles.push_back(game.Title);
    }
    return titles;
}

struct SortRow {
    GameColumn Column;
    bool Descending;
    std::vector<Text> Titles;
};

// clang-format off
const SortRow kSorts[] = {
    {Title, false, {"alone at night", "Quake", "QuakeWorld", "Zero"}},
    {Title, true, {"Zero", "QuakeWorld", "Quake", "alone at night"}},
    {Game, false, {"Quake", "QuakeWorld", "alone at night", "Zero"}},
    {Game, true, {"alone at night", "Quake", "QuakeWorld", "Zero"}},
    {LastPlayed, true, {"Quake", "Zero", "QuakeWorld", "alone at night"}},
    {LastPlayed, false, {"QuakeWorld", "Zero", "Quake", "alone at night"}},
    {TimePlayed, true, {"QuakeWorld", "Quake", "alone at night", "Zero"}},
    {TimePlayed, false, {"Quake", "QuakeWorld", "alone at night", "Zero"}},
    {Starts, true, {"Quake", "QuakeWorld", "Zero", "alone at night"}},
    {Starts, false, {"Zero", "QuakeWorld", "Quake", "alone at night"}},
};
// clang-format on

struct WantedRow {
    const char* Wanted;
    std::vector<Text> Titles;
};

// clang-format off
const WantedRow kWanted[] = {
    {"", {"Quake", "alone at night", "QuakeWorld", "Zero"}},
    {"  ", {"Quake", "alone at night", "QuakeWorld", "Zero"}},
    {"world", {"QuakeWorld"}},
    {"UNREAL", {"alone at night"}},
    {"old games", {"QuakeWorld"}},
    {"games quake", {"QuakeWorld"}},
    {"d:\\", {"QuakeWorld"}},
    {".exe a", {"Quake", "alone at night", "QuakeWorld"}},
    {"doom", {}},
    {"quake doom", {}},
};
// clang-format on

TEST(SortGames, GoesByTheColumnAndPutsTheNeverPlayedLast) {
    for (const SortRow& row : kSorts) {
        std::vector<ListedGame> games = Games();
        SortGames(games, row.Column, row.Descending);
        EXPECT_EQ(Titles(games), row.Titles) << CaptionOf(row.Column) << row.Descending;
    }
}

TEST(IsWanted, LooksForEachWordInTitleGameAndPath) {
    for (const WantedRow& row : kWanted) {
        std::vector<ListedGame> games = Games();
        std::erase_if(games, [&](const ListedGame& game) { return !IsWanted(game, row.Wanted); });
        EXPECT_EQ(Titles(games), row.Titles) << row.Wanted;
    }
}

TEST(CellOf, SaysWhatTheColumnIsAbout) {
    const auto cells = [](const ListedGame& game) {
        std::vector<Text> said;
        for (const GameColumn column : {Title, Game, LastPlayed, TimePlayed, Starts}) {
            said.push_back(CellOf(game, column, kToday));
        }
        return said;
    };
    EXPECT_EQ(cells(Games()[0]), (std::vector<Text>{"Quake", "Quake", "today, 14:30", "1:00", "12"}));
    EXPECT_EQ(cells(Games()[1]), (std::vector<Text>{"alone at night", "Unreal", "never", "", ""}));
    EXPECT_EQ(cells(Games()[2]), (std::vector<Text>{"QuakeWorld", "Quake", "yesterday", "25:00", "3"}));
}

class GameList : public LauncherTest {
  protected:
    GameList() { system.Time.Is = kToday; }
    void Type(GameList_Frm& form, TextView text) {
        form.GameSearch_Txt.Text = text;
        GameList_GameSearch_Txt_Change(form);
    }
    Text Selected(const GameList_Frm& form) {
        return form.Games_Lst.HasSelection()
                   ? form.Games_Lst.Rows[static_cast<std::size_t>(form.Games_Lst.ListIndex)].Title
                   : Text("(none)");
    }
};

TEST_F(GameList, BeginsWithWhatWasPlayedLast) {
    GameList_Frm form(run, Games());
    EXPECT_EQ(form.Caption, "Game List");
    EXPECT_EQ(Titles(form.Games_Lst.Rows), (std::vector<Text>{"Quake", "Zero", "QuakeWorld", "alone at night"}));
    EXPECT_EQ(Selected(form), "Quake");
    EXPECT_EQ(form.GameCount_Lbl.Caption, "4 games");
    EXPECT_EQ(form.GameSearch_Lbl.Caption, "&Search");
    EXPECT_EQ(form.PickGame_Cmd.Caption, "&Pick");
    EXPECT_TRUE(form.PickGame_Cmd.Default);
    EXPECT_EQ(form.LaunchGame_Cmd.Caption, "&Launch");
    EXPECT_EQ(form.CloseGames_Cmd.Caption, "&Close");
    EXPECT_EQ(form.Focus, "GameSearch_Txt");
}

TEST_F(GameList, TypingFiltersAndKeepsTheSelectedRowWhileItIsShown) {
    GameList_Frm form(run, Games());
    GameList_Games_Lst_Click(form, 2);
    Type(form, "quake");
    EXPECT_EQ(Titles(form.Games_Lst.Rows), (std::vector<Text>{"Quake", "QuakeWorld"}));
    EXPECT_EQ(Selected(form), "QuakeWorld");
    EXPECT_EQ(form.GameCount_Lbl.Caption, "2 of 4 games");
    Type(form, "unreal");
    EXPECT_EQ(Selected(form), "alone at night");
}

TEST_F(GameList, WithoutARowNothingCanBePickedOrLaunched) {
    GameList_Frm form(run, Games());
    Type(form, "doom");
    EXPECT_EQ(form.GameCount_Lbl.Caption, "0 of 4 games");
    EXPECT_FALSE(form.PickGame_Cmd.Enabled);
    EXPECT_FALSE(form.LaunchGame_Cmd.Enabled);
    GameList_PickGame_Cmd_Click(form);
    GameList_LaunchGame_Cmd_Click(form);
    GameList_Games_Lst_Step(form, 1);
    EXPECT_FALSE(form.Closed);
    Type(form, "");
    EXPECT_TRUE(form.PickGame_Cmd.Enabled);
    EXPECT_TRUE(form.LaunchGame_Cmd.Enabled);
}

TEST_F(GameList, AClickOnAHeadSortsAndAnotherTurnsItRound) {
    GameList_Frm form(run, Games());
    GameList_Games_Lst_ColumnClick(form, Title);
    EXPECT_EQ(Titles(form.Games_Lst.Rows), (std::vector<Text>{"alone at night", "Quake", "QuakeWorld", "Zero"}));
    EXPECT_EQ(Selected(form), "Quake") << "it stays";
    GameList_Games_Lst_ColumnClick(form, Title);
    EXPECT_EQ(Titles(form.Games_Lst.Rows), (std::vector<Text>{"Zero", "QuakeWorld", "Quake", "alone at night"}));
    GameList_Games_Lst_ColumnClick(form, TimePlayed);
    EXPECT_EQ(Titles(form.Games_Lst.Rows), (std::vector<Text>{"QuakeWorld", "Quake", "alone at night", "Zero"}));
}

TEST_F(GameList, StepsStayWithinTheList) {
    GameList_Frm form(run, Games());
    GameList_Games_Lst_Step(form, 1);
    EXPECT_EQ(Selected(form), "Zero");
    GameList_Games_Lst_Step(form, 10);
    EXPECT_EQ(Selected(form), "alone at night");
    GameList_Games_Lst_Step(form, -10);
    EXPECT_EQ(Selected(form), "Quake");
}

TEST_F(GameList, ListsTheExecutablesWithWhatIsKeptOfThem) {
    AddGames();
    Save(run, "Played", "c:\\quake2\\quake2.exe", "2024-02-28 10:00:00;7200;2");
    Load();
    const std::vector<ListedGame> games = ListedGames(launcher);
    ASSERT_EQ(games.size(), 6u);
    EXPECT_EQ(games[0].Title, "Quake");
    EXPECT_EQ(games[0].Game, "Quake");
    EXPECT_EQ(games[0].Played, PlayRecord());
    EXPECT_EQ(games[3].Title, "Quake 2");
    EXPECT_EQ(games[3].Game, "Quake2");
    EXPECT_EQ(games[3].Path, "C:\\QUAKE2\\QUAKE2.EXE");
    EXPECT_EQ(games[3].Played, (PlayRecord{"2024-02-28 10:00:00", 7200, 2}));
}

TEST_F(GameList, PickPicksTheRowInTheMainWindow) {
    AddGames();
    Load();
    user.In<GameList_Frm>([&](GameList_Frm& form) {
        Type(form, "quake2");
        GameList_PickGame_Cmd_Click(form);
        EXPECT_TRUE(form.Closed);
    });
    Menu_Click(launcher, MenuItem::GameList_Bar);
    EXPECT_EQ(run.GameKind, Game::Quake2);
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(GameList, LaunchPicksAndStarts) {
    AddGames();
    Load();
    user.In<GameList_Frm>([&](GameList_Frm& form) {
        Type(form, "quake2");
        GameList_LaunchGame_Cmd_Click(form);
    });
    Menu_Click(launcher, MenuItem::GameList_Bar);
    EXPECT_EQ(system.Programs.Started, (std::vector<std::string>{"c:\\quake2\\lv_666.bat"}));
    EXPECT_EQ(Stored("Played", "c:\\quake2\\quake2.exe"), "2024-03-01 20:00:00;0;1");
}

TEST_F(GameList, CloseChangesNothing) {
    AddGames();
    Load();
    const int row = window.Exe_Cbo.ListIndex;
    user.In<GameList_Frm>([&](GameList_Frm& form) {
        Type(form, "quake2");
        GameList_CloseGames_Cmd_Click(form);
    });
    Menu_Click(launcher, MenuItem::GameList_Bar);
    EXPECT_EQ(window.Exe_Cbo.ListIndex, row);
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(GameList, WithoutExecutablesItIsEmpty) {
    Load();
    user.In<GameList_Frm>([&](GameList_Frm& form) {
        EXPECT_EQ(form.GameCount_Lbl.Caption, "0 games");
        EXPECT_FALSE(form.PickGame_Cmd.Enabled);
        GameList_CloseGames_Cmd_Click(form);
    });
    Menu_Click(launcher, MenuItem::GameList_Bar);
}

}  // namespace
}  // namespace lv
