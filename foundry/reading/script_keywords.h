// foundry/reading/script_keywords.h
//
// The keywords that a script's line can begin with, and what each does to the document.

#pragma once

#include <optional>

#include "foundry/reading/bind_line.h"
#include "foundry/reading/list_finder.h"
#include "foundry/reading/script_lines.h"

namespace lv {

/// A line as the reader takes it apart. The values are raw: their letter case is the file's.
struct ScriptLine {
    TextView Value{};
    TextView Value2{};
    int Index = 0;  // of WeaponPriority[Index]
};

enum class LineUse {
    kUnderstood,
    kFreeForm,  // the line belongs to the section's text
};

/// What the effects of the keywords work on.
struct KeywordContext {
    ScriptDocument& Document;
    ScriptView& View;
    ScriptLines& Lines;
    ListFinder Lists{};
    AliasNames Aliases;
    std::uint64_t FirstLineWithoutAlias = 0;  // from this one on the alias table took none
    std::optional<Text> Skin{};               // as the last line has it; chosen when all are read
    Text PendingFreeForm{};                   // what the line adds to the section's text
};

struct KeywordRow;
using KeywordEffect = LineUse (*)(KeywordContext&, const ScriptLine&, const KeywordRow&);

struct KeywordRow {
    TextView Keyword;  // lower case
    KeywordEffect Effect;
    ListBox ScriptSettings::*List = nullptr;
    CheckBox ScriptSettings::*Check = nullptr;
    TextBox ScriptSettings::*Box = nullptr;
    std::size_t Place = 0;  // in a control array

    constexpr KeywordRow(TextView keyword, KeywordEffect effect) : Keyword(keyword), Effect(effect) {}
    constexpr KeywordRow(TextView keyword, KeywordEffect effect, ListBox ScriptSettings::*list)
        : Keyword(keyword), Effect(effect), List(list) {}
    constexpr KeywordRow(TextView keyword, KeywordEffect effect, CheckBox ScriptSettings::*check)
        : Keyword(keyword), Effect(effect), Check(check) {}
    constexpr KeywordRow(TextView keyword, KeywordEffect effect, TextBox ScriptSettings::*box)
        : Keyword(keyword), Effect(effect), Box(box) {}
    constexpr KeywordRow(TextView keyword, KeywordEffect effect, int place)
        : Keyword(keyword), Effect(effect), Place(static_cast<std::size_t>(place)) {}
};

/// nullptr for a keyword, in lower case, that is none.
const KeywordRow* FindKeyword(TextView keyword);

}  // namespace lv
