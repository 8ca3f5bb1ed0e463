#include "launcher/start/install_params.h"

#include "foundation/question_box.h"
#include "foundation/settings.h"

namespace lv {

namespace {

struct ChipsetRow {
    const char* Title;
    int VidCard;
};

// The last number is 100 and not 3: the launch reads these numbers.
constexpr ChipsetRow kChipsets[] = {{"None", 0}, {"Voodoo", 1}, {"Voodoo2", 2}, {"Other!", 100}};
constexpr int kPreselected = 1;

}  // namespace

InstallParams_Frm::InstallParams_Frm() {
    Hardware_Fra.Caption = "3D Hardware Support";
    Label6.Caption =
        "One of the best Lorvane 3D features is support for 3D Hardware (hence the '3D' in the name). Select your 3D "
        "chipset if it is in the list. If you do not have a 3D card, select none. With a graphics card of today select "
        "Other!";
    for (const ChipsetRow& row : kChipsets) {
        VidCard_Cbo.Items.emplace_back(row.Title);
    }
    OK_Cmd[0].Caption = "&Accept These Settings";
    OK_Cmd[0].Default = true;
    OK_Cmd[1].Caption = "&Cancel";
}

void InstallParams_Load(Run& run, InstallParams_Frm& form) {
    form.VidCard_Cbo.ListIndex = kPreselected;
    InstallParams_VidCard_Cbo_Click(run, form);
}

void InstallParams_VidCard_Cbo_Click(Run& run, InstallParams_Frm& form) {
    if (form.VidCard_Cbo.HasSelection()) {
        Save(run, kOptions, "VidCard", kChipsets[form.VidCard_Cbo.ListIndex].VidCard);
    }
}

void InstallParams_OK_Cmd_Click(Run& run, InstallParams_Frm& form, int index) {
    if (index != 0) {
        form.DialogResult = false;
        form.Closed = true;
        return;
    }
    const Text question = Join("3D Hardware Chipset: ", form.VidCard_Cbo.Selected());
    if (AskUser(run, "Verify Setup Information", question, "&Accept,&Decline") == 0) {
        form.DialogResult = true;
        form.Closed = true;
    }
}

bool AskForChipset(Run& run) {
    for (;;) {
        InstallParams_Frm form;
        InstallParams_Load(run, form);
        {
            const TopmostSuspension dialog(run);
            run.User.ShowInstallParams(form);
        }
        if (form.DialogResult) {
            return true;
        }
        if (!GoOnAfterCancel(run)) {
            return false;
        }
    }
}

bool GoOnAfterCancel(Run& run) {
    if (AskUser(run, "", "Setup cancelled at users request.", "&OK,&Not OK") == 0) {
        EndProgram(run);
    }
    return !run.Ended;
}

}  // namespace lv
