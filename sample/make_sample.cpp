// sample/make_sample.cpp
//
// Makes the sample drive: small game trees of our own data, and the settings that list them.
//   make_sample FOLDER
//   make_sample --quake FOLDER
// Writes FOLDER/data (the drives) and FOLDER/config (the settings); what was there is made anew. With
// --quake only data for Quake, in FOLDER itself: as much as an engine wants to begin.

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

#include "platform/linux/settings/sqlite_settings.h"
#include "platform/linux/wine_registry.h"
#include "sample/small_quake.h"

namespace {

namespace fs = std::filesystem;

constexpr const char* kApplication = "Lorvane 3D";
constexpr const char* kQuakeEngine = "/usr/games/darkplaces-server";

void Write(const fs::path& file, const std::string& bytes) {
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << bytes;
}

std::string Lines(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\r\n";
    }
    return text;
}

void MakeQuake(const fs::path& quake) {
    Write(quake / "id1/pak0.pak", lv::Pak({{"maps/start.bsp", "a map in name only"},
                                           {"maps/e1m1.bsp", "a map in name only"},
                                           {"maps/b_shell.bsp", "a box of shells"},
                                           {"gfx/sample.txt", "made for the sample drive"}}));
    Write(quake / "id1/player.cfg", Lines({
                                        "// A player's script of the sample drive.",
                                        "alias hello \"echo Hello from the player's script.\"",
                                        "alias setup_done \"echo Setup of the sample player is done.\"",
                                        "hello",
                                        "hostname \"The sample drive\"",
                                        "bind w +forward",
                                        "bind mouse1 +attack",
                                        "setup_done",
                                    }));
    Write(quake / "id1/night.cfg", Lines({"// Another script to choose.", "echo The night shift begins.", "skill 3"}));
    Write(quake / "arena/pak0.pak", lv::Pak({{"maps/arena1.bsp", "a map in name only"}}));
    Write(quake / "arena/player.cfg", Lines({"echo Into the arena."}));
    for (const char* name : {"quake.exe", "glquake.exe"}) {
        fs::create_symlink(kQuakeEngine, quake / name);
    }
}

void CopyProgram(const fs::path& from, const fs::path& to) {
    fs::create_directories(to.parent_path());
    if (fs::exists(from)) {
        fs::copy_file(from, to);
    } else {
        std::printf("left out, it was not built: %s\n", from.filename().c_str());
    }
}

/// An ini as Unreal would leave it; a launch sets the display settings in it.
void MakeUnreal(const fs::path& unreal) {
    Write(unreal / "SYSTEM/Unreal.ini", Lines({
                                            "[URL]",
                                            "Name=Sample",
                                            "MapExt=unr",
                                            "",
                                            "[Core.System]",
                                            "CdPath=D:\\",
                                            "",
                                            "[WinDrv.WindowsClient]",
                                            "ViewportX=320",
                                            "ViewportY=240",
                                            "Brightness=0.400000",
                                            "MipFactor=1.000000",
                                            "UseJoystick=False",
                                            "StartupFullscreen=False",
                                            "CurvedSurfaces=False",
                                            "",
                                            "[Galaxy.GalaxyAudioSubsystem]",
                                            "UseSurround=False",
                                        }));
    Write(unreal / "MAPS/dm-sample.unr", "a map in name only");
}

struct SettingRow {
    const char* Section;
    const char* Key;
    std::string Value;
};

/// A player of Half-Life, as the game would have left him in the registry. The sample has no Wine prefix yet, so he is
/// kept where the program looks before there is one.
bool WriteHalfLifePlayer(lv::SettingsBacking& store) {
    const std::string settings = "Software\\Valve\\Half-Life\\Settings";
    const std::string profile = "Software\\Valve\\Half-Life\\Player Profiles\\Gordon";
    const auto text = [](const char* value) { return lv::RegistryValue{lv::kRegistryText, value, 0}; };
    const std::vector<lv::RegistryEntry> entries = {
        {{settings, "SelectedProfile"}, text("Gordon")},   {{profile, "Chat Nickname"}, text("Player of the sample")},
        {{profile + "\\KB", "009"}, text("+showscores")},  {{profile + "\\KB", "027"}, text("cancelselect")},
        {{profile + "\\KB", "032"}, text("+jump")},        {{profile + "\\KB", "096"}, text("toggleconsole")},
        {{profile + "\\KB", "097"}, text("+moveleft")},    {{profile + "\\KB", "100"}, text("+moveright")},
        {{profile + "\\KB", "102"}, text("impulse 100")},  {{profile + "\\KB", "115"}, text("+back")},
        {{profile + "\\KB", "119"}, text("+forward")},     {{profile + "\\KB", "133"}, text("+duck")},
        {{profile + "\\KB", "200"}, text("+attack")},      {{profile + "\\KB", "201"}, text("+attack2")},
        {{profile + "\\KB", "239"}, text("invnext")},      {{profile + "\\KB", "240"}, text("invprev")},
        {{profile + "\\CVAR", "crosshair"}, text("1")},    {{profile + "\\CVAR", "gamma"}, text("2.5")},
        {{profile + "\\CVAR", "mlook"}, text("1")},        {{profile + "\\CVAR", "model"}, text("gordon")},
        {{profile + "\\CVAR", "plate color"}, text("30")}, {{profile + "\\CVAR", "Rate"}, text("2500")},
        {{profile + "\\CVAR", "sensitivity"}, text("3")},
    };
    if (const lv::Error failed = lv::WineRegistry(store, {}).SetAll(entries)) {
        std::fprintf(stderr, "%s\n", failed.Text.c_str());
        return false;
    }
    return true;
}

