// video/profile_controls.h
//
// Which controls the video profile window has: each tunable's and each flag's check box with its panel and caption.

#pragma once

#include <span>

#include "foundation/text.h"

namespace lv {

enum class ProfilePanel {
    Resolution,
    VoodooScreenColor,
    Effects,
    NoEffects,
    UnrealVideo,
    Voodoo2,
    Voodoo1,
    No3DHardware
};

constexpr std::size_t kProfilePanels = 8;

struct ProfilePanelRow {
    ProfilePanel Panel;
    const char* Name;
    const char* Caption;
};

/// In the order of ProfilePanel.
std::span<const ProfilePanelRow> ProfilePanelRows();

/// The check box `Name`_Chk, and the list `Name`_Cbo where the key is a tunable's.
struct ProfileBoxRow {
    const char* Name;
    const char* Key;  // stem of the tunable, or key of the plain flag
    ProfilePanel Panel;
    const char* Caption;
};

/// In the order in which a panel shows them.
std::span<const ProfileBoxRow> ProfileBoxRows();

/// The caption without the dashes that lead the eye to the list behind it; forms draw that line themselves.
Text WithoutLeader(TextView caption);

/// A caption too long for one line beside other columns, broken at the blank nearest to its middle.
Text InTwoLines(TextView caption);

}  // namespace lv
