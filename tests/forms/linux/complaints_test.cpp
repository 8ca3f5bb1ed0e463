#include "tests/forms/complaints.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "platform/linux/toolkit/toolkit_function.h"

namespace lv {
namespace {

constexpr int kInfo = 1 << 6;
constexpr int kWarning = 1 << 4;

void Complain(int level) {
    ToolkitFunction<void (*)(const char*, int, const char*, ...)>("g_log")("Test", level, "a %s", "complaint");
}

TEST(Complaints, FailTheTestThatBringsThem) {
    EXPECT_NONFATAL_FAILURE(Complain(kWarning), "Test: a complaint");
}

TEST(Complaints, AreWarningsAndWorse) {
    Complain(kInfo);
}

}  // namespace
}  // namespace lv
