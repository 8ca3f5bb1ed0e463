// launch/unreal_ini.h
//
// Unreal takes its display settings from its ini file: the keys of the section [WinDrv.WindowsClient], set anew from
// the video profile before each launch.

#pragma once

#include "foundation/text.h"
#include "video/profile_model.h"

namespace lv {

struct UnrealIniInput {
    TextView Ini;  // the whole file
    const ProfileSnapshot& Profile;
    bool UnrealNoCDNeeded_Chk = false;
    TextView DefaultGameDirectory;  // Unreal's own "System", without a "\" at the end
};

struct UnrealIniResult {
    Text Ini;
    Text ChangedIniLines;  // the section's replaced and added lines, each ended by NewLine
};

/// Lines end in CR LF or LF, the last one also at the end of the file, and are written trimmed of blanks and ended by
/// NewLine; any other byte in them, 0 and a lone CR included, is kept. Outside the section nothing else changes, but
/// that with UnrealNoCDNeeded_Chk a CdPath ahead of it becomes the directory above "System".
///
/// Kept on purpose: the file never gets shorter. Where the new text does, the old one's last bytes stay behind it. And
/// a key that the section lacks is added only when another section follows.
UnrealIniResult RewriteUnrealIni(const UnrealIniInput& input);

}  // namespace lv
