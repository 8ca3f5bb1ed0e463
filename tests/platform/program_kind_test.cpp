#include "platform/starting/program_kind.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_platform.h"

namespace lv {

namespace {

ProgramKind KindOf(const std::string& bytes, const std::string& name = "GAME.EXE") {
    MemoryFiles disk;
    disk.AddDirectory("C:\\G");
    disk.AddFile("C:\\G\\" + name, bytes);
    const auto file = disk.Open("C:\\G\\" + name);
    return file.Ok() ? KindOfProgram(*file.Value, name) : ProgramKind::kUnknown;
}

// A DOS header whose e_lfanew holds `offset`, then `behind`.
std::string DosProgram(std::uint32_t offset, const std::string& behind) {
    std::string bytes = "MZ" + std::string(0x3A, '\0');
    for (int i = 0; i < 4; ++i) {
        bytes += static_cast<char>(offset >> (8 * i) & 0xFF);
    }
    return bytes + behind;
}

}  // namespace

TEST(KindOfProgram, KnowsElf) {
    EXPECT_EQ(KindOf("\x7F"
                     "ELF\x02\x01\x01"),
              ProgramKind::kNative);
}

TEST(KindOfProgram, KnowsAScript) {
    EXPECT_EQ(KindOf("#!/bin/sh\necho\n", "quake"), ProgramKind::kNative);
}

TEST(KindOfProgram, KnowsPe) {
    EXPECT_EQ(KindOf(DosProgram(0x40, std::string("PE\0\0", 4))), ProgramKind::kWindows);
    EXPECT_EQ(KindOf(DosProgram(0x80, std::string(0x40, 'x') + std::string("PE\0\0rest", 8))), ProgramKind::kWindows);
}

TEST(KindOfProgram, KnowsNe) {
    EXPECT_EQ(KindOf(DosProgram(0x40, "NE\x05\x0A")), ProgramKind::kWindows16);
}

TEST(KindOfProgram, TakesDosExtendersForDos) {
    EXPECT_EQ(KindOf(DosProgram(0x40, std::string("LE\0\0", 4))), ProgramKind::kDos);
    EXPECT_EQ(KindOf(DosProgram(0x40, std::string("LX\0\0", 4))), ProgramKind::kDos);
}

TEST(KindOfProgram, TakesAPlainDosHeaderForDos) {
    EXPECT_EQ(KindOf(DosProgram(0, "code")), ProgramKind::kDos);
    EXPECT_EQ(KindOf("MZ"), ProgramKind::kDos);
}

TEST(KindOfProgram, KnowsAComFileByItsName) {
    EXPECT_EQ(KindOf("\xB4\x4C\xCD\x21", "GAME.COM"), ProgramKind::kDos);
    EXPECT_EQ(KindOf("\xB4\x4C\xCD\x21", "game.com"), ProgramKind::kDos);
}

TEST(KindOfProgram, KnowsABatchByItsName) {
    EXPECT_EQ(KindOf("@echo off\r\n", "GO.BAT"), ProgramKind::kBatch);
    EXPECT_EQ(KindOf("@echo off\r\n", "go.cmd"), ProgramKind::kBatch);
}

TEST(KindOfProgram, BelievesBytesMoreThanTheName) {
    EXPECT_EQ(KindOf("\x7F"
                     "ELF",
                     "GAME.BAT"),
              ProgramKind::kNative);
    EXPECT_EQ(KindOf(DosProgram(0x40, std::string("PE\0\0", 4)), "GAME.COM"), ProgramKind::kWindows);
}

TEST(KindOfProgram, KnowsNothingOfOtherFiles) {
    EXPECT_EQ(KindOf(""), ProgramKind::kUnknown);
    EXPECT_EQ(KindOf("", "GAME.COM"), ProgramKind::kUnknown);
    EXPECT_EQ(KindOf("PACK\x0C"), ProgramKind::kUnknown);
    EXPECT_EQ(KindOf("M"), ProgramKind::kUnknown);
    EXPECT_EQ(KindOf("\x7F"
                     "EL"),
              ProgramKind::kUnknown);
    EXPECT_EQ(KindOf("#"), ProgramKind::kUnknown);
}

TEST(KindOfProgram, SurvivesANewHeaderBehindTheEnd) {
    EXPECT_EQ(KindOf(DosProgram(0x41, "PE\0")), ProgramKind::kDos);
    EXPECT_EQ(KindOf(DosProgram(0x44, std::string("PE\0\0", 4))), ProgramKind::kDos);
    EXPECT_EQ(KindOf(DosProgram(0x7FFFFFFF, "PE")), ProgramKind::kDos);
    EXPECT_EQ(KindOf(DosProgram(0xFFFFFFFF, std::string("PE\0\0", 4))), ProgramKind::kDos);
    EXPECT_EQ(KindOf(DosProgram(0xFFFFFFFC, std::string("PE\0\0", 4))), ProgramKind::kDos);
}

TEST(KindOfProgram, SurvivesANewHeaderInsideTheOldOne) {
    std::string bytes = DosProgram(4, "");
    bytes.replace(4, 4, std::string("PE\0\0", 4));
    EXPECT_EQ(KindOf(bytes), ProgramKind::kDos);
}

TEST(KindOfProgram, SurvivesEveryTruncation) {
    const std::string whole = DosProgram(0x40, std::string("PE\0\0", 4));
    for (std::size_t length = 2; length < whole.size(); ++length) {
        EXPECT_EQ(KindOf(whole.substr(0, length)), ProgramKind::kDos) << length;
    }
}

}  // namespace lv
