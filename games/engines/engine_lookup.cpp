#include "games/engines/engine_lookup.h"

#include <algorithm>

#include "games/programs.h"

namespace lv {

namespace {

constexpr TextView kWindowsEnding = ".exe";

}  // namespace

bool FitsPattern(TextView name, TextView pattern) {
    const std::size_t first = pattern.find('*');
    if (first == TextView::npos) {
        return name == pattern;
    }
    if (!name.starts_with(pattern.substr(0, first))) {
        return false;
    }
    name.remove_prefix(first);
    pattern.remove_prefix(first + 1);
    for (std::size_t star = 0; (star = pattern.find('*')) != TextView::npos;) {
        const std::size_t at = name.find(pattern.substr(0, star));
        if (at == TextView::npos) {
            return false;
        }
        name.remove_prefix(at + star);
        pattern.remove_prefix(star + 1);
    }
    return name.ends_with(pattern);
}

EngineLookup::EngineLookup(const EngineTable& table) {
    for (const Engine& engine : table.Engines) {
        for (const Text& program : engine.Programs) {
            if (IsProgramPattern(program)) {
                patterns_.emplace_back(program, &engine);
            } else {
                whole_.emplace(program, &engine);
            }
        }
    }
}

const Engine* EngineLookup::Of(TextView programFileName) const {
    const Text name = LowerCase(programFileName);
    const TextView bare =
        name.ends_with(kWindowsEnding) ? TextView(name).substr(0, name.size() - kWindowsEnding.size()) : TextView(name);
    auto found = whole_.find(Text(bare));
    if (found == whole_.end()) {
        found = whole_.find(name);
    }
    const Engine* engine = found == whole_.end() ? nullptr : found->second;
    if (engine == nullptr) {
        const auto fitting = std::ranges::find_if(patterns_, [&](const auto& pattern) {
            return FitsPattern(bare, pattern.first) || FitsPattern(name, pattern.first);
        });
        engine = fitting == patterns_.end() ? nullptr : fitting->second;
    }
    return engine == nullptr || ProgramOf(name) != nullptr ? nullptr : engine;
}

}  // namespace lv
