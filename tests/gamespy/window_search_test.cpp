#include "gamespy/window_search.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_platform.h"

namespace lv {
namespace {

TEST(GameSpyWindow, IsToldByTitleAndClassTogether) {
    EXPECT_TRUE(IsGameSpyWindow({1, "GameSpy 3D 2.20", "Afx:400000:8"}));
    EXPECT_TRUE(IsGameSpyWindow({1, "GameSpy 3D", "QW Class"}));
    EXPECT_TRUE(IsGameSpyWindow({1, "[UNREGISTERED] GameSpy 3D 1.52", "Afx:"}));
    EXPECT_FALSE(IsGameSpyWindow({1, "GameSpy 3D 2.20", "Afx"}));
    EXPECT_FALSE(IsGameSpyWindow({1, "GameSpy 3D 2.20", "MozillaWindowClass"}));
    EXPECT_FALSE(IsGameSpyWindow({1, "The GameSpy 3D", "Afx:"}));
    EXPECT_FALSE(IsGameSpyWindow({1, "gamespy 3d", "Afx:"}));
    EXPECT_FALSE(IsGameSpyWindow({1, "GameSpy 3D", "My QW Class"}));
    EXPECT_FALSE(IsGameSpyWindow({1, "", ""}));
}

TEST(GameSpyWindow, IsToldByItsTitleAloneWhereTheClassIsNotKnown) {
    EXPECT_TRUE(IsGameSpyWindow({1, "GameSpy 3D 2.20", "gamespy.exe", false}));
    EXPECT_FALSE(IsGameSpyWindow({1, "Notepad", "Afx:", false}));
}

TEST(FindGameSpyWindow, TakesTheFirstThatFits) {
    MemoryDesktop desktop;
    desktop.Windows[3] = {"GameSpy 3D - a page about it", "Browser"};
    desktop.Windows[5] = {"GameSpy 3D 2.20", "Afx:1"};
    desktop.Windows[7] = {"GameSpy 3D 1.52", "Afx:2"};
    EXPECT_EQ(FindGameSpyWindow(&desktop), 5u);
}

TEST(FindGameSpyWindow, FindsNothingWhereThereIsNothing) {
    MemoryDesktop desktop;
    EXPECT_EQ(FindGameSpyWindow(&desktop), 0u);
    EXPECT_EQ(FindGameSpyWindow(nullptr), 0u);
}

TEST(FindGameSpyWindow, ReadsTitlesThroughABufferOf255) {
    MemoryDesktop desktop;
    desktop.Windows[1] = {"GameSpy 3D" + Text(300, 'x'), "Afx:" + Text(300, 'y')};
    EXPECT_EQ(desktop.EnumWindows()[0].Title.size(), 254u);
    EXPECT_EQ(FindGameSpyWindow(&desktop), 1u);
}

}  // namespace
}  // namespace lv
