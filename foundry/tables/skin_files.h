// foundry/tables/skin_files.h
//
// How the files of skins are called.

#pragma once

#include "foundation/text.h"

namespace lv {

constexpr TextView kSkinEnding = ".pcx";
constexpr TextView kSkinPattern = "*.pcx";

}  // namespace lv
