#include "wizard/wizard.h"

#include "wizard/install_frm.h"

namespace lv {

bool ShowInstallWizard(Launcher& launcher) {
    return ShowInstallScan(launcher, {});
}

bool ShowInstallScan(Launcher& launcher, const std::vector<KnownGame>& known) {
    Install_Frm form(launcher.run, known);
    ShowFoundGames(form, launcher.Engines);
    ShowModal(form);
    return form.DialogResult;
}

void ConnectWizard(Launcher& launcher) {
    launcher.ShowInstallWizard = [&launcher] { return ShowInstallWizard(launcher); };
    launcher.ShowInstallScan = [&launcher](const std::vector<KnownGame>& known) {
        return ShowInstallScan(launcher, known);
    };
}

}  // namespace lv
