#include "platform/starting/program_search.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <optional>

#include "platform/code_page.h"

namespace lv {

namespace {

constexpr std::string_view kExtensions[] = {"", ".exe", ".com", ".bat"};
constexpr int kMostWordsInAName = 16;

std::string_view TrimLeft(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(" \t"), text.size()));
}

std::string_view FirstWord(std::string_view text) {
    return text.substr(0, text.find_first_of(" \t"));
}

std::optional<std::string> FileNamed(Files& disk, std::string_view directory, std::string_view name) {
    if (name.empty()) {
        return std::nullopt;
    }
    for (const std::string_view extension : kExtensions) {
        std::string path = JoinPath(directory, std::string(name) + std::string(extension));
        if (disk.FileExists(path)) {
            return path;
        }
    }
    return std::nullopt;
}

Error NotFound(std::string_view directory, std::string_view name) {
    return MakeError(error::kFileNotFound, JoinPath(directory, name));
}

}  // namespace

std::string JoinPath(std::string_view directory, std::string_view name) {
    const bool full = name.size() >= 2 && (name[1] == ':' || name.starts_with("\\\\"));
    if (full || directory.empty()) {
        return std::string(name);
    }
    if (name.starts_with('\\')) {
        return std::string(directory.substr(0, 2)) + std::string(name);
    }
    return std::string(directory) + (directory.ends_with('\\') ? "" : "\\") + std::string(name);
}

Result<FoundProgram> FindProgram(Files& disk, std::string_view directory, std::string_view command,
                                 std::string_view program) {
    command = TrimLeft(command);
    if (!program.empty() && command.starts_with(program)) {
        const std::string path = JoinPath(directory, program);
        return disk.FileExists(path)
                   ? Result<FoundProgram>({path, std::string(TrimLeft(command.substr(program.size())))})
                   : NotFound(directory, program);
    }
    if (command.starts_with('"')) {
        const std::size_t close = std::min(command.find('"', 1), command.size());
        const std::string_view name = command.substr(1, close - 1);
        const std::string_view rest = command.substr(std::min(close + 1, command.size()));
        if (const auto path = FileNamed(disk, directory, name)) {
            return FoundProgram{*path, std::string(TrimLeft(rest))};
        }
        return NotFound(directory, name);
    }
    std::size_t end = 0;
    for (int words = 0; words < kMostWordsInAName && end < command.size(); ++words) {
        end = std::min(command.find_first_not_of(" \t", end), command.size());
        end = std::min(command.find_first_of(" \t", end), command.size());
        if (const auto path = FileNamed(disk, directory, command.substr(0, end))) {
            return FoundProgram{*path, std::string(TrimLeft(command.substr(end)))};
        }
    }
    return NotFound(directory, FirstWord(command));
}

ProgramKind KindOfProgramAt(Files& disk, std::string_view path) {
    const Result<std::unique_ptr<RandomAccessFile>> file = disk.Open(path);
    return file.Ok() && file.Value ? KindOfProgram(*file.Value, path) : ProgramKind::kUnknown;
}

Result<FoundGame> FindGame(Files& disk, std::string_view directory, std::string_view command,
                           std::string_view program) {
    command = TrimLeft(command);
    const std::string_view first = FirstWord(command);
    const bool wrapped = SameText(first, "qlaunch") || SameText(first, "qlaunch.exe");
    Result<FoundProgram> found = FindProgram(disk, directory, wrapped ? first : command, program);
    if (!wrapped || found.Ok()) {
        if (wrapped) {
            found.Value.Arguments = TrimLeft(command.substr(first.size()));
        }
        return found.Ok() ? Result<FoundGame>(FoundGame{found.Value, false, std::string(command)}) : found.Fault;
    }
    const std::string_view behind = TrimLeft(command.substr(first.size()));
    const std::string_view game = TrimLeft(behind.substr(FirstWord(behind).size()));  // behind the wrapper's library
    const Result<FoundProgram> inner = FindProgram(disk, directory, game, program);
    if (!inner.Ok()) {
        return inner.Fault;
    }
    if (KindOfProgramAt(disk, inner.Value.Path) == ProgramKind::kDos) {
        return found.Fault;
    }
    return FoundGame{inner.Value, true, std::string(game)};
}

}  // namespace lv
