// launcher/played/game_list_frm.h
//
// The window of all executables with what was played last and for how long: searched by typing, sorted by a click on a
// column.

#pragma once

#include <vector>

#include "foundation/modal_window.h"
#include "launcher/launcher.h"
#include "launcher/played/played_games.h"

namespace lv {

enum class GameColumn { Title, Game, LastPlayed, TimePlayed, Starts };
constexpr std::size_t kGameColumns = 5;

/// What the head of a column says.
TextView CaptionOf(GameColumn column);

struct ListedGame {
    Text Title;
    Text Game;  // empty: of none that is known
    Text Path;
    PlayRecord Played;
};

/// What a column says of it on the day `today`.
Text CellOf(const ListedGame& game, GameColumn column, const LocalTime& today);

/// Whether each word of `wanted` stands in the title, the game or the path, in any letter case.
bool IsWanted(const ListedGame& game, TextView wanted);

/// In the order of a column; what was never played comes last either way. Of equal ones the titles decide.
void SortGames(std::vector<ListedGame>& games, GameColumn column, bool descending);

/// The table of a window: the rows that are shown.
struct GameTable : Control {
    std::vector<ListedGame> Rows;
    int ListIndex = -1;
    GameColumn SortedBy = GameColumn::LastPlayed;
    bool Descending = true;

    [[nodiscard]] bool HasSelection() const {
        return ListIndex >= 0 && static_cast<std::size_t>(ListIndex) < Rows.size();
    }
};

enum class GameListAnswer { Close, Pick, Launch };

struct GameList_Frm : ModalWindow {
    GameList_Frm(Run& owner, std::vector<ListedGame> games);

    Label GameSearch_Lbl;
    TextBox GameSearch_Txt;
    GameTable Games_Lst;
    Label GameCount_Lbl;
    CommandButton PickGame_Cmd;
    CommandButton LaunchGame_Cmd;
    CommandButton CloseGames_Cmd;

    std::vector<ListedGame> All;
    LocalTime Today;
    GameListAnswer Answer = GameListAnswer::Close;  // closing the window by its frame too
    Text Chosen;                                    // the path of the one to pick or launch
};

void GameList_GameSearch_Txt_Change(GameList_Frm& form);
void GameList_Games_Lst_Click(GameList_Frm& form, int row);
/// A click on the head of a column sorts by it, another one the other way round.
void GameList_Games_Lst_ColumnClick(GameList_Frm& form, GameColumn column);
/// Up and Down in the search field: so many rows further, within the list.
void GameList_Games_Lst_Step(GameList_Frm& form, int rows);
void GameList_PickGame_Cmd_Click(GameList_Frm& form);
void GameList_LaunchGame_Cmd_Click(GameList_Frm& form);
void GameList_CloseGames_Cmd_Click(GameList_Frm& form);

/// The executables of the main window.
std::vector<ListedGame> ListedGames(Launcher& launcher);

void GameList_Bar_Click(Launcher& launcher);

}  // namespace lv
