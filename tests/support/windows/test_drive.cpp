#include "tests/support/windows/test_drive.h"

#include <array>
#include <cstdio>
#include <cstdlib>

#include "platform/windows/file_handle.h"
#include "platform/windows/system.h"

namespace lv {

namespace {

// False if something is still in use.
bool Empty(const std::wstring& directory) {
    WIN32_FIND_DATAW found{};
    HANDLE find = FindFirstFileW((directory + L"\\*").c_str(), &found);
    if (find == INVALID_HANDLE_VALUE) {
        return true;
    }
    bool emptied = true;
    do {
        const std::wstring name = found.cFileName;
        if (name == L"." || name == L"..") {
            continue;
        }
        const std::wstring path = directory + L"\\" + name;
        SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
        if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
            emptied = Empty(path) && RemoveDirectoryW(path.c_str()) != 0 && emptied;
        } else {
            emptied = DeleteFileW(path.c_str()) != 0 && emptied;
        }
    } while (FindNextFileW(find, &found) != 0);
    FindClose(find);
    return emptied;
}

// A program that has just ended may not have let go of its directory yet.
void EmptyInTheEnd(const std::wstring& directory) {
    for (int tries = 0; tries < 100 && !Empty(directory); ++tries) {
        Sleep(50);
    }
}

// By the prefix, so that long paths go too.
std::wstring RootOf(char letter) {
    return {L'\\', L'\\', L'?', L'\\', static_cast<wchar_t>(letter), L':'};
}

}  // namespace

TestDrive::TestDrive() : letter_('\0') {
    const char* drive = std::getenv("LV_TEST_DRIVE");
    if (drive == nullptr || *drive == '\0') {
        std::fputs("These tests empty a drive: LV_TEST_DRIVE has to name it.\n", stderr);
        std::exit(2);
    }
    letter_ = *drive;
    EmptyInTheEnd(RootOf(letter_));
}

TestDrive::~TestDrive() {
    EmptyInTheEnd(RootOf(letter_));
}

std::string BytesOf(const std::wstring& file) {
    const FileHandle open(CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                      OPEN_EXISTING, 0, nullptr));
    if (!open.IsOpen()) {
        return "(none)";
    }
    std::string bytes;
    std::array<char, 4096> buffer{};
    DWORD got = 0;
    while (ReadFile(open.Get(), buffer.data(), static_cast<DWORD>(buffer.size()), &got, nullptr) != 0 && got > 0) {
        bytes.append(buffer.data(), got);
    }
    return bytes;
}

void WriteBytes(const std::wstring& file, std::string_view bytes) {
    const FileHandle open(CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    DWORD written = 0;
    WriteFile(open.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}

}  // namespace lv
