#include "platform/windows/system_error.h"

#include <gtest/gtest.h>

namespace lv {

TEST(ErrorOfSystem, KnowsTheSystemsNumbers) {
    struct Row {
        unsigned long System;
        int Number;
    };
    // The numbers of winerror.h.
    constexpr Row kRows[] = {
        {0, 0},     {2, 53},    {3, 76},    {123, 76},  {161, 76}, {267, 76},  {206, 76},  {15, 76},
        {53, 76},   {67, 76},   {1921, 76}, {5, 70},    {32, 70},  {33, 70},   {1224, 70}, {19, 70},
        {183, 75},  {80, 75},   {145, 75},  {112, 61},  {39, 61},  {1295, 61}, {223, 61},  {21, 71},
        {1112, 71}, {1167, 68}, {55, 68},   {23, 57},   {25, 57},  {27, 57},   {30, 57},   {29, 57},
        {31, 57},   {1117, 57}, {1392, 57}, {1393, 57}, {59, 57},  {64, 57},
    };
    for (const Row& row : kRows) {
        EXPECT_EQ(ErrorOfSystem(row.System).Number, row.Number) << row.System;
    }
}

TEST(ErrorOfSystem, TakesAnUnknownNumberForAnAccessError) {
    EXPECT_EQ(ErrorOfSystem(4711).Number, 75);
}

TEST(ErrorOfDirectory, TellsWhatIsNotThereFromWhatMayNotBeTouched) {
    EXPECT_EQ(ErrorOfDirectory(2).Number, 76);
    EXPECT_EQ(ErrorOfDirectory(3).Number, 76);
    EXPECT_EQ(ErrorOfDirectory(5).Number, 75);
    EXPECT_EQ(ErrorOfDirectory(32).Number, 75);
    EXPECT_EQ(ErrorOfDirectory(21).Number, 71);
}

TEST(SystemText, HasNoLineEnd) {
    EXPECT_NE(SystemText(2), "");
    EXPECT_EQ(SystemText(2).find_first_of("\r\n"), std::string::npos);
}

}  // namespace lv
