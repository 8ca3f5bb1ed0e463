// bench/long_script.h
//
// A script of any length with something of all that scripts hold.

#pragma once

#include <string>

namespace lv {

/// Bindings, aliases, settings, comments and lines of other programs in turn.
inline std::string MixedScript(long lines) {
    static constexpr const char* kKeys[] = {"a", "F1", "mouse1", "kp_ins", "<", "uparrow", "5", "space"};
    static constexpr const char* kCommands[] = {"+attack", "impulse 7", "say hello", "exec duel.cfg", "impulse 200"};
    std::string script = "//* Setup Foundry   *//\r\n";
    for (long i = 1; i < lines; ++i) {
        const std::string n = std::to_string(i);
        switch (i % 8) {
            case 0:
            case 1:
            case 2:
                script += std::string("bind \"") + kKeys[i / 8 % 8] + "\" \"" + kCommands[i / 3 % 5] + "\"";
                break;
            case 3:
                script += "alias a" + n + " \"+jump; wait; -jump; echo number " + n + "\"";
                break;
            case 4:
                script += "set cl_forwardspeed " + n + " // how fast";
                break;
            case 5:
                script += "// a comment of some length, number " + n;
                break;
            default:
                script += "gl_setting_" + n + " \"" + n + "\"";
        }
        script += "\r\n";
    }
    return script;
}

}  // namespace lv
