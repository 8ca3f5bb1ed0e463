// commands/unseen/overlay_settings.h
//
// A settings store in front of another one: what is written stays in front, and what is behind it stays as it is.

#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/settings_backing.h"

namespace lv {

class OverlaySettings : public SettingsBacking {
  public:
    /// `below` outlives it.
    explicit OverlaySettings(SettingsBacking& below) : below_(below) {}

    /// From now on a write of this key reaches the store below as well.
    void LetThrough(std::string_view section, std::string_view key);
    /// The same for each key of a section.
    void LetAllThrough(std::string_view section);

    std::optional<std::string> Read(std::string_view application, std::string_view section,
                                    std::string_view key) override;
    Error Write(std::string_view application, std::string_view section, std::string_view key,
                std::string_view value) override;
    Error Remove(std::string_view application, std::string_view section, std::string_view key) override;
    Result<std::vector<StoredValue>> All(std::string_view application) override;

  private:
    struct Written {
        std::string Application;
        StoredValue Value;
        bool IsGone = false;
    };
    [[nodiscard]] bool GoesThrough(std::string_view section, const std::string& name) const;

    SettingsBacking& below_;
    std::map<std::string, Written> written_;
    std::vector<std::string> through_;
    std::vector<std::string> sectionsThrough_;  // in lower case
};

}  // namespace lv
