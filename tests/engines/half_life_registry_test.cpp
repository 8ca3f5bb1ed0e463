// A player's script into the real Wine's registry and out of it again.

#include <gtest/gtest.h>

#include <cstdlib>

#include "foundation/settings.h"
#include "foundry/half_life/convert_registry.h"
#include "platform/linux/wine_registry.h"
#include "platform/memory/memory_platform.h"
#include "tests/foundry/script_fixture.h"
#include "tests/platform/scratch_directory.h"
#include "tests/support/scripted_user.h"

namespace lv {

TEST(HalfLifeRegistry, TakesAPlayerThroughWineAndBack) {
    const ScratchDirectory scratch;
    setenv("WINEDLLOVERRIDES", "mscoree,mshtml=", 1);  // a new prefix would ask for both
    MemoryPlatform memory;
    WineSetup wine = FindWine();
    ASSERT_FALSE(wine.Command.empty()) << "wine is not installed";
    wine.Prefix = scratch / "prefix";
    wine.Patience = std::chrono::minutes(5);  // for the prefix
    WineRegistry registry(memory.Settings, wine);
    Platform system{memory.Settings, registry, memory.Disk, memory.Programs, memory.Clip, memory.Time};
    ScriptedUser user;
    lv::Run run(system, user);
    Save(run, "ShowMessage", "HalfLifeRegConversion", 0);

    const std::string settings = "Software\\Valve\\Half-Life\\Settings";
    EXPECT_EQ(registry.Set(settings, "SelectedProfile", {kRegistryText, "Zo\xEB", 0}).Number, 0);
    std::string script = "name \"Zo\xEB \x80\"\r\nplate_color 30\r\n+mlook\r\nrate 2500\r\n";
    for (char letter = 'a'; letter <= 'z'; ++letter) {
        script += std::string("bind ") + letter + " \"say C:\\" + letter + "; wait\"\r\n";
    }
    for (int button = 1; button <= 32; ++button) {
        script += "bind aux" + std::to_string(button) + " \"impulse " + std::to_string(button) + "\"\r\n";
    }
    memory.Disk.AddFile("C:\\HL\\VALVE\\my.cfg", script);
    EXPECT_FALSE(ConvertScriptToRegistry(run, "C:\\HL\\VALVE\\my.cfg"));
    ConvertRegistryToScript(run, "C:\\HL\\VALVE\\lv3dhlrg.cfg");

    const std::string back = memory.Disk.Bytes("C:\\HL\\VALVE\\lv3dhlrg.cfg");
    EXPECT_EQ(CountLines(back, "name \"Zo\xEB \x80\""), 1);
    EXPECT_EQ(CountLines(back, "plate_color 30"), 1);
    EXPECT_EQ(CountLines(back, "+mlook"), 1);
    EXPECT_EQ(CountLines(back, "Rate 2500"), 1);
    EXPECT_EQ(CountLines(back, "bind \"q\"             \"say C:\\q; wait\""), 1);
    EXPECT_EQ(CountLines(back, "bind \"aux32\"         \"impulse 32\""), 1);

    // Wine's server would write into the prefix for some seconds more.
    const std::string end = "WINEPREFIX='" + wine.Prefix.string() + "' wineserver -k -w 2>/dev/null";
    (void)std::system(end.c_str());
}

}  // namespace lv
