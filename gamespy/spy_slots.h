// gamespy/spy_slots.h
//
// The six games that GameSpy 3D can be told to start this program's way.

#pragma once

#include <array>
#include <span>

#include "foundation/text.h"

namespace lv {

constexpr std::size_t kSpySlots = 6;

namespace spy_slot {
constexpr std::size_t kQuake = 0;
constexpr std::size_t kQuakeWorld = 1;
constexpr std::size_t kHexen2 = 2;
constexpr std::size_t kQuake2 = 3;
constexpr std::size_t kUnreal = 4;
constexpr std::size_t kSin = 5;
}  // namespace spy_slot

/// What a slot's script list offers.
enum class SpyScripts { Of, None, InisOf };  // scripts of the data directory, none, inis of the executable's

struct SpySlot {
    TextView Game;
    const char* CheckBox;  // nullptr: always wanted
    std::array<TextView, 4> Executables;
    SpyScripts Scripts;
    TextView DataDirectory;  // with its "\"; below the executable's. Empty: none is asked for
    TextView Batch;
    TextView Pif;
    TextView PifTemplate;
    TextView FileTag;  // of the batch in error reports
    const char* EmptyPathTitle;
};

std::span<const SpySlot, kSpySlots> SpySlots();

/// Whether the path's file name is one of the slot's executables, letter case apart.
bool IsExecutableOf(const SpySlot& slot, TextView path);

}  // namespace lv
