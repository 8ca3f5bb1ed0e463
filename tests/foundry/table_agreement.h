// tests/foundry/table_agreement.h
//
// What holds in every document, whatever was read.

#pragma once

#include <array>

#include "foundry/document/script_document.h"

namespace lv {

/// Where key table and key lists contradict each other; empty if they agree. A key holds one command at most, and
/// stands in the list of one slot that has this command.
inline Text DisagreementOf(const ScriptDocument& document) {
    std::array<int, kKeyCount> listed{};
    for (const SlotNumber slot : SlotNumbers()) {
        Text rest = document.Setting_Lbl[slot].Caption;
        while (!rest.empty()) {
            const std::size_t end = rest.find(" : ");
            const KeyIndex key = KeyIndexOfCaption(document.KeyCaption, rest.substr(0, end));
            if (key == kNoKey) {
                return Join("slot ", std::to_string(slot), " lists no key: ", rest);
            }
            const auto index = static_cast<std::size_t>(key);
            if (document.KeyBinding[index].empty() || document.KeyBinding[index] != document.SlotCommand[slot]) {
                return Join("slot ", std::to_string(slot), " lists key ", std::to_string(key), ", which is bound to [",
                            document.KeyBinding[index], "]");
            }
            ++listed[index];
            rest.erase(0, end == Text::npos ? end : end + 3);
        }
    }
    for (std::size_t key = 0; key < listed.size(); ++key) {
        if (listed[key] != (document.KeyBinding[key].empty() ? 0 : 1)) {
            return Join("key ", std::to_string(key), " stands in ", std::to_string(listed[key]), " lists");
        }
    }
    return {};
}

}  // namespace lv
