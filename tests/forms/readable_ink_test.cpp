#include "foundation/forms/readable_ink.h"

#include <gtest/gtest.h>
#include <wx/gdicmn.h>

namespace lv {
namespace {

const wxColour kDark(45, 45, 45);

TEST(ReadableInk, IsTheInkWhereItCanBeRead) {
    EXPECT_EQ(ReadableInk(wxColour(27, 106, 203), *wxWHITE), wxColour(27, 106, 203));
    EXPECT_EQ(ReadableInk(wxColour(200, 220, 255), kDark), wxColour(200, 220, 255));
}

// The link of a dark theme of GTK's.
TEST(ReadableInk, IsLighterOnADarkGround) {
    const wxColour ink = ReadableInk(wxColour(21, 83, 158), kDark);
    EXPECT_GE(ink.GetLuminance() - kDark.GetLuminance(), 0.4);
    EXPECT_GT(ink.Blue(), ink.Red());
}

TEST(ReadableInk, IsDarkerOnALightGround) {
    const wxColour ink = ReadableInk(wxColour(255, 255, 0), *wxWHITE);
    EXPECT_GE(1 - ink.GetLuminance(), 0.4);
    EXPECT_EQ(ink.Blue(), 0);
}

TEST(ReadableInk, EndsAtBlackAndWhite) {
    EXPECT_GE(ReadableInk(*wxBLACK, *wxBLACK).GetLuminance(), 0.4);
    EXPECT_LE(ReadableInk(*wxWHITE, *wxWHITE).GetLuminance(), 0.6);
}

}  // namespace
}  // namespace lv
