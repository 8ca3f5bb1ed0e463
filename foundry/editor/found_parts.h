// foundry/editor/found_parts.h
//
// The parts of the editor that a text is found in.

#pragma once

#include <optional>
#include <vector>

#include "foundry/editor/fig_frm.h"

namespace lv {

struct FoundPart {
    EditorPage Page = EditorPage::Player;
    std::optional<int> SubPage{};        // of Options_Tab or Bindings_Tab
    Text Control;                        // as the form calls it
    Text Caption;                        // what Find_Lbl says
    std::optional<Index> Key{};          // Key_Lbl, on the one panel or the other
    std::optional<std::size_t> Alias{};  // in Alias_Lst
};

/// All parts that have the text, whatever its letter case: settings by their captions, rows by what they are called,
/// what they do and their keys, keys by their names, the spoken ones too, and what they do, aliases by name and body.
/// In the order of the pages. What is hidden is left out, and a row that is not filled.
std::vector<FoundPart> FindParts(const Fig_Frm& form, TextView text);

}  // namespace lv
