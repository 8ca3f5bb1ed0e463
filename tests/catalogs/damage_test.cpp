// Hostile catalogs through every fill: each ends, selects only rows that there are, and hides or shows each record.

#include <algorithm>
#include <random>

#include "catalogs/built_in_lists.h"
#include "catalogs/executables.h"
#include "catalogs/game_identification.h"
#include "catalogs/map_scan.h"
#include "catalogs/modifications.h"
#include "catalogs/scripts.h"
#include "catalogs/servers.h"
#include "tests/catalogs/catalogs_fixture.h"

namespace lv {
namespace {

/// Presses any button, picks any file, and in the end always says "ignore".
class CarelessUser : public UserInterface {
  public:
    explicit CarelessUser(std::mt19937& random) : random_(random) {}

    void ShowQuestionBox(QuestionBox_Frm& box) override {
        const int buttons = static_cast<int>(box.Button_Cmd.size());
        ASSERT_GT(buttons, 0);
        const bool tired = ++Questions > 40;
        QuestionBox_Button_Cmd_Click(box, tired ? buttons - 1 : static_cast<int>(random_() % 3) % buttons);
    }
    Result<std::optional<Text>> ChooseFile(const FileRequest& /*request*/) override {
        switch (random_() % 4) {
            case 0:
                return MakeError(error::kPermissionDenied);
            case 1:
                return std::optional<Text>("C:\\QUAKE\\quake.exe");
            case 2:
                return std::optional<Text>(";\\;");
            default:
                return std::optional<Text>();
        }
    }
    void Refresh() override {}
    void PumpEvents() override {}
    void EndProgram() override {}
    int TextWidth(TextView line) override { return static_cast<int>(line.size()); }
    int TextHeight() override { return 16; }
    ScreenSize Screen() override { return {800, 600}; }

    int Questions = 0;

  private:
    std::mt19937& random_;
};

Text HostileValue(std::mt19937& random) {
    static const TextList kPieces = {";",       ";",           ";;",         "C:\\QUAKE\\quake.exe",
                                     "-game ",  "-game id1",   " ",          "C:\\QUAKE\\",
                                     "\\",      "..",          "0",          "1",
                                     "99999",   "-1",          "\r\n",       "c:/quake/quake.exe",
                                     "Q:\\x\\", "Ground Zero", "config.cfg", "D:\\a"};
    Text value;
    for (std::size_t pieces = random() % 24; pieces > 0; --pieces) {
        if (random() % 5 == 0) {
            value += static_cast<char>(random() % 256);
        } else {
            value += kPieces[random() % kPieces.size()];
        }
    }
    return value;
}

template <class List>
void ExpectSoundSelection(const List& list) {
    EXPECT_GE(list.ListIndex, -1);
    EXPECT_LT(list.ListIndex, static_cast<int>(list.Items.size()));
}

class HostileStore : public ::testing::TestWithParam<unsigned> {};

TEST_P(HostileStore, EndsEveryFill) {
    std::mt19937 random(GetParam());
    for (int round = 0; round < 40; ++round) {
        MemoryPlatform system;
        system.Disk.AddFile("C:\\QUAKE\\quake.exe");
        system.Disk.AddFile("C:\\QUAKE\\ID1\\pak0.pak", "PACK");
        system.Disk.AddFile("C:\\QUAKE\\ID1\\config.cfg");
        system.Disk.AddFile("D:\\QUAKE\\quake.exe");
        for (const char* key : {"Executables", "Games", "Scripts", "NetServers", "Demos", "Memory", "ExecutablesPos",
                                "GamesPos", "DemoPos", "MemoryPos", "0ServersPos", "UseGames", "UseServers"}) {
            system.Settings.Write("Lorvane 3D", "Options", key, HostileValue(random));
        }
        CarelessUser user(random);
        lv::Run run{system.Services, user};
        ListControls controls;
        CatalogLists& lists = controls.Lists;

        // Each goes its own way: the end of the program over one value must not spare the next.
        FixScriptRegistries(run);
        run.Ended = false;
        LoadExes(run, lists);
        ExpectSoundSelection(lists.Exe_Cbo);
        run.Ended = false;
        for (std::size_t i = 0; i < lists.Exe_Cbo.Items.size(); ++i) {
            lists.Exe_Cbo.ListIndex = static_cast<int>(i);
            IdentifyGame(run, lists);
            ApplyMissionPackRule(run, lists);
            ScanForMaps(run, lists);
            run.Ended = false;
        }
        run.DefaultGameDirectory = "c:\\quake";
        run.BaseGameDir = "ID1";
        run.CurrentGameDir = "ID1";
        run.GameKind = Game::Quake;
        FillGamesCombo(run, lists);
        FillScriptsCombo(run, lists);
        FillServerCombo(run, lists);
        FillDemoCombo(run, lists);
        FillMemoryCombo(run, lists);
        ScanForMaps(run, lists);
        for (const ListBox* list :
             {&lists.Game_Cbo, &lists.Script_Cbo, &lists.Server_Cbo, &lists.Demo_Cbo, &lists.Mem_Cbo, &lists.Map_Cbo}) {
            ExpectSoundSelection(*list);
        }
        EXPECT_LT(user.Questions, 400);
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, HostileStore, ::testing::Range(1U, 26U));

class LongValues : public CatalogsTest {
  protected:
    // A value that no checked write leaves behind, but that a store may hold.
    Text Fields(int count) {
        Text value = "a";
        for (int i = 1; i < count; ++i) {
            value += ";a";
        }
        return value;
    }
};

TEST_F(LongValues, AHundredThousandFieldsReadAsTheMostThereCanBe) {
    Store("Demos", Fields(100'000));
    EXPECT_TRUE(FillDemoCombo(run, lists));
    EXPECT_EQ(lists.Demo_Cbo.Items.size(), 16384U);
    EXPECT_EQ(Row(lists.Demo_Cbo.Items.back()), "a|a");
}

TEST_F(LongValues, AHundredThousandFieldsAreNoWholeServers) {
    Store("NetServers", Fields(100'000));
    user.Expect({"Lorvane 3D", "Error : defaultServers = a;a;a;a;a"});
    EXPECT_FALSE(FillServerCombo(run, lists));
}

TEST_F(LongValues, TenThousandScriptsAreReadInNoTime) {
    BeInQuake();
    Text value;
    for (int i = 0; i < 10'000; ++i) {
        AppendRecord(value, Join("t;c:\\quake\\id1\\", std::to_string(i), ".cfg"));
    }
    Store("Scripts", value);
    EXPECT_TRUE(FillScriptsCombo(run, lists));
    EXPECT_EQ(lists.Script_Cbo.Items.size(), 10'000U);
}

}  // namespace
}  // namespace lv
