#include "commands/listed_rows.h"

#include "tests/support/launcher_fixture.h"

namespace lv {
namespace {

class ListedRows : public LauncherTest {};

TEST_F(ListedRows, EachKindHasItsNamesAndWhatPicksIt) {
    AddGames();
    Save(run, kOptions, "NetServers", "Club;club.example;26000;0;Secret");
    Load();
    const std::vector<NamedRow> programs = RowsOf(launcher, Listed::Programs);
    ASSERT_EQ(programs.size(), 6U);
    EXPECT_EQ(programs[3].Title, "Quake 2");
    EXPECT_EQ(programs[3].Value, "C:\\QUAKE2\\QUAKE2.EXE");
    const std::vector<NamedRow> modifications = RowsOf(launcher, Listed::Modifications);
    ASSERT_EQ(modifications.size(), 2U);
    EXPECT_EQ(modifications[0].OtherName, "CTF");
    const std::vector<NamedRow> servers = RowsOf(launcher, Listed::Servers);
    ASSERT_EQ(servers.size(), 1U);
    EXPECT_EQ(servers[0].OtherName, "club.example:26000");
    EXPECT_EQ(servers[0].Value, "club.example;26000;0;Secret");
    const std::vector<NamedRow> scripts = RowsOf(launcher, Listed::Scripts);
    ASSERT_EQ(scripts.size(), 1U);
    EXPECT_EQ(LowerCase(scripts[0].OtherName), "my.cfg");
    EXPECT_EQ(RowsOf(launcher, Listed::Maps).at(0).Title, "START");
    EXPECT_EQ(RowsOf(launcher, Listed::VideoProfiles).at(0).Title, "Base");
}

TEST_F(ListedRows, WhatAMessageCallsThem) {
    EXPECT_EQ(NameOfKind(Listed::Programs), "program");
    EXPECT_EQ(NameOfKind(Listed::Setups), "setup");
    EXPECT_EQ(NameOfKind(Listed::Modifications), "modification");
    EXPECT_EQ(NameOfKind(Listed::Maps), "map");
    EXPECT_EQ(NameOfKind(Listed::Scripts), "script");
    EXPECT_EQ(NameOfKind(Listed::Servers), "server");
    EXPECT_EQ(NameOfKind(Listed::VideoProfiles), "video profile");
}

}  // namespace
}  // namespace lv
