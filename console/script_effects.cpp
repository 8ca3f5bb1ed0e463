#include "console/script_effects.h"

#include <utility>

#include "console/console_script.h"
#include "console/ini_script.h"

namespace lv {

void EffectTable::Put(const Text& identity, Effect effect) {
    const auto [place, isNew] = places_.try_emplace(identity, effects_.size());
    if (isNew) {
        effects_.push_back(std::move(effect));
        identities_.push_back(&place->first);
    } else {
        effects_[place->second] = std::move(effect);
    }
}

void EffectTable::Clear() {
    effects_.clear();
    identities_.clear();
    places_.clear();
}

const Effect* EffectTable::Find(const Text& identity) const {
    const auto found = places_.find(identity);
    return found == places_.end() ? nullptr : &effects_[found->second];
}

ScriptEffects EffectsOf(TextView script, Console console) {
    ScriptEffects effects = console == Console::Unreal ? IniEffects(script) : ConsoleEffects(script, console);
    effects.Of = console;
    return effects;
}

}  // namespace lv
