// foundry/document/alias_list.h
//
// The aliases of a script, sorted by their names in lower case.

#pragma once

#include <cstdint>
#include <deque>
#include <vector>

#include "foundation/text.h"

namespace lv {

struct Alias {
    bool Bound = false;  // has a slot of kBoundAliases
    Text Name;
    Text Body;  // commands parted by ";", in Unreal by "| "
};

struct AliasPlace {
    bool Found = false;
    std::size_t Place = 0;  // without a match the place where the name would be inserted
};

/// Adding one of ten thousand moves 4 bytes each of those behind it, not the records.
class AliasList {
  public:
    [[nodiscard]] std::size_t AliasCount() const { return order_.size(); }
    [[nodiscard]] bool empty() const { return order_.empty(); }

    /// By place in the sorted order. Whoever changes the name through it must change its order too: use Replace.
    Alias& operator[](std::size_t place) { return records_[order_[place]].Value; }
    const Alias& operator[](std::size_t place) const { return records_[order_[place]].Value; }

    /// Case-blind.
    [[nodiscard]] AliasPlace Find(TextView name) const;

    /// Puts a new record in its place; false, and nothing changes, if the name is there.
    bool Insert(Alias alias);

    void Erase(std::size_t place);

    /// Gives the record a new content and moves it where its name belongs; returns the new place. Nothing changes if
    /// another record has that name.
    std::size_t Replace(std::size_t place, Alias alias);

    void Clear();

  private:
    struct Record {
        Text LowerName;
        Alias Value;
    };

    std::deque<Record> records_;
    std::vector<std::uint32_t> order_;  // of records_
    std::vector<std::uint32_t> free_;   // records that Erase left
};

}  // namespace lv
