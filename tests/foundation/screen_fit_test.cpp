#include "foundation/screen_fit.h"

#include <gtest/gtest.h>

#include <ostream>

namespace lv {

void PrintTo(const ScreenRect& rect, std::ostream* out) {
    *out << rect.Left << ", " << rect.Top << ", " << rect.Width << " x " << rect.Height;
}

namespace {

constexpr ScreenRect kArea = {0, 30, 960, 510};  // a screen of 1920 by 1080 at 200 %, with a panel above

}  // namespace

TEST(WithinArea, LeavesAWindowThatFits) {
    EXPECT_EQ(WithinArea({100, 50, 400, 300}, kArea), (ScreenRect{100, 50, 400, 300}));
    EXPECT_EQ(WithinArea({0, 30, 960, 510}, kArea), (ScreenRect{0, 30, 960, 510}));
}

TEST(WithinArea, MovesItInAtEachEdge) {
    EXPECT_EQ(WithinArea({-20, -80, 400, 300}, kArea), (ScreenRect{0, 30, 400, 300}));
    EXPECT_EQ(WithinArea({900, 500, 400, 300}, kArea), (ScreenRect{560, 240, 400, 300}));
    EXPECT_EQ(WithinArea({5000, 5000, 1, 1}, kArea), (ScreenRect{959, 539, 1, 1}));
}

TEST(WithinArea, CutsWhatIsLargerThanTheArea) {
    EXPECT_EQ(WithinArea({130, -80, 700, 700}, kArea), (ScreenRect{130, 30, 700, 510}));
    EXPECT_EQ(WithinArea({-100, 100, 2000, 100}, kArea), (ScreenRect{0, 100, 960, 100}));
}

TEST(WithinReach, TakesAPlacePartlyOffTheScreenAsItIs) {
    EXPECT_EQ(WithinReach({-240, 400, 400, 300}, kArea), (ScreenRect{-240, 400, 400, 300}));
    EXPECT_EQ(WithinReach({900, 500, 400, 300}, kArea), (ScreenRect{900, 500, 400, 300}));
}

TEST(WithinReach, BringsTheTitleBarWhereTheMouseReachesIt) {
    EXPECT_EQ(WithinReach({100, -80, 400, 300}, kArea), (ScreenRect{100, 30, 400, 300}));
    EXPECT_EQ(WithinReach({100, 700, 400, 300}, kArea), (ScreenRect{100, 516, 400, 300}));
    EXPECT_EQ(WithinReach({-500, 100, 400, 300}, kArea), (ScreenRect{-240, 100, 400, 300}));
    EXPECT_EQ(WithinReach({2000, 100, 400, 300}, kArea), (ScreenRect{936, 100, 400, 300}));
}

TEST(WithinReach, KeepsAWindowOnItsScreenThatIsNarrowerThanItsButtons) {
    EXPECT_EQ(WithinReach({-100, 100, 120, 300}, kArea), (ScreenRect{0, 100, 120, 300}));
    EXPECT_EQ(WithinReach({959, 100, 20, 300}, kArea), (ScreenRect{940, 100, 20, 300}));
}

TEST(WithinReach, CutsWhatIsLargerThanTheArea) {
    EXPECT_EQ(WithinReach({130, -80, 700, 700}, kArea), (ScreenRect{130, 30, 700, 510}));
}

TEST(ShowInRoom, ShowsAllWhereThereIsRoom) {
    EXPECT_EQ(ShowInRoom(960, 510, 960, 510, 15), (ShownContent{960, 510, false, false}));
}

TEST(ShowInRoom, GivesABarTheRoomBesideTheContent) {
    EXPECT_EQ(ShowInRoom(700, 600, 960, 510, 15), (ShownContent{715, 510, false, true}));
    EXPECT_EQ(ShowInRoom(1000, 400, 960, 510, 15), (ShownContent{960, 415, true, false}));
    EXPECT_EQ(ShowInRoom(1000, 600, 960, 510, 15), (ShownContent{960, 510, true, true}));
}

TEST(ShowInRoom, ABarMayCostTheOtherWayItsRoomToo) {
    EXPECT_EQ(ShowInRoom(950, 600, 960, 510, 15), (ShownContent{960, 510, true, true}));
    EXPECT_EQ(ShowInRoom(1000, 500, 960, 510, 15), (ShownContent{960, 510, true, true}));
}

TEST(PullAtEdge, PullsNearTheEndsAndBehindThem) {
    EXPECT_EQ(PullAtEdge(99, 100, 300, 16), -1);
    EXPECT_EQ(PullAtEdge(115, 100, 300, 16), -1);
    EXPECT_EQ(PullAtEdge(116, 100, 300, 16), 0);
    EXPECT_EQ(PullAtEdge(383, 100, 300, 16), 0);
    EXPECT_EQ(PullAtEdge(384, 100, 300, 16), 1);
    EXPECT_EQ(PullAtEdge(500, 100, 300, 16), 1);
}

TEST(PullAtEdge, IsStillWhereThereIsNoMiddle) {
    EXPECT_EQ(PullAtEdge(0, 0, 32, 16), 0);
    EXPECT_EQ(PullAtEdge(40, 0, 32, 16), 0);
}

}  // namespace lv
