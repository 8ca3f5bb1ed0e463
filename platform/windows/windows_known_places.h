// platform/windows/windows_known_places.h
//
// Known places of a Windows machine: its directories of programs, the drives' own directories for games, and what
// Steam and GOG have written into the registry. There are no Wine prefixes.

#pragma once

#include "platform/files.h"
#include "platform/known_places.h"

namespace lv {

class WindowsKnownPlaces : public KnownPlaces {
  public:
    explicit WindowsKnownPlaces(Files& files) : files_(files) {}

    std::vector<std::string> Programs() override;
    std::string DataDirectory() override;
    std::string ConfigDirectory() override;
    std::vector<std::string> Games() override;
    std::vector<std::string> SteamRoots() override;
    std::vector<std::string> WinePrefixes() override { return {}; }
    std::vector<std::string> NotedGames() override;

  private:
    [[nodiscard]] std::vector<std::string> ThatAreThere(const std::vector<std::wstring>& directories) const;

    Files& files_;
};

}  // namespace lv
