#include "launcher/played/game_list_frm.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "foundation/field_strings.h"
#include "games/games.h"
#include "launcher/played/played_words.h"
#include "launcher/setups/row_picks.h"
#include "launcher/window/launch_flow.h"

namespace lv {

namespace {

constexpr std::array<TextView, kGameColumns> kCaptions = {"Title", "Game", "Last played", "Time played (h:mm)",
                                                          "Started"};

constexpr int kLaunchButton = 0;

bool HoldsInAnyCase(TextView text, TextView lowerCase) {
    return LowerCase(text).find(lowerCase) != Text::npos;
}

/// Less than 0: `a` comes first.
template <class Value>
int Compared(const Value& a, const Value& b) {
    return a < b ? -1 : b < a ? 1 : 0;
}

int ByColumn(const ListedGame& a, const ListedGame& b, GameColumn column) {
    switch (column) {
        case GameColumn::Title:
            return Compared(LowerCase(a.Title), LowerCase(b.Title));
        case GameColumn::Game:
            return Compared(a.Game, b.Game);
        case GameColumn::LastPlayed:
            return Compared(a.Played.Last, b.Played.Last);
        case GameColumn::TimePlayed:
            return Compared(a.Played.Seconds, b.Played.Seconds);
        case GameColumn::Starts:
            return Compared(a.Played.Starts, b.Played.Starts);
    }
    return 0;
}

bool SaysNothing(const ListedGame& game, GameColumn column) {
    switch (column) {
        case GameColumn::Title:
            return false;
        case GameColumn::Game:
            return game.Game.empty();
        case GameColumn::LastPlayed:
            return game.Played.Last.empty();
        case GameColumn::TimePlayed:
            return game.Played.Seconds == 0;
        case GameColumn::Starts:
            return game.Played.Starts == 0;
    }
    return false;
}

bool ComesFirst(const ListedGame& a, const ListedGame& b, GameColumn column, bool descending) {
    if (SaysNothing(a, column) != SaysNothing(b, column)) {
        return SaysNothing(b, column);
    }
    const int order = ByColumn(a, b, column);
    if (order != 0) {
        return descending ? order > 0 : order < 0;
    }
    return LowerCase(a.Title) < LowerCase(b.Title);
}

Text SelectedPath(const GameList_Frm& form) {
    const GameTable& table = form.Games_Lst;
    return table.HasSelection() ? table.Rows[static_cast<std::size_t>(table.ListIndex)].Path : Text();
}

void ShowButtons(GameList_Frm& form) {
    form.PickGame_Cmd.Enabled = form.Games_Lst.HasSelection();
    form.LaunchGame_Cmd.Enabled = form.Games_Lst.HasSelection();
}

/// The rows that are wanted, in order. A selected row stays so while it is shown, or else is the first.
void ShowRows(GameList_Frm& form) {
    GameTable& table = form.Games_Lst;
    const Text selected = SelectedPath(form);
    table.Rows.clear();
    std::ranges::copy_if(form.All, std::back_inserter(table.Rows),
                         [&](const ListedGame& game) { return IsWanted(game, form.GameSearch_Txt.Text); });
    SortGames(table.Rows, table.SortedBy, table.Descending);
    const auto kept = std::ranges::find(table.Rows, selected, &ListedGame::Path);
    table.ListIndex = table.Rows.empty()         ? -1
                      : kept != table.Rows.end() ? static_cast<int>(kept - table.Rows.begin())
                                                 : 0;
    form.GameCount_Lbl.Caption =
        table.Rows.size() == form.All.size()
            ? Join(std::to_string(form.All.size()), form.All.size() == 1 ? " game" : " games")
            : Join(std::to_string(table.Rows.size()), " of ", std::to_string(form.All.size()), " games");
    ShowButtons(form);
}

void AnswerWith(GameList_Frm& form, GameListAnswer answer) {
    if (form.Games_Lst.HasSelection()) {
        form.Chosen = SelectedPath(form);
        form.Answer = answer;
        form.Closed = true;
    }
}

}  // namespace

TextView CaptionOf(GameColumn column) {
    return kCaptions[static_cast<std::size_t>(column)];
}

Text CellOf(const ListedGame& game, GameColumn column, const LocalTime& today) {
    switch (column) {
        case GameColumn::Title:
            return game.Title;
        case GameColumn::Game:
            return game.Game;
        case GameColumn::LastPlayed:
            return LastPlayedWords(game.Played.Last, today);
        case GameColumn::TimePlayed:
            return PlayTimeText(game.Played.Seconds);
        case GameColumn::Starts:
            return game.Played.Starts == 0 ? Text() : std::to_string(game.Played.Starts);
    }
    return {};
}

bool IsWanted(const ListedGame& game, TextView wanted) {
    const Text words = LowerCase(wanted);
    for (TextView rest = words; !rest.empty();) {
        const std::size_t end = std::min(rest.find(' '), rest.size());
        const TextView word = rest.substr(0, end);
        if (!HoldsInAnyCase(game.Title, word) && !HoldsInAnyCase(game.Game, word) && !HoldsInAnyCase(game.Path, word)) {
            return false;
        }
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return true;
}

void SortGames(std::vector<ListedGame>& games, GameColumn column, bool descending) {
    std::ranges::stable_sort(
        games, [&](const ListedGame& a, const ListedGame& b) { return ComesFirst(a, b, column, descending); });
}

GameList_Frm::GameList_Frm(Run& owner, std::vector<ListedGame> games)
    : ModalWindow(owner, "GameList_Frm"), All(std::move(games)), Today(owner.System.Time.Now()) {
    Caption = "Game List";
    GameSearch_Lbl.Caption = "&Search";
    GameSearch_Txt.ToolTip = "Any part of a title, a game or a path";
    PickGame_Cmd.Caption = "&Pick";
    PickGame_Cmd.Default = true;
    LaunchGame_Cmd.Caption = "&Launch";
    CloseGames_Cmd.Caption = "&Close";
    Focus = "GameSearch_Txt";
    ShowRows(*this);
}

void GameList_GameSearch_Txt_Change(GameList_Frm& form) {
    ShowRows(form);
}

void GameList_Games_Lst_Click(GameList_Frm& form, int row) {
    form.Games_Lst.ListIndex = row;
    ShowButtons(form);
}

void GameList_Games_Lst_ColumnClick(GameList_Frm& form, GameColumn column) {
    GameTable& table = form.Games_Lst;
    const bool isText = column == GameColumn::Title || column == GameColumn::Game;
    table.Descending = table.SortedBy == column ? !table.Descending : !isText;
    table.SortedBy = column;
    ShowRows(form);
}

void GameList_Games_Lst_Step(GameList_Frm& form, int rows) {
    GameTable& table = form.Games_Lst;
    if (!table.Rows.empty()) {
        table.ListIndex = std::clamp(table.ListIndex + rows, 0, static_cast<int>(table.Rows.size()) - 1);
    }
    ShowButtons(form);
}

void GameList_PickGame_Cmd_Click(GameList_Frm& form) {
    AnswerWith(form, GameListAnswer::Pick);
}

void GameList_LaunchGame_Cmd_Click(GameList_Frm& form) {
    AnswerWith(form, GameListAnswer::Launch);
}

void GameList_CloseGames_Cmd_Click(GameList_Frm& form) {
    form.Closed = true;
}

std::vector<ListedGame> ListedGames(Launcher& launcher) {
    Run& run = launcher.run;
    std::vector<ListedGame> games;
    for (const ImageComboItem& item : launcher.Window.Exe_Cbo.Items) {
        const Text path = ReplaceSameLength(Trim(item.Key), "/", "\\");
        const GameFacts& facts = FactsOfDirectory(run.System.Disk, DirectoryOf(path));
        games.push_back(
            {Trim(item.Title), facts.GameKind == Game::None ? Text() : Text(facts.Name), path, PlayedOf(run, path)});
    }
    return games;
}

void GameList_Bar_Click(Launcher& launcher) {
    GameList_Frm form(launcher.run, ListedGames(launcher));
    ShowModal(form);
    if (form.Answer == GameListAnswer::Close || !PickExecutable(launcher, form.Chosen)) {
        return;
    }
    if (form.Answer == GameListAnswer::Launch && launcher.Window.DoIt_Cmd[kLaunchButton].Enabled) {
        DoIt_Cmd_Click(launcher, kLaunchButton);
    }
}

}  // namespace lv
