#include "launcher/launchers/launcher_frm.h"

#include "foundation/field_strings.h"
#include "foundation/question_box.h"
#include "foundation/settings.h"
#include "launcher/setups/setup_words.h"

namespace lv {

namespace {

// In section "LV-Stuff", a bit a place.
constexpr TextView kPlaces = "LauncherPlaces";

struct PlaceRow {
    ShortcutPlace Place;
    CheckBox Launcher_Frm::*Box;
    int Bit;
};
constexpr PlaceRow kRows[] = {
    {ShortcutPlace::Menu, &Launcher_Frm::LauncherInMenu_Chk, 1},
    {ShortcutPlace::Desktop, &Launcher_Frm::LauncherOnDesktop_Chk, 2},
};

}  // namespace

Launcher_Frm::Launcher_Frm(Launcher& owner, const Setup& setup) : ModalWindow(owner.run, "Launcher_Frm") {
    Caption = kLauncherTitle;
    LauncherFor_Lbl.Caption = Join("Where is ", ShownText(setup.Name), " to be started from?");
    Shortcuts& system = *run.System.Launchers;
    const int last = GetNumber(run, kStuff, kPlaces);
    for (const PlaceRow& row : kRows) {
        CheckBox& box = this->*row.Box;
        box.Caption = system.CaptionOf(row.Place);
        box.Enabled = system.HasPlace(row.Place);
        box.Value = box.Enabled && (last & row.Bit) != 0 ? 1 : 0;
    }
    WriteLauncher_Cmd.Caption = "&OK";
    WriteLauncher_Cmd.Default = true;
    Cancel_Cmd.Caption = "&Cancel";
    Focus = LauncherInMenu_Chk.Enabled ? "LauncherInMenu_Chk" : "LauncherOnDesktop_Chk";
    LauncherPlace_Chk_Click(*this);
}

void LauncherPlace_Chk_Click(Launcher_Frm& form) {
    form.WriteLauncher_Cmd.Enabled = form.LauncherInMenu_Chk.Value == 1 || form.LauncherOnDesktop_Chk.Value == 1;
}

void Launcher_Write_Cmd_Click(Launcher_Frm& form) {
    form.Chosen = true;
    form.Closed = true;
}

void Launcher_Cancel_Cmd_Click(Launcher_Frm& form) {
    form.Closed = true;
}

void OfferLaunchers(Launcher& launcher, const Setup& setup) {
    if (!CanMakeLaunchers(launcher.run)) {
        return;
    }
    if (setup.Name.find('\0') != Text::npos) {
        AskUser(launcher.run, kLauncherTitle, "No start of a program can say the name of this setup. Rename it first.");
        return;
    }
    Launcher_Frm form(launcher, setup);
    ShowModal(form);
    if (!form.Chosen || launcher.run.Ended) {
        return;
    }
    int bits = 0;
    std::vector<ShortcutPlace> places;
    for (const PlaceRow& row : kRows) {
        if ((form.*row.Box).Value == 1) {
            bits |= row.Bit;
            places.push_back(row.Place);
        }
    }
    Save(launcher.run, kStuff, kPlaces, bits);
    MakeLaunchers(launcher, setup, places);
}

}  // namespace lv
