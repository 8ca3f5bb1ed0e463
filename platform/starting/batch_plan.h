// platform/starting/batch_plan.h
//
// What a launch batch says: the environment, whether it is shown first, the directory, and the command line.
// Text in, text out; nothing is expanded, and nothing in a line is ever taken for more than it is here.

#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/processes.h"

namespace lv {

enum class BatchLineKind {
    kSet,        // SET NAME=value
    kShow,       // SET alone, or PAUSE
    kDrive,      // C:, or the two backslashes of a network's path
    kDirectory,  // cd C:\QUAKE
    kCommand,    // the first line that is none of these, and every line behind it or behind the cd line
    kNothing,    // an empty line ahead of the command
};

struct BatchLine {
    BatchLineKind Kind = BatchLineKind::kNothing;
    std::string Text;    // as it stands, without its line end
    std::size_t At = 0;  // where it begins in the batch
};

struct BatchPlan {
    /// In the batch's order, a later one wins. An empty value removes the variable, as it does there.
    std::vector<std::pair<std::string, std::string>> environment;
    bool showsEnvironment = false;
    std::string drive;      // "C:", or empty; empty for a network's path too
    std::string directory;  // without quotes, or empty
    /// All command lines joined with one blank each, so that what a line break has cut off still reaches the game.
    std::string command;
    std::vector<GivenWord> given;  // in their order; their places are counted in `command`
};

/// The batch's lines, each with its part; line ends are CR LF or LF.
std::vector<BatchLine> ReadBatchLines(std::string_view text);

/// Given words that are not found at their places in the batch, one behind the other within a line of the command,
/// are left out of the plan.
BatchPlan ParseBatch(std::string_view text, const std::vector<GivenWord>& given = {});

/// A command line's words by the rules of the Microsoft C runtime: blanks and tabs part, double quotes group,
/// backslashes are themselves but ahead of a double quote, where each two give one and an odd one makes the quote
/// literal; two double quotes inside a group are one literal quote. Each given word is one argument whatever it holds,
/// and whatever stands ahead of it; they stand in `command`, one behind the other.
std::vector<std::string> SplitArguments(std::string_view command, const std::vector<GivenWord>& given = {});

}  // namespace lv
