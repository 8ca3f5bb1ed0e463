#include "platform/linux/linux_processes.h"

#include <algorithm>
#include <cstdlib>

#include "platform/code_page.h"
#include "platform/linux/files/host_read.h"
#include "platform/linux/starting/dosbox_road.h"
#include "platform/linux/starting/native_road.h"
#include "platform/linux/starting/wine_road.h"
#include "platform/linux/user_directories.h"

namespace lv {

namespace {

Error UnknownKind(std::string_view path) {
    return {error::kPathFileAccess, "This is no program for Linux, Windows or DOS: " + std::string(path)};
}

std::string HostProgram(Files& disk, const HostPlaces& places, std::string_view program) {
    if (program.starts_with('/')) {
        return ToUtf8(program);
    }
    const bool isPath = program.find('\\') != std::string_view::npos || program.find(':') != std::string_view::npos;
    return isPath ? disk.ToHost(program) : FindOnPath(places.SearchPath, ToUtf8(program));
}

bool HasExeName(std::string_view program) {
    return program.size() > 4 && SameText(program.substr(program.size() - 4), ".exe");
}

// An argument that is the full path of a file or a directory on the drives names it as the program will know it.
std::string HostArgument(Files& disk, const HostPlaces& places, const std::string& argument, bool forWine) {
    const bool fullPath = argument.size() > 2 && argument[1] == ':' && argument[2] == '\\';
    if (!fullPath || (!disk.FileExists(argument) && !disk.DirectoryExists(argument))) {
        return ToUtf8(argument);
    }
    const std::string host = disk.ToHost(argument);
    return forWine ? WinePathOf(places.WinePrefix, host).value_or(host) : host;
}

LineReader ReaderFor(ProgramKind kind) {
    return kind == ProgramKind::kBatch ? LineReader::kBatch
           : kind == ProgramKind::kDos ? LineReader::kDosShell
                                       : LineReader::kNobody;
}

// The words of a command line, each in quotes where blanks would part it.
std::string Quoted(const std::vector<std::string>& words) {
    std::string line;
    for (const std::string& word : words) {
        const bool quote = word.empty() || word.find_first_of(" \t") != std::string::npos;
        line += (line.empty() ? "" : " ") + (quote ? "\"" + word + "\"" : word);
    }
    return line;
}

// In quotes a blank parts nothing; DOS's shell knows them as well.
Error CheckArguments(const std::vector<std::string>& arguments, LineReader reader) {
    for (const std::string& argument : arguments) {
        std::string word = argument;
        std::replace(word.begin(), word.end(), ' ', '_');
        if (reader != LineReader::kNobody && !ReadsAsOneWord(word, reader)) {
            return MisreadWord(argument, reader);
        }
    }
    return {};
}

}  // namespace

HostPlaces LinuxProcesses::Places() const {
    HostPlaces places = places_;
    if (places.SearchPath.empty()) {
        const char* path = std::getenv("PATH");
        places.SearchPath = path != nullptr ? path : "/usr/local/bin:/usr/bin:/bin:/usr/local/games:/usr/games";
    }
    if (places.Cache.empty()) {
        places.Cache = CacheDirectory();
    }
    if (places.WinePrefix.empty()) {
        places.WinePrefix = WinePrefix();
    }
    if (places.PauseHelper.empty()) {
        places.PauseHelper = ProgramFileDirectory() / "lorvane3d-pause";
    }
    if (places.State.empty()) {
        places.State = StateDirectory();
    }
    if (places.WatchHelper.empty()) {
        places.WatchHelper = ProgramFileDirectory() / "lorvane3d-watch";
    }
    return places;
}

Result<HostCommand> LinuxProcesses::ByRoad(const GameStart& start, const std::vector<GivenWord>& given) {
    const ProgramKind kind = KindOfProgramAt(disk_, start.Game.Program.Path);
    if (const Error fault = CheckGiven(given, ReaderFor(kind))) {
        return fault;
    }
    if (start.Plan.given.size() != given.size()) {
        return Error{error::kPathFileAccess,
                     "The batch is not as it was written, and nothing was started: " + start.BatchPath};
    }
    switch (kind) {
        case ProgramKind::kNative:
            return NativeRoad(disk_, start);
        case ProgramKind::kWindows:
        case ProgramKind::kWindows16:
            return WineRoad(disk_, start);
        case ProgramKind::kBatch:
            return WineBatchRoad(disk_, start);
        case ProgramKind::kDos:
            return DosBoxRoad(disk_, start);
        case ProgramKind::kUnknown:
            break;
    }
    return UnknownKind(start.Game.Program.Path);
}

Result<HostCommand> LinuxProcesses::PlanBatch(std::string_view directory, std::string_view name,
                                              const BatchCommand& known) {
    Result<BatchGame> game = ReadBatchGame(disk_, directory, name, known);
    if (!game.Ok()) {
        return game.Fault;
    }
    const GameStart start{std::move(game.Value), OwnEnvironment(), Places()};
    return ByRoad(start, known.Given);
}

Result<HostCommand> LinuxProcesses::PlanProgram(std::string_view program, const std::vector<std::string>& arguments) {
    const HostPlaces places = Places();
    const std::string host = HostProgram(disk_, places, program);
    const auto file = OpenHostFileAnywhere(host);
    const bool found = file.Ok() && file.Value->Size() > 0;
    // A name like "notepad.exe" that this system does not know is one that Wine may.
    const bool isName = program.find_first_of("\\/:") == std::string_view::npos;
    const bool onlyWineMayKnow = !found && isName && HasExeName(program);
    if (!found && !onlyWineMayKnow) {
        return MakeError(error::kFileNotFound, std::string(program));
    }
    const ProgramKind kind = onlyWineMayKnow ? ProgramKind::kWindows : KindOfProgram(*file.Value, host);
    const bool forWine =
        kind == ProgramKind::kWindows || kind == ProgramKind::kWindows16 || kind == ProgramKind::kBatch;
    if (const Error fault = CheckArguments(arguments, ReaderFor(kind))) {
        return fault;
    }
    HostCommand command{host, {}, OwnEnvironment(), disk_.ToHost(disk_.CurrentDirectory())};
    for (const std::string& argument : arguments) {
        command.Arguments.push_back(HostArgument(disk_, places, argument, forWine));
    }
    if (kind == ProgramKind::kNative) {
        return command;
    }
    if (forWine) {
        command.Arguments.insert(command.Arguments.begin(), found ? host : ToUtf8(program));
        Result<HostCommand> wine = WineCommand(places, std::move(command.Environment), std::move(command.Arguments));
        wine.Value.Directory = command.Directory;
        return wine;
    }
    const std::string path = disk_.FromHost(host);
    const std::size_t slash = path.rfind('\\');
    if (kind != ProgramKind::kDos || slash == std::string::npos) {
        return UnknownKind(program);
    }
    GameStart start;
    start.Places = places;
    start.Environment = std::move(command.Environment);
    start.Directory = path.substr(0, std::max<std::size_t>(slash, 3));
    start.Game.Program.Path = path;
    start.Game.Command = Quoted(arguments);
    start.Game.Command.insert(0, path.substr(slash + 1) + (arguments.empty() ? "" : " "));
    return DosBoxRoad(disk_, start);
}

LineReader LinuxProcesses::ReaderOf(std::string_view directory, std::string_view command, std::string_view program) {
    const std::string place = JoinPath(disk_.CurrentDirectory(), directory);
    const Result<FoundGame> game = FindGame(disk_, place, command, program);
    return game.Ok() ? ReaderFor(KindOfProgramAt(disk_, game.Value.Program.Path)) : LineReader::kNobody;
}

Error LinuxProcesses::StartBatch(std::string_view directory, std::string_view name, const BatchCommand& known) {
    const Result<HostCommand> command = PlanBatch(directory, name, known);
    return command.Ok() ? lastGame_.Start(command.Value, Places()) : command.Fault;
}

Result<StartPlan> LinuxProcesses::PlanStart(Files& disk, std::string_view directory, std::string_view name,
                                            const BatchCommand& known) {
    HostPlaces places = Places();
    places.Cache /= "dry_run";  // what DOSBox reads is written, and another start may be about to read its own
    const Result<HostCommand> command = LinuxProcesses(disk, places).PlanBatch(directory, name, known);
    if (!command.Ok()) {
        return command.Fault;
    }
    if (!command.Value.ReadOnce.empty()) {
        std::error_code ignored;
        std::filesystem::remove(command.Value.ReadOnce, ignored);
    }
    StartPlan plan;
    plan.Directory = FromUtf8Lossy(command.Value.Directory);
    plan.Words = {FromUtf8Lossy(command.Value.Program)};
    for (const std::string& argument : command.Value.Arguments) {
        plan.Words.push_back(FromUtf8Lossy(argument));
    }
    const std::vector<std::string> own = OwnEnvironment();
    for (const std::string& variable : command.Value.Environment) {
        if (std::ranges::find(own, variable) == own.end()) {
            plan.Environment.push_back(FromUtf8Lossy(variable));
        }
    }
    return plan;
}

bool LinuxProcesses::HasRunnerFor(std::string_view program) {
    switch (KindOfProgramAt(disk_, program)) {
        case ProgramKind::kWindows:
        case ProgramKind::kWindows16:
        case ProgramKind::kBatch:
            return !FindOnPath(Places().SearchPath, "wine").empty();
        case ProgramKind::kDos:
            return !FindOnPath(Places().SearchPath, "dosbox").empty();
        case ProgramKind::kNative:
        case ProgramKind::kUnknown:
            break;
    }
    return true;
}

Error LinuxProcesses::StartProgram(std::string_view program, const std::vector<std::string>& arguments) {
    const Result<HostCommand> command = PlanProgram(program, arguments);
    return command.Ok() ? StartDetached(command.Value) : command.Fault;
}

}  // namespace lv
