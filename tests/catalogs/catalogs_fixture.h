// tests/catalogs/catalogs_fixture.h
//
// The lists of the main window on a platform in memory, and a user who answers as told.

#pragma once

#include <gtest/gtest.h>

#include "catalogs/catalog_store.h"
#include "foundation/field_strings.h"
#include "foundation/game.h"
#include "foundation/settings.h"
#include "platform/memory/memory_platform.h"
#include "tests/support/scripted_user.h"

namespace lv {

/// The control structs that CatalogLists refers to.
struct ListControls {
    ImageCombo Exe_Cbo;
    ListBox Game_Cbo;
    CheckBox Game_Chk;
    ListBox Script_Cbo;
    CheckBox Script_Chk;
    ListBox Server_Cbo;
    CheckBox Server_Chk;
    ListBox Demo_Cbo;
    ListBox Mem_Cbo;
    ListBox Map_Cbo;

    CatalogLists Lists{Exe_Cbo,  Game_Cbo, Game_Chk, Script_Cbo, Script_Chk, Server_Cbo, Server_Chk,
                       Demo_Cbo, Mem_Cbo,  Map_Cbo,  {},         {},         {},         {}};
};

class CatalogsTest : public ::testing::Test {
  protected:
    void Store(TextView key, TextView value) { system.Settings.Write("Lorvane 3D", "Options", key, value); }

    Text Stored(TextView key, TextView section = "Options") {
        return system.Settings.Read("Lorvane 3D", section, key).value_or("(none)");
    }

    /// A row as a test reads it: "title|value".
    static Text Row(const Text& item) {
        return Text(item.substr(0, 100)).substr(0, item.find_last_not_of(' ', 99) + 1) + "|" + item.substr(100);
    }

    static std::vector<Text> Rows(const ListBox& list) {
        std::vector<Text> rows;
        for (const Text& item : list.Items) {
            rows.push_back(Row(item));
        }
        return rows;
    }

    static std::vector<Text> Rows(const ImageCombo& list) {
        std::vector<Text> rows;
        for (const ImageComboItem& item : list.Items) {
            rows.push_back(item.Title + "|" + item.Key);
        }
        return rows;
    }

    /// The game in C:\QUAKE.
    void BeInQuake() {
        system.Disk.AddDirectory("C:\\QUAKE\\ID1");
        run.DefaultGameDirectory = "c:\\quake";
        run.BaseGameDir = "ID1";
        run.CurrentGameDir = "ID1";
        run.GameKind = Game::Quake;
        run.ScriptFamily = Dialect::Quake;
    }

    void ExpectDamage(TextView name, TextView value) {
        user.Expect({"Lorvane 3D",
                     "Lorvane 3D experienced a probable registry error.\r\nError : " + Text(name) + " = " +
                         Text(value) + "\r\nPlease contact technical support.",
                     0, false, true, "&OK"});
    }

    MemoryPlatform system;
    ScriptedUser user;
    lv::Run run{system.Services, user};
    ListControls controls;
    CatalogLists& lists = controls.Lists;
};

using TextList = std::vector<Text>;

}  // namespace lv
