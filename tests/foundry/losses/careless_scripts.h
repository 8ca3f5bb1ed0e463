// tests/foundry/losses/careless_scripts.h
//
// Scripts by chance, of what players write that the editor does not expect.

#pragma once

#include <random>

#include "foundation/text.h"

namespace lv {

class CarelessScripts {
  public:
    explicit CarelessScripts(unsigned seed) : random_(seed) {}

    Text Next() {
        Text script;
        for (std::size_t left = 1 + Below(40); left > 0; --left) {
            script += Join(Line(), Below(9) == 0 ? "\n" : "\r\n");
        }
        return script;
    }

  private:
    std::size_t Below(std::size_t count) { return random_() % count; }

    template <std::size_t Count>
    TextView OneOf(const TextView (&texts)[Count]) {
        return texts[Below(Count)];
    }

    Text Line() {
        Text line = Statement();
        while (Below(8) == 0) {
            line += Join(OneOf(kBetween), Statement());
        }
        return Below(10) == 0 ? Join(OneOf(kBlanks), line, OneOf(kBehind)) : line;
    }

    Text Statement() {
        switch (Below(9)) {
            case 0:
            case 1:
                return Join(OneOf(kBinds), OneOf(kKeys), " \"", OneOf(kCommands), "\"");
            case 2:
                return Join("bind ", OneOf(kKeys), " ", OneOf(kCommands));
            case 3:
                return Join("alias ", OneOf(kNames), " \"", OneOf(kCommands), "\"");
            case 4:
                return Join("alias ", OneOf(kNames), " ", OneOf(kCommands));
            case 5:
                return Join(OneOf(kSets), OneOf(kSettings), " ", OneOf(kValues));
            case 6:
                return Text(OneOf(kNames));
            default:
                return Text(OneOf(kPlain));
        }
    }

    static constexpr TextView kBetween[] = {";", "; ", " ; ", ";;"};
    static constexpr TextView kBlanks[] = {"\t", "  ", "\xA0"};
    static constexpr TextView kBehind[] = {" // why", " // one; echo two", "\t", " //\"", "//x"};
    static constexpr TextView kBinds[] = {"bind ", "Bind ", "bind\t", "\"bind\" "};
    static constexpr TextView kKeys[] = {"a",      "A",        "ESCAPE", "kp_home",   "CAPSLOCK", "f1",    "\";\"",
                                         "MOUSE5", "\"JOY1\"", "[",      "semicolon", "WINDOWS",  "space", "/",
                                         "b",      "c",        "d",      "e",         "1",        "2",     "`"};
    static constexpr TextView kNames[] = {"zoom", "Zoom", "+fire", "-fire", "say_hi", "\"two words\""};
    static constexpr TextView kCommands[] = {"+attack",
                                             "+Attack",
                                             "say http://a.b/c",
                                             "say Hello  there",
                                             "impulse 7",
                                             "use railgun",
                                             "",
                                             "  wait  ",
                                             "fov 30;bind a +zoom",
                                             "zoom",
                                             "Zoom; -fire",
                                             "exec duel.cfg",
                                             "bind b zoom",
                                             "unbind c",
                                             "weapnext",
                                             "echo // nothing",
                                             "slot1",
                                             "toggle r_x"};
    static constexpr TextView kSets[] = {"", "", "", "set ", "seta ", "Set "};
    static constexpr TextView kSettings[] = {"sensitivity", "Fov",      "name",        "_cl_color",  "crosshair",
                                             "volume",      "s_volume", "joystick",    "gl_texture", "cl_run",
                                             "m_pitch",     "freelook", "v_kickpitch", "rate",       "skin",
                                             "hand",        "vid_mode", "color",       "noaim",      "sv_aim"};
    static constexpr TextView kValues[] = {"1",    "0",          "2",   "90.0", "-0.022",     "\"a b\"",
                                           "\"\"", "\"x // y\"", "1e3", "0x1",  "male/grunt", "4 11",
                                           "",     "\"open",     "a;b", "0.50", "003"};
    static constexpr TextView kPlain[] = {"unbindall",
                                          "unbind a",
                                          "unbind ESCAPE",
                                          "unalias zoom",
                                          "exec base.cfg",
                                          "exec \"my file.cfg\"",
                                          "+mlook",
                                          "-mlook",
                                          "+speed",
                                          "[video]",
                                          "[x] y",
                                          "echo hello",
                                          "echo \"a;b\"",
                                          "// mine; bind a x",
                                          "//* Settings        *//",
                                          "impulse 9",
                                          "wait",
                                          "",
                                          "setupfoundry_info specifycolors 0",
                                          "echo |..setup"};

    std::mt19937 random_;
};

}  // namespace lv
