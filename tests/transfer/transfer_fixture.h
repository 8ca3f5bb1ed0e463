// tests/transfer/transfer_fixture.h
//
// Two machines with a store and a disk each.

#pragma once

#include <gtest/gtest.h>

#include "foundation/run.h"
#include "platform/memory/memory_platform.h"
#include "tests/support/scripted_user.h"

namespace lv {

struct Machine {
    Machine() {
        System.Disk.AddDirectory("C:\\HOME\\share");
        System.Places.IsData = "C:\\HOME\\share";
    }

    void Put(TextView section, TextView key, TextView value) {
        EXPECT_EQ(System.Settings.Write("Lorvane 3D", section, key, value).Number, 0);
    }
    /// "(none)" without one.
    Text Get(TextView section, TextView key) {
        return System.Settings.Read("Lorvane 3D", section, key).value_or("(none)");
    }
    std::vector<StoredValue> All() { return System.Settings.All("Lorvane 3D").Value; }
    /// What is in the file of the one is a file of the other.
    void TakeFile(const Machine& from, TextView path) {
        auto& disk = const_cast<Machine&>(from).System.Disk;
        System.Disk.AddFile(path, disk.Bytes(path));
    }

    MemoryPlatform System;
    ScriptedUser User;
    lv::Run Run{System.Services, User};
};

class Transfer : public ::testing::Test {
  protected:
    Machine here;
    Machine there;
};

}  // namespace lv
