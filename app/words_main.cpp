// app/words_main.cpp
//
// The program that a user starts on Linux. It knows nothing of windows, and so has none of the toolkit's hundred
// libraries to wait for: it does what the words behind its name ask for, or becomes the program with the window.

#include <unistd.h>

#include <cstdio>
#include <string>
#include <vector>

#include "app/words.h"
#include "platform/code_page.h"
#include "platform/linux/user_directories.h"

int main(int count, char** arguments) {
    std::vector<std::string> words;
    for (int i = 1; i < count; ++i) {
        words.push_back(lv::FromUtf8Lossy(arguments[i]));
    }
    const lv::DoneWords done = words.empty() ? lv::DoneWords() : lv::DoWords(words);
    if (done.Code) {
        return *done.Code;
    }
    const std::string window = lv::ProgramFileDirectory() / "lorvane3d-window";
    std::string offered = lv::ToUtf8(done.Offered);
    char* const passed[] = {arguments[0], offered.empty() ? nullptr : offered.data(), nullptr};
    execv(window.c_str(), passed);  // under the name that it was called by
    std::perror(window.c_str());
    return 1;
}
