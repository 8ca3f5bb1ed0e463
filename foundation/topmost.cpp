#include "foundation/topmost.h"

#include "foundation/run.h"

namespace lv {

void SuspendTopmost(Run& run) {
    if (!run.MainFormLoaded) {
        return;
    }
    ++run.Topmost.Nesting;
    if (run.Topmost.Nesting == 1 && run.Topmost.AlwaysOnTop) {
        run.Topmost.InBand = false;
    }
}

void ResumeTopmost(Run& run) {
    if (!run.MainFormLoaded) {
        return;
    }
    --run.Topmost.Nesting;
    if (run.Topmost.Nesting == 0 && run.Topmost.AlwaysOnTop) {
        run.Topmost.InBand = true;
    }
}

}  // namespace lv
