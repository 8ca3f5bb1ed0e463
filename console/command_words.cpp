#include "console/command_words.h"

#include <algorithm>
#include <array>

namespace lv {

namespace {

constexpr std::size_t kLongestWord = 32;

// Of all games together; in ascending order.
constexpr std::array kCommands = std::to_array<TextView>({
    "addip",         "alias",       "allskins",      "bf",          "bind",         "bindlist",
    "bindlist_all",  "cd",          "centerview",    "cfg_load",    "cfg_save",     "changelevel",
    "changelevel2",  "clear",       "cmd",           "cmdlist",     "color",        "condump",
    "connect",       "cvar_reset",  "cvarlist",      "cycle",       "dec",          "demomap",
    "demos",         "dir",         "disconnect",    "download",    "drop",         "echo",
    "edict",         "edicts",      "error",         "exec",        "filter",       "flush",
    "fly",           "fullinfo",    "gamemap",       "give",        "god",          "heartbeat",
    "help",          "if",          "ignore",        "impulse",     "in_bind",      "in_bindmap",
    "inc",           "info",        "invdrop",       "inven",       "invnext",      "invnextp",
    "invnextw",      "invprev",     "invprevp",      "invprevw",    "invuse",       "itemuse",
    "join",          "kick",        "kill",          "killserver",  "load",         "loading",
    "macro",         "map",         "maps",          "max_players", "maxplayers",   "mcache",
    "menu_help",     "menu_keys",   "menu_load",     "menu_main",   "menu_options", "menu_quit",
    "menu_save",     "messagemode", "messagemode2",  "msg_trigger", "net_stats",    "nextweapon",
    "noclip",        "notarget",    "observe",       "path",        "pause",        "ping",
    "pingservers",   "play",        "playdemo",      "players",     "playvol",      "pointfile",
    "precache",      "prespawn",    "prevweapon",    "profile",     "prog",         "quit",
    "rcon",          "reconnect",   "record",        "reset",       "restart",      "save",
    "say",           "say_team",    "score",         "screenshot",  "serverinfo",   "set",
    "set_calc",      "seta",        "setinfo",       "setmaster",   "sets",         "setu",
    "sizedown",      "sizeup",      "skins",         "sky",         "slist",        "snap",
    "snapall",       "snd_restart", "soundinfo",     "soundlist",   "spawn",        "startdemos",
    "status",        "stop",        "stopdemo",      "stopsound",   "stuffcmds",    "sv",
    "tell",          "tempalias",   "test",          "timedemo",    "timerefresh",  "toggle",
    "toggleconsole", "togglemenu",  "tp_msgtrigger", "unalias",     "unaliasall",   "unbind",
    "unbindall",     "unset",       "use",           "user",        "users",        "version",
    "vid_restart",   "viewframe",   "viewmodel",     "viewnext",    "viewpos",      "viewprev",
    "wait",          "wave",        "weaplast",      "weapnext",    "weapon",       "weapprev",
    "writeconfig",   "writeip",     "z_stats",
});
static_assert(std::ranges::is_sorted(kCommands));

constexpr std::array kSettings = std::to_array<TextView>({
    "_cl_color",
    "_cl_name",
    "_cl_playerclass",
    "_snd_mixahead",
    "bgmvolume",
    "cd_nocd",
    "cl_backspeed",
    "cl_bob",
    "cl_bobcycle",
    "cl_bobup",
    "cl_forwardspeed",
    "cl_pitchspeed",
    "cl_rollangle",
    "cl_rollspeed",
    "cl_run",
    "cl_sidespeed",
    "cl_yawspeed",
    "crosshair",
    "crosshaircolor",
    "fov",
    "freelook",
    "gamma",
    "hand",
    "joystick",
    "lookspring",
    "lookstrafe",
    "m_filter",
    "m_forward",
    "m_pitch",
    "m_side",
    "m_yaw",
    "name",
    "noaim",
    "playerclass",
    "rate",
    "s_mixahead",
    "s_volume",
    "s_wavonly",
    "scr_centerspeed",
    "scr_conspeed",
    "sensitivity",
    "showpause",
    "showram",
    "showturtle",
    "skin",
    "sv_aim",
    "team",
    "v_kickpitch",
    "v_kickroll",
    "v_kicktime",
    "vid_mode",
    "viewsize",
    "volume",
});
static_assert(std::ranges::is_sorted(kSettings));

/// As tried with DarkPlaces; of the other consoles nobody has made a list.
constexpr std::array kNotInDarkPlaces = std::to_array<TextView>({
    "_cl_playerclass",
    "_snd_mixahead",
    "cd_nocd",
    "cl_run",
    "crosshaircolor",
    "gamma",
    "hand",
    "joystick",
    "s_mixahead",
    "s_volume",
    "s_wavonly",
    "scr_centerspeed",
    "scr_conspeed",
    "vid_mode",
});
static_assert(std::ranges::is_sorted(kNotInDarkPlaces));

}  // namespace

bool LacksSetting(Console console, TextView word) {
    return console == Console::DarkPlaces && std::ranges::binary_search(kNotInDarkPlaces, word);
}

WordUse UseOfWord(TextView word) {
    if (word.starts_with('+') || word.starts_with('-')) {
        return WordUse::Command;
    }
    if (word.size() > kLongestWord) {
        return WordUse::Unknown;
    }
    const Text lower = LowerCase(word);
    if (std::ranges::binary_search(kCommands, TextView(lower))) {
        return WordUse::Command;
    }
    return std::ranges::binary_search(kSettings, TextView(lower)) ? WordUse::Setting : WordUse::Unknown;
}

bool RunsScript(TextView word) {
    return SameText(word, "exec") || SameText(word, "cfg_load");
}

}  // namespace lv
