// platform/shortcuts.h
//
// Starts of this program with words, where the user's desktop and its menu of programs show them. Text is code page
// 1252 where nothing else is said.

#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/error.h"

namespace lv {

enum class ShortcutPlace { Menu, Desktop };

struct ShortcutPicture {
    int Height = 0;  // pixels; as wide as high
    std::string_view Png;
};

struct Shortcut {
    std::string Name;     // as its user reads it
    std::string Comment;  // the same
    std::vector<std::string> Words;
    std::string PictureName;                // for a file: letters and digits
    std::vector<ShortcutPicture> Pictures;  // smallest first; none: the program's own

    // For a system that keeps shortcuts as desktop entries: the file's name, a line by which the entry is told to be
    // this shortcut, and the text. `program` and `picture` are host paths, UTF-8 as the text; `picture` may be empty.
    std::string EntryName;
    std::string EntryMark;
    std::function<std::string(const std::string& program, const std::string& picture)> Entry;
};

class Shortcuts {
  public:
    virtual ~Shortcuts() = default;

    /// What the system calls the place, as the caption of a box: "Applications &Menu". The access keys are M and D.
    virtual std::string CaptionOf(ShortcutPlace place) = 0;

    /// False where the user has no such place.
    virtual bool HasPlace(ShortcutPlace place) = 0;

    /// Where the shortcut's file lies, or would lie, as the host says it; only to be shown.
    virtual std::string PathOf(ShortcutPlace place, const Shortcut& shortcut) = 0;

    /// Whether there is this very shortcut, made by this program. What else has its file's name is another's.
    virtual bool IsThere(ShortcutPlace place, const Shortcut& shortcut) = 0;

    /// Makes it or replaces it, in one step. Errors: 55 another's file has the name, which stays as it is, 76 no such
    /// place, 70 and 75 no access, 61 disk full.
    virtual Error Make(ShortcutPlace place, const Shortcut& shortcut) = 0;

    /// Takes it away where it is there.
    virtual Error Remove(ShortcutPlace place, const Shortcut& shortcut) = 0;
};

}  // namespace lv
