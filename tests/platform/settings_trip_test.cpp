// The settings in the store of this system, out of it as a file, and into it again.

#include <gtest/gtest.h>

#include <algorithm>
#include <future>
#include <thread>

#include "platform/memory/memory_platform.h"
#include "tests/support/scripted_user.h"
#include "this_system.h"
#include "transfer/import_settings.h"
#include "transfer/settings_text.h"

namespace lv {

namespace {

constexpr TextView kFile = "C:\\HOME\\mine.txt";

/// A machine in memory, but for its store.
struct StoredMachine {
    explicit StoredMachine(SettingsBacking& store)
        : Services{store, Rest.Registry, Rest.Disk, Rest.Programs, Rest.Clip, Rest.Time, nullptr, nullptr, nullptr} {
        Rest.Disk.AddDirectory("C:\\HOME");
        Rest.Disk.AddDirectory("C:\\LORVANE");
    }

    MemoryPlatform Rest;
    Platform Services;
    ScriptedUser User;
    lv::Run Run{Services, User};
};

std::optional<Text> Leave(const MovedPlace& /*place*/, TextView /*likely*/) {
    return std::nullopt;
}

Text AllBytes() {
    Text all;
    for (int i = 0; i < 256; ++i) {
        all += static_cast<char>(i);
    }
    return all;
}

std::vector<StoredValue> FullStore() {
    std::vector<StoredValue> values = {{"Options", "Executables", "Quake;C:\\QUAKE\\QUAKE.EXE"},
                                       {"Options", "CustomCommandLineText", AllBytes()},
                                       {"Options", "Games", Text(16000, '\xE9')},
                                       {"Options", "VideoProfileList", "Base;Mes R\xC9glages;a\\b"},
                                       {"Mes R\xC9glages", "UseRez", "1"},
                                       {"a\\b", "UseRez", ""},
                                       {"Setups", "Setup1", "1;Executable=C:\\QUAKE\\QUAKE.EXE"}};
    for (int i = 0; i < 200; ++i) {
        values.push_back({"DefaultScript", Join("c:\\jeux\\No\xEBl ", std::to_string(i)), Text(i % 100, '\\')});
    }
    return values;
}

/// Lists and setups that are all told apart by `mark`.
std::vector<StoredValue> SettingsOf(TextView mark, int setups) {
    std::vector<StoredValue> values = {{"Options", "Games", Join("Mod ", mark, ";-game ", mark)},
                                       {"Options", Join("Only in ", mark), "1"}};
    for (int i = 1; i <= setups; ++i) {
        values.push_back({"Setups", Join("Setup", std::to_string(i)), Join("1;Executable=C:\\", mark)});
    }
    return values;
}

/// What another program imports.
class OtherProgram {
  public:
    explicit OtherProgram(std::unique_ptr<SettingsBacking> store) : store_(std::move(store)) {}

    void Import(const std::vector<StoredValue>& values) {
        EXPECT_EQ(ImportValues(machine_.Run, values, {}).Fault.Text, "");
    }

  private:
    std::unique_ptr<SettingsBacking> store_;
    StoredMachine machine_{*store_};
};

}  // namespace

TEST(SettingsTrip, OfTwoImportsAtOnceTheSecondOneIsWhole) {
    SystemSettings system;
    const std::vector<StoredValue> few = SettingsOf("few", 1);
    const std::vector<StoredValue> many = SettingsOf("many", 36);
    OtherProgram one(system.Another());
    OtherProgram other(system.Another());
    for (int i = 0; i < 10; ++i) {
        std::promise<void> begun;
        std::thread first([&] {
            begun.set_value();
            one.Import(few);
        });
        begun.get_future().wait();
        other.Import(many);
        first.join();
        const auto now = CarriedOf(system.Store.All("Lorvane 3D").Value);
        const bool isFew = FindValue(now, "Options", "Only in few") != nullptr;
        EXPECT_EQ(now, CarriedOf(isFew ? few : many)) << i;
    }
}

TEST(SettingsTrip, KeepsEveryValueByteForByte) {
    SystemSettings system;
    MemorySettings elsewhere;
    StoredMachine here(system.Store);
    StoredMachine there(elsewhere);
    for (const StoredValue& value : FullStore()) {
        ASSERT_EQ(elsewhere.Write("Lorvane 3D", value.Section, value.Key, value.Value).Number, 0);
    }
    ASSERT_EQ(ExportSettings(there.Run, kFile).Fault.Text, "");
    const Text bytes = there.Rest.Disk.Bytes(kFile);

    here.Rest.Disk.AddFile(kFile, bytes);
    ASSERT_EQ(ImportSettings(here.Run, kFile, Leave).Fault.Text, "");
    for (const StoredValue& value : FullStore()) {
        EXPECT_EQ(system.Store.Read("Lorvane 3D", value.Section, value.Key), value.Value) << value.Key;
    }
    ASSERT_EQ(ExportSettings(here.Run, kFile).Fault.Text, "");
    EXPECT_EQ(here.Rest.Disk.Bytes(kFile), bytes);
}

}  // namespace lv
