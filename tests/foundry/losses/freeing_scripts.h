// tests/foundry/losses/freeing_scripts.h
//
// Scripts by chance that free keys and aliases again, leave quotes open at the ends of lines, put a command behind
// "unbindall", set what has quotes in it, and mostly have no name.

#pragma once

#include <random>

#include "foundation/text.h"

namespace lv {

class FreeingScripts {
  public:
    explicit FreeingScripts(unsigned seed) : random_(seed) {}

    Text Next() {
        Text script;
        for (std::size_t left = 2 + Below(14); left > 0; --left) {
            script += Join(Line(), "\n");
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
        switch (Below(10)) {
            case 0:
            case 1:
            case 2:
                return Join("bind ", OneOf(kKeys), Blank, OneOf(kValues));
            case 3:
            case 4:
                return Join("alias ", OneOf(kNames), Blank, OneOf(kValues));
            case 5:
                return Join("unalias ", OneOf(kNames));
            case 6:
                return Join("unbind ", OneOf(kKeys));
            case 7:
                return Join("set ", OneOf(kNames), Blank, OneOf(kValues));
            case 8:
                return Join("unbindall; bind ", OneOf(kKeys), Blank, OneOf(kValues));
            default:
                return Text(OneOf(kPlain));
        }
    }

    static constexpr TextView kKeys[] = {"a", "b", "n", "ESCAPE", "MOUSE1", "\";\""};
    static constexpr TextView kNames[] = {"Rocket", "rocket", "ROCKET", "zoom_in", "myvar"};
    static constexpr TextView kValues[] = {"\"+jump\"",
                                           "+forward",
                                           "impulse 7",
                                           "\"line\\",
                                           "\"open ",
                                           "\"a; b // c\"",
                                           "\"say \\\"hi\\\" you\"",
                                           "Rocket",
                                           "\"\"",
                                           "zoom_in",
                                           "\"say http://a\"",
                                           "\"say Hello"};
    static constexpr TextView kPlain[] = {"unbindall",  "unaliasall", "Rocket",          "echo a; unbindall",
                                          "name \"\"",  "name P",     "name \"a//b\"",   "next",
                                          "exec x.cfg", "fov 90",     "say \"http://b\""};

    std::mt19937 random_;
};

}  // namespace lv
