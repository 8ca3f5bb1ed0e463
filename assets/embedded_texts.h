// assets/embedded_texts.h
//
// Texts that the program carries in itself, made from files at build time.

#pragma once

#include <string_view>

namespace lv {

/// What each control is for: a line a control, its name, a tab, the text. UTF-8.
std::string_view EmbeddedWhatsThis();

/// The table of engines, engines.tsv, ASCII.
std::string_view EmbeddedEngines();

}  // namespace lv