bool WriteSettings(const fs::path& file) {
    auto store = lv::SqliteSettings::Open(file);
    if (!store.Ok()) {
        std::fprintf(stderr, "%s\n", store.Fault.Text.c_str());
        return false;
    }
    const std::array rows = {
        SettingRow{"Options", "Executables",
                   "Quake;c:\\quake\\glquake.exe;"
                   "Quake 2;c:\\quake2\\quake2.exe;"
                   "Unreal;c:\\unreal\\system\\unreal.exe;"
                   "Half-Life (Windows);c:\\sierra\\half-life\\hl.exe;"
                   "Quake (DOS);c:\\dosquake\\quake.exe"},
        SettingRow{"Options", "ExecutablesPos", "0"},
        SettingRow{"Options", "UseScripts", "1"},
        SettingRow{"Options", "UseGames", "0"},
        SettingRow{"Options", "UseDemos", "0"},
        SettingRow{"Options", "VidCard", "2"},
        SettingRow{"Options", "UnrealBrightness", "1"},
        SettingRow{"Options", "UnrealBrightnessSetting", "7"},
        SettingRow{"Options", "UnrealBrightnessSetting_Content", "0.8"},
        SettingRow{"Options", "UnrealSlowVideoBuffering", "1"},
        SettingRow{"Options", "UnrealSlowVideoBufferingSetting", "1"},
        SettingRow{"Options", "UnrealSlowVideoBufferingSetting_Content", "False"},
        SettingRow{"Options", "NetServers", "Server on this machine;127.0.0.1;26000;0;"},
        SettingRow{"DefaultScript", "c:\\quake\\ID1", "c:\\quake\\id1\\player.cfg"},
        SettingRow{"LV-Stuff", "FirstTime", "0"},
    };
    if (!WriteHalfLifePlayer(*store.Value)) {
        return false;
    }
    for (const SettingRow& row : rows) {
        if (const lv::Error failed = store.Value->Write(kApplication, row.Section, row.Key, row.Value)) {
            std::fprintf(stderr, "%s\n", failed.Text.c_str());
            return false;
        }
    }
    return true;
}

}  // namespace

int main(int count, char** arguments) {
    if (count == 3 && std::strcmp(arguments[1], "--quake") == 0) {
        lv::MakeSmallQuake(arguments[2]);
        return 0;
    }
    if (count != 2 || arguments[1][0] == '-') {  // a word that is no option of ours is no directory either
        std::fputs("usage: make_sample [--quake] FOLDER\n", stderr);
        return 2;
    }
    const fs::path sample = arguments[1];
    const fs::path standins = fs::read_symlink("/proc/self/exe").parent_path() / "standins";
    fs::remove_all(sample / "data");
    fs::remove_all(sample / "config");

    const fs::path ours = sample / "data/lorvane3d";
    const fs::path drive = ours / "drive_c";
    fs::create_directories(ours / "drives");
    fs::create_directories(drive);
    fs::create_directory_symlink("../drive_c", ours / "drives/c:");
    fs::create_directory_symlink("/", ours / "drives/z:");

    MakeQuake(drive / "QUAKE");
    Write(drive / "QUAKE2/baseq2/pak0.pak", lv::Pak({{"maps/base1.bsp", "a map in name only"}}));
    Write(drive / "QUAKE2/baseq2/player.cfg", Lines({"echo Player of the second part.", "set name Sample"}));
    CopyProgram(standins / "show_native", drive / "QUAKE2/quake2.exe");
    MakeUnreal(drive / "UNREAL");
    CopyProgram(standins / "show_native", drive / "UNREAL/SYSTEM/UNREAL.EXE");
    Write(drive / "SIERRA/Half-Life/valve/player.cfg", Lines({"echo The player of the sample drive."}));
    CopyProgram(standins / "show_windows.exe", drive / "SIERRA/Half-Life/hl.exe");
    Write(drive / "DOSQUAKE/id1/player.cfg", Lines({"echo The DOS player."}));
    CopyProgram(standins / "show_dos.exe", drive / "DOSQUAKE/quake.exe");
    Write(drive / "GAMESPY/copied.txt", "43      127.0.0.1       26000 Server on this machine\r\n");
    CopyProgram(standins / "game_spy.exe", drive / "GAMESPY/gamespy.exe");
    return WriteSettings(sample / "config/lorvane3d/settings.sqlite") ? 0 : 1;
}
