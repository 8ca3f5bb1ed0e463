// foundry/editor/cell_codec.h
//
// Several values as the text of one cell, and back. Both classes take the same calls, so that what a cell consists of
// is said once.

#pragma once

#include <array>
#include <cstdint>
#include <utility>
#include <vector>

#include "foundry/document/alias_list.h"

namespace lv {

/// A number as four bytes, a text as its length and its bytes, so that any byte may stand in it.
class CellSaver {
  public:
    explicit CellSaver(Text& cell) : cell_(cell) {}

    template <class Number>
    void Value(const Number& number) {
        const auto bits = static_cast<std::uint32_t>(number);
        const std::array bytes = {ByteOf(bits), ByteOf(bits >> 8U), ByteOf(bits >> 16U), ByteOf(bits >> 24U)};
        cell_.append(bytes.data(), bytes.size());
    }
    void Value(const Text& text) {
        Value(text.size());
        cell_ += text;
    }
    /// Each announced, so that one more changes the end alone.
    void Value(const std::vector<Text>& texts) {
        for (const Text& text : texts) {
            Value(true);
            Value(text);
        }
        Value(false);
    }
    void Value(const AliasList& aliases) {
        for (std::size_t place = 0; place < aliases.AliasCount(); ++place) {
            const Alias& alias = aliases[place];
            Value(alias.Bound);
            Value(alias.Name);
            Value(alias.Body);
        }
    }

  private:
    static char ByteOf(std::uint32_t bits) { return static_cast<char>(static_cast<unsigned char>(bits)); }

    Text& cell_;
};

/// Takes what a CellSaver has put, and nothing else.
class CellLoader {
  public:
    explicit CellLoader(TextView cell) : rest_(cell) {}

    template <class Number>
    void Value(Number& number) {
        std::uint32_t bits = 0;
        for (const std::size_t byte : {0U, 1U, 2U, 3U}) {
            bits |= static_cast<std::uint32_t>(static_cast<unsigned char>(rest_[byte])) << (8U * byte);
        }
        rest_.remove_prefix(sizeof(bits));
        number = static_cast<Number>(bits);
    }
    void Value(Text& text) {
        std::size_t length = 0;
        Value(length);
        text = rest_.substr(0, length);
        rest_.remove_prefix(length);
    }
    void Value(std::vector<Text>& texts) {
        texts.clear();
        for (bool another = false; Value(another), another;) {
            Value(texts.emplace_back());
        }
    }
    void Value(AliasList& aliases) {
        aliases.Clear();
        while (!rest_.empty()) {
            Alias alias;
            Value(alias.Bound);
            Value(alias.Name);
            Value(alias.Body);
            aliases.Insert(std::move(alias));
        }
    }

  private:
    TextView rest_;
};

}  // namespace lv
