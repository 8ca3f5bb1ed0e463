#include "platform/linux/files/errno_error.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace lv {

TEST(ErrorOf, HasTheProgramsNumberForEachOfTheSystems) {
    const struct {
        int Errno;
        int Number;
    } kRows[] = {
        {0, 0},          {ENOENT, 53}, {ENOTDIR, 76}, {ELOOP, 76},     {ENAMETOOLONG, 76}, {EACCES, 70},
        {EPERM, 70},     {EROFS, 70},  {ETXTBSY, 70}, {EBUSY, 70},     {EISDIR, 75},       {EEXIST, 75},
        {ENOTEMPTY, 75}, {ENOSPC, 61}, {EDQUOT, 61},  {EFBIG, 61},     {EIO, 57},          {ESTALE, 57},
        {ETIMEDOUT, 57}, {ENXIO, 68},  {ENODEV, 68},  {ENOMEDIUM, 71}, {EMFILE, 75},
    };
    for (const auto& row : kRows) {
        EXPECT_EQ(ErrorOf(row.Errno).Number, row.Number) << row.Errno;
    }
}

TEST(ErrorOf, CarriesTheCustomaryText) {
    EXPECT_EQ(ErrorOf(ENOSPC).Text, "Disk full");
}

}  // namespace lv
