#include "platform/stand_ins.h"

#include "platform/code_page.h"

namespace lv {

namespace {

// "C:/Quake\\Engine" and "c:\quake\engine" are one file.
std::string KeyOf(std::string_view path) {
    std::string key;
    for (const char character : path) {
        const char sign = character == '/' ? '\\' : UpperCase(character);
        if (sign != '\\' || !key.ends_with('\\')) {
            key += sign;
        }
    }
    return key;
}

}  // namespace

void StandIns::Set(std::string_view path, std::string_view real) {
    if (real.empty()) {
        real_.erase(KeyOf(path));
    } else {
        real_[KeyOf(path)] = real;
    }
}

const std::string* StandIns::Of(std::string_view path) const {
    if (real_.empty()) {
        return nullptr;
    }
    const auto found = real_.find(KeyOf(path));
    return found == real_.end() ? nullptr : &found->second;
}

}  // namespace lv
