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
    const HRESULT told = GetCurrentProcessExplicitAppUserModelID(&kept);
    if (told == E_NOTIMPL) {
        GTEST_SKIP() << "Wine takes the name and keeps none, so that nothing could be compared";
    }
    ASSERT_TRUE(SUCCEEDED(told));
    EXPECT_EQ(std::wstring(kept), L"Lorvane.Lorvane3D");
    CoTaskMemFree(kept);
}

}  // namespace lv
