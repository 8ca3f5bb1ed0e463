#include "platform/error.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

namespace lv {

TEST(MakeTooLarge, SaysHowManyMegabytesThereMayBe) {
    EXPECT_EQ(MakeTooLarge(64U << 20U).Number, 7);
    EXPECT_EQ(MakeTooLarge(64U << 20U).Text, "The file is larger than 64 MB");
    EXPECT_EQ(MakeTooLarge(256U << 20U).Text, "The file is larger than 256 MB");
}

TEST(ErrorOfException, TellsWantOfMemoryFromTheRest) {
    EXPECT_EQ(ErrorOfException(std::bad_alloc()).Number, 7);
    EXPECT_EQ(ErrorOfException(std::bad_alloc()).Text, "Out of memory");
    EXPECT_EQ(ErrorOfException(std::length_error("basic_string")).Number, 7);
    EXPECT_EQ(ErrorOfException(std::runtime_error("of something")).Number, 51);
    EXPECT_EQ(ErrorOfException(std::runtime_error("of something")).Text, "Internal error: of something");
}

}  // namespace lv
