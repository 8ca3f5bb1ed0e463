#include "foundry/editor/phun_names_frm.h"

#include <algorithm>
#include <utility>

#include "foundation/field_strings.h"
#include "foundation/game.h"
#include "foundation/question_box.h"
#include "foundry/editor/fig_frm.h"
#include "foundry/fonts/game_font.h"
#include "foundry/fonts/name_codes.h"
#include "foundry/fonts/own_font.h"

namespace lv {

namespace {

constexpr std::size_t kBack = 0;
constexpr std::size_t kForward = 2;
constexpr int kNameCell = 32;  // pixels, both ways
constexpr char kNoLetter = '_';

ColorLabel& Cell(Fig_Frm& form, int position) {
    return form.NamePosition_Lbl[static_cast<std::size_t>(position)];
}

char& LetterAtCursor(PhunNames_Frm& names) {
    return names.PhunName[static_cast<std::size_t>(names.NamePosition) - 1];
}

void ShowCells(Fig_Frm& form, bool visible) {
    for (int position = 1; position <= kNameLength; ++position) {
        Cell(form, position).Visible = visible;
        Cell(form, position).BackColor = kButtonFace;
    }
}

/// How long the name is without the blanks that fill it up.
int LengthOf(const Text& name) {
    return static_cast<int>(name.find_last_not_of(' ') + 1);
}

/// The name of a text box keeps no blanks of the padding. It stays as it is while it stands for the same name, so that
/// one that was too long is not cut by looking at it.
void ShowName(Fig_Frm& form) {
    const Text& name = form.PhunNames.PhunName;
    Text& shown = form.Document.Name_Txt.Text;
    if (PadToWidth(shown, kNameLength) == name) {
        return;
    }
    shown = name.substr(0, static_cast<std::size_t>(LengthOf(name)));
    Edited(form);
}

void AdvanceIfTicked(Fig_Frm& form) {
    if (form.PhunNames.AutoAdvance_Chk.Value == 1) {
        NavigatePosition(form, 1);
    }
}

void GoTo(Fig_Frm& form, int position) {
    PhunNames_Frm& names = form.PhunNames;
    names.NamePosition = position;
    names.Navigate_Cmd[kBack].Enabled = position > 1;
    names.Navigate_Cmd[kForward].Enabled = position < kNameLength;
    Cell(form, position).BackColor = kCursorGreen;
}

/// The directories that a game of this script takes its files from, the script's own in front, each once.
std::vector<Text> GameDirectories(const Fig_Frm& form) {
    std::vector<Text> candidates = {form.Document.CurrentScriptDirectory};
    if (!form.run.DefaultGameDirectory.empty()) {
        candidates.push_back(Join(form.run.DefaultGameDirectory, "\\", form.run.CurrentGameDir));
        candidates.push_back(Join(form.run.DefaultGameDirectory, "\\", form.run.BaseGameDir));
    }
    std::vector<Text> directories;
    for (Text& candidate : candidates) {
        while (candidate.ends_with('\\')) {
            candidate.pop_back();
        }
        const bool known =
            std::ranges::any_of(directories, [&](const Text& other) { return SameText(other, candidate); });
        if (!candidate.empty() && !known) {
            directories.push_back(std::move(candidate));
        }
    }
    return directories;
}

void TellOfHalfLife(Fig_Frm& form) {
    if (form.GameKind() == Game::HalfLife) {
        AskUserUnlessTold(
            form.run, "HL_Phun-Names", "Half-Life Phun-Names",
            Join("Sorry - these are just Quake1 letters...", NewLine, "We'll get the halflife letters in here soon."));
    }
}

}  // namespace

PhunNames_Frm::PhunNames_Frm(Run& owner) : ModalWindow(owner, "PhunNames_Frm") {
    Caption = "Setup Foundry - Phun*Names Editor";
    InsertChars_Chk.Caption = "Insert Characters";
    AutoAdvance_Chk.Caption = "Auto Advance";
    Navigate_Cmd[kBack].Caption = "<< &Back";
    Navigate_Cmd[1].Visible = false;
    Navigate_Cmd[kForward].Caption = "&Forward >>";
    ClearCurrent_Cmd.Caption = "Cl&ear Current";
    ClearAll_Cmd.Caption = "Clear &All";
    Restore_Cmd.Caption = "&Restore";
    OK_Cmd.Caption = "&Done";
    Cancel_Cmd.Caption = "&Cancel";
    constexpr TextView kHelp[] = {
        " Restore name to when this form was loaded.",
        " Clears the entire name.",
        " Clears the current space.",
        " Moves the green cursor forward one space.",
        " Moves the green cursor back one space.",
        "To add a letter, number, or other character to the indicated place (green), click it.",
    };
    for (std::size_t i = 0; i < Help_Lbl.size(); ++i) {
        Help_Lbl[i].Caption = kHelp[i];
    }
}

std::vector<NameLetter> PaintName(const Fig_Frm& form) {
    const Text name = Trim(form.Document.Name_Txt.Text).substr(0, kNameLength);
    std::vector<NameLetter> letters;
    for (const char letter : name) {
        const int code = static_cast<unsigned char>(letter);
        const int toX = static_cast<int>(letters.size()) * kNameCell;
        letters.push_back({code % kFontCellsInRow * kFontCell, code / kFontCellsInRow * kFontCell, toX});
    }
    return letters;
}

void LoadPhunNames(Fig_Frm& form) {
    auto own = ReadGameFont(form.run.System.Disk, GameDirectories(form), form.GameKind());
    form.PhunNames.Map = own ? std::move(*own) : OwnFont(form.GameKind());
    form.ViewCustomLetters_Cmd.Caption = "&Edit Name With Custom Letters";
    form.ViewCustomLetters_Cmd.ToolTip = "Use those cool custom letters!";
    form.Label6.Caption = "( Names have a 15 character limit )";
    form.Label6.ToolTip = "That's just the way it is";
    ShowCells(form, false);
}

void ViewCustomLetters_Cmd_Click(Fig_Frm& form) {
    TellOfHalfLife(form);
    ShowCells(form, true);
    PhunNames_Frm& names = form.PhunNames;
    names.PhunName = PadToWidth(form.Document.Name_Txt.Text, kNameLength);
    names.PhunNameBackup = names.PhunName;
    GoTo(form, std::min(LengthOf(names.PhunName) + 1, kNameLength));
    names.Closed = false;
    ShowModal(names);
    ShowCells(form, false);
}

void NavigatePosition(Fig_Frm& form, int step) {
    PhunNames_Frm& names = form.PhunNames;
    Cell(form, names.NamePosition).BackColor = kButtonFace;
    GoTo(form, std::clamp(names.NamePosition + step, 1, kNameLength));
}

void PhunNames_Navigate_Cmd_Click(Fig_Frm& form, int index) {
    NavigatePosition(form, index - 1);
}

void PhunNames_Picture1_MouseUp(Fig_Frm& form, int x, int y) {
    if (x < 0 || y < 0 || x >= kFontMapWidth || y >= kFontMapHeight) {
        return;
    }
    const int code = y / kFontCell * kFontCellsInRow + x / kFontCell;
    if (code >= kFontCodes || !NameTakes(form.GameKind(), code)) {
        AskUser(form.run, "No Character", "The character you have clicked is not available.");
        return;
    }
    PhunNames_Frm& names = form.PhunNames;
    if (names.InsertChars_Chk.Value == 1) {
        names.PhunName.insert(static_cast<std::size_t>(names.NamePosition) - 1, 1, static_cast<char>(code));
        names.PhunName.resize(kNameLength);
    } else {
        LetterAtCursor(names) = static_cast<char>(code);
    }
    ShowName(form);
    AdvanceIfTicked(form);
}

void PhunNames_ClearCurrent_Cmd_Click(Fig_Frm& form) {
    LetterAtCursor(form.PhunNames) = kNoLetter;
    ShowName(form);
    AdvanceIfTicked(form);
}

void PhunNames_ClearAll_Cmd_Click(Fig_Frm& form) {
    if (AskUser(form.run, "Confirm Clear", "Erase entire name?", "&Do it!,&No") != 0) {
        return;
    }
    form.PhunNames.PhunName.assign(kNameLength, ' ');
    ShowName(form);
    NavigatePosition(form, -kNameLength);
}

void PhunNames_Restore_Cmd_Click(Fig_Frm& form) {
    PhunNames_Frm& names = form.PhunNames;
    if (!names.Cancelling && AskUser(form.run, "Confirm Restore", "Restore name?", "&Do it!,&No") != 0) {
        return;
    }
    names.PhunName = names.PhunNameBackup;
    ShowName(form);
    NavigatePosition(form, -kNameLength);
}

void PhunNames_OK_Cmd_Click(Fig_Frm& form) {
    form.PhunNames.Closed = true;
}

void PhunNames_Cancel_Cmd_Click(Fig_Frm& form) {
    form.PhunNames.Cancelling = true;
    PhunNames_Restore_Cmd_Click(form);
    form.PhunNames.Cancelling = false;
    PhunNames_OK_Cmd_Click(form);
}

}  // namespace lv
