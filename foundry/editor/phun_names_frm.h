// foundry/editor/phun_names_frm.h
//
// The editor of player names in the game's own letters: a picture of the console font, a letter a click.

#pragma once

#include <array>
#include <vector>

#include "foundation/modal_window.h"
#include "foundry/fonts/font_map.h"
#include "foundry/tables/slots.h"

namespace lv {

struct Fig_Frm;

constexpr int kNameLength = 15;

// Back colours of NamePosition_Lbl. The system's colour of buttons has a number that no other has.
constexpr Color kButtonFace = 0x8000000f;
constexpr Color kCursorGreen = 0x00ff00;

struct PhunNames_Frm : ModalWindow {
    explicit PhunNames_Frm(Run& owner);

    FontMap Map;  // Picture1
    Control Picture1;
    CheckBox InsertChars_Chk;
    CheckBox AutoAdvance_Chk;
    std::array<CommandButton, 3> Navigate_Cmd;  // 0 back, 2 forward
    CommandButton ClearCurrent_Cmd, ClearAll_Cmd, Restore_Cmd, OK_Cmd, Cancel_Cmd;
    std::array<Label, 6> Help_Lbl;  // what the buttons do, and how to begin

    Text PhunName = Text(kNameLength, ' ');        // always 15 characters
    Text PhunNameBackup = Text(kNameLength, ' ');  // as it was when the window came up
    int NamePosition = 1;                          // 1 to 15
    bool Cancelling = false;                       // Restore_Cmd asks nothing
};

/// One letter of Name_Pic: the cell of the map whose left top is (FromX, FromY), drawn 32 by 32 at (ToX, 0).
struct NameLetter {
    int FromX = 0;
    int FromY = 0;
    int ToX = 0;
};

/// What Name_Pic shows: Name_Txt without blanks at its ends, its first 15 characters.
std::vector<NameLetter> PaintName(const Fig_Frm& form);

/// The map of the kind of game: from the game's own data where that lies beside the script, else our own. Hides the
/// fifteen cells.
void LoadPhunNames(Fig_Frm& form);

/// Comes back when the window was closed, however that was.
void ViewCustomLetters_Cmd_Click(Fig_Frm& form);
void NavigatePosition(Fig_Frm& form, int step);
void PhunNames_Navigate_Cmd_Click(Fig_Frm& form, int index);
/// A click on the map, in its pixels. One beside the map is none.
void PhunNames_Picture1_MouseUp(Fig_Frm& form, int x, int y);
void PhunNames_ClearCurrent_Cmd_Click(Fig_Frm& form);
void PhunNames_ClearAll_Cmd_Click(Fig_Frm& form);
void PhunNames_Restore_Cmd_Click(Fig_Frm& form);
void PhunNames_OK_Cmd_Click(Fig_Frm& form);
void PhunNames_Cancel_Cmd_Click(Fig_Frm& form);

}  // namespace lv
