// assets/embedded_pictures.h
//
// The pictures of assets/, rendered to PNG at build time.

#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace lv {

struct EmbeddedPicture {
    std::string_view Name;  // path below assets/, without ".svg": "icons/games/quake"
    int Height;             // pixels; the width follows from the picture's shape
    std::span<const unsigned char> Png;
};

/// All pictures; the sizes of one picture follow each other, smallest first.
std::span<const EmbeddedPicture> EmbeddedPictures();

}  // namespace lv
