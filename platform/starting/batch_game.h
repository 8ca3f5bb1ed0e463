// platform/starting/batch_game.h
//
// The game that a launch batch starts, found without carrying the batch out.

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "platform/processes.h"
#include "platform/starting/batch_plan.h"
#include "platform/starting/program_search.h"

namespace lv {

struct BatchGame {
    std::string BatchText;
    std::string BatchPath;  // on the drives
    BatchPlan Plan;
    std::string Directory;  // that the game runs in, on the drives, with its drive
    FoundGame Game;
};

/// The batch `name` in `directory`, which is taken from the current one. Errors: the file's own, 5 without a command in
/// it, 76 without the directory that it goes to, 53 without the program.
Result<BatchGame> ReadBatchGame(Files& disk, std::string_view directory, std::string_view name,
                                const BatchCommand& known = {});

/// Error 75 if the reader would take one of the words for more than that word; the text names it.
Error CheckGiven(const std::vector<GivenWord>& given, LineReader reader);

/// Of such an argument.
Error MisreadWord(std::string_view word, LineReader reader);

}  // namespace lv
