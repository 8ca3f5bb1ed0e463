// platform/windows/command_line.h
//
// One line of text that a program takes apart into the words that were meant.

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lv {

/// A word as the C library's rules read it: in quotes where a blank or a quote is in it or nothing at all.
std::wstring QuotedWord(std::wstring_view word);

/// The words with a blank between them.
std::wstring QuotedWords(const std::vector<std::wstring>& words);

}  // namespace lv
