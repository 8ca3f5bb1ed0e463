// sample/standins/show_native.cpp
//
// Stands in for a Linux game: shows the directory it was started in, its arguments and its environment, each on a line
// of its own, and writes the same to output.txt in that directory. The last line is "end".
// "-wait MILLISECONDS" among the arguments waits first; the variable STAND_IN_STAYS says for how many more it stays.

#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <thread>

extern char** environ;  // NOLINT: POSIX leaves its declaration to the program

int main(int count, char** arguments) {
    for (int i = 1; i + 1 < count; ++i) {
        if (std::strcmp(arguments[i], "-wait") == 0) {
            std::this_thread::sleep_for(std::chrono::milliseconds(std::atoi(arguments[i + 1])));
        }
    }
    std::string text = "DIRECTORY=" + std::filesystem::current_path().string() + "\n";
    text += "PROGRAM=" + std::string(arguments[0]) + "\n";
    for (int i = 1; i < count; ++i) {
        text += "ARGUMENT=" + std::string(arguments[i]) + "\n";
    }
    for (char** entry = environ; *entry != nullptr; ++entry) {
        text += std::string(*entry) + "\n";
    }
    text += "end\n";
    std::fputs(text.c_str(), stdout);
    std::FILE* file = std::fopen("output.txt", "wb");
    if (file == nullptr) {
        return 1;
    }
    const bool written = std::fputs(text.c_str(), file) >= 0;
    const bool closed = std::fclose(file) == 0;
    if (const char* const stay = std::getenv("STAND_IN_STAYS")) {
        std::fflush(stdout);
        std::this_thread::sleep_for(std::chrono::milliseconds(std::atoi(stay)));
    }
    return closed && written ? 0 : 1;
}
