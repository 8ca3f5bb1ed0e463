#include "platform/linux/wine_registry.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <chrono>
#include <thread>

#include "platform/memory/memory_platform.h"
#include "tests/platform/scratch_directory.h"

namespace lv {

namespace {

namespace fs = std::filesystem;

constexpr const char* kSettings = "Software\\Valve\\Half-Life\\Settings";

// A registry kept in the store.
struct WithoutWine {
    MemorySettings Store;
    WineRegistry Registry{Store, {}};
};

// A program in Wine's place: logs how it was called, hands out `export.reg` and takes away what it is given.
struct WithFakeWine {
    ScratchDirectory Scratch;
    MemorySettings Store;
    fs::path Prefix = Scratch / "prefix";
    fs::path Command = Scratch / "wine";

    WithFakeWine() {
        fs::create_directories(Prefix / "dosdevices");
        Script("");
    }
    void Script(const std::string& first) {
        const std::string here = Scratch.Path().string();
        WriteBytes(Command, "#!/bin/sh\n" + first + "\necho \"$WINEPREFIX|$WINEDEBUG|$*\" >>'" + here +
                                "/calls'\ncase $2 in\nexport) cp '" + here +
                                "/export.reg' \"$4\" ;;\nimport) cp \"$3\" '" + here + "/import.reg' ;;\nesac\n");
        chmod(Command.c_str(), 0755);
    }
    void Holds(std::string_view path, std::string_view name, const RegistryValue& value) {
        WriteBytes(Scratch / "export.reg", ComposeRegFile(path, name, value).value_or(""));
    }
    std::string Call(const std::string& arguments) { return Prefix.string() + "|-all|" + arguments + "\n"; }
    std::string Calls() { return BytesOf(Scratch / "calls"); }

