#include "foundation/error_lines.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

TEST(ErrorLines, AreTheNumberAndTheText) {
    EXPECT_EQ(ErrorLines({61, "Disk full"}), "Error Number = 61\r\nError String = Disk full");
}

TEST(ErrorLines, HaveTheCodeOfAReportBetweenThem) {
    EXPECT_EQ(ErrorLines({53, "File not found"}, "EC00480"),
              "Error Number = 53\r\nError Code = EC00480\r\nError String = File not found");
}

}  // namespace
}  // namespace lv
