// foundry/fonts/pak_file.h
//
// A file out of an archive in id Software's PAK format, or in Sin's. Nothing in them is compressed.

#pragma once

#include <optional>

#include "foundation/text.h"
#include "platform/files.h"

namespace lv {

/// The content of the first entry of that name ("gfx/palette.lmp"), case-blind. Nothing if there is none, if it or the
/// directory lies outside of the archive, or if it is longer than `most` bytes.
std::optional<Text> ReadFromPak(RandomAccessFile& archive, TextView name, std::uint32_t most);

}  // namespace lv
