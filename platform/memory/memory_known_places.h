// platform/memory/memory_known_places.h
//
// Known places as a test sets them.

#pragma once

#include "platform/known_places.h"

namespace lv {

class MemoryKnownPlaces : public KnownPlaces {
  public:
    std::vector<std::string> Programs() override { return IsPrograms; }
    std::string DataDirectory() override { return IsData; }
    std::string ConfigDirectory() override { return IsConfig; }
    std::vector<std::string> Games() override { return IsGames; }
    std::vector<std::string> SteamRoots() override { return IsSteamRoots; }
    std::vector<std::string> WinePrefixes() override { return IsWinePrefixes; }
    std::vector<std::string> NotedGames() override { return IsNotedGames; }

    std::vector<std::string> IsPrograms;
    std::string IsData;
    std::string IsConfig;
    std::vector<std::string> IsGames;
    std::vector<std::string> IsSteamRoots;
    std::vector<std::string> IsWinePrefixes;
    std::vector<std::string> IsNotedGames;
};

}  // namespace lv
