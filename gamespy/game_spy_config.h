// gamespy/game_spy_config.h
//
// The window that asks which games GameSpy 3D is to start, and how.

#pragma once

#include <array>

#include "foundation/modal_window.h"
#include "gamespy/spy_slots.h"

namespace lv {

/// What becomes of the main window when GameSpy 3D is configured.
enum class MinimizeLorvane { LeaveAlone = 0, Minimize = 1, Close = 2 };

/// Key of the full path of gamespy.exe, in section "Options".
constexpr TextView kGameSpyLocation = "GameSpyLocation";

struct GameSpyConfig_Frm : ModalWindow {
    /// `executables` is the main window's list; it must outlive the window.
    GameSpyConfig_Frm(Run& owner, const ImageCombo& executables);

    const ImageCombo& Executables;
    std::array<ListBox, kSpySlots> ExeSpy_Cbo;     // padded items: the title, and the path behind it
    std::array<ListBox, kSpySlots> ScriptSpy_Cbo;  // the same; QuakeWorld's stays empty and unseen
    CheckBox QWInstalled_Chk;
    CheckBox Hexen2Installed_Chk;
    CheckBox Quake2Installed_Chk;
    CheckBox UnRealInstalled_Chk;
    CheckBox SinInstalled_Chk;
    Label GameSpyLocation_Lbl;
    CommandButton Browse_Cmd;
    Label QuakeWorkingDir_Lbl;
    CheckBox LaunchSpyNow_Chk;
    std::array<Text, 3> MinimizeLorvane_Opt;  // the captions of the radio buttons
    MinimizeLorvane Minimize = MinimizeLorvane::LeaveAlone;
    CommandButton DoIt_Cmd;
    CommandButton Cancel_Cmd;

    int DialogResult = 0;  // 1: the controls hold what is to be done
};

/// The check box of a slot; nullptr for Quake, which has none.
CheckBox* InstalledBox(GameSpyConfig_Frm& form, std::size_t slot);

/// Whether the games of the slot are to be started: an executable picked, and the box ticked.
bool SlotInUse(GameSpyConfig_Frm& form, std::size_t slot);

/// Fills the lists, selects what was selected last time, ticks the games there are, and looks for GameSpy 3D.
void GameSpyConfig_Load(GameSpyConfig_Frm& form);

void GameSpyConfig_ExeSpy_Cbo_Click(GameSpyConfig_Frm& form, std::size_t slot);
void GameSpyConfig_ScriptSpy_Cbo_Click(GameSpyConfig_Frm& form, std::size_t slot);
void GameSpyConfig_Browse_Cmd_Click(GameSpyConfig_Frm& form);
void GameSpyConfig_MinimizeLorvane_Opt_Click(GameSpyConfig_Frm& form, int index);
void GameSpyConfig_DoIt_Cmd_Click(GameSpyConfig_Frm& form);
/// Also for the window's close box.
void GameSpyConfig_Cancel_Cmd_Click(GameSpyConfig_Frm& form);

/// The stored place of gamespy.exe if it is still there, else the last one found on the drives. Stored and shown, also
/// when there is none.
void FindGameSpy(GameSpyConfig_Frm& form);

}  // namespace lv
