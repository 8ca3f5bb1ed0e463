#include "console/checks/named_bodies.h"

#include "console/console_commands.h"
#include "console/console_script.h"

namespace lv {

namespace {

void Add(const EffectTable& table, std::size_t line, std::vector<NamedBody>& bodies) {
    for (const Effect& effect : table.All()) {
        if (effect.IsSet) {
            bodies.push_back({effect.Name, effect.Value, effect.Kind == EffectKind::Bind, 0, line});
        }
    }
}

}  // namespace

std::vector<NamedBody> NamedBodiesOf(TextView script, Console console) {
    std::vector<NamedBody> bodies;
    CommandReader reader(script, RulesOf(console));
    ConsoleCommand command;
    while (reader.Next(command)) {
        if (SameText(command.Words[0], "alias") || SameText(command.Words[0], "bind")) {
            const ScriptEffects effects = ConsoleEffects(command.Raw, console);
            Add(effects.Binds, command.Line, bodies);
            Add(effects.Aliases, command.Line, bodies);
        }
    }
    return bodies;
}

std::vector<NamedBody> NamedBodiesOf(const StartRun& run) {
    std::vector<NamedBody> bodies;
    for (const SetThing& thing : run.Set.All()) {
        if (thing.Kind == EffectKind::Setting) {
            continue;
        }
        for (const Setter& setter : thing.Setters) {
            // Of a key the last command alone: nothing but a script gives it another.
            const bool counts = setter.IsSet && (thing.Kind == EffectKind::Alias || &setter == &thing.Setters.back());
            if (counts) {
                bodies.push_back(
                    {thing.Name, setter.Value, thing.Kind == EffectKind::Bind, setter.Script, setter.Line});
            }
        }
    }
    return bodies;
}

}  // namespace lv
