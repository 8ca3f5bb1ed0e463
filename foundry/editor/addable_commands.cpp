#include "foundry/editor/addable_commands.h"

#include <span>

#include "foundation/field_strings.h"
#include "foundry/editor/addable_command_rows.h"

namespace lv {

namespace {

/// What is no kind of its own is edited as Quake.
KindSet BitOf(Game kind) {
    return Has(kInAll, kind) ? Only(kind) : kInQuake;
}

void AddRows(std::vector<AddableCommand>& commands, std::span<const AddableRow> rows, KindSet kind) {
    for (const AddableRow& row : rows) {
        if ((row.Kinds & kind) != 0) {
            commands.push_back({Text(row.Command), Text(row.Description)});
        }
    }
}

void AddNamedWeapons(std::vector<AddableCommand>& commands, const ScriptDocument& document) {
    for (const NamedWeapons& weapons : kNamedWeapons) {
        if (weapons.Kind != document.Dialect.GameKind) {
            continue;
        }
        for (SlotNumber slot = weapons.Slots.First; slot <= weapons.Slots.Last; ++slot) {
            const Text& command = document.SlotCommand[slot];
            if (command.starts_with(weapons.Prefix)) {
                const Text weapon = DropLeft(command, weapons.Prefix.size());
                commands.push_back({Join(command, ";"), Join("(switches to the ", weapon, ")")});
            }
        }
    }
}

}  // namespace

std::vector<AddableCommand> AddableCommands(const ScriptDocument& document) {
    std::vector<AddableCommand> commands;
    if (document.Dialect.GameKind == Game::Unreal) {
        for (const TextView command : kUnrealCommands) {
            commands.push_back({Text(command), Text(kUnrealDescription)});
        }
        return commands;
    }
    const KindSet kind = BitOf(document.Dialect.GameKind);
    AddRows(commands, kCommandsBeforeWeapons, kind);
    AddNamedWeapons(commands, document);
    AddRows(commands, kCommandsBehindWeapons, kind);
    return commands;
}

}  // namespace lv
