#include "foundation/run.h"

namespace lv {

void EndProgram(Run& run) {
    run.Ended = true;
    run.User.EndProgram();
}

Error SetCurrentPath(Run& run, TextView path) {
    if (const Error failed = run.System.Disk.ChangeDrive(path.substr(0, 3))) {
        return failed;
    }
    return run.System.Disk.ChangeDirectory(path);
}

void PauseSeconds(Run& run, double seconds, const std::function<void()>& work) {
    const double start = run.System.Time.Seconds();
    if (work) {
        work();
    }
    while (run.System.Time.Seconds() - start <= seconds) {
        run.User.PumpEvents();
        run.System.Time.Sleep(5);
    }
}

}  // namespace lv
