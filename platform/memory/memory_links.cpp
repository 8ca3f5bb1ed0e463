#include "platform/memory/memory_links.h"

#include "platform/code_page.h"

namespace lv {

namespace {

// Of a value's name "path|name".
bool IsWithin(std::string_view value, std::string_view path) {
    return value.size() > path.size() && value.starts_with(path) &&
           (value[path.size()] == '|' || value[path.size()] == '\\');
}

}  // namespace

bool MemoryRegistryTrees::Has(std::string_view path) {
    const std::string key = LowerCase(path);
    for (const auto& [name, value] : registry_.Values) {
        if (IsWithin(name, key)) {
            return true;
        }
    }
    return false;
}

Error MemoryRegistryTrees::Copy(std::string_view from, std::string_view to) {
    if (RefuseCopies) {
        return RefuseCopies;
    }
    (void)Remove(to);
    const std::string key = LowerCase(from);
    std::map<std::string, RegistryValue> copies;
    for (const auto& [name, value] : registry_.Values) {
        if (IsWithin(name, key)) {
            copies[LowerCase(to) + name.substr(key.size())] = value;
        }
    }
    registry_.Values.merge(copies);
    return {};
}

Error MemoryRegistryTrees::Remove(std::string_view path) {
    const std::string key = LowerCase(path);
    std::erase_if(registry_.Values, [&](const auto& value) { return IsWithin(value.first, key); });
    return {};
}

}  // namespace lv
