#include "foundry/tables/slots.h"

#include <algorithm>
#include <iterator>

#include "foundation/game.h"

namespace lv {

namespace {

constexpr Color Rgb(Color red, Color green, Color blue) {
    return blue << 16U | green << 8U | red;
}

struct GroupColor {
    SlotBlock Slots;  // with their heading
    Color Back;
};

constexpr GroupColor kGroupColors[] = {
    {{100, 116}, Rgb(0, 192, 0)},        // movement
    {{200, 212}, Rgb(192, 192, 0)},      // weapons
    {{300, 308}, Rgb(0, 192, 192)},      // screen and communication
    {{400, 413}, Rgb(128, 128, 255)},    // system items
    {{500, 524}, Rgb(255, 128, 128)},    // extras
    {{701, 712}, Rgb(255, 192, 128)},    // bound scripts
    {{800, 800}, Rgb(255, 192, 128)},    // their heading
    {{601, 627}, Rgb(255, 128, 255)},    // bound aliases
    {{700, 700}, Rgb(255, 128, 255)},    // their heading
    {{67, 67}, Rgb(255, 255, 128)},      // the heading of talking
    {{801, 813}, Rgb(255, 255, 128)},    // talking
    {{1000, 1005}, Rgb(255, 192, 255)},  // Capture The Flag
    {{1100, 1199}, Rgb(192, 192, 255)},  // Quake II and like
    {{900, 950}, Rgb(192, 192, 255)},    // Hexen II and like
};

constexpr Color kCameraTricks = Rgb(255, 192, 255);
constexpr SlotBlock kCameraSlots{1100, 1105};
constexpr SlotBlock kMoreCameraSlots{1120, 1124};

}  // namespace

const std::vector<SlotNumber>& SlotNumbers() {
    static constexpr SlotBlock kBlocks[] = {{101, 116},    {201, 212},    {301, 308},  {401, 413}, kExtras,
                                            kBoundAliases, kBoundScripts, kMessages,   {901, 923}, {1001, 1005},
                                            {1101, 1105},  {1110, 1116},  {1120, 1124}};
    static const std::vector<SlotNumber> numbers = [] {
        std::vector<SlotNumber> all;
        for (const SlotBlock& block : kBlocks) {
            for (SlotNumber slot = block.First; slot <= block.Last; ++slot) {
                all.push_back(slot);
            }
        }
        return all;
    }();
    return numbers;
}

Color SlotColor(SlotNumber slot, Game gameKind) {
    if (gameKind == Game::HalfLife && (kCameraSlots.Holds(slot) || kMoreCameraSlots.Holds(slot))) {
        return kCameraTricks;
    }
    const auto* const group =
        std::ranges::find_if(kGroupColors, [&](const GroupColor& g) { return g.Slots.Holds(slot); });
    return group == std::end(kGroupColors) ? kWhite : group->Back;
}

}  // namespace lv
