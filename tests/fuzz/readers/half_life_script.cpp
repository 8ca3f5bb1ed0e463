// Half-Life's script on its way to the registry, and back.

#include "foundry/half_life/registry_script.h"
#include "tests/fuzz/readers.h"

namespace lv {

void FuzzHalfLifeScript(TextView input) {
    FuzzedFile file(input);
    ScriptLines lines(file);
    const HalfLifePlayer player = ReadHalfLifeScript(lines);
    for (const Text& command : player.Keys) {
        MustHold(command.size() <= input.size(), "a command stands in the script");
    }
    const Text script = HalfLifeScript(player, {1999, 11, 21, 12, 30, 0});
    FuzzedFile written(script);
    ScriptLines again(written);
    std::size_t count = 0;
    for (std::span<char> line; again.Next(line);) {
        MustHold(++count <= 2000, "no value makes lines of its own");
    }
}

}  // namespace lv
