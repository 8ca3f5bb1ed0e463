#include "foundry/reading/bind_line.h"
#include "foundry/document/slot_captions.h"
#include "foundry/tables/read_commands.h"

#include <utility>

#include "foundation/field_strings.h"
#include "foundation/game.h"

namespace lv {

namespace {

constexpr TextView kExec = "exec ";
constexpr TextView kSay = "say ";
constexpr TextView kSayTeam = "say_team ";
constexpr std::size_t kLongestKeyName = 32;

TextView CaptionOf(const ScriptDocument& document, SlotNumber slot) {
    return TrimmedView(document.Bound_Lbl[slot].Caption);
}

/// The first slot of the block that `takes`, or that is free; nothing if there is neither.
template <class Takes>
SlotNumber FirstSlot(const ScriptDocument& document, SlotBlock block, const Takes& takes) {
    for (SlotNumber slot = block.First; slot <= block.Last; ++slot) {
        if (CaptionOf(document, slot).empty() || takes(slot)) {
            return slot;
        }
    }
    return kNoSlot;
}

/// `caption` may be a stretch of the command, which moves into the slot.
void FillSlot(ScriptDocument& document, ScriptView& view, SlotNumber slot, TextView caption, Text&& command) {
    CaptionSlot(document, view, slot, caption);
    document.SlotCommand[slot] = std::move(command);
    view.SlotChanged(slot);
}

/// The block's slot with this caption, or its first free one, which the command then fills.
template <class Takes>
SlotNumber FindOrFill(ScriptDocument& document, ScriptView& view, SlotBlock block, TextView caption, Text& command,
                      const Takes& takes) {
    const SlotNumber slot = FirstSlot(document, block, takes);
    if (slot != kNoSlot && CaptionOf(document, slot).empty()) {
        FillSlot(document, view, slot, caption, std::move(command));
    }
    return slot;
}

SlotNumber ExecSlot(ScriptDocument& document, ScriptView& view, Text& command) {
    const TextView file = TrimmedView(TextView(command).substr(kExec.size()));
    if (file.empty()) {
        return kNoSlot;
    }
    return FindOrFill(document, view, kBoundScripts, file, command,
                      [&](SlotNumber slot) { return CaptionOf(document, slot) == file; });
}

SlotNumber SaySlot(ScriptDocument& document, ScriptView& view, Text& command) {
    const bool toTeam = StartsWithText(command, kSayTeam);
    const TextView message = TextView(command).substr(toTeam ? kSayTeam.size() : kSay.size());
    if (TrimmedView(message).empty()) {
        return kNoSlot;
    }
    // A message to the team takes a slot of its own each time, and is never said to all.
    const SlotNumber slot = FindOrFill(document, view, kMessages, message, command, [&](SlotNumber each) {
        return !toTeam && document.Say_Team_Chk[each].Value == 0 && CaptionOf(document, each) == message;
    });
    if (slot != kNoSlot) {
        document.Say_Team_Chk[slot].Value = toTeam ? 1 : 0;
    }
    return slot;
}

SlotNumber SlotOfBoundAlias(const ScriptDocument& document, TextView name) {
    const Text caption = Join(Blank, name);
    for (SlotNumber slot = kBoundAliases.First; slot <= kBoundAliases.Last; ++slot) {
        const Label& label = document.Bound_Lbl[slot];
        if (label.Caption == caption || label.ToolTip == name) {
            return slot;
        }
    }
    return kNoSlot;
}

SlotNumber AliasSlot(ScriptDocument& document, ScriptView& view, TextView command, const AliasNames& aliases) {
    const Text lower = LowerCase(command);
    SlotNumber last = kNoSlot;
    for (SlotNumber slot = kBoundAliases.First; slot <= kBoundAliases.Last; ++slot) {
        if (document.SlotCommand[slot] == lower) {
            last = slot;
        }
    }
    const std::size_t place = last == kNoSlot ? aliases.Find(lower) : AliasNames::kNone;
    if (place == AliasNames::kNone) {
        return last;
    }
    Alias& alias = document.AliasTable[place];
    Text name = Trim(alias.Name);
    if (alias.Bound) {
        return SlotOfBoundAlias(document, name);
    }
    const SlotNumber slot = FirstSlot(document, kBoundAliases, [](SlotNumber) { return false; });
    if (slot != kNoSlot) {
        alias.Bound = true;
        FillSlot(document, view, slot, name, std::move(name));
    }
    return slot;
}

SlotNumber ExtraSlot(ScriptDocument& document, ScriptView& view, Text& command) {
    const TextView wanted = TrimmedView(command);
    return FindOrFill(document, view, kExtras, wanted, command,
                      [&](SlotNumber slot) { return CaptionOf(document, slot) == wanted; });
}

bool SaysOrExecutes(TextView command) {
    return StartsWithText(command, kExec) || StartsWithText(command, kSay) || StartsWithText(command, kSayTeam);
}

/// The slot of a command that is none of the game's own.
SlotNumber FreeSlot(ScriptDocument& document, ScriptView& view, Text& command, const AliasNames& aliases) {
    if (command.starts_with(' ') && SaysOrExecutes(TrimmedView(command))) {
        command = Trim(command);
    }
    SlotNumber slot = kNoSlot;
    if (StartsWithText(command, kExec)) {
        slot = ExecSlot(document, view, command);
    } else if (StartsWithText(command, kSay) || StartsWithText(command, kSayTeam)) {
        slot = SaySlot(document, view, command);
    } else {
        slot = AliasSlot(document, view, TrimmedView(command), aliases);
    }
    return slot == kNoSlot ? ExtraSlot(document, view, command) : slot;
}

KeyIndex KeyOf(TextView spelling) {
    return spelling.size() > kLongestKeyName ? kNoKey : KeyFromName(LowerCase(spelling));
}

}  // namespace

AliasNames::AliasNames(const AliasList& aliases) {
    places_.reserve(aliases.AliasCount());
    for (std::size_t place = 0; place < aliases.AliasCount(); ++place) {
        places_.try_emplace(LowerCase(TrimmedView(aliases[place].Name)), place);
    }
}

std::size_t AliasNames::Find(const Text& lowerCaseName) const {
    const auto found = places_.find(lowerCaseName);
    return found == places_.end() ? kNone : found->second;
}

Text BindLine(ScriptDocument& document, ScriptView& view, TextView key, Text command, const AliasNames& aliases) {
    if (TrimmedView(command).empty()) {
        command = kEmptyCommand;
    }
    const Game kind = document.Dialect.GameKind;
    const KeyIndex index = KeyOf(key);
    if (index == kNoKey) {
        return kind == Game::Unreal ? Join(LowerCase(key), "=", command, NewLine) : Text();
    }
    const SlotMatch match = SlotFromCommand(LowerCase(TrimmedView(command)), kind);
    if (!match.Known) {
        const SlotNumber slot = FreeSlot(document, view, command, aliases);
        if (slot != kNoSlot) {
            BindKey(document, view, index, slot);
        }
        return {};
    }
    if (match.Slot == kNoSlot) {
        return {};
    }
    if (document.SlotCommand[match.Slot].empty()) {  // this kind of game lacks it: the key is free then
        UnbindKey(document, view, index);
    } else {
        BindKey(document, view, index, match.Slot);
    }
    return {};
}

Text BindLine(ScriptDocument& document, ScriptView& view, TextView key, Text command) {
    return BindLine(document, view, key, std::move(command), AliasNames(document.AliasTable));
}

}  // namespace lv
