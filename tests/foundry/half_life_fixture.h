// tests/foundry/half_life_fixture.h
//
// A launcher in memory with Half-Life's registry values and the script that is made of them.

#pragma once

#include "foundation/field_strings.h"
#include "tests/support/launcher_fixture.h"

namespace lv {

/// The script that the registry becomes.
inline constexpr TextView kPath = "C:\\HL\\valve\\lv3dhlrg.cfg";
inline constexpr TextView kProfiles = "software\\valve\\half-life\\player profiles\\";

class HalfLifeTest : public LauncherTest {
  protected:
    HalfLifeTest() { system.Disk.AddDirectory("C:\\HL\\VALVE"); }

    void Select(TextView profile) {
        system.Registry.Values["software\\valve\\half-life\\settings|selectedprofile"] = {kRegistryText, Text(profile),
                                                                                          0};
    }
    /// `name` as "|chat nickname", "\kb|119", "\cvar|gamma".
    void Hold(TextView profile, TextView name, TextView value) {
        system.Registry.Values[Join(kProfiles, profile, name)] = {kRegistryText, Text(value), 0};
    }
    Text Held(TextView profile, TextView name) {
        const auto found = system.Registry.Values.find(Join(kProfiles, profile, name));
        return found == system.Registry.Values.end() ? Text("(none)") : found->second.Text;
    }
    void BeQuiet() { Save(run, "ShowMessage", "HalfLifeRegConversion", 0); }

    void ExpectTold(TextView path, bool notAgain = false) {
        user.Expect({"Half-Life Registry Conversion",
                     Join("Lorvane has just converted your Half-Life settings from the registry\r\n"
                          "to the following file:\r\n",
                          path,
                          "\r\nThis will automatically occur each time you select Half-Life in the\r\n"
                          "Game Executable list; the previous file is destroyed.\r\n"
                          "Half-Life stores your settings in the registry. However, it still allows\r\n"
                          "execution of player scripts. Lorvane will manage your Half-Life settings\r\n"
                          "through scripts only. The automatic conversion of the registry to a file\r\n"
                          "gives you an initial changeover. ROCK!"),
                     0, notAgain, true, "&OK"});
    }
    void ExpectFailure(int number) {
        user.Expect({"Error During Save of Half-Life Registry Settings Conversion",
                     Join("Error Number = ", std::to_string(number), "\r\nError String = ", MakeError(number).Text,
                          number == 70 || number == 75 ? Join(": ", kPath) : Text()),
                     0, false, true, "&OK"});
    }

    Text Script() { return system.Disk.Bytes(kPath); }
};

}  // namespace lv
