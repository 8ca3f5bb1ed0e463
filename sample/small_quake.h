// sample/small_quake.h
//
// Quake's data of our own making: as much as engines want to begin.

#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace lv {

struct PackedFile {
    std::string Name;
    std::string Bytes;
};

/// The bytes of a .pak with these files.
std::string Pak(const std::vector<PackedFile>& files);

/// An empty picture archive, "WAD2".
std::string NoPictures();

/// What an engine takes for the mark of the registered game: it carries the picture itself, number by number, low byte
/// first; the file has the high byte first. Empty if the engine has it no more where it was.
std::string RegisteredMark(const std::filesystem::path& engine);

/// Makes "id1" in the directory, with two archives: QuakeSpasm of Debian's comes up with its console.
void MakeSmallQuake(const std::filesystem::path& tree);

}  // namespace lv
