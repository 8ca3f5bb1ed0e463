// platform/command_text.h
//
// What reads a command line before the started program does, and what it would take for more than text.

#pragma once

#include <string_view>

namespace lv {

enum class LineReader {
    kNobody,            // the program gets its arguments as separate values
    kDosShell,          // DOS's own, in DOSBox
    kCommandProcessor,  // Windows'
    kBatch,             // Windows', and then a batch of the user's own, which reads its parameters once more
};

/// Whether the reader takes the text, wherever it stands behind a command's first word, for one word and for nothing
/// but text. No reader takes control characters so. Double quotes group for Windows' readers, and must be even; `%`
/// expands for all but kNobody.
bool ReadsAsOneWord(std::string_view text, LineReader reader);

/// Whether the file is one that Windows' command processor carries out: ".bat", ".cmd". Dots and blanks behind these
/// are no part of a name there.
bool IsBatchName(std::string_view name);

}  // namespace lv
