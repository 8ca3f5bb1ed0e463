#include "gamespy/spy_slots.h"

#include "foundation/field_strings.h"
#include "games/programs.h"
#include "launch/launch_files.h"

namespace lv {

namespace {

constexpr TextView kPif = kPifTemplate;
constexpr TextView kPif2 = kPifTemplateQuake2;

// QuakeWorld plays with Quake's data and shares its script.
// clang-format off
constexpr SpySlot kSlots[kSpySlots] = {
    // game        check box              scripts             data directory  batch           pif             template  tag                title of an empty path
    {"Quake",      nullptr,               SpyScripts::Of,     "\\ID1",    "QSL1_666.bat", "qsl1_666.pif", kPif,  "0000001 File = ", "Error in GameSpy Quake executable path"},
    {"QuakeWorld", "QWInstalled_Chk",     SpyScripts::None,   "\\ID1",    "QSL2_666.bat", "qsl2_666.pif", kPif,  "0000002 File = ", "Error in GameSpy QuakeWorld executable path"},
    {"Hexen II",   "Hexen2Installed_Chk", SpyScripts::Of,     "\\DATA1",  "QSL3_666.bat", "qsl3_666.pif", kPif,  "0000003 File = ", "Error in GameSpy Hexen ][ executable path"},
    {"Quake II",   "Quake2Installed_Chk", SpyScripts::Of,     "\\BASEQ2", "QSL4_666.bat", "qsl4_666.pif", kPif2, "0000004 File = ", "Error in GameSpy Quake ][ executable path"},
    {"Unreal",     "UnRealInstalled_Chk", SpyScripts::InisOf, "",         "QSL5_666.bat", "qsl5_666.pif", kPif,  "0000016 File = ", "Error in GameSpy UnReal executable path"},
    {"Sin",        "SinInstalled_Chk",    SpyScripts::Of,     "\\BASE",   "QSL6_666.bat", "qsl6_666.pif", kPif2, "0000005 File = ", "Error in GameSpy SIN executable path"},
};
// clang-format on

}  // namespace

std::span<const SpySlot, kSpySlots> SpySlots() {
    return kSlots;
}

bool IsExecutableOf(std::size_t slot, TextView path) {
    return SpySlotOf(LastPathPart(path)) == slot;
}

}  // namespace lv
