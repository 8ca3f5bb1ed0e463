#include "platform/windows/windows_processes.h"

#include <algorithm>
#include <array>

#include "platform/code_page.h"
#include "platform/starting/batch_game.h"
#include "platform/windows/command_line.h"
#include "platform/windows/dosbox.h"
#include "platform/windows/started_process.h"
#include "platform/windows/system.h"
#include "platform/windows/wide_text.h"

namespace lv {

namespace {

std::wstring SystemDirectory() {
    std::array<wchar_t, MAX_PATH> path{};
    const UINT length = GetSystemDirectoryW(path.data(), static_cast<UINT>(path.size()));
    return {path.data(), length};
}

bool HasSeparator(std::string_view path) {
    return path.find_first_of("\\/:") != std::string_view::npos;
}

// As QuotedWord puts a word with a blank into quotes. Quotes in the word itself stay for the reader to stumble over.
std::string InQuotes(const std::string& word) {
    return word.find_first_of(" \t") == std::string::npos ? word : "\"" + word + "\"";
}

bool GoesToDosBox(Files& disk, const FoundGame& game) {
    return !RunsDosPrograms() && KindOfProgramAt(disk, game.Program.Path) == ProgramKind::kDos;
}

// What has another name, the command processor may know how to open.
bool IsNoProgram(Files& disk, const std::string& path) {
    const std::string name = LowerCase(path);
    return (name.ends_with(".exe") || name.ends_with(".com")) && KindOfProgramAt(disk, path) == ProgramKind::kUnknown;
}

// Windows has lost what ran these together with what ran DOS programs.
bool IsTooOldForThisWindows(Files& disk, const std::string& path) {
    return !RunsDosPrograms() && KindOfProgramAt(disk, path) == ProgramKind::kWindows16;
}

bool BeyondAscii(std::string_view text) {
    return std::ranges::any_of(text, [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
}

// Wine's command processor reads no batch in the code page of its console, and none stands on a share by itself. What
// needs nothing of it but the environment does without.
bool StartsByItself(Files& disk, const BatchGame& game) {
    return !game.Plan.showsEnvironment && KindOfProgramAt(disk, game.Game.Program.Path) == ProgramKind::kWindows;
}

Result<StartedProcess> StartWithoutBatch(Files& disk, const BatchGame& game) {
    std::vector<std::pair<std::wstring, std::wstring>> environment;
    for (const auto& [name, value] : game.Plan.environment) {
        environment.emplace_back(ToWide(name), ToWide(value));
    }
    const std::wstring program = ToWide(FromUtf8Lossy(disk.ToHost(game.Game.Program.Path)));
    const std::wstring line = L"\"" + program + L"\" " + ToWide(game.Game.Program.Arguments);
    return StartProcess(program, line, ToWide(game.Directory), CREATE_NEW_CONSOLE, environment);
}

// The batch in a console of its own: that is new, so that its code page, by which the batch is read, is nobody else's.
// On a share the command processor stands only behind a letter, which pushd gives it and popd takes away; the path
// comes as a variable, for within a line its "%" would be read. /s takes the outer quotes off, and those alone: what
// stands in the inner ones is a name with whatever signs it has.
Result<StartedProcess> StartBatchFile(const std::string& place, std::string_view name) {
    const std::wstring system = SystemDirectory();
    const std::wstring processor = system + L"\\cmd.exe";
    const std::wstring codePage = L"\"" + system + L"\\chcp.com\" 1252 >nul & ";
    const std::wstring batch = L"\".\\" + ToWide(name) + L"\"";
    if (!place.starts_with("\\\\")) {
        return StartProcess(processor, L"\"" + processor + L"\" /s /c \"" + codePage + batch + L"\"", ToWide(place),
                            CREATE_NEW_CONSOLE);
    }
    // What pushd complains of can be read for half a minute: nobody may be there to press a key.
    const std::wstring refused = L"(\"" + system + L"\\ping.exe\" -n 31 127.0.0.1 >nul)";
    const std::wstring there =
        L"pushd \"%LV_PLACE%\" & if errorlevel 1 " + refused + L" else (set LV_PLACE=& " + batch + L" & popd)";
    return StartProcess(processor, L"\"" + processor + L"\" /e:on /v:off /s /c \"" + codePage + there + L"\"", system,
                        CREATE_NEW_CONSOLE, {{L"LV_PLACE", ToWide(place)}});
}

std::string InDirectory(const std::string& directory, std::string_view name) {
    return directory + (directory.ends_with('\\') ? "" : "\\") + std::string(name);
}

}  // namespace

LineReader WindowsProcesses::ReaderOf(std::string_view directory, std::string_view command, std::string_view program) {
    if (IsBatchName(program)) {
        return LineReader::kBatch;
    }
    const Result<FoundGame> game = FindGame(disk_, JoinPath(disk_.CurrentDirectory(), directory), command, program);
    return game.Ok() && GoesToDosBox(disk_, game.Value) ? LineReader::kDosShell : LineReader::kCommandProcessor;
}

Error WindowsProcesses::StartBatch(std::string_view directory, std::string_view name, const BatchCommand& known) {
    const std::string place = FromUtf8Lossy(disk_.ToHost(directory.empty() ? "." : directory));
    const std::string batch = InDirectory(place, name);
    if (place.find('"') != std::string::npos) {
        return MakeError(error::kBadFileName, place);
    }
    if (!disk_.DirectoryExists(place)) {
        return MakeError(error::kPathNotFound, place);
    }
    if (!disk_.FileExists(batch)) {
        return MakeError(error::kFileNotFound, batch);
    }
    // What is no launch of a game's is the command processor's, whatever it says.
    const Result<BatchGame> game = ReadBatchGame(disk_, place, name, known);
    if (game.Ok() && IsNoProgram(disk_, game.Value.Game.Program.Path)) {
        return {error::kPathFileAccess, "This is no program for Windows or DOS: " + game.Value.Game.Program.Path};
    }
    if (game.Ok() && IsTooOldForThisWindows(disk_, game.Value.Game.Program.Path)) {
        return {error::kPathFileAccess,
                "This is a program for the Windows of 16 bits, which this Windows does not run, nor does DOSBox: " +
                    game.Value.Game.Program.Path};
    }
    if (game.Ok() && GoesToDosBox(disk_, game.Value.Game)) {
        const Error fault = CheckGiven(known.Given, LineReader::kDosShell);
        return fault ? fault : Watch(StartInDosBox(disk_, game.Value));
    }
    const bool onAShare = place.starts_with("\\\\");
    if (game.Ok() && (onAShare || BeyondAscii(game.Value.BatchText)) && StartsByItself(disk_, game.Value)) {
        const Error fault = Watch(StartWithoutBatch(disk_, game.Value));
        // What wants an administrator's rights is asked about by the command processor.
        if (!fault || onAShare) {
            return fault;
        }
    }
    return Watch(StartBatchFile(place, name));
}

Error WindowsProcesses::Watch(Result<StartedProcess> started) {
    if (started.Ok()) {
        lastGame_ = std::move(started.Value);
    }
    return started.Fault;
}

// The command processor's code is not the game's, and what it hands over to may go on: there is nothing to tell of but
// the time.
std::optional<GameEnd> WindowsProcesses::EndOfLastGame() {
    const std::optional<double> lasted = lastGame_.Lasted();
    if (!lasted) {
        return std::nullopt;
    }
    lastGame_.Forget();
    return GameEnd{.Seconds = *lasted, .OthersRun = true};
}

Error WindowsProcesses::StartProgram(std::string_view program, const std::vector<std::string>& arguments) {
    const std::wstring file =
        ToWide(HasSeparator(program) ? FromUtf8Lossy(disk_.ToHost(program)) : std::string(program));
    std::vector<std::wstring> words;
    for (const std::string& argument : arguments) {
        words.push_back(ToWide(argument));
        // The command processor takes a batch's parameters apart by rules of its own.
        if (IsBatchName(program) && !ReadsAsOneWord(InQuotes(argument), LineReader::kBatch)) {
            return {
                error::kPathFileAccess,
                "The command processor would not read this as one word of text, and nothing was started: " + argument};
        }
    }
    const std::wstring line = QuotedWords(words);
    const std::wstring where = ToWide(disk_.CurrentDirectory());
    SHELLEXECUTEINFOW how{};
    how.cbSize = sizeof how;
    how.fMask = SEE_MASK_FLAG_NO_UI | SEE_MASK_NOASYNC;
    how.lpFile = file.c_str();
    how.lpParameters = line.c_str();
    how.lpDirectory = where.c_str();
    how.nShow = SW_SHOWNORMAL;
    if (file.empty()) {
        return MakeError(error::kFileNotFound);
    }
    return ShellExecuteExW(&how) != 0 ? Error() : StartError(GetLastError(), std::string(program));
}

bool WindowsProcesses::HasRunnerFor(std::string_view program) {
    if (RunsDosPrograms()) {
        return true;
    }
    const ProgramKind kind = KindOfProgramAt(disk_, program);
    return kind != ProgramKind::kWindows16 && (kind != ProgramKind::kDos || !FindDosBox().empty());
}

Error WindowsProcesses::StartHelpViewer(std::string_view path) {
    return StartProgram("winhlp32.exe", {std::string(path)});
}

}  // namespace lv
