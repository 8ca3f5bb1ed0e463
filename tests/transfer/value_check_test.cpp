#include "transfer/value_check.h"

#include <gtest/gtest.h>

#include "foundation/text.h"

namespace lv {

TEST(ValueCheck, TakesListsOfWholeRecords) {
    for (const StoredValue& value : std::vector<StoredValue>{{"Options", "Executables", "Quake;C:\\QUAKE\\Q.EXE"},
                                                             {"Options", "Executables", "Quake;C:\\QUAKE\\Q.EXE;;"},
                                                             {"Options", "Executables", ""},
                                                             {"Options", "Scripts", "a.cfg;c:\\a.cfg"},
                                                             {"Options", "NetServers", "a;host;26000;0;"},
                                                             {"Options", "Demos", "short;;;"},
                                                             {"Options", "Memory", "8 megabytes;-winmem 8"},
                                                             {"Options", "Games", "an odd list of;three;fields"},
                                                             {"Options", "Title", "an odd list of;three;fields"},
                                                             {"Fast", "Resolutions", "640x480;-width 640"},
                                                             {"Fast", "Memory", "an odd list of;three;fields"}}) {
        EXPECT_EQ(FaultOfValue(value), "") << value.Section << ' ' << value.Key << ' ' << value.Value;
    }
}

TEST(ValueCheck, RefusesWhatNoStartWouldGetOver) {
    EXPECT_EQ(FaultOfValue({"Options", "Scripts", "an odd list of;three;fields"}),
              "The list \"Scripts\" of section \"Options\" is damaged");
    for (const StoredValue& value : std::vector<StoredValue>{{"OPTIONS", "executables", "an odd list of;three;fields"},
                                                             {"Options", "NetServers", "a;host;26000;0"},
                                                             {"Options", "Demos", "no record at all"},
                                                             {"Options", "Memory", ""},
                                                             {"Options", "Memory", "a;b"},
                                                             {"Options", "Bits", "an odd list of;three;fields"},
                                                             {"Fast", "resolutions", ""}}) {
        EXPECT_NE(FaultOfValue(value), "") << value.Section << ' ' << value.Key << ' ' << value.Value;
    }
}

}  // namespace lv
