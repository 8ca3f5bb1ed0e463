#include "launcher/forms/launcher_user.h"

#include "launcher/forms/backups_form.h"
#include "launcher/forms/install_params_form.h"
#include "launcher/forms/launcher_form.h"
#include "launcher/forms/setups_form.h"

namespace lv {

LauncherUser::LauncherUser(Files& files) : WxUser(files) {
    AddForms(MakeSetupsForm);
    AddForms(MakeLauncherForm);
    AddForms(MakeBackupsForm);
}

void LauncherUser::ShowInstallParams(InstallParams_Frm& form) {
    if (run_ == nullptr) {
        return;
    }
    Refresh();
    InstallParamsForm dialog(*run_, form);
    dialog.ShowModal();
}

}  // namespace lv
