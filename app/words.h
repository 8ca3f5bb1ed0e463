// app/words.h
//
// The words behind the program's name, ahead of the toolkit.

#pragma once

#include <optional>
#include <string>
#include <vector>

namespace lv {

struct DoneWords {
    std::optional<int> Code;  // that the program is to end with; nothing: the window is asked for
    std::string Offered;      // by the window: a path on the drives, or a server; code page 1252
    std::string Told;         // in a window, ahead of the end with that code; code page 1252
};

/// Does what the words, in code page 1252, ask for, and prints.
DoneWords DoWords(const std::vector<std::string>& words);

}  // namespace lv
