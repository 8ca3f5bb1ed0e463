#include "launcher/setups/setups_menu.h"

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundation/question_box.h"
#include "foundation/topmost.h"
#include "launcher/launchers/setup_launchers.h"
#include "launcher/setups/setup_start.h"
#include "launcher/setups/setup_words.h"
#include "launcher/setups/setups_frm.h"

namespace lv {

namespace {

constexpr Index kReplace = 0;
constexpr int kCancel = 1;

std::optional<Text> AskForName(Run& run, TextView offered) {
    const TopmostSuspension dialog(run);
    auto name = run.User.InputBox("Keep This Setup", "What is ticked and picked now is kept under this name:", offered);
    return name ? std::optional(Trim(*name)) : std::nullopt;
}

bool MayTakeItsPlace(Run& run, const KeptSetup* old) {
    return old == nullptr ||
           AskUser(run, kSetupsTitle,
                   Join("There is a setup of this name already:", NewLine, NewLine, ShownText(old->What.Name)),
                   "&Replace,&Cancel", kCancel) == kReplace;
}

MenuItem BarOf(int index) {
    return static_cast<MenuItem>(static_cast<int>(MenuItem::Setup_Bar_0) + index);
}

}  // namespace

void KeepSetup_Bar_Click(Launcher& launcher) {
    Run& run = launcher.run;
    if (!launcher.Window.Exe_Cbo.HasSelection()) {
        AskUser(run, kSetupsTitle, "Pick a game first: a setup is for one.");
        return;
    }
    const KeptSetup* const picked = PickedSetup(launcher);
    Text offered = picked != nullptr ? picked->What.Name : OfferedName(launcher);
    for (;;) {
        const auto name = AskForName(run, offered);
        if (!name) {
            return;
        }
        Setup setup = SetupOf(launcher);
        setup.Name = *name;
        if (MayTakeItsPlace(run, launcher.Setups.Named(*name)) && KeepSetup(run, launcher.Setups, setup)) {
            LaunchersFollow(launcher, setup.Name, setup);
            return;
        }
        offered = *name;
    }
}

void KeepSetupChanges_Bar_Click(Launcher& launcher) {
    const KeptSetup* const picked = PickedSetup(launcher);
    if (picked == nullptr || !launcher.Window.Exe_Cbo.HasSelection()) {
        return;
    }
    Setup setup = SetupOf(launcher);
    setup.Name = picked->What.Name;
    if (KeepSetup(launcher.run, launcher.Setups, setup)) {
        LaunchersFollow(launcher, setup.Name, setup);
    }
}

void DropSetupChanges_Bar_Click(Launcher& launcher) {
    PickSetup(launcher, launcher.Setups.Picked);
}

void ShowSetups_Bar_Click(Launcher& launcher) {
    Setups_Frm form(launcher);
    ShowModal(form);
    if (form.StartChosen && !launcher.run.Ended) {
        StartSetup(launcher, form.Chosen);
    }
}

void Setup_Bar_Click(Launcher& launcher, int index) {
    StartSetup(launcher, SetupOfBar(launcher.Setups, index));
}

int SetupOfBar(const SetupList& setups, int index) {
    const auto& all = setups.All;
    const auto shown = std::min(all.size(), static_cast<std::size_t>(kSetupBars));
    if (index < 0 || static_cast<std::size_t>(index) >= shown) {
        return 0;
    }
    const auto picked = std::ranges::find(all, setups.Picked, &KeptSetup::Number);
    if (index + 1 == kSetupBars && picked != all.end() && picked - all.begin() > index) {
        return picked->Number;
    }
    return all[static_cast<std::size_t>(index)].Number;
}

void ShowSetupsInMenu(Launcher& launcher) {
    LV_Frm& window = launcher.Window;
    const bool changed = PickedSetupIsChanged(launcher);
    for (int index = 0; index < kSetupBars; ++index) {
        MenuItemState& item = window.Bar(BarOf(index));
        const KeptSetup* const setup = launcher.Setups.Of(SetupOfBar(launcher.Setups, index));
        item.Visible = setup != nullptr;
        item.Checked = setup != nullptr && setup->Number == launcher.Setups.Picked;
        item.Caption = setup == nullptr ? Text()
                                        : Join("&", std::to_string(index + 1), " ", MenuText(setup->What.Name),
                                               item.Checked && changed ? " (changed)" : "");
    }
    window.Bar(MenuItem::KeepSetupChanges_Bar).Enabled = changed;
    window.Bar(MenuItem::DropSetupChanges_Bar).Enabled = changed;
}

}  // namespace lv
