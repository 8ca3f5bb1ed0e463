#include "platform/windows/printed_text.h"

#include "platform/windows/file_handle.h"
#include "platform/windows/system.h"
#include "platform/windows/wide_text.h"

namespace lv {

namespace {

std::string WithReturns(std::string_view text) {
    std::string lines;
    for (const char c : text) {
        lines += c == '\n' ? "\r\n" : std::string(1, c);
    }
    return lines;
}

bool WriteBytes(HANDLE file, std::string_view bytes) {
    DWORD written = 0;
    return WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) != 0 &&
           written == bytes.size();
}

bool WriteTo(HANDLE file, std::wstring_view wide) {
    DWORD written = 0;
    DWORD mode = 0;
    if (GetConsoleMode(file, &mode) != 0) {
        return WriteConsoleW(file, wide.data(), static_cast<DWORD>(wide.size()), &written, nullptr) != 0;
    }
    const auto utf8 = Utf8FromWide(wide);
    return utf8 && WriteBytes(file, *utf8);
}

}  // namespace

Error Print(PrintedTo where, std::string_view text) {
    const std::wstring wide = ToWide(WithReturns(text));
    if (wide.empty()) {
        return {};
    }
    HANDLE given = GetStdHandle(where == PrintedTo::Output ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE);
    if (given != nullptr && given != INVALID_HANDLE_VALUE && GetFileType(given) != FILE_TYPE_UNKNOWN) {
        return WriteTo(given, wide) ? Error() : MakeError(error::kDeviceFault);
    }
    (void)AttachConsole(ATTACH_PARENT_PROCESS);  // fails where it is attached already
    const FileHandle console(CreateFileW(L"CONOUT$", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                         nullptr, OPEN_EXISTING, 0, nullptr));
    if (console.IsOpen()) {
        (void)WriteTo(console.Get(), wide);
    }
    return {};
}

std::vector<std::string> WordsOfCommandLine() {
    std::vector<std::string> words;
    int count = 0;
    wchar_t** const arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    for (int i = 1; arguments != nullptr && i < count; ++i) {
        words.push_back(FromWideLossy(arguments[i]));
    }
    LocalFree(arguments);
    return words;
}

}  // namespace lv
