#include "foundry/tables/page_lists.h"

#include <cstdint>
#include <initializer_list>
#include <span>

#include "foundation/game.h"

namespace lv {

namespace {

void Put(ListBox& list, std::initializer_list<TextView> items) {
    list.Clear();
    list.Items.assign(items.begin(), items.end());
}

constexpr std::int64_t kOne = 1'000'000;

/// Values in millionths, both ends included, as Unreal writes them: "0.675000".
void AddMillionths(ListBox& list, std::int64_t first, std::int64_t last, std::int64_t step) {
    for (std::int64_t value = first; value <= last; value += step) {
        Text fraction = std::to_string(value % kOne);
        fraction.insert(0, 6 - fraction.size(), '0');
        list.Items.push_back(Join(std::to_string(value / kOne), ".", fraction));
    }
}

void PutMillionths(ListBox& list, std::int64_t first, std::int64_t last, std::int64_t step) {
    list.Clear();
    AddMillionths(list, first, last, step);
}

void PutWhole(ListBox& list, int first, int last, int step) {
    list.Clear();
    for (int value = first; value <= last; value += step) {
        list.Items.push_back(std::to_string(value));
    }
}

void PutYesNo(std::span<ListBox> lists) {
    for (ListBox& list : lists) {
        Put(list, {"True", "False"});
    }
}

struct ColorName {
    int Color;
    TextView Name;
};

constexpr ColorName kCrosshairColors[] = {
    {0, " -Brown"},
    {7, " -Grey"},
    {15, " -White"},
    {23, " -Tan"},
    {31, " -Yellow"},
    {39, " -Lt. Blue"},
    {47, " -Brt. Blue"},
    {55, " -Olive"},
    {63, " -Yuck Green"},
    {71, " -Deep Red"},
    {79, " -Red"},
    {87, " -Tan"},
    {95, " -Lt. Orange"},
    {103, " -Pink"},
    {119, " -Flesh"},
    {127, " -White"},
    {128, " -Blue White"},
    {134, " -Purple White"},
    {144, " -Lt. Purple"},
    {151, " -Purple"},
    {176, " -Aqua"},
    {183, " -Dk. Aqua"},
    {192, " -Bright Yellow"},
    {199, " -Med. Yellow"},
    {208, " -Bright Blue"},
    {215, " -Lt. Blue"},
    {224, " -Burgandy"},
    {231, " -Yellow White"},
    {240, " -Pale"},
    {247, " -Red"},
    {255, " -Brown"},
};

void FillCrosshairColors(ListBox& list) {
    constexpr int kColors = 256;
    list.Clear();
    for (int color = 0; color < kColors; ++color) {
        Text number = std::to_string(color);
        number.insert(0, 3 - number.size(), '0');
        list.Items.push_back(number);
    }
    for (const ColorName& named : kCrosshairColors) {
        list.Items[static_cast<std::size_t>(named.Color)] += named.Name;
    }
}

void FillPlayer(ScriptSettings& settings, Game gameKind, Dialect scriptFamily, bool isMissionPack) {
    const bool halfLife = gameKind == Game::HalfLife;
    const bool newConsole = scriptFamily == Dialect::Quake2;
    settings.Handed_Cbo.Clear();
    if (halfLife) {
        Put(settings.Crosshair_Cbo, {"0 (none)", "1 (crosshair on)"});
    } else if (newConsole) {
        Put(settings.Crosshair_Cbo, {"0 (none)", "1 (white cross)", "2 (red dot)", "3 (red angle)"});
        Put(settings.Handed_Cbo, {"0 (right)", "1 (left)", "2 (none)"});
    } else {
        Put(settings.Crosshair_Cbo, {"0", "1", "2"});
    }
    FillCrosshairColors(settings.CrossHairColor_Cbo);
    Put(settings.m_filter_Cbo, {"0", "1"});

    settings.PlayerClass_Cbo.Clear();
    if (gameKind == Game::Hexen2) {
        Put(settings.PlayerClass_Cbo, {"Paladin", "Crusader", "Necromancer", "Assassin"});
        if (isMissionPack) {
            settings.PlayerClass_Cbo.Items.emplace_back("Demoness");
        }
        settings.PlayerClass_Cbo.ListIndex = 0;
    }
}

void FillUnrealAudio(std::span<ListBox, 18> lists) {
    PutYesNo(lists.first(11));
    PutWhole(lists[11], 0, 100, 10);                                  // latency
    Put(lists[12], {"11025Hz", "22050Hz", "44100Hz"});                // output rate
    lists[13].Clear();                                                // effects channels: whatever the ini says
    PutMillionths(lists[14], 4500 * kOne, 8500 * kOne, 1000 * kOne);  // doppler speed
    for (ListBox& volume : lists.subspan(15)) {
        PutMillionths(volume, 0, kOne, kOne / 10);
    }
}

void FillPlayerPawn(std::span<ListBox, 13> lists) {
    Put(lists[0], {"0.000000", "0.125000", "0.250000", "0.375000", "0.500000", "0.675000", "0.750000", "0.875000",
                   "1.000000"});                   // dodge click time; the sixth is meant so
    PutMillionths(lists[1], 0, 40'000, 4'000);     // bob
    PutMillionths(lists[2], 0, 800'000, 100'000);  // auto aim
    AddMillionths(lists[2], 850'000, kOne, 10'000);
    Put(lists[3], {"-1.000000", "1.000000"});  // handedness
    PutYesNo(lists.subspan(4, 5));
    PutMillionths(lists[9], 0, 10 * kOne, kOne / 2);  // mouse sensitivity
    PutWhole(lists[10], 1300, 5200, 650);             // net speed
    for (ListBox& delta : lists.subspan(11)) {
        PutMillionths(delta, 0, 100'000, 25'000);
    }
}

void FillMouseBinds(std::span<ListBox> lists) {
    constexpr int kFastest = 15;
    for (ListBox& list : lists) {
        list.Clear();
        for (int speed = 1; speed <= kFastest; ++speed) {
            list.Items.push_back(Join(std::to_string(speed), ".0"));
        }
    }
}

}  // namespace

void FillPageLists(ScriptSettings& settings, Game gameKind, Dialect scriptFamily, bool isMissionPack) {
    FillPlayer(settings, gameKind, scriptFamily, isMissionPack);
    FillUnrealAudio(settings.UnrealAudio_Cbo);
    FillPlayerPawn(settings.PlayerPawn_Cbo);
    FillMouseBinds(settings.MouseBind_Cbo);
    Put(settings.WeaponsAvailable_Lst, {"ASMD", "AutoMag", "DispersionPistol", "DispersionPower1", "DispersionPower2",
                                        "DispersionPower3", "DispersionPower4", "DispersionPower5", "Eightball",
                                        "FlakCannon", "GESBioRifle", "Minigun", "Razorjack", "Rifle", "Stinger"});
    settings.WeaponsPriority_Lst.Clear();
}

}  // namespace lv
