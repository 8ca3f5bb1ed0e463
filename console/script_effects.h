// console/script_effects.h
//
// What a script leaves set once its game has run it, and the commands that set nothing.

#pragma once

#include <unordered_map>
#include <vector>

#include "console/console_rules.h"

namespace lv {

enum class EffectKind {
    Bind,
    Alias,
    Setting,
    Action,  // all else: "exec more.cfg", "echo hello", "+mlook"
};

struct Effect {
    EffectKind Kind = EffectKind::Action;
    Text Name{};           // the key, the alias, the setting; an ini's setting with its section: "[engine.pawn] bob"
    Text Value{};          // the command, the body, the value; an action's words
    bool IsSet = true;     // false: the key is free, or the alias gone
    bool IsOwn = true;     // false: an alias that the script called did it
    bool IsOfAll = false;  // a command did it that frees all keys, or removes all aliases
    std::size_t Line = 0;  // from 1, of the script
    std::size_t Turn = 0;  // how many effects were there before
    Text Source{};         // the command as the script spells it; an ini's whole line
};

/// The last effect of each name, in the order of the names' first ones.
class EffectTable {
  public:
    /// By what is one text for all spellings of the name.
    void Put(const Text& identity, Effect effect);
    void Clear();

    [[nodiscard]] const Effect* Find(const Text& identity) const;
    [[nodiscard]] const std::vector<Effect>& All() const { return effects_; }
    /// Of the effect at this place.
    [[nodiscard]] const Text& IdentityAt(std::size_t place) const { return *identities_[place]; }

  private:
    std::vector<Effect> effects_;
    std::vector<const Text*> identities_;  // the keys of places_
    std::unordered_map<Text, std::size_t> places_;
};

struct ScriptEffects {
    Console Of = Console::Quake;
    EffectTable Binds;
    EffectTable Aliases;
    EffectTable Settings;
    std::vector<Effect> Actions;
    // All keys and aliases that are not in the tables are free and gone.
    bool UnbindsAll = false;
    bool UnaliasesAll = false;
    Effect Unbindall;  // the last one
    Effect Unaliasall;
    bool TooLong = false;  // for the console's buffer: the game would run none of it
};

/// Runs the script as the console does: a command that the console would refuse, as a binding to a key that it lacks,
/// has no effect. An alias that the script itself calls is run too, within bounds.
ScriptEffects EffectsOf(TextView script, Console console);

}  // namespace lv
