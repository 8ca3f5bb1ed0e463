#include "foundry/document/bindings.h"

#include <cstddef>
#include <utility>

#include "foundation/field_strings.h"
#include "foundation/game.h"

namespace lv {

namespace {

constexpr TextView kBetweenKeys = " : ";
constexpr TextView kSay = "say ";
constexpr TextView kSayTeam = "say_team ";

/// Visits each caption of a key list, without blanks at its ends. An empty list has one, an empty one.
template <class Visit>
void ForEachKey(TextView keyList, Visit visit) {
    for (;;) {
        const std::size_t end = keyList.find(':');
        visit(TrimmedView(keyList.substr(0, end)));
        if (end == TextView::npos) {
            return;
        }
        keyList.remove_prefix(end + 1);
    }
}

Text WithoutKey(const Text& keyList, TextView key) {
    if (keyList == key) {
        return {};
    }
    Text kept;
    kept.reserve(keyList.size() + kBetweenKeys.size());
    ForEachKey(keyList, [&](TextView other) {
        if (other != key) {
            kept.append(other).append(kBetweenKeys);
        }
    });
    return Trim(DropRight(kept, kBetweenKeys.size()));
}

void Paint(const ScriptDocument& document, ScriptView& view, KeyIndex key, Color color) {
    view.PaintKey(key, color);
    const Index mirror = MirrorLabel(key, document.Dialect.GameKind);
    if (mirror != kNoKey) {
        view.PaintKey(mirror, color);
    }
}

bool IsKey(KeyIndex key) {
    return key >= 0 && key < kKeyCount;
}

void FollowTeamBox(ScriptDocument& document, SlotNumber slot) {
    if (!kMessages.Holds(slot)) {
        return;
    }
    Text& command = document.SlotCommand[slot];
    const bool toTeam = document.Say_Team_Chk[slot].Value != 0;
    const TextView wrong = toTeam ? kSay : kSayTeam;
    if (StartsWithText(command, wrong)) {
        command = SayCommand(DropLeft(command, wrong.size()), toTeam);
    }
}

struct IniAlias {
    Text Name;
    Text Body;
};

/// The parts of (Command="Fire | Jump",Alias=both).
IniAlias ReadIniAlias(TextView text) {
    constexpr TextView kName = "alias=";
    IniAlias alias;
    const std::size_t open = text.find('"');
    const std::size_t close = open == TextView::npos ? open : text.find('"', open + 1);
    if (close != TextView::npos) {
        alias.Body = text.substr(open + 1, close - open - 1);
    }
    const std::size_t name = LowerCase(text).find(kName);
    if (name != Text::npos) {
        const TextView rest = text.substr(name + kName.size());
        alias.Name = rest.substr(0, rest.find(')'));
    }
    return alias;
}

}  // namespace

void BindKey(ScriptDocument& document, ScriptView& view, KeyIndex key, SlotNumber slot) {
    if (!IsKey(key)) {
        return;
    }
    UnbindKey(document, view, key);
    Paint(document, view, key, SlotColor(slot, document.Dialect.GameKind));
    FollowTeamBox(document, slot);
    const auto index = static_cast<std::size_t>(key);
    document.KeyBinding[index] = document.SlotCommand[slot];
    Text& keyList = document.Setting_Lbl[slot].Caption;
    if (!keyList.empty()) {
        keyList += kBetweenKeys;
    }
    keyList += document.KeyCaption[index];
    view.SlotChanged(slot);
    document.ScriptClean = false;
}

void UnbindKey(ScriptDocument& document, ScriptView& view, KeyIndex key) {
    if (!IsKey(key)) {
        return;
    }
    view.ClearKeyToolTip(key);
    const auto index = static_cast<std::size_t>(key);
    Text& binding = document.KeyBinding[index];
    if (binding.empty()) {
        return;
    }
    Paint(document, view, key, kWhite);
    for (const SlotNumber slot : SlotNumbers()) {
        Text& keyList = document.Setting_Lbl[slot].Caption;
        if (!keyList.empty() && document.SlotCommand[slot] == binding) {
            keyList = WithoutKey(keyList, document.KeyCaption[index]);
            view.SlotChanged(slot);
        }
    }
    binding.clear();
    document.ScriptClean = false;
}

void ClearSlotKeys(ScriptDocument& document, ScriptView& view, SlotNumber slot) {
    const Text keyList = document.Setting_Lbl[slot].Caption;
    if (keyList.empty()) {
        return;
    }
    ForEachKey(keyList,
               [&](TextView caption) { UnbindKey(document, view, KeyIndexOfCaption(document.KeyCaption, caption)); });
}

void RenameSlotCommand(ScriptDocument& document, ScriptView& view, SlotNumber slot, TextView command) {
    document.SlotCommand[slot] = command;
    view.SlotChanged(slot);
    document.ScriptClean = false;
    ForEachKey(document.Setting_Lbl[slot].Caption, [&](TextView caption) {
        const KeyIndex key = KeyIndexOfCaption(document.KeyCaption, caption);
        if (IsKey(key)) {
            document.KeyBinding[static_cast<std::size_t>(key)] = command;
        }
    });
}

Text SayCommand(TextView message, bool toTeam) {
    return Join(toTeam ? kSayTeam : kSay, message);
}

AliasPlace FindAlias(const ScriptDocument& document, TextView name) {
    return document.AliasTable.Find(name);
}

bool AddAlias(ScriptDocument& document, TextView name, TextView body) {
    const bool unreal = document.Dialect.GameKind == Game::Unreal;
    IniAlias alias = unreal ? ReadIniAlias(body) : IniAlias{Text(name), Text(body)};
    const bool placeHolder = unreal && SameText(alias.Name, "none");
    if (alias.Name.empty() || alias.Body.empty() || placeHolder) {
        return false;
    }
    return document.AliasTable.Insert({.Bound = false, .Name = std::move(alias.Name), .Body = std::move(alias.Body)});
}

}  // namespace lv
