#include "launcher/setups/setups_frm.h"

#include <algorithm>

#include "foundation/question_box.h"
#include "foundation/topmost.h"
#include "launcher/launchers/launcher_frm.h"
#include "launcher/setups/setup_start.h"
#include "launcher/setups/setup_words.h"
#include "launcher/setups/setups_menu.h"

namespace lv {

namespace {

constexpr Index kDelete = 0;
constexpr int kCancel = 1;

const KeptSetup* RowOf(const Setups_Frm& form) {
    const auto& all = form.launcher.Setups.All;
    const auto row = static_cast<std::size_t>(form.Setups_Lst.ListIndex);
    return form.Setups_Lst.HasSelection() && row < all.size() ? &all[row] : nullptr;
}

void Show(Setups_Frm& form) {
    const Launcher& launcher = form.launcher;
    const bool changed = PickedSetupIsChanged(launcher);
    const int row = form.Setups_Lst.ListIndex;
    form.Setups_Lst.Items.clear();
    for (const KeptSetup& kept : launcher.Setups.All) {
        const TextView mark = kept.Number != launcher.Setups.Picked ? "" : changed ? " (picked, changed)" : " (picked)";
        form.Setups_Lst.Items.push_back(Join(ShownText(kept.What.Name), mark, "  -  ", WordsOf(launcher, kept.What)));
    }
    form.Setups_Lst.ListIndex = std::clamp(row, -1, static_cast<int>(form.Setups_Lst.Items.size()) - 1);
    form.Setups_Lbl.Caption = form.Setups_Lst.Items.empty()
                                  ? "No setup is kept yet. Tick and pick in the main window what you want to play, and "
                                    "choose Tools, Setups, Keep This Setup."
                                  : "Each is what was ticked and picked in the main window. Enter starts the selected "
                                    "one.";
    const KeptSetup* const selected = RowOf(form);
    for (CommandButton* button :
         {&form.StartSetup_Cmd, &form.PickSetup_Cmd, &form.RenameSetup_Cmd, &form.DeleteSetup_Cmd}) {
        button->Enabled = selected != nullptr;
    }
    form.MakeLauncher_Cmd.Enabled = selected != nullptr && CanMakeLaunchers(form.run);
    form.KeepSetupChanges_Cmd.Enabled = selected != nullptr && changed && selected->Number == launcher.Setups.Picked;
}

}  // namespace

Setups_Frm::Setups_Frm(Launcher& owner) : ModalWindow(owner.run, "Setups_Frm"), launcher(owner) {
    Caption = "Setups";
    StartSetup_Cmd.Caption = "&Start";
    StartSetup_Cmd.ToolTip = "Pick this setup and start its game";
    PickSetup_Cmd.Caption = "&Pick";
    PickSetup_Cmd.ToolTip = "Tick and pick in the main window what the setup says";
    KeepSetupChanges_Cmd.Caption = "&Keep Changes";
    KeepSetupChanges_Cmd.ToolTip = "Keep in the picked setup what is ticked and picked now";
    RenameSetup_Cmd.Caption = "&Rename";
    RenameSetup_Cmd.ToolTip = "Give this setup another name";
    DeleteSetup_Cmd.Caption = "&Delete";
    DeleteSetup_Cmd.ToolTip = "Delete this setup; its game stays";
    MakeLauncher_Cmd.Caption = "&Make a Launcher...";
    MakeLauncher_Cmd.ToolTip = "Start this setup from the desktop or the menu of programs";
    CloseSetups_Cmd.Caption = "&Close";
    CloseSetups_Cmd.ToolTip = "Back to the main window";
    const auto& all = owner.Setups.All;
    const auto picked = std::ranges::find(all, owner.Setups.Picked, &KeptSetup::Number);
    Show(*this);
    if (!all.empty()) {
        Setups_Lst.ListIndex = picked == all.end() ? 0 : static_cast<int>(picked - all.begin());
        Show(*this);
    }
}

void Setups_Lst_Click(Setups_Frm& form) {
    Show(form);
}

void StartSetup_Cmd_Click(Setups_Frm& form) {
    if (const KeptSetup* const setup = RowOf(form); setup != nullptr && !form.Closed) {
        form.Chosen = setup->Number;
        form.StartChosen = true;
        form.Closed = true;
    }
}

void PickSetup_Cmd_Click(Setups_Frm& form) {
    if (const KeptSetup* const setup = RowOf(form)) {
        form.Closed = PickSetup(form.launcher, setup->Number) || form.run.Ended;
        Show(form);
    }
}

void KeepSetupChanges_Cmd_Click(Setups_Frm& form) {
    const KeptSetup* const setup = RowOf(form);
    if (setup != nullptr && setup->Number == form.launcher.Setups.Picked) {
        KeepSetupChanges_Bar_Click(form.launcher);
        Show(form);
    }
}

void RenameSetup_Cmd_Click(Setups_Frm& form) {
    const KeptSetup* const setup = RowOf(form);
    if (setup == nullptr) {
        return;
    }
    const int number = setup->Number;
    const Text old = setup->What.Name;
    std::optional<Text> name;
    {
        const TopmostSuspension dialog(form.run);
        name = form.run.User.InputBox("Rename Setup", "The new name of this setup:", old);
    }
    if (name && *name != old) {
        if (RenameSetup(form.run, form.launcher.Setups, number, *name)) {
            LaunchersFollow(form.launcher, old, form.launcher.Setups.Of(number)->What);
        }
        Show(form);
    }
}

void DeleteSetup_Cmd_Click(Setups_Frm& form) {
    const KeptSetup* const setup = RowOf(form);
    if (setup == nullptr) {
        return;
    }
    const int number = setup->Number;
    const Setup what = setup->What;
    const Text question = Join("Delete this setup?", NewLine, NewLine, ShownText(setup->What.Name));
    if (AskUser(form.run, kSetupsTitle, question, "&Delete,&Cancel", kCancel) == kDelete) {
        if (DeleteSetup(form.run, form.launcher.Setups, number)) {
            TakeLaunchersAway(form.launcher, what);
        }
        Show(form);
    }
}

void MakeLauncher_Cmd_Click(Setups_Frm& form) {
    if (const KeptSetup* const setup = RowOf(form)) {
        OfferLaunchers(form.launcher, Setup(setup->What));
    }
}

void CloseSetups_Cmd_Click(Setups_Frm& form) {
    form.Closed = true;
}

}  // namespace lv
