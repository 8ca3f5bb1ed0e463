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
    if (const auto code = words.empty() ? std::nullopt : lv::DoWords(words)) {
        return *code;
    }
    const std::string window = lv::ProgramFileDirectory() / "lorvane3d-window";
    execv(window.c_str(), arguments);  // under the name that it was called by
    std::perror(window.c_str());
    return 1;
}
