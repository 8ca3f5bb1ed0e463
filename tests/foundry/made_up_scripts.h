// tests/foundry/made_up_scripts.h
//
// Scripts by chance, of lines that players write, for what must hold of every script.

#pragma once

#include <random>

#include "foundation/game.h"
#include "tests/foundry/script_fixture.h"

namespace lv {

class MadeUpScripts {
  public:
    explicit MadeUpScripts(unsigned seed) : random_(seed) {}

    /// A script of this dialect, every value one that its game knows.
    Text Next(const ScriptDialect& dialect) { return dialect.GameKind == Game::Unreal ? Ini() : Console(dialect); }

  private:
    std::size_t Below(std::size_t count) { return random_() % count; }

    template <std::size_t Count>
    TextView OneOf(const TextView (&texts)[Count]) {
        return texts[Below(Count)];
    }

    Text Number(int first, int last) {
        return std::to_string(first + static_cast<int>(Below(static_cast<std::size_t>(last - first + 1))));
    }

    Text Decimal() { return Join(Number(0, 3), ".", Number(0, 99)); }

    Text Word() {
        Text word;
        for (std::size_t left = 1 + Below(8); left > 0; --left) {
            word += static_cast<char>('a' + Below(26));
        }
        return word;
    }

    Text LineEnd() { return OneOf(kLineEnds) == "\n" ? "\n" : "\r\n"; }

    Text Command(const ScriptDialect& dialect) {
        switch (Below(8)) {
            case 0:
                return Join("exec ", Word(), ".cfg");
            case 1:
                return Join("say ", Word(), " ", Word());
            case 2:
                return Join("say_team ", Word());
            case 3:
                return Join("a_", Number(1, 9));  // often an alias
            case 4:
                return Join(Word(), " ", Number(0, 255), "; wait; ", Word());
            case 5:
                return Join("impulse ", Number(0, 120));
            default:
                return Text(dialect.ScriptFamily == Dialect::Quake2 ? OneOf(kNewCommands) : OneOf(kOldCommands));
        }
    }

    Text ConsoleLine(const ScriptDialect& dialect) {
        const bool fresh = dialect.ScriptFamily == Dialect::Quake2;
        switch (Below(12)) {
            case 0:
            case 1:
            case 2:
                return Join("bind ", fresh && Below(4) == 0 ? OneOf(kKeypad) : OneOf(kKeys), " \"", Command(dialect),
                            "\"");
            case 3:
                return Join("alias a_", Number(1, 9), " \"", Word(), ";", Word(), "\"");
            case 4:
                return Join(OneOf(kLists), " ", Below(3) == 0 ? Number(0, 400) : Decimal());
            case 5:
                return Join(Below(3) == 0 ? "set " : "", OneOf(kChecks), " ", Number(0, 1));
            case 6:
                return Join("m_pitch ", Below(2) == 0 ? "-" : "", Decimal());
            case 7:
                return Join("name \"", Word(), " ", Word(), "\"");
            case 8:
                return fresh ? Join("skin ", Word(), "/", Word()) : Join("color ", Number(0, 13), " ", Number(0, 13));
            case 9:
                return Join("vid_mode ", Number(0, 20));
            case 10:
                return Text(OneOf(kPlain));
            default:
                return Join(Word(), "x_unknown ", Number(0, 9), Below(4) == 0 ? " // why not" : "");
        }
    }

    /// A chosen hand, or none: said, as this program writes it, or without a word. Half-Life has no list of hands, so
    /// its first value is its only row.
    Text Hand(const ScriptDialect& dialect) {
        if (dialect.GameKind == Game::HalfLife) {
            return Join("hand 0", LineEnd());
        }
        return Below(5) == 0 ? Text() : Join("hand ", Number(-1, 2), LineEnd());
    }

    Text Console(const ScriptDialect& dialect) {
        // What the game reads by its place in a list, within that list.
        Text script = Join("name ", Word(), LineEnd(), "crosshair ", Number(0, 1), LineEnd());
        if (dialect.ScriptFamily == Dialect::Quake2) {
            script += Join(Hand(dialect), "cd_nocd ", Number(0, 1), LineEnd(), "s_wavonly ", Number(0, 1), LineEnd(),
                           "rate ", Number(500, 9999), LineEnd());
        }
        if (dialect.GameKind == Game::Hexen2) {
            script += Join("_cl_playerclass ", Number(0, 3), LineEnd());
        }
        for (std::size_t left = Below(60); left > 0; --left) {
            script += Join(ConsoleLine(dialect), LineEnd());
        }
        return script;
    }

