// tests/foundry/reading.h
//
// Scripts given as bytes, read into documents.

#pragma once

#include <algorithm>
#include <functional>
#include <vector>

#include "foundation/game.h"
#include "foundry/reading/script_reader.h"

namespace lv {

/// A file that is a text in memory, of which nothing is copied but what is read.
class BytesFile : public RandomAccessFile {
  public:
    explicit BytesFile(TextView bytes) : bytes_(bytes) {}
    [[nodiscard]] std::uint64_t Size() const override { return bytes_.size(); }
    Result<std::string> Read(std::uint64_t offset, std::size_t count) override {
        if (offset >= bytes_.size()) {
            return std::string();
        }
        return std::string(bytes_.substr(static_cast<std::size_t>(offset), count));
    }

  private:
    TextView bytes_;
};

inline ScriptDialect DialectOf(Game kind, bool quakeWorld = false) {
    const Dialect family = kind == Game::Unreal                          ? Dialect::Unreal
                           : kind == Game::Quake || kind == Game::Hexen2 ? Dialect::Quake
                                                                         : Dialect::Quake2;
    return {.GameKind = kind,
            .ScriptFamily = family,
            .IsQuakeWorld = quakeWorld,
            .IsMissionPack = false,
            .DecimalSeparator = '.'};
}

/// Both passes into a document that is ready for them.
inline void ReadInto(ScriptDocument& document, TextView bytes, ScriptView& view) {
    BytesFile file(bytes);
    const std::uint64_t full = ReadAliases(file, document);
    ReadLines(file, document, view, full, [] {});
}

inline ScriptDocument ReadScript(const ScriptDialect& dialect, TextView bytes) {
    ScriptView view;
    ScriptDocument document = MakeScriptDocument(dialect);
    ReadInto(document, bytes, view);
    return document;
}

inline ScriptDocument ReadScript(Game kind, TextView bytes) {
    return ReadScript(DialectOf(kind), bytes);
}

/// The command of the key with this name.
inline Text BindingOf(const ScriptDocument& document, TextView key) {
    const KeyIndex index = KeyFromName(key);
    return index == kNoKey ? "(no such key)" : document.KeyBinding[static_cast<std::size_t>(index)];
}

/// The aliases as "name=body", joined by ", ".
inline Text AliasesOf(const ScriptDocument& document) {
    Text all;
    for (std::size_t place = 0; place < document.AliasTable.AliasCount(); ++place) {
        const Alias& alias = document.AliasTable[place];
        all += Join(all.empty() ? "" : ", ", alias.Name, "=", alias.Body);
    }
    return all;
}

}  // namespace lv
