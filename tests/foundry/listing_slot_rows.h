// tests/foundry/listing_slot_rows.h
//
// What the listings of slots are made of.

#pragma once

namespace lv::listing {

/// The caption of a row that the kind does not show: any will do.
constexpr const char* kNotShown = nullptr;

/// A row of the editor in one kind. A fixed slot that is not listed is empty in that kind.
struct SlotRow {
    int Slot;
    const char* Command;
    const char* Caption;
};

/// A heading in one kind.
struct HeadingRow {
    int Heading;
    const char* Caption;
};

}  // namespace lv::listing
