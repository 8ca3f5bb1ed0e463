#include "platform/user_registry.h"

namespace lv {

std::vector<Result<RegistryValue>> UserRegistry::QueryAll(std::span<const RegistryPlace> places) {
    std::vector<Result<RegistryValue>> values;
    values.reserve(places.size());
    for (const RegistryPlace& place : places) {
        values.push_back(Query(place.Path, place.Name));
    }
    return values;
}

Error UserRegistry::SetAll(std::span<const RegistryEntry> entries) {
    for (const RegistryEntry& entry : entries) {
        if (Error failed = Set(entry.Place.Path, entry.Place.Name, entry.Value)) {
            return failed;
        }
    }
    return {};
}

}  // namespace lv
