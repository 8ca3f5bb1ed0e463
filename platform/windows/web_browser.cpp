#include "platform/web_browser.h"

#include <array>

#include "platform/windows/file_handle.h"
#include "platform/windows/replace_file.h"
#include "platform/windows/wide_text.h"

namespace lv {

namespace {

// A page, by which the system can name the program for pages. Gone when this goes.
class TemporaryPage {
  public:
    TemporaryPage() {
        std::array<wchar_t, MAX_PATH + 1> directory{};
        GetTempPathW(static_cast<DWORD>(directory.size()), directory.data());
        path_ = std::wstring(directory.data()) + L"temphtm.HTM";
        const FileHandle file(
            CreateFileW(path_.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_TEMPORARY, nullptr));
        if (file.IsOpen()) {
            WriteAll(file.Get(), "<HTML> <\\HTML>\r\n");
        }
    }
    ~TemporaryPage() { DeleteFileW(path_.c_str()); }
    TemporaryPage(const TemporaryPage&) = delete;
    TemporaryPage& operator=(const TemporaryPage&) = delete;

    [[nodiscard]] const std::wstring& Path() const { return path_; }

  private:
    std::wstring path_;
};

// Empty if there is none.
std::wstring DefaultBrowser() {
    const TemporaryPage page;
    std::array<wchar_t, MAX_PATH + 1> program{};
    const auto found = reinterpret_cast<INT_PTR>(FindExecutableW(page.Path().c_str(), nullptr, program.data()));
    constexpr INT_PTR kLastError = 32;
    return found > kLastError ? std::wstring(program.data()) : std::wstring();
}

}  // namespace

Error OpenInBrowser(const std::string& address) {
    const std::wstring browser = DefaultBrowser();
    if (browser.empty()) {
        return MakeError(error::kFileNotFound);
    }
    const std::wstring page = ToWide(address);
    SHELLEXECUTEINFOW how{};
    how.cbSize = sizeof how;
    how.fMask = SEE_MASK_FLAG_NO_UI | SEE_MASK_NOASYNC;
    how.lpVerb = L"open";
    how.lpFile = browser.c_str();
    how.lpParameters = page.c_str();
    how.nShow = SW_SHOWNORMAL;
    return ShellExecuteExW(&how) != 0 ? Error() : MakeError(error::kDeviceFault);
}

}  // namespace lv
