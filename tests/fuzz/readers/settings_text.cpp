// A file of settings, and what an import does with it. The first byte chooses whether it gets the end that fits it.

#include "transfer/settings_text.h"

#include <algorithm>

#include "foundation/check_sum.h"
#include "foundation/field_strings.h"
#include "platform/memory/memory_files.h"
#include "tests/fuzz/readers.h"
#include "transfer/carried_values.h"
#include "transfer/moved_places.h"
#include "transfer/setting_changes.h"
#include "transfer/value_check.h"

namespace lv {

namespace {

Text WithItsEnd(TextView lines) {
    Text text(lines);
    if (!text.ends_with('\n')) {
        text += '\n';
    }
    const auto count = std::count(text.begin(), text.end(), '\n') - 1;
    return Join(text, "end ", std::to_string(count), " ", CheckSumText(CheckSum(text)), "\n");
}

void Import(const std::vector<StoredValue>& values) {
    MemoryFiles disk;
    disk.AddDirectory("C:\\QUAKE");
    std::vector<PathMove> moves;
    for (const MovedPlace& place : MovedPlacesOf(disk, values)) {
        MustHold(!place.Games.empty(), "a place has games");
        MustHold(!disk.DirectoryExists(place.Directory) || place.Directory.front() < 'C', "no place is here");
        if (LikelyPlace(disk, place, moves).empty() && moves.size() < 10) {
            moves.push_back({place.Directory, "D:\\Play"});
        }
    }
    const auto moved = MoveValues(values, moves);
    MustHold(moved.Ok() || moved.Fault.Number == error::kInvalidCall, "a move is done or refused");
    MustHold(moved.Value.size() <= values.size(), "a move makes no values");
    for (std::size_t i = 0; moved.Value.size() == values.size() && i < values.size(); ++i) {
        MustHold(CountDelimiters(moved.Value[i].Value, ";") == CountDelimiters(values[i].Value, ";"),
                 "a move keeps the fields of a list");
    }
}

}  // namespace

void FuzzSettingsText(TextView input) {
    const bool getsItsEnd = TakeChoice(input, 2) == 1;
    const Text text = getsItsEnd ? WithItsEnd(input) : Text(input);
    const auto read = ReadSettingsText(text);
    MustHold(read.Ok() || read.Value.empty(), "nothing of a damaged file is read");
    MustHold(read.Ok() || !read.Fault.Text.empty(), "damage is told");
    MustHold(std::ranges::all_of(read.Value, FitsSettingsText), "each value can be stored");
    if (read.Ok()) {
        const auto written = WriteSettingsText(read.Value);
        MustHold(written.Ok() && ReadSettingsText(written.Value).Value == read.Value, "it is the same written again");
    }
    const std::vector<StoredValue> carried = CarriedOf(read.Value);
    MustHold(carried.size() <= read.Value.size(), "no more goes than there is");
    MustHold(CarriedOf(carried).size() == carried.size(), "what goes goes on");
    MustHold(!ChangesBetween(carried, carried).Any(), "nothing differs from itself");
    for (const StoredValue& value : carried) {
        (void)FaultOfValue(value);
    }
    Import(carried);
}

}  // namespace lv
