// gamespy/spy_slots.h
//
// The six games that GameSpy 3D can be told to start this program's way.

#pragma once

#include <span>

#include "foundation/game.h"
#include "games/places.h"

namespace lv {

/// What a slot's script list offers.
enum class SpyScripts { Of, None, InisOf };  // scripts of the data directory, none, inis of the executable's

struct SpySlot {
    TextView Game;
    const char* CheckBox;  // nullptr: always wanted
    SpyScripts Scripts;
    lv::Game DataOf;  // whose base directory must stand below the executable's; Game::None: none must
    TextView Batch;
    TextView Pif;
    TextView PifTemplate;
    TextView FileTag;  // of the batch in error reports
    const char* EmptyPathTitle;
};

std::span<const SpySlot, kSpySlots> SpySlots();

/// "\ID1", below the executable's directory. Empty: none is asked for.
Text DataDirectoryOf(const SpySlot& slot);

/// Whether the path's file name is one of the slot's programs, letter case apart.
bool IsExecutableOf(std::size_t slot, TextView path);

}  // namespace lv
