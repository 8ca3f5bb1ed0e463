#include <gtest/gtest.h>
#include <wx/stopwatch.h>
#include <wx/timer.h>

#include "foundation/forms/wx_user.h"
#include "platform/memory/memory_platform.h"

namespace lv {
namespace {

/// On a busy machine a timer's work takes longer than the timer.
class BusyTimer : public wxTimer {
  public:
    int Count = 0;

  private:
    void Notify() override {
        wxMilliSleep(20);
        if (++Count == 100) {
            Stop();
        }
    }
};

TEST(PumpEvents, EndsThoughATimerIsAlwaysDue) {
    MemoryPlatform system;
    WxUser user{system.Disk};
    BusyTimer timer;
    timer.Start(5);
    wxMilliSleep(60);  // due on any system
    user.PumpEvents();
    timer.Stop();
    EXPECT_GE(timer.Count, 1);
    EXPECT_LT(timer.Count, 20);
}

}  // namespace
}  // namespace lv
