// app/words.h
//
// The words behind the program's name, ahead of the toolkit.

#pragma once

#include <optional>
#include <string>
#include <vector>

namespace lv {

/// Does what the words, in code page 1252, ask for, and prints; the code that the program is to end with. Nothing if
/// they ask for the window.
std::optional<int> DoWords(const std::vector<std::string>& words);

}  // namespace lv
