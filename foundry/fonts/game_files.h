// foundry/fonts/game_files.h
//
// A game's own files by their names in it, loose or in its archives.

#pragma once

#include <functional>
#include <vector>

#include "foundation/game.h"
#include "platform/files.h"

namespace lv {

/// No font, palette or archive of fonts of more bytes is read.
constexpr std::uint32_t kLargestFontFile = 1U << 20U;

/// How many archives of a directory are looked into, the newest ones.
constexpr std::size_t kMostArchives = 32;

/// The archives of a directory that a game of this kind knows, the newest first: "pak10.pak", "pak9.pak".
std::vector<Text> NewestArchives(Files& disk, TextView directory, Game gameKind);

/// Shows `take` the contents of the files of that name ("gfx/palette.lmp") until it takes one: in each directory, in
/// their order, the loose file and then those in the archives. False if none was taken.
bool TakeGameFile(Files& disk, const std::vector<Text>& directories, Game gameKind, TextView name,
                  const std::function<bool(TextView)>& take);

}  // namespace lv
