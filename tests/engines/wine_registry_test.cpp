// The registry through the real Wine.

#include "platform/linux/wine_registry.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>

#include "platform/memory/memory_platform.h"
#include "tests/platform/scratch_directory.h"

namespace lv {

TEST(WineRegistry, BringsValuesIntoWineAndBack) {
    const ScratchDirectory scratch;
    setenv("WINEDLLOVERRIDES", "mscoree,mshtml=", 1);  // a new prefix would ask for both
    MemorySettings store;
    WineSetup wine = FindWine();
    ASSERT_FALSE(wine.Command.empty()) << "wine is not installed";
    wine.Prefix = scratch / "prefix";
    wine.Patience = std::chrono::minutes(5);  // for the prefix
    WineRegistry registry(store, wine);

    const std::string path = "Software\\Valve\\Half-Life\\Player Profiles\\Zo\xEB";
    const std::string text = "say \"\xC9t\xE9 \x80\"; exec C:\\cfg\\a.cfg";
    EXPECT_EQ(registry.Query(path, "Chat Nickname").Fault.Number, 2);
    EXPECT_EQ(registry.Set(path, "Chat Nickname", {kRegistryText, text, 0}).Number, 0);
    EXPECT_EQ(registry.Set(path, "Lines", {kRegistryText, "one\r\ntwo\tthree", 0}).Number, 0);
    EXPECT_EQ(registry.Set(path, "Odd \"\\ n\xE4me", {kRegistryNumber, "", 4000000000u}).Number, 0);

    EXPECT_EQ(registry.Query(path, "chat nickname").Value.Type, kRegistryText);
    EXPECT_EQ(registry.Query(path, "Chat Nickname").Value.Text, text);
    EXPECT_EQ(registry.Query(path, "Lines").Value.Text, "one\r\ntwo\tthree");
    EXPECT_EQ(registry.Query(path, "Odd \"\\ n\xE4me").Value.Type, kRegistryNumber);
    EXPECT_EQ(registry.Query(path, "Odd \"\\ n\xE4me").Value.Number, 4000000000u);
    EXPECT_EQ(registry.Query(path, "None").Fault.Number, 2);
    EXPECT_EQ(registry.Query("Software\\None", "None").Fault.Number, 2);
    EXPECT_EQ(store.Count(), 0u);

    EXPECT_EQ(registry.Set(path, "Chat Nickname", {kRegistryText, "", 0}).Number, 0);
    EXPECT_EQ(registry.Query(path, "Chat Nickname").Value.Text, "");
    EXPECT_TRUE(registry.Query(path, "Chat Nickname").Ok());

    std::vector<RegistryEntry> entries;
    std::vector<RegistryPlace> places;
    for (int code = 0; code < 256; ++code) {
        places.push_back({path + "\\KB", std::to_string(code)});
        entries.push_back({places.back(), {kRegistryText, "bind \"" + std::to_string(code) + "\"", 0}});
    }
    EXPECT_EQ(registry.SetAll(entries).Number, 0);
    const auto values = registry.QueryAll(places);
    ASSERT_EQ(values.size(), 256u);
    EXPECT_EQ(values[0].Value.Text, "bind \"0\"");
    EXPECT_EQ(values[255].Value.Text, "bind \"255\"");

    // Wine's server would write into the prefix for some seconds more.
    const std::string end = "WINEPREFIX='" + wine.Prefix.string() + "' wineserver -k -w 2>/dev/null";
    (void)std::system(end.c_str());
}

}  // namespace lv
