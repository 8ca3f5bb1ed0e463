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

/// All slots there are, fixed and free.
struct SlotRun {
    int First;
    int Last;
    bool Free;  // nothing until a script or the user fills it
};
constexpr SlotRun kSlotRuns[] = {
    {101, 116, false},   {201, 212, false},   {301, 308, false},   {401, 413, false}, {501, 524, true},
    {601, 627, true},    {701, 712, true},    {801, 813, true},    {901, 923, false}, {1001, 1005, false},
    {1101, 1105, false}, {1110, 1116, false}, {1120, 1124, false},
};

/// A heading in one kind.
struct HeadingRow {
    int Heading;
    const char* Caption;
};

}  // namespace lv::listing
