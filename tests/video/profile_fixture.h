// tests/video/profile_fixture.h
//
// A run over an empty store, for the tests of the video profiles.

#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "foundation/settings.h"
#include "platform/memory/memory_platform.h"
#include "tests/support/scripted_user.h"

namespace lv {

class ProfileModel : public testing::Test {
  protected:
    Text Stored(TextView section, TextView key) { return GetSetting(run, run.AppName, section, key, "(none)"); }
    void Store(TextView section, TextView key, TextView value) {
        ASSERT_FALSE(system.Settings.Write(run.AppName, section, key, value));
    }
    std::vector<Text> WritesTo(TextView section) {
        std::vector<Text> writes;
        for (const Text& write : system.Settings.Log) {
            if (write.starts_with(Join(section, "|"))) {
                writes.push_back(write.substr(section.size() + 1));
            }
        }
        return writes;
    }

    /// The user is to be shown exactly this text.
    void ExpectMessage(TextView text) {
        ExpectedQuestion message;
        message.Title = "Lorvane 3D";
        message.Text_ = text;
        message.Whole = true;
        message.Buttons = "&OK";
        user.Expect(message);
    }

    /// A padded list item.
    static Text Item(TextView caption, TextView payload) {
        Text item(caption);
        item.resize(100, ' ');
        return item.append(payload);
    }

    MemoryPlatform system;
    ScriptedUser user;
    lv::Run run{system.Services, user};
};

}  // namespace lv
