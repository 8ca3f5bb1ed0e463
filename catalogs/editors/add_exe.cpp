#include "catalogs/editors/add_exe.h"

#include <algorithm>
#include <array>

#include "catalogs/editors/path_window.h"
#include "catalogs/missing_game.h"
#include "catalogs/unused_seats.h"
#include "foundation/browse.h"
#include "foundation/field_strings.h"
#include "foundation/question_box.h"
#include "foundation/settings.h"
#include "foundation/typed_path.h"
#include "games/engines/engine_seats.h"
#include "games/engines/playing_directory.h"
#include "games/engines/start_rules.h"
#include "games/games.h"
#include "games/programs.h"
#include "games/trees/tree_search.h"

namespace lv {

namespace {

ImageComboItem& SelectedRow(ImageCombo& list) {
    return list.Items[static_cast<std::size_t>(list.ListIndex)];
}

bool IsEdit(const AddExe_Frm& form) {
    return form.Mode == EntryMode::Edit && form.Lists.Exe_Cbo.HasSelection();
}

// True if the fields can be a row.
bool Validate(AddExe_Frm& form, const GameRecord& game) {
    if (game.Title.empty()) {
        TellFault(form, "ExeTitle_Txt", "Enter a Title for the executable file.");
    } else if (Holds(game.Title, ",")) {
        TellFault(form, "ExeTitle_Txt", "The Title may not contain a comma.");
    } else if (game.Path.empty()) {
        TellFault(form, "ExePath_Txt", "Enter a Path and File Name.");
    } else if (!form.run.System.Disk.FileExists(OnDisk(game.Path))) {
        TellFault(form, "ExePath_Txt", "Path and/or File Name are invalid.");
    } else {
        return true;
    }
    return false;
}

// A key stands in the list only once.
bool KeyIsTaken(const AddExe_Frm& form, const Text& path) {
    const ImageCombo& list = form.Lists.Exe_Cbo;
    for (std::size_t i = 0; i < list.Items.size(); ++i) {
        const bool own = IsEdit(form) && i == static_cast<std::size_t>(list.ListIndex);
        if (!own && list.Items[i].Key == path) {
            return true;
        }
    }
    return false;
}

void PutRow(AddExe_Frm& form, const GameRecord& game) {
    ImageCombo& list = form.Lists.Exe_Cbo;
    if (IsEdit(form)) {
        SelectedRow(list).Title = game.Title;
        SelectedRow(list).Key = game.Path;
        return;
    }
    const Text image = NewExeImageKeyOf(LastPathPart(OnDisk(game.Path)));
    list.Items.push_back({game.Title, game.Path, image, image});
    list.ListIndex = static_cast<int>(list.Items.size()) - 1;
}

void EnterDirectoryOf(AddExe_Frm& form, const GameRecord& game) {
    form.run.DefaultGameDirectory = DirectoryOf(OnDisk(game.Path));
    if (form.run.DefaultGameDirectory.empty()) {
        AskUser(form.run, "",
                Join("DefaultGameDirectory NOT SET - YOU WILL NOT BE ABLE TO LAUNCH", NewLine,
                     "Please edit the executable."));
    }
}

/// Where the choice of a tree begins: at a game that the engine plays, the present one before all others; else where
/// games lie.
Text TreeToBeginWith(Run& run, const Engine& engine) {
    if (Plays(engine, run.GameKind) && run.System.Disk.DirectoryExists(run.DefaultGameDirectory)) {
        return run.DefaultGameDirectory;
    }
    for (const GameTree& tree : QuickLook(run.System.Disk, run.System.Places)) {
        if (Plays(engine, tree.GameKind)) {
            return tree.Directory;
        }
    }
    const std::vector<Text> places = run.System.Places != nullptr ? run.System.Places->Games() : std::vector<Text>();
    return places.empty() ? run.System.Disk.UserHome() : places.front();
}

constexpr TextView kAsItIs = "";

/// The tree that the engine is to play; "CANCEL" if the user wants none. A program that may be no engine at all can be
/// taken as it is.
Text AskForTree(Run& run, const Engine& engine, bool isKnown) {
    const Index answer =
        AskUser(run, "Which Game?",
                Join(engine.Name, " lies in no game's directory.", NewLine, NewLine,
                     "Choose the directory of the game that it is to play: the one that holds the game's data, as",
                     NewLine, "\"quake\" holds \"id1\".",
                     isKnown ? Text() : Join(NewLine, NewLine, "Added as it is, it starts where it lies.")),
                isKnown ? "C&hoose,&Cancel" : "C&hoose,&As It Is,&Cancel");
    if (answer == 0) {
        return ChoosePath(run, TreeToBeginWith(run, engine), "Select Game Path");
    }
    return Text(!isKnown && answer == 1 ? kAsItIs : kPathCancelled);
}

// One of Windows' or DOS' plays from its own directory.
bool IsHostsOwn(TextView program) {
    return std::ranges::none_of(std::array<TextView, 4>{".exe", ".com", ".bat", ".cmd"}, [&](TextView ending) {
        return program.size() > ending.size() && SameText(program.substr(program.size() - ending.size()), ending);
    });
}

bool IsPlayedBy(const Engine& engine, Files& disk, TextView directory) {
    const auto tree = TreeIn(disk, directory);
    return tree && Plays(engine, tree->GameKind);
}

/// An engine of today, or any program of the host's, that lies in no game's directory: the user is asked which game it
/// is to play, and the record gets its seat there. False if that came to nothing; the user knows why.
bool SeatOutsideEngine(AddExe_Frm& form, GameRecord& game) {
    Run& run = form.run;
    Files& disk = run.System.Disk;
    const Text program = OnDisk(game.Path);
    const Engine* const known =
        form.Lists.Engines != nullptr ? EngineOf(*form.Lists.Engines, LastPathPart(program)) : nullptr;
    const bool isOutside = FactsOfDirectory(disk, DirectoryOf(program)).GameKind == Game::None;
    if ((known == nullptr && !IsHostsOwn(program)) || !isOutside || !disk.StandIn("", "")) {
        return true;
    }
    Engine unknown;
    unknown.Name = LastPathPart(program);
    unknown.Games = kAllEngineGames;
    const Engine* const engine = known != nullptr ? known : &unknown;
    const Text tree = AskForTree(run, *engine, known != nullptr);
    if (tree == kPathCancelled || tree == kAsItIs) {
        return tree == kAsItIs;
    }
    if (!IsPlayedBy(*engine, disk, tree)) {
        TellFault(form, "ExePath_Txt",
                  Join("There is no game in this directory that ", engine->Name, " could play: ", tree));
        return false;
    }
    const Result<Text> directory = PlayingDirectory(run, *engine, tree);
    if (!directory.Ok()) {
        TellFault(form, "ExePath_Txt", Join("The game cannot be played where it lies: ", directory.Fault.Text));
        return false;
    }
    const Text seat = Join(directory.Value, "\\", LastPathPart(program));
    if (!disk.FileExists(seat) && !SeatEngine(run, seat, ProgramToStart(disk, *engine, program))) {
        return false;
    }
    game.Path = seat;
    return true;
}

}  // namespace

AddExe_Frm::AddExe_Frm(Run& owner, CatalogLists& lists, EntryMode mode)
    : EntryWindow(owner, "AddExe_Frm", mode), Lists(lists) {
    Caption = mode == EntryMode::Edit ? "Edit Current Executable" : "Add Executable";
    ExeTitle_Lbl.Caption = "Executable Title";
    ExePath_Lbl.Caption = "Executable Path and File Name";
    Browse_Cmd.Caption = "&Browse";
    if (mode == EntryMode::Edit && lists.Exe_Cbo.HasSelection()) {
        ExeTitle_Txt.Text = SelectedRow(lists.Exe_Cbo).Title;
        ExePath_Txt.Text = SelectedRow(lists.Exe_Cbo).Key;
    }
}

void AddExe_Browse_Cmd_Click(AddExe_Frm& form) {
    if (auto path = BrowseForProgram(form.run, kExecutableFilter, BrowseStart(form.run, form.ExePath_Txt.Text))) {
        form.ExePath_Txt.Text = *std::move(path);
    }
}

void AddExe_OK_Cmd_Click(AddExe_Frm& form) {
    Run& run = form.run;
    ImageCombo& list = form.Lists.Exe_Cbo;
    GameRecord game = {Trim(form.ExeTitle_Txt.Text), TypedPath(run, form.ExePath_Txt.Text)};
    if (!Validate(form, game) || !SeatOutsideEngine(form, game)) {
        return;
    }
    if (KeyIsTaken(form, game.Path)) {
        TellFault(form, "ExePath_Txt", Join(AboutGame(game), "was listed twice. The second entry will be ignored."),
                  "Duplicate Game");
        return;
    }
    const ImageCombo before = list;
    PutRow(form, game);
    if (!SaveCatalog(run, form.Lists, kExecutables.Key, list)) {
        list = before;  // the value is too long: the user was told
        return;
    }
    LeaveUnusedSeats(run);  // an edited entry has left its own
    if (form.Mode == EntryMode::Add) {
        Save(run, kOptions, "ExecutablesPos", list.ListIndex);
    }
    EnterDirectoryOf(form, game);
    if (form.ChangeGame) {
        form.ChangeGame();
    }
    ConfirmEntry(form, game.Title, game.Path);
}

}  // namespace lv
