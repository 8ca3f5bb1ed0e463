#include "launcher/start.h"

#include "foundation/field_strings.h"
#include "launcher/main_window_load.h"

namespace lv {

bool Start(Launcher& launcher) {
    Run& run = launcher.run;
    run.DecimalPointIsDot = run.System.Time.DecimalSeparator() == '.';
    run.IsWin9x = run.System.Time.IsWin9x();
    run.AppDirectory = run.System.Disk.ProgramDirectory();
    if (run.AppDirectory.ends_with('\\')) {
        run.AppDirectory = DropRight(run.AppDirectory, 1);
    }
    if (!LV_Frm_Load(launcher)) {
        return false;
    }
    launcher.Window.Visible = true;
    return true;
}

}  // namespace lv
