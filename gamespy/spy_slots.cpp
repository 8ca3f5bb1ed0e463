#include "gamespy/spy_slots.h"

#include "foundation/field_strings.h"
#include "games/games.h"
#include "games/programs.h"
#include "launch/launch_files.h"

namespace lv {

namespace {

constexpr TextView kPif = kPifTemplate;
constexpr TextView kPif2 = kPifTemplateQuake2;

// QuakeWorld plays with Quake's data and shares its script.
// clang-format off
constexpr SpySlot kSlots[kSpySlots] = {
    // game        check box              scripts             data of       batch           pif             template  tag                title of an empty path
    {"Quake",      nullptr,               SpyScripts::Of,     Game::Quake,  "QSL1_666.bat", "qsl1_666.pif", kPif,  "0000001 File = ", "Error in GameSpy Quake executable path"},
    {"QuakeWorld", "QWInstalled_Chk",     SpyScripts::None,   Game::Quake,  "QSL2_666.bat", "qsl2_666.pif", kPif,  "0000002 File = ", "Error in GameSpy QuakeWorld executable path"},
    {"Hexen II",   "Hexen2Installed_Chk", SpyScripts::Of,     Game::Hexen2, "QSL3_666.bat", "qsl3_666.pif", kPif,  "0000003 File = ", "Error in GameSpy Hexen ][ executable path"},
    {"Quake II",   "Quake2Installed_Chk", SpyScripts::Of,     Game::Quake2, "QSL4_666.bat", "qsl4_666.pif", kPif2, "0000004 File = ", "Error in GameSpy Quake ][ executable path"},
    {"Unreal",     "UnRealInstalled_Chk", SpyScripts::InisOf, Game::None,   "QSL5_666.bat", "qsl5_666.pif", kPif,  "0000016 File = ", "Error in GameSpy UnReal executable path"},
    {"Sin",        "SinInstalled_Chk",    SpyScripts::Of,     Game::Sin,    "QSL6_666.bat", "qsl6_666.pif", kPif2, "0000005 File = ", "Error in GameSpy SIN executable path"},
};
// clang-format on

}  // namespace

std::span<const SpySlot, kSpySlots> SpySlots() {
    return kSlots;
}

Text DataDirectoryOf(const SpySlot& slot) {
    const TextView base = FactsOf(slot.DataOf).BaseGameDir;
    return base.empty() ? Text() : Join("\\", base);
}

bool IsExecutableOf(std::size_t slot, TextView path) {
    return SpySlotOf(LastPathPart(path)) == slot;
}

}  // namespace lv
