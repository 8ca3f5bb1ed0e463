#include "platform/starting/batch_game.h"

#include <utility>

namespace lv {

Result<BatchGame> ReadBatchGame(Files& disk, std::string_view directory, std::string_view name,
                                const BatchCommand& known) {
    BatchGame game;
    game.BatchPath = JoinPath(JoinPath(disk.CurrentDirectory(), directory), name);
    Result<std::string> text = disk.Read(game.BatchPath);
    if (!text.Ok()) {
        return MakeError(text.Fault.Number, game.BatchPath);
    }
    game.BatchText = std::move(text.Value);
    game.Plan = ParseBatch(game.BatchText, known.Given);
    if (game.Plan.command.empty()) {
        return Error{error::kInvalidCall, "There is no command in " + game.BatchPath};
    }
    const std::string& drive = game.Plan.drive;
    const std::string base = drive.empty() ? JoinPath(disk.CurrentDirectory(), directory) : drive + "\\";
    game.Directory = game.Plan.directory.empty() ? JoinPath(disk.CurrentDirectory(), directory)
                                                 : JoinPath(base, game.Plan.directory);
    if (!disk.DirectoryExists(game.Directory)) {
        return MakeError(error::kPathNotFound, game.Directory);
    }
    Result<FoundGame> found = FindGame(disk, game.Directory, game.Plan.command, known.Program);
    if (!found.Ok()) {
        return found.Fault;
    }
    game.Game = std::move(found.Value);
    return game;
}

Error MisreadWord(std::string_view word, LineReader reader) {
    const char* const name = reader == LineReader::kNobody     ? "A command line"
                             : reader == LineReader::kDosShell ? "DOS's shell"
                                                               : "The command processor";
    return {
        error::kPathFileAccess,
        std::string(name) + " would not read this as one word of text, and nothing was started: " + std::string(word)};
}

Error CheckGiven(const std::vector<GivenWord>& given, LineReader reader) {
    for (const GivenWord& word : given) {
        if (!ReadsAsOneWord(word.Written, reader)) {
            return MisreadWord(word.Written, reader);
        }
    }
    return {};
}

}  // namespace lv
