// app/words_main.cpp
//
// The program that a user starts on Linux. It knows nothing of windows, and so has none of the toolkit's hundred
// libraries to wait for: it does what the words behind its name ask for, or becomes the program with the window.

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "app/words.h"
#include "platform/code_page.h"
#include "platform/linux/printed_text.h"
#include "platform/linux/user_directories.h"

namespace {

bool HasDisplay() {
    return std::getenv("DISPLAY") != nullptr || std::getenv("WAYLAND_DISPLAY") != nullptr;
}

}  // namespace

int main(int count, char** arguments) {
    lv::HoldStandardFiles();
    std::vector<std::string> words;
    for (int i = 1; i < count; ++i) {
        words.push_back(lv::FromUtf8Lossy(arguments[i]));
    }
    const lv::DoneWords done = words.empty() ? lv::DoneWords() : lv::DoWords(words);
    if (done.Code && (done.Told.empty() || !HasDisplay())) {
        return *done.Code;
    }
    const std::string window = lv::ProgramFileDirectory() / "lorvane3d-window";
    std::string offered = lv::ToUtf8(done.Offered);
    std::string told = lv::ToUtf8(done.Told);
    std::string code = std::to_string(done.Code.value_or(0));
    char* const offering[] = {arguments[0], offered.empty() ? nullptr : offered.data(), nullptr};
    char* const telling[] = {arguments[0], told.data(), code.data(), nullptr};
    execv(window.c_str(), done.Code ? telling : offering);  // under the name that it was called by
    std::perror(window.c_str());
    return done.Code.value_or(1);
}
