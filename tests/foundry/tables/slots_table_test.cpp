// The commands and captions of the fixed slots, beside the listing of what each kind must have.

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <span>

#include "foundry/document/script_document.h"
#include "foundry/document/written_commands.h"
#include "foundry/tables/slots.h"
#include "tests/foundry/listing_slots_newer.h"
#include "tests/foundry/listing_slots_older.h"
#include "tests/foundry/listing_slots_unreal.h"

namespace lv {
namespace {

using listing::kNotShown;
using listing::kSlotRuns;

struct KindListing {
    Game Kind;
    std::span<const listing::SlotRow> Slots;
    std::span<const listing::HeadingRow> Headings;
    std::span<const int> Hidden;
};

const KindListing kListings[] = {
    {Game::Quake, listing::kSlotsOfQuake, {}, listing::kHiddenInQuake},
    {Game::Hexen2, listing::kSlotsOfHexen2, listing::kHeadingsOfHexen2, listing::kHiddenInHexen2},
    {Game::Quake2, listing::kSlotsOfQuake2, listing::kHeadingsOfQuake2, listing::kHiddenInQuake2},
    {Game::Unreal, listing::kSlotsOfUnreal, listing::kHeadingsOfUnreal, listing::kHiddenInUnreal},
    {Game::Sin, listing::kSlotsOfSin, listing::kHeadingsOfSin, listing::kHiddenInSin},
    {Game::Heretic2, listing::kSlotsOfHeretic2, listing::kHeadingsOfHeretic2, listing::kHiddenInHeretic2},
    {Game::HalfLife, listing::kSlotsOfHalfLife, listing::kHeadingsOfHalfLife, listing::kHiddenInHalfLife},
};

/// Empty tables, filled for the kind.
ScriptDocument Filled(Game kind) {
    ScriptDocument document;
    FillCommandTable(document, kind);
    return document;
}

bool IsHidden(const KindListing& listing, int slot) {
    return std::find(listing.Hidden.begin(), listing.Hidden.end(), slot) != listing.Hidden.end();
}

TEST(SlotsTable, TheSlotsAreThoseOfTheListedRuns) {
    std::vector<SlotNumber> expected;
    for (const auto& run : kSlotRuns) {
        for (int slot = run.First; slot <= run.Last; ++slot) {
            expected.push_back(static_cast<SlotNumber>(slot));
        }
    }
    EXPECT_EQ(expected.size(), 170u);
    EXPECT_EQ(SlotNumbers(), expected);
}

TEST(SlotsTable, EachNumberHasItsCommandOrNoneInEachKind) {
    for (const KindListing& listing : kListings) {
        std::map<int, const char*> expected;
        for (const auto& row : listing.Slots) {
            ASSERT_TRUE(expected.emplace(row.Slot, row.Command).second) << row.Slot << " in " << NumberOf(listing.Kind);
        }
        const ScriptDocument document = Filled(listing.Kind);
        for (SlotNumber slot = 101; slot <= 1124; ++slot) {
            EXPECT_EQ(document.SlotCommand[slot], expected.contains(slot) ? expected[slot] : "")
                << slot << " in " << NumberOf(listing.Kind);
        }
    }
}

TEST(SlotsTable, EachShownSlotHasItsCaptionInEachKind) {
    for (const KindListing& listing : kListings) {
        const ScriptDocument document = Filled(listing.Kind);
        for (const auto& row : listing.Slots) {
            if (row.Caption != kNotShown) {
                EXPECT_EQ(document.Bound_Lbl[static_cast<SlotNumber>(row.Slot)].Caption, row.Caption)
                    << row.Slot << " in " << NumberOf(listing.Kind);
            }
        }
    }
}

TEST(SlotsTable, FreeSlotsAreEmptyInEachKind) {
    for (const KindListing& listing : kListings) {
        const ScriptDocument document = Filled(listing.Kind);
        for (const auto& run : kSlotRuns) {
            for (int slot = run.First; run.Free && slot <= run.Last; ++slot) {
                EXPECT_EQ(document.SlotCommand[static_cast<SlotNumber>(slot)], "") << slot;
                EXPECT_EQ(document.Bound_Lbl[static_cast<SlotNumber>(slot)].Caption, "") << slot;
                EXPECT_TRUE(document.Bound_Lbl[static_cast<SlotNumber>(slot)].Visible) << slot;
            }
        }
    }
}

TEST(SlotsTable, NoKeyIsSetToASlotAtFirst) {
    for (const KindListing& listing : kListings) {
        const ScriptDocument document = Filled(listing.Kind);
        for (SlotNumber slot = 101; slot <= 1124; ++slot) {
            EXPECT_EQ(document.Setting_Lbl[slot].Caption, "") << slot << " in " << NumberOf(listing.Kind);
        }
    }
}

TEST(SlotsTable, HeadingsNameTheKindsOwnBlocks) {
    for (const KindListing& listing : kListings) {
        const ScriptDocument document = Filled(listing.Kind);
        for (const auto& row : listing.Headings) {
            EXPECT_EQ(document.Bound_Lbl[static_cast<SlotNumber>(row.Heading)].Caption, row.Caption)
                << row.Heading << " in " << NumberOf(listing.Kind);
        }
    }
}

TEST(SlotsTable, WhatAKindHasNotIsHidden) {
    for (const KindListing& listing : kListings) {
        const ScriptDocument document = Filled(listing.Kind);
        for (const int slot : listing.Hidden) {
            EXPECT_FALSE(document.Bound_Lbl[static_cast<SlotNumber>(slot)].Visible)
                << slot << " in " << NumberOf(listing.Kind);
            EXPECT_FALSE(document.Setting_Lbl[static_cast<SlotNumber>(slot)].Visible)
                << slot << " in " << NumberOf(listing.Kind);
        }
    }
}

/// Whether the kind has the page on which the slot stands.
bool PageIsOn(int slot, Game kind) {
    const std::set<Game> actions = {Game::Hexen2, Game::Heretic2, Game::HalfLife};
    const std::set<Game> inventory = {Game::Quake2, Game::Unreal, Game::Sin, Game::HalfLife};
    return slot >= 1101   ? inventory.contains(kind)
           : slot >= 1001 ? kind == Game::Quake
           : slot >= 901  ? actions.contains(kind)
                          : true;
}

TEST(SlotsTable, WhatAKindHasIsShown) {
    for (const KindListing& listing : kListings) {
        const ScriptDocument document = Filled(listing.Kind);
        for (const auto& row : listing.Slots) {
            if (PageIsOn(row.Slot, listing.Kind) && !IsHidden(listing, row.Slot)) {
                EXPECT_TRUE(document.Bound_Lbl[static_cast<SlotNumber>(row.Slot)].Visible)
                    << row.Slot << " in " << NumberOf(listing.Kind);
            }
        }
    }
}

}  // namespace
}  // namespace lv
