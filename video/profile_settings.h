// video/profile_settings.h
//
// What a video profile is made of: the tunables with their keys, lists and defaults, the plain flags, the lists
// behind the resolution and card choices, and the profiles that come with the program.

#pragma once

#include <span>

#include "foundation/text.h"

namespace lv {

/// A setting with a list: a flag that says whether it is used, the index in its list, the text of that item.
struct ProfileTunable {
    TextView Stem;        // key of the flag, 1 or 0
    TextView SettingKey;  // key of the list index
    std::span<const TextView> Items;
    Index DefaultIndex = 0;
    Index DefaultFlag = 0;

    /// Key of the item's text.
    [[nodiscard]] Text ContentKey() const { return Join(SettingKey, "_Content"); }

    /// The item at the index; empty for an index outside the list.
    [[nodiscard]] TextView Item(Index index) const;
};

constexpr std::size_t kProfileTunables = 41;

/// In the order in which they are read. One has no list: nothing offers it and nothing stores it.
std::span<const ProfileTunable> ProfileTunables();

/// The tunable of that stem, or null.
const ProfileTunable* FindTunable(TextView stem);

/// A flag without a list; Voodoo 2 only.
struct ProfileFlag {
    TextView Key;
    Index Default = 0;
};

constexpr std::size_t kProfileFlags = 6;
std::span<const ProfileFlag> ProfileFlags();

/// Pairs of caption and payload, joined by ";".
constexpr TextView kDefaultResolutions =
    "320x200;-width 320 -height 200;320x240;-width 320 -height 240;400x300;-width 400;512x384;-width 512;"
    "640x480;-width 640;800x600;-width 800;1024x768;-width 1024;1152x864;-width 1152;1280x1024;-width 1280";
constexpr TextView kDefaultBits = "8 bit color;-bpp 8;16 bit color;-bpp 16;24 bit color;-bpp 24;32 bit color;-bpp 32";

/// Default of Q2_ResolutionsPos, "640x480".
constexpr Index kDefaultQ2Resolution = 3;

std::span<const TextView> Q2Resolutions();
std::span<const TextView> GraphicsDrivers();
std::span<const TextView> VideoCards();

/// Default of VidCard, "Voodoo1", and the number that stands for the last card of the list, "Other".
constexpr Index kDefaultVidCard = 1;
constexpr Index kOtherCard = 100;

/// The profile that lives in the section of the program's own settings.
constexpr TextView kBaseProfile = "Base";
constexpr TextView kDefaultProfileList = "Base;Optimize for Speed;Optimize for Beauty;Default";

/// What a shipped profile says of one tunable or flag. Either half may be left as it is in the store.
struct ShippedSetting {
    static constexpr Index kNotSet = -1;
    Index Flag = kNotSet;
    Index Setting = kNotSet;
};

constexpr std::size_t kShippedProfiles = 3;

struct ShippedRow {
    TextView Stem;
    ShippedSetting In[kShippedProfiles];  // in the order of ShippedProfileNames
};

/// "Default", "Optimize for Speed", "Optimize for Beauty": the order in which they are made.
std::span<const TextView> ShippedProfileNames();
std::span<const ShippedRow> ShippedRows();

}  // namespace lv
