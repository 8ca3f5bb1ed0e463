#include "console/files/setter_table.h"

namespace lv {

namespace {

Text KeyOf(EffectKind kind, TextView identity) {
    return static_cast<char>(kind) + Text(identity);
}

}  // namespace

void SetterTable::Put(EffectKind kind, const Text& identity, TextView name, Setter setter) {
    const auto [place, isNew] = places_.try_emplace(KeyOf(kind, identity), things_.size());
    if (isNew) {
        things_.push_back({kind, {}, identity, {}});
    }
    SetThing& thing = things_[place->second];
    thing.Name = name;
    thing.Setters.push_back(std::move(setter));
    ++count_;
}

void SetterTable::FreeAll(EffectKind kind, const Setter& setter) {
    for (SetThing& thing : things_) {
        if (thing.Kind == kind && thing.Setters.back().IsSet) {
            thing.Setters.push_back(setter);
            thing.Setters.back().IsSet = false;
            ++count_;
        }
    }
}

const SetThing* SetterTable::Find(EffectKind kind, TextView identity) const {
    const auto found = places_.find(KeyOf(kind, identity));
    return found == places_.end() ? nullptr : &things_[found->second];
}

}  // namespace lv
