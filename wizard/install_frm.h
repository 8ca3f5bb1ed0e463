// wizard/install_frm.h
//
// The setup wizard's window: a row a game, with its check box and its path.

#pragma once

#include <array>
#include <vector>

#include "foundation/modal_window.h"
#include "games/places.h"
#include "launcher/menu/known_games.h"
#include "wizard/found_games.h"

namespace lv {

struct Install_Frm : ModalWindow {
    /// The games that are known already are greyed and not looked for.
    explicit Install_Frm(Run& owner, const std::vector<KnownGame>& known = {});

    EngineTable Engines;                       // of today; a copy, for the window is modal
    FoundGames Found;                          // by the quick look before it came up
    std::array<Text, kWizardRows> FoundPaths;  // that it has filled in

    std::array<Panel, kWizardRows> GameSetup_Fra;
    std::array<Picture, kWizardRows> GameIcon_Pic;
    std::array<CheckBox, kWizardRows> Game_Chk;
    std::array<Label, kWizardRows> Label1;
    std::array<TextBox, kWizardRows> GamePath_Txt;
    std::array<CommandButton, kWizardRows> Browse_Cmd;
    std::array<Label, 3> Label2;  // what to do
    CommandButton AutoSearch_Cmd;
    CheckBox ZipMagic_Chk;
    Label Status_Lbl;
    Label Found_Lbl;  // what the quick look has found, and later the search
    CommandButton OK_Cmd;
    CommandButton Cancel_Cmd;

    bool Hourglass = false;  // the pointer's shape
    bool SearchRunning = false;
    bool CancelSearch = false;
    bool DialogResult = false;
};

/// Looks around, ticks and fills the rows whose games were found, but for those known already, and says what it found.
void ShowFoundGames(Install_Frm& form, const EngineTable& engines);

/// Says so in the window.
void ShowFound(Install_Frm& form, TextView text);

/// What a row shows.
struct InstallRow {
    const char* Caption;   // of its check box
    const char* Name;      // in the title of the path dialog and in messages
    const char* ListName;  // in the list of games not found
    const char* Picture;   // of assets/icons/games
};
const std::array<InstallRow, kWizardRows>& InstallRows();

void Install_Browse_Cmd_Click(Install_Frm& form, int index);
void Install_Cancel_Cmd_Click(Install_Frm& form);

/// The window's close box. True if the window may go; a search that runs is asked to stop first.
bool Install_QueryUnload(Install_Frm& form);

}  // namespace lv
