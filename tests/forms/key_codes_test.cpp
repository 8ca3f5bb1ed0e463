#include "foundry/forms/key_codes.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

constexpr Index kNone = kNoKey;

Index LabelOf(int code, unsigned raw = 0) {
    wxKeyEvent event(wxEVT_KEY_DOWN);
    event.m_keyCode = code;
    event.m_rawCode = raw;
    return LabelOfKey(event);
}

TEST(KeyCodes, LettersDigitsAndFunctionKeysStandInTheirOrder) {
    EXPECT_EQ(LabelOf('A'), 1);
    EXPECT_EQ(LabelOf('z'), 26);
    EXPECT_EQ(LabelOf('0'), 27);
    EXPECT_EQ(LabelOf('9'), 36);
    EXPECT_EQ(LabelOf(WXK_F1), 37);
    EXPECT_EQ(LabelOf(WXK_F12), 48);
}

TEST(KeyCodes, ShiftedSignsAreTheirKeys) {
    EXPECT_EQ(LabelOf('<'), LabelOf(','));
    EXPECT_EQ(LabelOf('?'), LabelOf('/'));
    EXPECT_EQ(LabelOf('"'), LabelOf('\''));
    EXPECT_EQ(LabelOf('~'), LabelOf('`'));
}

TEST(KeyCodes, TheKeypadHasKeysOfItsOwnWithAndWithoutNumLock) {
    EXPECT_EQ(LabelOf(WXK_NUMPAD5), 88);
    EXPECT_EQ(LabelOf(WXK_NUMPAD_BEGIN), 88);
    EXPECT_EQ(LabelOf(WXK_NUMPAD_ENTER), 93);
    EXPECT_EQ(LabelOf(WXK_RETURN), 75);
}

TEST(KeyCodes, AltGrIsAlt) {
    EXPECT_EQ(LabelOf(WXK_ALT), 51);
    EXPECT_EQ(LabelOf(WXK_NONE, 0xfe03), 51);
}

TEST(KeyCodes, TheSystemsOwnKeyIsNoneOfTheGames) {
    EXPECT_EQ(LabelOf(WXK_ALT, 0xffeb), kNone);
    EXPECT_EQ(LabelOf(WXK_ALT, 0xffec), kNone);
    EXPECT_EQ(LabelOf(WXK_WINDOWS_LEFT), kNone);
}

TEST(KeyCodes, ATurnOfTheWheelIsAKeyAndATiltIsNone) {
    wxMouseEvent event(wxEVT_MOUSEWHEEL);
    event.m_wheelRotation = 120;
    EXPECT_EQ(LabelOfMouse(event), 96);
    event.m_wheelRotation = -120;
    EXPECT_EQ(LabelOfMouse(event), 97);
    event.m_wheelAxis = wxMOUSE_WHEEL_HORIZONTAL;
    EXPECT_EQ(LabelOfMouse(event), kNone);
    event.m_wheelRotation = 120;
    EXPECT_EQ(LabelOfMouse(event), kNone);
}

}  // namespace
}  // namespace lv
