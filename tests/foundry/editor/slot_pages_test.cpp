#include "foundry/editor/slot_pages.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

struct ExpectedPage {
    SlotNumber First;
    SlotNumber Last;
    BindingsPage Page;
};

TEST(SlotPages, EachRowStandsOnItsPageOfBindings) {
    constexpr ExpectedPage kPages[] = {
        {101, 116, BindingsPage::Standard}, {201, 212, BindingsPage::Standard}, {301, 308, BindingsPage::System},
        {401, 413, BindingsPage::System},   {501, 524, BindingsPage::Extended}, {701, 712, BindingsPage::Extended},
        {801, 813, BindingsPage::Talking},  {901, 923, BindingsPage::Hexen2},   {1101, 1105, BindingsPage::Quake2},
        {1110, 1116, BindingsPage::Quake2}, {1120, 1124, BindingsPage::Quake2}, {1001, 1005, BindingsPage::Ctf},
    };
    for (const ExpectedPage& expected : kPages) {
        for (SlotNumber slot = expected.First; slot <= expected.Last; ++slot) {
            EXPECT_EQ(PageOfSlot(slot).Page, EditorPage::Bindings) << slot;
            EXPECT_EQ(PageOfSlot(slot).Bindings, expected.Page) << slot;
        }
    }
}

TEST(SlotPages, BoundAliasesStandOnThePageOfAliases) {
    for (SlotNumber slot = 601; slot <= 627; ++slot) {
        EXPECT_EQ(PageOfSlot(slot).Page, EditorPage::Aliases) << slot;
    }
    EXPECT_EQ(PageOfSlot(700).Page, EditorPage::Aliases);
}

TEST(SlotPages, HeadingsStandOverTheirRows) {
    EXPECT_EQ(PageOfSlot(100).Bindings, BindingsPage::Standard);
    EXPECT_EQ(PageOfSlot(200).Bindings, BindingsPage::Standard);
    EXPECT_EQ(PageOfSlot(300).Bindings, BindingsPage::System);
    EXPECT_EQ(PageOfSlot(400).Bindings, BindingsPage::System);
    EXPECT_EQ(PageOfSlot(500).Bindings, BindingsPage::Extended);
    EXPECT_EQ(PageOfSlot(800).Bindings, BindingsPage::Extended);
    EXPECT_EQ(PageOfSlot(67).Bindings, BindingsPage::Talking);
    EXPECT_EQ(PageOfSlot(900).Bindings, BindingsPage::Hexen2);
    EXPECT_EQ(PageOfSlot(950).Bindings, BindingsPage::Hexen2);
    EXPECT_EQ(PageOfSlot(1000).Bindings, BindingsPage::Ctf);
    EXPECT_EQ(PageOfSlot(1100).Bindings, BindingsPage::Quake2);
    EXPECT_EQ(PageOfSlot(1198).Bindings, BindingsPage::Quake2);
    EXPECT_EQ(PageOfSlot(1199).Bindings, BindingsPage::Quake2);
}

TEST(SlotPages, ANumberThatIsNoSlotIsOnTheFirstPage) {
    EXPECT_EQ(PageOfSlot(kNoSlot).Page, EditorPage::Bindings);
    EXPECT_EQ(PageOfSlot(999).Bindings, BindingsPage::Standard);
}

TEST(SlotPages, EachGroupOfSettingsStandsOnItsPage) {
    EXPECT_EQ(PageOfGroup(&Fig_Frm::Checkables_Pic), OptionsPage::General);
    EXPECT_EQ(PageOfGroup(&Fig_Frm::Other_Pic), OptionsPage::General);
    EXPECT_EQ(PageOfGroup(&Fig_Frm::Screen_Pic), OptionsPage::General);
    EXPECT_EQ(PageOfGroup(&Fig_Frm::Speeds_Pic), OptionsPage::Movement);
    EXPECT_EQ(PageOfGroup(&Fig_Frm::Mouse_Pic), OptionsPage::Movement);
    EXPECT_EQ(PageOfGroup(&Fig_Frm::Angle_Pic), OptionsPage::Angle);
    EXPECT_EQ(PageOfGroup(&Fig_Frm::Bob_Pic), OptionsPage::Angle);
    EXPECT_EQ(PageOfGroup(&Fig_Frm::Sound_Pic), OptionsPage::Angle);
    EXPECT_EQ(PageOfGroup(&Fig_Frm::PlayerPawn_Pic), OptionsPage::Movement);
    EXPECT_EQ(PageOfGroup(&Fig_Frm::UnrealAudio_Pic), OptionsPage::Angle);
    EXPECT_EQ(PageOfGroup(&Fig_Frm::WeaponPriority_Pic), OptionsPage::Skins);
}

}  // namespace
}  // namespace lv