    Text Ini() {
        Text ini = Join("[Engine.Input]", LineEnd(), "MouseX=Axis aMouseX Speed=", Number(1, 15), ".0", LineEnd(),
                        "MouseY=Axis aMouseY Speed=", Number(1, 15), ".0", LineEnd());
        for (std::size_t left = Below(30); left > 0; --left) {
            ini += Below(5) == 0 ? Join("Aliases[", Number(0, 39), "]=(Command=\"", Word(), " | ", Word(),
                                        "\",Alias=A_", Number(1, 9), ")", LineEnd())
                                 : Join(OneOf(kUnrealKeys), "=", OneOf(kUnrealCommands), LineEnd());
        }
        ini += Join("[Galaxy.GalaxyAudioSubsystem]", LineEnd(), "Latency=", Number(0, 100), LineEnd(), "UseReverb=True",
                    LineEnd(), "Driver", Word(), "=", Word(), LineEnd());
        ini += Join("[Engine.PlayerPawn]", LineEnd(), "Password=", Word(), LineEnd(), "NetSpeed=", Number(1000, 9999),
                    LineEnd(), "WeaponPriority[", Number(0, 19), "]=ASMD", LineEnd(), "WeaponPriority[", Number(0, 19),
                    "]=Mod", Word(), LineEnd());
        ini += Join("[Engine.Pawn]", LineEnd(), "PlayerName=", Word(), LineEnd(), "TeamName=", Word(), LineEnd());
        for (std::size_t left = Below(5); left > 0; --left) {
            ini += Join("[", Word(), ".", Word(), "]", LineEnd(), Word(), "q=", Word(), LineEnd());
        }
        return ini;
    }

    static constexpr TextView kLineEnds[] = {"\n", "\r\n", "\r\n"};
    static constexpr TextView kKeys[] = {"w",      "A",    "1",     "F5", "space",    "shift", "ctrl",    "\"MOUSE1\"",
                                         "mouse2", "joy1", "aux7",  ",",  ";",        "tab",   "uparrow", "KP_PLUS",
                                         "pause",  "del",  "\"[\"", "-",  "mwheelup", "\\"};
    static constexpr TextView kKeypad[] = {"kp_home", "KP_5", "numpad3", "kp_slash", "kp_enter"};
    static constexpr TextView kOldCommands[] = {"+forward", "+ATTACK",    "+jump",  "toggleconsole", "sizeup",
                                                "help",     "screenshot", "+mlook", "messagemode2",  "quit"};
    static constexpr TextView kNewCommands[] = {"+forward", "+attack", "use Railgun", "invnext", "weapnext",
                                                "cmd help", "wave 2",  "inven",       "+moveup", "use weapon_9mmAR"};
    static constexpr TextView kLists[] = {
        "cl_forwardspeed", "cl_backspeed", "cl_sidespeed", "cl_pitchspeed", "cl_yawspeed", "scr_conspeed",
        "scr_centerspeed", "sensitivity",  "m_forward",    "m_side",        "m_yaw",       "m_filter",
        "bgmvolume",       "volume",       "s_mixahead",   "viewsize",      "gamma",       "fov",
        "cl_rollangle",    "cl_rollspeed", "v_kickpitch",  "v_kickroll",    "v_kicktime",  "cl_bob",
        "cl_bobcycle",     "cl_bobup"};
    static constexpr TextView kChecks[] = {"joystick", "lookstrafe", "lookspring", "noaim",
                                           "showram",  "showpause",  "showturtle", "freelook"};
    static constexpr TextView kPlain[] = {"+mlook",     "+speed",  "unbindall", "", "// a comment of mine",
                                          "echo hello", "unbind x"};
    static constexpr TextView kUnrealKeys[] = {"Space",     "A",     "Z",         "F1",          "Shift",   "Comma",
                                               "LeftMouse", "Enter", "Escape",    "CapsLock",    "NumPad5", "Joy3",
                                               "Aux20",     "Minus", "Unknown1A", "MouseWheelUp"};
    static constexpr TextView kUnrealCommands[] = {"Fire",
                                                   "AltFire",
                                                   "MoveForward",
                                                   "Jump",
                                                   "SwitchWeapon 3",
                                                   "Look",
                                                   "Say hello",
                                                   "A_3",
                                                   "Set Input W Fire | Jump",
                                                   "Taunt wave"};

    std::mt19937 random_;
};

}  // namespace lv
