#include "commands/named_rows.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

const std::vector<NamedRow> kRows = {
    {"Capture The Flag", "-game ctf", "ctf"},
    {"Rocket Arena", "-game arena", "arena"},
    {"arena", "-game arena2", "arena2"},
};

TEST(NamedRows, ByTitleAheadOfTheOtherNameAheadOfTheValue) {
    EXPECT_EQ(RowCalled(kRows, "capture the flag", "modification").Value, "-game ctf");
    EXPECT_EQ(RowCalled(kRows, "CTF", "modification").Value, "-game ctf");
    EXPECT_EQ(RowCalled(kRows, "arena", "modification").Value, "-game arena2");
    EXPECT_EQ(RowCalled(kRows, "-game arena", "modification").Value, "-game arena");
}

TEST(NamedRows, NoneIsToldWithWhatMayBeMeant) {
    const Result<Text> row = RowCalled(kRows, "ctff", "modification");
    EXPECT_EQ(row.Fault.Number, error::kFileNotFound);
    EXPECT_EQ(row.Fault.Text, "No modification is called \"ctff\". Did you mean \"ctf\"?");
    EXPECT_EQ(RowCalled({}, "x", "map").Fault.Text, "No map is called \"x\". There is none in the list.");
}

TEST(NamedRows, SeveralOfOneNameAreListed) {
    const Result<Text> row = RowCalled({{"Quake", "C:\\A"}, {"quake", "C:\\B"}}, "QUAKE", "program");
    EXPECT_EQ(row.Fault.Number, error::kInvalidCall);
    EXPECT_EQ(row.Fault.Text, "Several are called \"QUAKE\". Say which one:\r\n  C:\\A\r\n  C:\\B");
}

TEST(NamedRows, TheSameRowTwiceIsOne) {
    EXPECT_EQ(RowCalled({{"Quake", "C:\\A"}, {"Quake", "C:\\A"}}, "Quake", "program").Value, "C:\\A");
}

TEST(NamedRows, AnEmptyOtherNameIsNoName) {
    EXPECT_FALSE(RowCalled({{"Quake", "C:\\A"}}, "", "program").Ok());
}

}  // namespace
}  // namespace lv
