#include "foundation/settings.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_platform.h"
#include "tests/support/scripted_user.h"

namespace lv {
namespace {

class SettingsTest : public ::testing::Test {
  protected:
    MemoryPlatform system;
    ScriptedUser user;
    lv::Run run{system.Services, user};
};

TEST_F(SettingsTest, AMissingKeyGivesTheDefault) {
    EXPECT_EQ(GetSetting(run, run.AppName, kOptions, "Executables", "none"), "none");
    EXPECT_EQ(GetSetting(run, run.AppName, kOptions, "Executables"), "");
    EXPECT_EQ(GetNumber(run, kOptions, "MemoryPos", 2), 2);
}

TEST_F(SettingsTest, AStoredEmptyTextIsNotTheDefault) {
    Save(run, kOptions, "Memory", "");
    EXPECT_EQ(GetSetting(run, run.AppName, kOptions, "Memory", "default"), "");
}

TEST_F(SettingsTest, KeysAreBlindToCase) {
    Save(run, kOptions, "Qspy", "1");
    EXPECT_EQ(GetSetting(run, run.AppName, kOptions, "QSpy"), "1");
    EXPECT_EQ(GetSetting(run, "LORVANE 3D", "options", "QSPY"), "1");
}

TEST_F(SettingsTest, ANumberKeepsItsTextForm) {
    EXPECT_TRUE(Save(run, kOptions, "MemoryPos", 3));
    EXPECT_EQ(GetSetting(run, run.AppName, kOptions, "MemoryPos"), "3");
    EXPECT_EQ(GetNumber(run, kOptions, "MemoryPos"), 3);
}

TEST_F(SettingsTest, NumbersAreReadTolerantly) {
    Save(run, kOptions, "MemoryPos", "  4 rows");
    EXPECT_EQ(GetNumber(run, kOptions, "MemoryPos"), 4);
    Save(run, kOptions, "MemoryPos", "99999");
    EXPECT_EQ(GetNumber(run, kOptions, "MemoryPos"), 32767);
    Save(run, kOptions, "MemoryPos", "True");
    EXPECT_EQ(GetNumber(run, kOptions, "MemoryPos", 7), 0);
}

TEST_F(SettingsTest, ALockedStoreIsToldWithItsReasonAndRetryWaitsAgain) {
    system.Settings.Locked = {55, "Locked by the program \"sqlite3\" (process 7)."};
    AskWhileLocked(run);
    const Text told =
        "Locked by the program \"sqlite3\" (process 7).\r\n\r\nRetry waits for it once more.\r\n"
        "With Cancel the program goes on, but no setting is saved\r\n"
        "until the other program has finished.";
    user.Expect({"Lorvane 3D", told, 0, false, true, "&Retry,&Cancel"});
    user.Expect({"Lorvane 3D", told, 0, false, true, "&Retry,&Cancel"});
    user.OnDialog = [&] {
        if (user.Asked.size() == 2) {
            system.Settings.Locked = {};
        }
    };
    EXPECT_TRUE(Save(run, kOptions, "a", 1));
    EXPECT_EQ(GetSetting(run, run.AppName, kOptions, "a"), "1");
}

TEST_F(SettingsTest, AfterACancelALockedStoreIsNotToldASecondTime) {
    system.Settings.Locked = {55, "Locked."};
    AskWhileLocked(run);
    user.Expect({"Lorvane 3D", "Locked.", 1});
    EXPECT_FALSE(Save(run, kOptions, "a", 1));
    EXPECT_TRUE(run.LockTold);
    system.Settings.Locked = {};
    EXPECT_TRUE(Save(run, kOptions, "a", 1));
    EXPECT_FALSE(run.LockTold);
}

TEST_F(SettingsTest, ALockNobodyWasAskedAboutIsToldAsAnyFailure) {
    system.Settings.Locked = {55, "Locked."};
    user.Expect({"Lorvane 3D", "Error Number = 55\r\nError String = Locked.", 0});
    EXPECT_FALSE(Save(run, kOptions, "a", 1));
}

TEST_F(SettingsTest, AGroupTellsOfItsFirstFailureOnly) {
    system.Settings.RefuseWrites = MakeError(error::kDiskFull);
    user.Expect({"Lorvane 3D", "This setting could not be saved; the old one is still there.\r\n\r\nOptions\\/\\a", 0});
    {
        const SavesTogether outer(run);
        const SavesTogether inner(run);
        EXPECT_FALSE(Save(run, kOptions, "a", 1));
        EXPECT_FALSE(Save(run, kOptions, "b", 1));
        system.Settings.RefuseWrites = {};
        EXPECT_FALSE(Save(run, kOptions, "c", 1)) << "all or nothing";
    }
    EXPECT_TRUE(Save(run, kOptions, "d", 1));
}

TEST_F(SettingsTest, AGroupThatFailsAtItsEndIsTold) {
    system.Settings.RefuseGroups = MakeError(error::kDiskFull);
    user.Expect({"Lorvane 3D", "These settings could not be saved; the old ones are still there.", 0});
    const SavesTogether together(run);
    EXPECT_TRUE(Save(run, kOptions, "a", 1));
}

TEST_F(SettingsTest, EachSaveOutsideAGroupTellsOfItsOwnFailure) {
    system.Settings.RefuseWrites = MakeError(error::kDiskFull);
    user.Expect({"Lorvane 3D", "This setting could not be saved", 0});
    user.Expect({"Lorvane 3D", "This setting could not be saved", 0});
    EXPECT_FALSE(Save(run, kOptions, "a", 1));
    EXPECT_FALSE(Save(run, kOptions, "b", 1));
}

TEST_F(SettingsTest, WhatStandsInTheWayOfManySavesIsToldOnce) {
    system.Settings.RefuseWrites = MakeError(error::kPermissionDenied);
    user.Expect({"Lorvane 3D", "Settings could not be saved; the old ones are still there.\r\n\r\nOptions\\/\\a", 0});
    user.Expect({"Lorvane 3D", "Settings could not be saved; the old ones are still there.\r\n\r\nOptions\\/\\d", 0});
    user.Expect({"Lorvane 3D", "This setting could not be saved", 0});
    {
        const ToldOnce outer(run);
        EXPECT_FALSE(Save(run, kOptions, "a", 1));
        {
            const ToldOnce inner(run);
            EXPECT_FALSE(Save(run, kOptions, "b", 1));
        }
        EXPECT_FALSE(Save(run, kOptions, "c", 1));
        system.Settings.RefuseWrites = MakeError(error::kDiskFull);
        EXPECT_FALSE(Save(run, kOptions, "d", 1)) << "another reason";
    }
    EXPECT_FALSE(Save(run, kOptions, "e", 1)) << "behind the scope";
}

TEST_F(SettingsTest, AValueOfSixteenThousandCharactersIsStored) {
    EXPECT_TRUE(Save(run, kOptions, "Games", TextView(Text(16000, 'x'))));
    EXPECT_EQ(GetSetting(run, run.AppName, kOptions, "Games"), Text(16000, 'x'));
}

TEST_F(SettingsTest, OneCharacterMoreIsRefusedAndTheOldValueStays) {
    Save(run, kOptions, "Games", "old");
    const Text value(16001, 'x');
    user.Expect({"Lorvane 3D",
                 "Attempt to insert too long a string as a value.\r\nRegisrty alteration did not occure.\r\n"
                 "Please contact technical support.\r\n\r\nLorvane 3D\\/\\Options\\/\\Games\\/\\\\/\\" +
                     value + "\r\n",
                 0, false, true, "&OK"});
    EXPECT_FALSE(Save(run, kOptions, "Games", TextView(value)));
    EXPECT_EQ(GetSetting(run, run.AppName, kOptions, "Games"), "old");
}

TEST_F(SettingsTest, AnEmptySectionIsRefused) {
    user.Expect({"Lorvane 3D",
                 "Attempt to insert an empty string as an area.\r\nRegisrty alteration did not occure.\r\n"
                 "Please contact technical support.\r\n\r\nLorvane 3D\\/\\\\/\\Key\\/\\\\/\\value\r\n",
                 0, false, true, "&OK"});
    EXPECT_FALSE(Save(run, "", "Key", "value"));
    EXPECT_EQ(system.Settings.Count(), 0U);
}

TEST_F(SettingsTest, AnEmptyKeyIsRefused) {
    user.Expect({"Lorvane 3D",
                 "Attempt to insert an empty string as a key.\r\nRegisrty alteration did not occure.\r\n"
                 "Please contact technical support.\r\n\r\nLorvane 3D\\/\\Options\\/\\\\/\\\\/\\value\r\n",
                 0, false, true, "&OK"});
    EXPECT_FALSE(Save(run, kOptions, "", "value"));
    EXPECT_EQ(system.Settings.Count(), 0U);
}

TEST_F(SettingsTest, AnEmptySectionAndKeyShowTheTextOfTheKey) {
    user.Expect({"Lorvane 3D", "Attempt to insert an empty string as a key.\r\nRegisrty"});
    EXPECT_FALSE(Save(run, "", "", "value"));
}

TEST_F(SettingsTest, ThreeFaultsShowTheTextOfTheValue) {
    user.Expect({"Lorvane 3D", "Attempt to insert too long a string as a value.\r\nRegisrty"});
    EXPECT_FALSE(Save(run, "", "", TextView(Text(16001, 'x'))));
}

TEST_F(SettingsTest, AnEmptyApplicationLandsInTheOwnOne) {
    Text application;
    EXPECT_TRUE(SaveChecked(run, application, kOptions, "Key", "value"));
    EXPECT_EQ(application, "Lorvane 3D");
    EXPECT_EQ(GetSetting(run, run.AppName, kOptions, "Key"), "value");
}

TEST_F(SettingsTest, AnotherApplicationKeepsItsOwnValues) {
    Text application = "Other";
    EXPECT_TRUE(SaveChecked(run, application, kOptions, "Key", "theirs"));
    EXPECT_EQ(application, "Other");
    EXPECT_EQ(GetSetting(run, run.AppName, kOptions, "Key", "none"), "none");
    EXPECT_EQ(GetSetting(run, "Other", kOptions, "Key"), "theirs");
}

TEST_F(SettingsTest, AStoreThatCannotWriteIsTold) {
    system.Settings.RefuseWrites = MakeError(error::kDiskFull);
    user.Expect({"Lorvane 3D", "Error Number = 61\r\nError String = Disk full"});
    EXPECT_FALSE(Save(run, kOptions, "Key", "value"));
    EXPECT_EQ(system.Settings.Count(), 0U);
}

TEST_F(SettingsTest, EveryByteSurvives) {
    Text all;
    for (int c = 0; c < 256; ++c) {
        all += static_cast<char>(c);
    }
    Save(run, kOptions, "Key", TextView(all));
    EXPECT_EQ(GetSetting(run, run.AppName, kOptions, "Key"), all);
}

constexpr const char* kPath = "Software\\Valve\\Half-Life\\Settings";

TEST_F(SettingsTest, RegistryTextIsReadBack) {
    EXPECT_FALSE(RegWritePath(run, kPath, "User Token 2", {kRegistryText, "Player", 0}));
    const RegValue value = RegQueryPath(run, "software\\valve\\half-life\\settings", "user token 2");
    EXPECT_EQ(value.Type, 1U);
    EXPECT_EQ(value.String, "Player");
}

TEST_F(SettingsTest, RegistryNumbersAreReadBack) {
    EXPECT_FALSE(RegWriteOpen(run, {kPath}, "CrosshairColor", {kRegistryNumber, "", 4294967295U}));
    const RegValue value = RegQueryOpen(run, {kPath}, "CrosshairColor");
    EXPECT_EQ(value.Type, 4U);
    EXPECT_EQ(value.Number, 4294967295U);
    EXPECT_EQ(value.String, "");
}

TEST_F(SettingsTest, RegistryTextEndsAtItsTerminator) {
    RegWritePath(run, kPath, "Name", {kRegistryText, Text("Player\0junk", 11), 0});
    EXPECT_EQ(RegQueryPath(run, kPath, "Name").String, "Player");
}

TEST_F(SettingsTest, OtherRegistryTypesAreEmpty) {
    RegWritePath(run, kPath, "Binary", {3, "bytes", 5});
    const RegValue value = RegQueryPath(run, kPath, "Binary");
    EXPECT_EQ(value.Type, 0U);
    EXPECT_EQ(value.String, "");
    EXPECT_EQ(value.Number, 0U);
}

TEST_F(SettingsTest, AMissingRegistryValueIsEmptyAndSilent) {
    EXPECT_EQ(RegQueryPath(run, kPath, "Nothing").Type, 0U);
}

TEST_F(SettingsTest, ARefusalNamesTheOwnApplicationWhereNoneWasGiven) {
    Text application;
    user.Expect({"Lorvane 3D", "\r\nLorvane 3D\\/\\Options\\/\\\\/\\\\/\\value\r\n"});
    EXPECT_FALSE(SaveChecked(run, application, kOptions, "", "value"));
    EXPECT_EQ(application, "Lorvane 3D");
    EXPECT_EQ(system.Settings.Count(), 0U);
}

}  // namespace
}  // namespace lv
