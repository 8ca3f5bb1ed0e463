// foundry/fonts/wad.h
//
// The archives WAD2 (Quake) and WAD3 (Half-Life): 12 bytes of header, and a directory of 32 bytes a lump.

#pragma once

#include <optional>

#include "foundation/text.h"

namespace lv {

/// The first whole lump of that name, case-blind. Its type is not looked at: Quake's font says it was a texture.
/// Nothing if the directory or the lump lies outside of the bytes, or the lump is compressed.
std::optional<TextView> FindWadLump(TextView wad, TextView name);

}  // namespace lv
