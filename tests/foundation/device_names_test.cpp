#include "foundation/device_names.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

TEST(DeviceNames, AreReservedWithAndWithoutAnEnding) {
    for (const TextView name :
         {"con", "CON", "Con.bsp", "prn.cfg", "aux", "aux.tar.gz", "nul.pak", "com1", "COM9.cfg", "lpt1", "LPT9.x",
          "con .cfg", "com\xB9.cfg", "lpt\xB3", "conin$", "CONOUT$.txt", "con:"}) {
        EXPECT_TRUE(IsDeviceName(name)) << name;
    }
}

TEST(DeviceNames, OtherNamesAreFree) {
    for (const TextView name : {"", "console", "con1", "com", "com0", "com10", "lpt", "auxiliary.cfg", "my.con", "nu",
                                "concon.bsp", "lpt\xBC", ".con"}) {
        EXPECT_FALSE(IsDeviceName(name)) << name;
    }
}

}  // namespace
}  // namespace lv
