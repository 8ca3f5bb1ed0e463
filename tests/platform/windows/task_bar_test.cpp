#include "platform/windows/task_bar.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/windows/system.h"
// After windows.h, which it needs.
#include <objbase.h>
#include <shobjidl.h>

namespace lv {

TEST(TaskBar, KnowsTheProgramByItsName) {
    EXPECT_TRUE(TakeTaskBarName());
    PWSTR kept = nullptr;
    if (FAILED(GetCurrentProcessExplicitAppUserModelID(&kept))) {
        GTEST_SKIP() << "Wine keeps no such name";
    }
    EXPECT_EQ(std::wstring(kept), L"Lorvane.Lorvane3D");
    CoTaskMemFree(kept);
}

}  // namespace lv
