#include "console/checks/engine_words.h"

#include <algorithm>
#include <array>

#include "foundation/field_strings.h"

namespace lv {

namespace {

// In ascending order.
constexpr std::array kStarts = std::to_array<TextView>({
    "_",          "adr",      "allow_",    "ambient_",    "ati_",          "bgm",    "bob_",
    "buy",        "capture",  "chase_",    "cl_",         "collision_",    "com_",   "con_",
    "config_",    "coop",     "crosshair", "csqc_",       "curl_",         "cvar_",  "d_",
    "deathmatch", "default_", "demo_",     "developer",   "dm_",           "dp_",    "ex_",
    "external_",  "flood_",   "fps_",      "fraglimit",   "fs_",           "g_",     "gl_",
    "gun_",       "host_",    "hud_",      "in_",         "joy",           "lcd_",   "loc_",
    "log_",       "m_",       "match_",    "max_",        "menu_",         "mod_",   "mp_",
    "nehx",       "net_",     "no_",       "physics_",    "pr_",           "prvm_",  "qport",
    "r_",         "radio",    "rate_",     "rcon_",       "room_",         "run_",   "s_",
    "saved",      "sbar",     "scr_",      "scratch",     "serverprofile", "show_",  "showclamp",
    "showdrop",   "showfps",  "showmiss",  "showpackets", "showtrace",     "skill",  "slist_",
    "slot",       "snd_",     "spectator", "suit",        "sv_",           "sw_",    "sys_",
    "temp",       "text",     "timelimit", "tp_",         "tracer",        "ui_",    "utf8_",
    "v_",         "vgui_",    "vid_",      "violence_",   "vk_",           "voice_", "weapon_",
    "win_",       "z_",
});
static_assert(std::ranges::is_sorted(kStarts));

constexpr std::array kNames = std::to_array<TextView>({
    "basedir",        "baseskin",    "bottomcolor", "brightness", "cancelselect", "cddir",         "changeteam",
    "chooseteam",     "console",     "contrast",    "cutscene",   "debuggraph",   "decals",        "dedicated",
    "defnext",        "defprev",     "direct",      "dmflags",    "edgefriction", "entlatency",    "explosion",
    "fastsprites",    "filterban",   "firstperson", "fixedtime",  "footsteps",    "freezeworld",   "fullserverinfo",
    "game",           "gamecfg",     "gamedir",     "gender",     "gender_auto",  "hisound",       "hostname",
    "hostport",       "instantweap", "intensity",   "invleft",    "invright",     "invshow",       "ip",
    "jsave",          "lambert",     "lastinv",     "leak",       "lightgamma",   "lightlevel",    "loadas8bit",
    "loadgame",       "localid",     "logfile",     "maxclients", "maxentities",  "maxspectators", "memlist",
    "memstats",       "menuselect",  "model",       "modellist",  "motd",         "msg",           "nextserver",
    "nightvision",    "noexit",      "noipx",       "nomonsters", "noskins",      "nosound",       "nostdout",
    "noudp",          "observer",    "password",    "pausable",   "paused",       "playermodel",   "playerskin",
    "pmodel",         "popmenu",     "port",        "predict",    "protocol",     "public",        "pushlatency",
    "pushmenu",       "randomclass", "registered",  "samelevel",  "savegame",     "slowmo",        "taunt",
    "teamplay",       "thirdperson", "timeformat",  "timegraph",  "timescale",    "timestamps",    "toggle_dm",
    "toggleviewmode", "topcolor",    "watervis",    "zmax",       "zombietime",   "zoom_in",       "zoom_out",
});
static_assert(std::ranges::is_sorted(kNames));

}  // namespace

bool IsEngineWord(TextView word) {
    const Text lower = LowerCase(word);
    return std::ranges::binary_search(kNames, TextView(lower)) ||
           std::ranges::any_of(kStarts, [&](TextView start) { return lower.starts_with(start); });
}

}  // namespace lv
