#include "foundry/document/alias_list.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace lv {

AliasPlace AliasList::Find(TextView name) const {
    const Text lowerName = LowerCase(name);
    const auto place = std::ranges::lower_bound(
        order_, TextView(lowerName), {}, [this](std::uint32_t record) { return TextView(records_[record].LowerName); });
    return {.Found = place != order_.end() && records_[*place].LowerName == lowerName,
            .Place = static_cast<std::size_t>(place - order_.begin())};
}

bool AliasList::Insert(Alias alias) {
    const AliasPlace place = Find(alias.Name);
    if (place.Found) {
        return false;
    }
    const auto record = static_cast<std::uint32_t>(free_.empty() ? records_.size() : free_.back());
    if (free_.empty()) {
        records_.emplace_back();
    } else {
        free_.pop_back();
    }
    records_[record].LowerName = LowerCase(alias.Name);
    records_[record].Value = std::move(alias);
    order_.insert(order_.begin() + static_cast<std::ptrdiff_t>(place.Place), record);
    return true;
}

void AliasList::Erase(std::size_t place) {
    records_[order_[place]] = {};
    free_.push_back(order_[place]);
    order_.erase(order_.begin() + static_cast<std::ptrdiff_t>(place));
}

std::size_t AliasList::Replace(std::size_t place, Alias alias) {
    const AliasPlace other = Find(alias.Name);
    if (other.Found && other.Place != place) {
        return place;
    }
    Erase(place);
    const std::size_t moved = Find(alias.Name).Place;
    Insert(std::move(alias));
    return moved;
}

void AliasList::Clear() {
    records_.clear();
    order_.clear();
    free_.clear();
}

}  // namespace lv
