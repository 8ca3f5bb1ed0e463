#include "video/add_vid_profile.h"

#include <algorithm>

namespace lv {

namespace {

struct Characters {
    char First;
    char Last;
};

constexpr Characters kTaken[] = {
    {'\b', '\b'}, {' ', '!'}, {'#', '&'}, {'(', '.'}, {'0', ':'},
    {'<', '['},   {']', '`'}, {'a', 'z'}, {'{', '{'}, {'}', '~'},
};

}  // namespace

AddVidProfile_Frm::AddVidProfile_Frm(Run& run) : ModalWindow(run, "AddVidProfile_Frm") {
    Caption = "Add a Video Profile";
    NewVidProfileName_Lbl.Caption = "Video Profile Name";
    OK_Cmd.Caption = "&OK";
    OK_Cmd.Default = true;
    Cancel_Cmd.Caption = "&Cancel";
    Focus = "NewVidProfileName_Txt";
}

bool TakesProfileNameCharacter(char typed) {
    return std::ranges::any_of(kTaken,
                               [typed](const Characters& run) { return typed >= run.First && typed <= run.Last; });
}

void AddVidProfile_NewVidProfileName_Txt_Change(AddVidProfile_Frm& form) {
    std::erase_if(form.NewVidProfileName_Txt.Text,
                  [](char character) { return character == '\b' || !TakesProfileNameCharacter(character); });
}

void AddVidProfile_OK_Cmd_Click(AddVidProfile_Frm& form) {
    form.DialogResult = true;
    form.LastEntry = form.NewVidProfileName_Txt.Text;
    form.Closed = true;
}

void AddVidProfile_Cancel_Cmd_Click(AddVidProfile_Frm& form) {
    form.DialogResult = false;
    form.Closed = true;
}

}  // namespace lv
