// tests/foundry/script_fixture.h
//
// Documents made by hand, and scripts as a test writes them down.

#pragma once

#include <gtest/gtest.h>

#include <algorithm>

#include "foundry/document/script_document.h"
#include "platform/clock.h"

namespace lv {

constexpr ScriptDialect kQuakeDialect = {Game::Quake, Dialect::Quake, false, false, '.'};
constexpr ScriptDialect kQuakeWorldDialect = {Game::Quake, Dialect::Quake, true, false, '.'};
constexpr ScriptDialect kHexen2Dialect = {Game::Hexen2, Dialect::Quake, false, false, '.'};
constexpr ScriptDialect kQuake2Dialect = {Game::Quake2, Dialect::Quake2, false, false, '.'};
constexpr ScriptDialect kUnrealDialect = {Game::Unreal, Dialect::Unreal, false, false, '.'};
constexpr ScriptDialect kSinDialect = {Game::Sin, Dialect::Quake2, false, false, '.'};
constexpr ScriptDialect kHeretic2Dialect = {Game::Heretic2, Dialect::Quake2, false, false, '.'};
constexpr ScriptDialect kHalfLifeDialect = {Game::HalfLife, Dialect::Quake2, false, false, '.'};

constexpr LocalTime kScriptDay = {1999, 11, 21, 12, 30, 0};

/// A text with plain line ends, as a script has it: with CR LF.
inline Text Crlf(TextView text) {
    Text script;
    for (const char c : text) {
        script += c == '\n' ? Text("\r\n") : Text(1, c);
    }
    return script;
}

/// A document with nothing in it.
inline ScriptDocument EmptyDocument(const ScriptDialect& dialect) {
    ScriptDocument document;
    document.Dialect = dialect;
    document.Sections.emplace_back();
    return document;
}

/// Makes the text the list's selected row.
inline void Choose(ListBox& list, TextView text) {
    list.Items = {Text(text)};
    list.ListIndex = 0;
}

/// Selects a row by its number, in a list that is long enough.
inline void ChooseRow(ListBox& list, int row) {
    list.Items.assign(static_cast<std::size_t>(row) + 1, "a row");
    list.ListIndex = row;
}

inline void Bind(ScriptDocument& document, KeyIndex key, TextView command) {
    document.KeyBinding[static_cast<std::size_t>(key)] = command;
}

/// How often the line occurs in the script, as a whole line.
inline int CountLines(TextView script, TextView line) {
    int count = 0;
    for (std::size_t at = 0; at <= script.size();) {
        const std::size_t end = std::min(script.find("\r\n", at), script.size());
        count += script.substr(at, end - at) == line ? 1 : 0;
        at = end + 2;
    }
    return count;
}

}  // namespace lv