    WineSetup Setup() { return {Command, Prefix, std::chrono::seconds(20)}; }
};

}  // namespace

TEST(WineRegistry, KeepsValuesInTheStoreWithoutWine) {
    WithoutWine without;
    EXPECT_EQ(without.Registry.Set(kSettings, "SelectedProfile", {kRegistryText, "Zo\xEB", 0}).Number, 0);
    EXPECT_EQ(without.Registry.Set(kSettings, "Count", {kRegistryNumber, "", 4000000000u}).Number, 0);
    EXPECT_EQ(without.Store.Read("User Registry", kSettings, "SelectedProfile"), "1:Zo\xEB");
    EXPECT_EQ(without.Store.Read("User Registry", kSettings, "Count"), "4:4000000000");
    EXPECT_EQ(without.Registry.Query(kSettings, "selectedprofile").Value.Text, "Zo\xEB");
    EXPECT_EQ(without.Registry.Query(kSettings, "Count").Value.Type, 4u);
    EXPECT_EQ(without.Registry.Query(kSettings, "Count").Value.Number, 4000000000u);
}

TEST(WineRegistry, SaysError2ForWhatIsNotInTheStore) {
    WithoutWine without;
    EXPECT_EQ(without.Registry.Query(kSettings, "SelectedProfile").Fault.Number, 2);
    for (const char* const damaged : {"", "1", "4:", "4:x", "4:12x", "4:4294967296", "3:abc"}) {
        EXPECT_EQ(without.Store.Write("User Registry", kSettings, "Damaged", damaged).Number, 0);
        EXPECT_EQ(without.Registry.Query(kSettings, "Damaged").Fault.Number, 2) << damaged;
    }
}

TEST(WineRegistry, RefusesWhatIsNeitherTextNorNumber) {
    WithoutWine without;
    EXPECT_EQ(without.Registry.Set(kSettings, "Bytes", {3, "x", 0}).Number, 5);
    EXPECT_EQ(without.Registry.Set("Soft\nware", "Name", {kRegistryText, "x", 0}).Number, 5);
    EXPECT_EQ(without.Store.Count(), 0u);
}

TEST(WineRegistry, PassesOnTheStoresErrors) {
    WithoutWine without;
    without.Store.RefuseWrites = MakeError(61);
    EXPECT_EQ(without.Registry.Set(kSettings, "Name", {kRegistryText, "x", 0}).Number, 61);
}

TEST(WineRegistry, ReadsThroughAnExport) {
    WithFakeWine fake;
    fake.Holds(kSettings, "SelectedProfile", {kRegistryText, "Player", 0});
    WineRegistry registry(fake.Store, fake.Setup());
    EXPECT_EQ(registry.Query(kSettings, "SELECTEDPROFILE").Value.Text, "Player");
    EXPECT_EQ(fake.Calls(), fake.Call("reg export HKCU\\Software\\Valve\\Half-Life\\Settings lv_666.reg /y"));
    EXPECT_EQ(fake.Store.Count(), 0u);
}

TEST(WineRegistry, AsksWineOnceForABurstOfValues) {
    WithFakeWine fake;
    fake.Holds(kSettings, "a", {kRegistryText, "1", 0});
    WineRegistry registry(fake.Store, fake.Setup());
    EXPECT_EQ(registry.Query(kSettings, "a").Value.Text, "1");
    EXPECT_EQ(registry.Query("software\\valve\\HALF-LIFE\\settings\\", "a").Value.Text, "1");
    EXPECT_EQ(registry.Query(kSettings, "b").Fault.Number, 2);
    const std::string calls = fake.Calls();
    EXPECT_EQ(std::count(calls.begin(), calls.end(), '\n'), 1);
}

TEST(WineRegistry, AsksAgainAfterTwoSeconds) {
    WithFakeWine fake;
    fake.Holds(kSettings, "a", {kRegistryText, "1", 0});
    WineRegistry registry(fake.Store, fake.Setup());
    EXPECT_EQ(registry.Query(kSettings, "a").Value.Text, "1");
    fake.Holds(kSettings, "a", {kRegistryText, "2", 0});
    std::this_thread::sleep_for(std::chrono::milliseconds(2100));
    EXPECT_EQ(registry.Query(kSettings, "a").Value.Text, "2");
}

TEST(WineRegistry, AsksAgainAfterASet) {
    WithFakeWine fake;
    fake.Holds(kSettings, "a", {kRegistryText, "1", 0});
    WineRegistry registry(fake.Store, fake.Setup());
    EXPECT_EQ(registry.Query(kSettings, "a").Value.Text, "1");
    EXPECT_EQ(registry.Set(kSettings, "a", {kRegistryText, "2", 0}).Number, 0);
    fake.Holds(kSettings, "a", {kRegistryText, "2", 0});
    EXPECT_EQ(registry.Query(kSettings, "a").Value.Text, "2");
}

TEST(WineRegistry, WritesThroughAnImport) {
    WithFakeWine fake;
    WineRegistry registry(fake.Store, fake.Setup());
    EXPECT_EQ(registry.Set("Software\\A", "n", {kRegistryText, "x", 0}).Number, 0);
    EXPECT_EQ(fake.Calls(), fake.Call("reg import lv_666.reg"));
    EXPECT_EQ(BytesOf(fake.Scratch / "import.reg"), ComposeRegFile("Software\\A", "n", {kRegistryText, "x", 0}));
    EXPECT_EQ(fake.Store.Count(), 0u);
}

TEST(WineRegistry, ExportsFromThePlainPartOfAPathOn) {
    WithFakeWine fake;
    fake.Holds("Software\\Profiles\\Zo\xEB\\KB", "065", {kRegistryText, "+attack", 0});
    WineRegistry registry(fake.Store, fake.Setup());
    EXPECT_EQ(registry.Query("Software\\Profiles\\Zo\xEB\\KB", "065").Value.Text, "+attack");
    EXPECT_EQ(registry.Query("\xC9t\xE9", "a").Fault.Number, 2);
    EXPECT_EQ(fake.Calls(), fake.Call("reg export HKCU\\Software\\Profiles lv_666.reg /y") +
                                fake.Call("reg export HKCU lv_666.reg /y"));
}

TEST(WineRegistry, MakesNoPrefixToRead) {
    WithFakeWine fake;
    fs::remove_all(fake.Prefix);
    WineRegistry registry(fake.Store, fake.Setup());
    EXPECT_EQ(registry.Query(kSettings, "a").Fault.Number, 2);
    EXPECT_EQ(fake.Calls(), "(none)");
    EXPECT_EQ(registry.Set(kSettings, "a", {kRegistryText, "1", 0}).Number, 0);
    EXPECT_EQ(fake.Calls(), fake.Call("reg import lv_666.reg"));
}

TEST(WineRegistry, TellsFailuresApart) {
    WithFakeWine fake;
    fake.Script("exit 1");
    WineRegistry failing(fake.Store, fake.Setup());
    EXPECT_EQ(failing.Query(kSettings, "a").Fault.Number, 2);
    EXPECT_EQ(failing.Set(kSettings, "a", {kRegistryText, "1", 0}).Number, 5);
    WineRegistry missing(fake.Store, {fake.Scratch / "none", fake.Prefix});
    EXPECT_EQ(missing.Query(kSettings, "a").Fault.Number, 53);
    EXPECT_EQ(missing.Set(kSettings, "a", {kRegistryText, "1", 0}).Number, 53);
}

TEST(WineRegistry, GivesUpAWineThatHangs) {
    WithFakeWine fake;
    fake.Script("sleep 60");
    WineRegistry registry(fake.Store, {fake.Command, fake.Prefix, std::chrono::milliseconds(100)});
    EXPECT_EQ(registry.Query(kSettings, "a").Fault.Number, 57);
    EXPECT_EQ(registry.Set(kSettings, "a", {kRegistryText, "1", 0}).Number, 57);
}

TEST(WineRegistry, AsksWineOnceForPlacesInSeveralKeys) {
    WithFakeWine fake;
    const std::vector<RegistryEntry> held = {{{"Software\\P\\Player", "Nick"}, {kRegistryText, "Zo\xEB", 0}},
                                             {{"Software\\P\\Player\\KB", "119"}, {kRegistryText, "+forward", 0}}};
    WriteBytes(fake.Scratch / "export.reg", ComposeRegFile(held).value_or(""));
    WineRegistry registry(fake.Store, fake.Setup());
    const std::vector<RegistryPlace> places = {
        {"Software\\P\\PLAYER\\KB\\", "119"}, {"Software\\P\\Player", "Nick"}, {"Software\\P\\Player\\CVAR", "gamma"}};
    const auto values = registry.QueryAll(places);
    ASSERT_EQ(values.size(), 3u);
    EXPECT_EQ(values[0].Value.Text, "+forward");
    EXPECT_EQ(values[1].Value.Text, "Zo\xEB");
    EXPECT_EQ(values[2].Fault.Number, 2);
    EXPECT_EQ(registry.Query("Software\\P\\Player\\KB", "119").Value.Text, "+forward");
    EXPECT_EQ(fake.Calls(), fake.Call("reg export HKCU\\Software\\P\\Player lv_666.reg /y"));
}

TEST(WineRegistry, ExportsTheKeyAboveAllThatAreAskedFor) {
    struct Case {
        const char* First;
        const char* Second;
        const char* Exported;
    };
    const Case cases[] = {
        {"Software\\A\\B", "Software\\A\\C", "HKCU\\Software\\A"},
        {"Software\\A", "Software\\AB", "HKCU\\Software"},
        {"Software\\A\\B", "Software\\A", "HKCU\\Software\\A"},
        {"SOFTWARE\\A\\C", "Software\\A\\B", "HKCU\\Software\\A"},
        {"Software\\A", "System\\A", "HKCU"},
        {"Software\\Zo\xEB\\A", "Software\\Zo\xEB\\B", "HKCU\\Software"},
    };
    for (const Case& one : cases) {
        WithFakeWine fake;
        WineRegistry registry(fake.Store, fake.Setup());
        const std::vector<RegistryPlace> places = {{one.First, "a"}, {one.Second, "a"}};
        EXPECT_EQ(registry.QueryAll(places).size(), 2u);
        EXPECT_EQ(fake.Calls(), fake.Call(std::string("reg export ") + one.Exported + " lv_666.reg /y")) << one.First;
    }
}

TEST(WineRegistry, WritesManyValuesThroughOneImport) {
    WithFakeWine fake;
    WineRegistry registry(fake.Store, fake.Setup());
    const std::vector<RegistryEntry> entries = {{{"Software\\A\\KB\\", "119"}, {kRegistryText, "+forward", 0}},
                                                {{"Software\\A", "Count"}, {kRegistryNumber, "", 7}}};
    EXPECT_EQ(registry.SetAll(entries).Number, 0);
    EXPECT_EQ(fake.Calls(), fake.Call("reg import lv_666.reg"));
    const std::string written = BytesOf(fake.Scratch / "import.reg");
    EXPECT_EQ(ReadRegFile(written, "Software\\A\\KB").value_or(RegistryKey())["119"].Text, "+forward");
    EXPECT_EQ(ReadRegFile(written, "Software\\A").value_or(RegistryKey())["count"].Number, 7u);
}

TEST(WineRegistry, WritesNothingWithOneValueThatIsRefused) {
    WithFakeWine fake;
    WithoutWine without;
    WineRegistry registry(fake.Store, fake.Setup());
    const std::vector<RegistryEntry> entries = {{{"Software\\A", "n"}, {kRegistryText, "x", 0}},
                                                {{"Software\\A", "b"}, {3, "x", 0}}};
    EXPECT_EQ(registry.SetAll(entries).Number, 5);
    EXPECT_EQ(without.Registry.SetAll(entries).Number, 5);
    EXPECT_EQ(fake.Calls(), "(none)");
    EXPECT_EQ(without.Store.Count(), 0u);
}

TEST(WineRegistry, HasNothingToDoForNothing) {
    WithFakeWine fake;
    WineRegistry registry(fake.Store, fake.Setup());
    EXPECT_EQ(registry.SetAll({}).Number, 0);
    EXPECT_TRUE(registry.QueryAll({}).empty());
    EXPECT_EQ(fake.Calls(), "(none)");
}

TEST(WineRegistry, GivesEachPlaceTheErrorOfWine) {
    WithFakeWine fake;
    fake.Script("sleep 60");
    WineRegistry registry(fake.Store, {fake.Command, fake.Prefix, std::chrono::milliseconds(100)});
    const std::vector<RegistryPlace> places = {{"Software\\A", "a"}, {"Software\\B", "b"}};
    const auto values = registry.QueryAll(places);
    ASSERT_EQ(values.size(), 2u);
    EXPECT_EQ(values[0].Fault.Number, 57);
    EXPECT_EQ(values[1].Fault.Number, 57);
}

TEST(WineRegistry, WritesToTheStoreOnlyWhatIsNew) {
    WithoutWine without;
    const std::vector<RegistryEntry> entries = {{{"Software\\A", "a"}, {kRegistryText, "1", 0}},
                                                {{"Software\\A", "b"}, {kRegistryText, "2", 0}}};
    EXPECT_EQ(without.Registry.Set("Software\\A", "a", {kRegistryText, "1", 0}).Number, 0);
    EXPECT_EQ(without.Registry.SetAll(entries).Number, 0);
    const std::vector<std::string> log = {"Software\\A|a|1:1", "Software\\A|b|1:2"};
    EXPECT_EQ(without.Store.Log, log);
    const std::vector<RegistryPlace> places = {{"Software\\A", "B"}, {"Software\\A", "c"}};
    EXPECT_EQ(without.Registry.QueryAll(places)[0].Value.Text, "2");
    EXPECT_EQ(without.Registry.QueryAll(places)[1].Fault.Number, 2);
}

TEST(WineRegistry, LeavesNothingBehind) {
    WithFakeWine fake;
    fake.Script("pwd >>'" + fake.Scratch.Path().string() + "/places'");
    fake.Holds(kSettings, "a", {kRegistryText, "1", 0});
    WineRegistry registry(fake.Store, fake.Setup());
    EXPECT_EQ(registry.Query(kSettings, "a").Value.Text, "1");
    std::string place = BytesOf(fake.Scratch / "places");
    ASSERT_TRUE(place.ends_with('\n'));
    place.pop_back();
    EXPECT_FALSE(fs::exists(place)) << place;
}

}  // namespace lv
