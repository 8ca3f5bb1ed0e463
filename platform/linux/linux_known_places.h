// platform/linux/linux_known_places.h
//
// Known places of a Linux desktop: the base directory rules, the file system hierarchy, Flatpak and Snap, and what
// Steam, Lutris, Heroic, Bottles and PlayOnLinux leave in a home.

#pragma once

#include <filesystem>

#include "platform/files.h"
#include "platform/known_places.h"

namespace lv {

class LinuxKnownPlaces : public KnownPlaces {
  public:
    /// `system`: where the directories of all users begin.
    explicit LinuxKnownPlaces(Files& files, std::filesystem::path system = "/")
        : files_(files), system_(std::move(system)) {}

    std::vector<std::string> Programs() override;
    std::string DataDirectory() override;
    std::string ConfigDirectory() override;
    std::vector<std::string> Games() override;
    std::vector<std::string> SteamRoots() override;
    std::vector<std::string> WinePrefixes() override;
    std::vector<std::string> NotedGames() override;

  private:
    [[nodiscard]] std::vector<std::string> OnDrives(const std::vector<std::filesystem::path>& hosts) const;

    Files& files_;
    std::filesystem::path system_;
};

}  // namespace lv
