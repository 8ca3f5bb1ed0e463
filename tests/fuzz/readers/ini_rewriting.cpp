// Unreal's ini, rewritten for a launch. The first byte chooses what the profile sets.

#include "foundation/field_strings.h"
#include "launch/unreal_ini.h"
#include "tests/fuzz/readers.h"

namespace lv {

void FuzzIniRewriting(TextView input) {
    const std::size_t choice = TakeChoice(input, 256);
    ProfileSnapshot profile;
    profile.UseRez = choice & 1 ? 1 : 0;
    profile.ResolutionsPos_Content = choice & 2 ? Text(input.substr(0, 20)) : PadToWidth("800x600 ", 100);
    profile.UseBits = choice & 4 ? 1 : 0;
    profile.BitsPos_Content = PadToWidth("16", 100);
    for (ProfileSnapshot::Tunable& tunable : profile.Tunables) {
        tunable = {static_cast<Index>(choice & 8 ? 1 : 0), 0, "0.8"};
    }
    for (Index& flag : profile.Flags) {
        flag = choice & 16 ? 1 : 0;
    }
    const UnrealIniResult result = RewriteUnrealIni({input, profile, (choice & 32) != 0, "C:\\UNREAL\\System"});
    MustHold(result.Ini.size() >= input.size(), "the file never gets shorter");
    MustHold(result.Ini.size() <= input.size() * 4 + 100000, "the file grows by its section's keys alone");
    if (LowerCase(input).find("windrv.windowsclient") == Text::npos) {
        MustHold(result.ChangedIniLines.empty(), "only its section is changed");
    }
}

}  // namespace lv
