#include "platform/windows/windows_processes.h"

#include <array>

#include "platform/code_page.h"
#include "platform/windows/command_line.h"
#include "platform/windows/system.h"
#include "platform/windows/system_error.h"
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

// The number of the program's own list, and the system's words.
Error StartError(DWORD failed, const std::string& about) {
    const bool notFound = failed == ERROR_FILE_NOT_FOUND || failed == ERROR_PATH_NOT_FOUND;
    const int number = notFound ? error::kFileNotFound : ErrorOfSystem(failed).Number;
    return {number, SystemText(failed) + ": " + about};
}

// As QuotedWord puts a word with a blank into quotes. Quotes in the word itself stay for the reader to stumble over.
std::string InQuotes(const std::string& word) {
    return word.find_first_of(" \t") == std::string::npos ? word : "\"" + word + "\"";
}

std::string InDirectory(const std::string& directory, std::string_view name) {
    return directory + (directory.ends_with('\\') ? "" : "\\") + std::string(name);
}

}  // namespace

LineReader WindowsProcesses::ReaderOf(std::string_view, std::string_view, std::string_view program) {
    return IsBatchName(program) ? LineReader::kBatch : LineReader::kCommandProcessor;
}

Error WindowsProcesses::StartBatch(std::string_view directory, std::string_view name, const BatchCommand&) {
    const std::string place = FromUtf8Lossy(disk_.ToHost(directory.empty() ? "." : directory));
    const std::string batch = InDirectory(place, name);
    if (!disk_.DirectoryExists(place)) {
        return MakeError(error::kPathNotFound, place);
    }
    if (!disk_.FileExists(batch)) {
        return MakeError(error::kFileNotFound, batch);
    }
    const bool onAShare = place.starts_with("\\\\");
    const std::wstring processor = SystemDirectory() + L"\\cmd.exe";
    const std::wstring said = onAShare ? ToWide(batch) : L".\\" + ToWide(name);
    // With /s it takes the outer quotes off, and those alone: a name with "&" in it stays within the inner ones.
    std::wstring line = L"\"" + processor + L"\" /s /c \"\"" + said + L"\"\"";
    STARTUPINFOW how{};
    how.cb = sizeof how;
    how.dwFlags = STARTF_USESHOWWINDOW;
    how.wShowWindow = SW_SHOWNORMAL;
    PROCESS_INFORMATION started{};
    const std::wstring where = onAShare ? SystemDirectory() : ToWide(place);
    if (CreateProcessW(processor.c_str(), line.data(), nullptr, nullptr, FALSE, CREATE_NEW_CONSOLE, nullptr,
                       where.c_str(), &how, &started) == 0) {
        return StartError(GetLastError(), batch);
    }
    CloseHandle(started.hThread);
    CloseHandle(started.hProcess);
    return {};
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

Error WindowsProcesses::StartHelpViewer(std::string_view path) {
    return StartProgram("winhlp32.exe", {std::string(path)});
}

}  // namespace lv
