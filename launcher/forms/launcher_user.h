// launcher/forms/launcher_user.h
//
// The user interface that the toolkit makes, with the launcher's own dialogs.

#pragma once

#include "foundation/forms/wx_user.h"
#include "foundation/run.h"

namespace lv {

class LauncherUser : public WxUser {
  public:
    explicit LauncherUser(Files& files);

    /// The run whose settings the dialogs write. Set before the first of them is shown.
    void SetRun(Run& run) { run_ = &run; }

    void ShowInstallParams(InstallParams_Frm& form) override;

  private:
    Run* run_ = nullptr;
};

}  // namespace lv
