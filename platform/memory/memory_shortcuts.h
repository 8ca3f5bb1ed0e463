// platform/memory/memory_shortcuts.h
//
// Shortcuts as a test looks at them.

#pragma once

#include <map>
#include <set>
#include <utility>

#include "platform/shortcuts.h"

namespace lv {

class MemoryShortcuts : public Shortcuts {
  public:
    std::string CaptionOf(ShortcutPlace place) override {
        return place == ShortcutPlace::Menu ? "Applications &Menu" : "&Desktop";
    }
    bool HasPlace(ShortcutPlace place) override { return !Without.contains(place); }
    std::string PathOf(ShortcutPlace place, const Shortcut& shortcut) override {
        return (place == ShortcutPlace::Menu ? "/menu/" : "/desktop/") + (OneName ? "one.desktop" : shortcut.EntryName);
    }
    bool IsThere(ShortcutPlace place, const Shortcut& shortcut) override {
        const auto found = Made.find(PathOf(place, shortcut));
        return found != Made.end() && found->second.EntryMark == shortcut.EntryMark;
    }
    Error Make(ShortcutPlace place, const Shortcut& shortcut) override {
        if (Refuse) {
            return Refuse;
        }
        if (Made.contains(PathOf(place, shortcut)) && !IsThere(place, shortcut)) {
            return MakeError(error::kAlreadyOpen);
        }
        Made[PathOf(place, shortcut)] = shortcut;
        return {};
    }
    Error Remove(ShortcutPlace place, const Shortcut& shortcut) override {
        if (IsThere(place, shortcut)) {
            if (Refuse) {
                return Refuse;
            }
            Made.erase(PathOf(place, shortcut));
        }
        return {};
    }

    std::map<std::string, Shortcut> Made;  // by their paths
    std::set<ShortcutPlace> Without;
    bool OneName = false;  // of all files, as for names that no file can have
    Error Refuse;          // what writes
};

}  // namespace lv
