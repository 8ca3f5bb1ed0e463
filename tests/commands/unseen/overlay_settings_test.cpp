#include "commands/unseen/overlay_settings.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_platform.h"

namespace lv {
namespace {

TEST(OverlaySettings, WhatIsWrittenStaysInFront) {
    MemorySettings below;
    (void)below.Write("A", "Options", "Qspy", "0");
    OverlaySettings store(below);
    EXPECT_FALSE(store.Write("A", "Options", "QSpy", "1"));
    EXPECT_EQ(store.Read("a", "options", "qspy"), "1");
    EXPECT_EQ(below.Read("A", "Options", "QSpy"), "0");
}

TEST(OverlaySettings, WhatIsNotWrittenComesFromBelow) {
    MemorySettings below;
    (void)below.Write("A", "Options", "UseGames", "1");
    OverlaySettings store(below);
    EXPECT_EQ(store.Read("A", "Options", "UseGames"), "1");
    EXPECT_EQ(store.Read("A", "Options", "UseMemory"), std::nullopt);
}

TEST(OverlaySettings, TheSameKeyOfAnotherSectionOrApplicationIsAnother) {
    MemorySettings below;
    OverlaySettings store(below);
    (void)store.Write("A", "Options", "Key", "1");
    EXPECT_EQ(store.Read("B", "Options", "Key"), std::nullopt);
    EXPECT_EQ(store.Read("A", "Other", "Key"), std::nullopt);
}

TEST(OverlaySettings, AKeyThatIsLetThroughReachesTheStoreBelow) {
    MemorySettings below;
    OverlaySettings store(below);
    store.LetThrough("LV-Stuff", "LaunchCount");
    (void)store.Write("A", "LV-Stuff", "launchcount", "3");
    EXPECT_EQ(below.Read("A", "LV-Stuff", "LaunchCount"), "3");
    EXPECT_EQ(store.Read("A", "LV-Stuff", "LaunchCount"), "3");
}

TEST(OverlaySettings, AllAreThoseInFrontAndTheOthersBelow) {
    MemorySettings below;
    (void)below.Write("A", "S", "One", "1");
    (void)below.Write("A", "S", "Two", "2");
    (void)below.Write("B", "S", "Three", "3");
    OverlaySettings store(below);
    (void)store.Write("a", "s", "two", "22");
    (void)store.Write("A", "S", "Four", "4");
    std::map<std::string, std::string> all;
    for (const StoredValue& value : store.All("A").Value) {
        EXPECT_TRUE(all.emplace(value.Key, value.Value).second);
    }
    EXPECT_EQ(all, (std::map<std::string, std::string>{{"One", "1"}, {"two", "22"}, {"Four", "4"}}));
}

TEST(OverlaySettings, EachKeyOfASectionThatIsLetThroughReachesTheStoreBelow) {
    MemorySettings below;
    OverlaySettings store(below);
    store.LetAllThrough("Played");
    (void)store.Write("A", "played", "c:\\a.exe", "1");
    (void)store.Write("A", "Played", "c:\\b.exe", "2");
    (void)store.Write("A", "Played2", "c:\\a.exe", "3");
    EXPECT_EQ(below.Read("A", "Played", "c:\\a.exe"), "1");
    EXPECT_EQ(below.Read("A", "Played", "c:\\b.exe"), "2");
    EXPECT_EQ(below.Read("A", "Played2", "c:\\a.exe"), std::nullopt);
    EXPECT_EQ(store.Read("A", "Played", "C:\\A.EXE"), "1");
}

TEST(OverlaySettings, WhatIsTakenAwayIsGoneInFrontAlone) {
    MemorySettings below;
    (void)below.Write("A", "S", "One", "1");
    (void)below.Write("A", "S", "Two", "2");
    OverlaySettings store(below);
    store.LetThrough("S", "Two");
    EXPECT_EQ(store.Remove("a", "s", "one").Number, 0);
    EXPECT_EQ(store.Remove("A", "S", "Two").Number, 0);
    EXPECT_EQ(store.Read("A", "S", "One"), std::nullopt);
    EXPECT_TRUE(store.All("A").Value.empty());
    EXPECT_EQ(below.Read("A", "S", "One"), "1");
    EXPECT_EQ(below.Read("A", "S", "Two"), std::nullopt);
}

TEST(OverlaySettings, ARefusedWriteBelowIsRefused) {
    MemorySettings below;
    OverlaySettings store(below);
    store.LetThrough("S", "K");
    below.RefuseWrites = MakeError(error::kDiskFull);
    EXPECT_EQ(store.Write("A", "S", "K", "1").Number, error::kDiskFull);
    EXPECT_EQ(store.Read("A", "S", "K"), std::nullopt);
}

}  // namespace
}  // namespace lv
