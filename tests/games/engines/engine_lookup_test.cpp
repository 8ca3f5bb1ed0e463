#include "games/engines/engine_lookup.h"

#include <gtest/gtest.h>

#include "tests/support/shipped_engines.h"

namespace lv {
namespace {

struct ProgramCase {
    const char* Program;
    const char* Engine;  // empty: none
};

constexpr ProgramCase kPrograms[] = {
    {"quakespasm", "QuakeSpasm"},
    {"QUAKESPASM", "QuakeSpasm"},
    {"QuakeSpasm.EXE", "QuakeSpasm"},
    {"quakespasm-spiked-win64.exe", "QuakeSpasm-Spiked"},
    {"vkquake-1.32.2_linux_x64.AppImage", "vkQuake"},
    {"vkQuake.exe", "vkQuake"},
    {"darkplaces-sdl2-vs2019.exe", "DarkPlaces"},
    {"darkplaces-dedicated", "DarkPlaces server"},
    {"fteqw64", "FTEQW"},
    {"fteqw-sv64", "FTEQW server"},
    {"org.fteqw.fteqw", "FTEQW"},
    {"ezQuake-x86_64.AppImage", "ezQuake"},
    {"tyr-glqwcl", "TyrQuake QuakeWorld"},
    {"hwcl", "Hammer of Thyrion HexenWorld"},
    {"quake2", "Yamagi Quake II"},
    {"yquake2.exe", "Yamagi Quake II"},
    {"xash3d-fwgs-amd64.AppImage", "Xash3D"},
    {"su.xash.Engine.Compat.i386", "Xash3D"},
    {"UnrealLinux.bin", "OldUnreal 227"},
    {"Heretic2R.exe", "Heretic2R"},
    {"quakespasm.png", ""},
    {"quakespasm.exe.bak", ""},
    {"quake3", ""},
    {"", ""},
    {".exe", ""},
};

TEST(EngineOf, GoesByTheProgramsName) {
    for (const ProgramCase& row : kPrograms) {
        const Engine* const engine = EngineOf(ShippedEngines(), row.Program);
        EXPECT_EQ(engine == nullptr ? "" : engine->Name, row.Engine) << row.Program;
    }
}

TEST(EngineOf, LeavesTheGamesOwnProgramsToTheirTable) {
    for (const char* const original : {"quake2.exe", "QUAKE2.EXE", "hwcl.exe", "GLHWCL.EXE", "h2.exe", "glquake.exe",
                                       "unreal.exe", "heretic2.exe", "hl.exe", "sin.exe"}) {
        EXPECT_EQ(EngineOf(ShippedEngines(), original), nullptr) << original;
    }
}

TEST(FitsPattern, TakesAStarForAnyText) {
    EXPECT_TRUE(FitsPattern("vkquake.appimage", "vkquake*.appimage"));
    EXPECT_TRUE(FitsPattern("vkquake-1.appimage", "vkquake*.appimage"));
    EXPECT_TRUE(FitsPattern("abcabc", "*abc"));
    EXPECT_TRUE(FitsPattern("abxbc", "a*b*c"));
    EXPECT_FALSE(FitsPattern("vkquake-1.zip", "vkquake*.appimage"));
    EXPECT_FALSE(FitsPattern("ab", "ab*b"));
    EXPECT_FALSE(FitsPattern("abc", "b*"));
    EXPECT_TRUE(FitsPattern("", ""));
    EXPECT_FALSE(FitsPattern("a", ""));
}

}  // namespace
}  // namespace lv
