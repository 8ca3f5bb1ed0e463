#include "platform/windows/shell_link.h"

#include <array>
#include <cstdio>

#include "platform/windows/com_pointer.h"
#include "platform/windows/file_read.h"
// After windows.h, which it needs.
#include <shlobj.h>

namespace lv {

namespace {

constexpr std::uint64_t kLargestLink = 64U << 10U;
constexpr int kLongestText = 4096;  // characters
constexpr int kLongestDescription = 250;

HRESULT MakeLink(ComPointer<IShellLinkW>& link) {
    return CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW, link.Place());
}

HRESULT Describe(IShellLinkW& shell, const LinkFacts& link) {
    HRESULT done = shell.SetPath(link.Program.c_str());
    if (SUCCEEDED(done)) {
        done = shell.SetArguments(link.Arguments.c_str());
    }
    if (SUCCEEDED(done)) {
        done = shell.SetDescription(link.Description.substr(0, kLongestDescription).c_str());
    }
    if (SUCCEEDED(done)) {
        done = shell.SetIconLocation((link.Icon.empty() ? link.Program : link.Icon).c_str(), 0);
    }
    if (SUCCEEDED(done)) {
        const std::wstring directory = link.Program.substr(0, link.Program.rfind(L'\\') + 1);
        done = shell.SetWorkingDirectory(directory.c_str());
    }
    return done;
}

// By way of memory, so that the file can be replaced in one step.
HRESULT Save(IShellLinkW& shell, std::string& bytes) {
    ComPointer<IPersistStream> saved;
    ComPointer<IStream> stream;
    HRESULT done = shell.QueryInterface(IID_IPersistStream, saved.Place());
    if (SUCCEEDED(done)) {
        done = CreateStreamOnHGlobal(nullptr, TRUE, stream.PlaceOfItsKind());
    }
    if (SUCCEEDED(done)) {
        done = saved->Save(stream.Get(), TRUE);
    }
    STATSTG size{};
    if (SUCCEEDED(done)) {
        done = stream->Stat(&size, STATFLAG_NONAME);
    }
    if (SUCCEEDED(done)) {
        done = stream->Seek({}, STREAM_SEEK_SET, nullptr);
    }
    if (SUCCEEDED(done)) {
        bytes.resize(size.cbSize.LowPart);
        ULONG read = 0;
        done = stream->Read(bytes.data(), size.cbSize.LowPart, &read);
        bytes.resize(read);
    }
    return done;
}

Error ErrorOfShell(HRESULT number) {
    std::array<char, 16> hex{};
    std::snprintf(hex.data(), hex.size(), "0x%08lX", static_cast<unsigned long>(number));
    return MakeError(error::kDeviceFault, hex.data());
}

bool IsSmallFile(const std::wstring& path) {
    const auto file = OpenPlainFileAnywhere(path);
    return file.Ok() && file.Value->Size() <= kLargestLink;
}

}  // namespace

Result<std::string> BytesOfShellLink(const LinkFacts& link) {
    const Com com;
    ComPointer<IShellLinkW> shell;
    std::string bytes;
    HRESULT done = MakeLink(shell);
    if (SUCCEEDED(done)) {
        done = Describe(*shell.Get(), link);
    }
    if (SUCCEEDED(done)) {
        done = Save(*shell.Get(), bytes);
    }
    return SUCCEEDED(done) ? Result(std::move(bytes)) : Result<std::string>(ErrorOfShell(done));
}

std::optional<LinkFacts> ReadShellLink(const std::wstring& path) {
    const Com com;
    ComPointer<IShellLinkW> shell;
    ComPointer<IPersistFile> file;
    if (!IsSmallFile(path) || FAILED(MakeLink(shell)) ||
        FAILED(shell->QueryInterface(IID_IPersistFile, file.Place())) || FAILED(file->Load(path.c_str(), STGM_READ))) {
        return std::nullopt;
    }
    LinkFacts link;
    std::array<wchar_t, kLongestText> text{};
    if (SUCCEEDED(shell->GetPath(text.data(), kLongestText, nullptr, SLGP_RAWPATH))) {
        link.Program = text.data();
    }
    if (SUCCEEDED(shell->GetArguments(text.data(), kLongestText))) {
        link.Arguments = text.data();
    }
    if (SUCCEEDED(shell->GetDescription(text.data(), kLongestText))) {
        link.Description = text.data();
    }
    int index = 0;
    if (SUCCEEDED(shell->GetIconLocation(text.data(), kLongestText, &index))) {
        link.Icon = text.data();
    }
    return link;
}

}  // namespace lv
