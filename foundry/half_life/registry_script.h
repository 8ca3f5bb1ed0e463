// foundry/half_life/registry_script.h
//
// What Half-Life keeps in the registry of a player, as a script, and the other way round.

#pragma once

#include <array>

#include "foundry/half_life/key_code_names.h"
#include "foundry/reading/script_lines.h"
#include "platform/clock.h"

namespace lv {

/// The values of the key CVAR, in the order of the script.
constexpr std::array<TextView, 24> kHalfLifeCvars = {
    "a3d",      "autoaim",    "bgmvolume",   "brightness", "crosshair",  "gamma",    "himodels", "hisound",
    "joystick", "lookspring", "lookstrafe",  "m_pitch",    "mfilter",    "mlook",    "model",    "plate color",
    "Rate",     "s_eax",      "sensitivity", "suit color", "suitvolume", "viewsize", "volume",   "windowed_mouse",
};

constexpr TextView kMixAhead = "_snd_mixahead";

/// Empty is what is not set.
struct HalfLifePlayer {
    std::array<Text, kHalfLifeKeyCodes> Keys;  // commands by key code
    Text Nickname;
    std::array<Text, kHalfLifeCvars.size()> Cvars;
    Text MixAhead;  // of the CVAR kMixAhead, which is only written: no script is made of it
};

/// Whether the conversion looks at the key of this code.
bool IsConvertedKey(int code);

/// The player's script. A line end in a value becomes a blank: it would begin a line of its own.
Text HalfLifeScript(const HalfLifePlayer& player, const LocalTime& date);

/// What the script sets: bindings of keys that the game knows, the name, and the settings that have a place in the
/// registry. Everything else in it is passed over, and so is a value too long to be one.
HalfLifePlayer ReadHalfLifeScript(ScriptLines& lines);

}  // namespace lv
