#include "commands/dry_run/rehearsed_programs.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_platform.h"

namespace lv {
namespace {

TEST(RehearsedPrograms, ABatchIsPlannedAndNotStarted) {
    MemoryPlatform system;
    RehearsedPrograms programs(system.Programs, system.Disk);
    EXPECT_FALSE(programs.Plan.has_value());
    EXPECT_FALSE(programs.StartBatch("C:\\QUAKE", "lv_666.bat"));
    ASSERT_TRUE(programs.Plan.has_value());
    ASSERT_TRUE(programs.Plan->Ok());
    EXPECT_EQ(programs.Plan->Value.Words, std::vector<std::string>{"C:\\QUAKE\\lv_666.bat"});
    EXPECT_EQ(programs.Plan->Value.Directory, "C:\\QUAKE");
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST(RehearsedPrograms, OtherProgramsAreNotStartedEither) {
    MemoryPlatform system;
    RehearsedPrograms programs(system.Programs, system.Disk);
    EXPECT_FALSE(programs.StartProgram("notepad.exe", {"a"}));
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST(RehearsedPrograms, WhatIsAskedComesFromTheSystem) {
    MemoryPlatform system;
    system.Programs.Reader = LineReader::kBatch;
    system.Programs.WithoutRunner.insert("C:\\a.exe");
    RehearsedPrograms programs(system.Programs, system.Disk);
    EXPECT_EQ(programs.ReaderOf("C:\\", "a", "a"), LineReader::kBatch);
    EXPECT_FALSE(programs.HasRunnerFor("C:\\a.exe"));
    EXPECT_TRUE(programs.HasRunnerFor("C:\\b.exe"));
}

TEST(RehearsedRegistry, IsReadAndNotWritten) {
    MemoryPlatform system;
    (void)system.Registry.Set("Software\\Valve", "Name", {kRegistryText, "Me", 0});
    RehearsedRegistry registry(system.Registry);
    EXPECT_EQ(registry.Query("Software\\Valve", "Name").Value.Text, "Me");
    EXPECT_FALSE(registry.Set("Software\\Valve", "Name", {kRegistryText, "You", 0}));
    EXPECT_EQ(system.Registry.Query("Software\\Valve", "Name").Value.Text, "Me");
    EXPECT_EQ(registry.Writes, 1U);
}

}  // namespace
}  // namespace lv
