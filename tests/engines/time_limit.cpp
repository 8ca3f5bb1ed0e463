#include "tests/engines/time_limit.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <mutex>
#include <string>
#include <thread>

namespace lv {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::minutes kLongest{5};

struct Step {
    std::mutex Mutex;
    std::string Name = "the start";
    Clock::time_point Since = Clock::now();
};

Step& Current() {
    static Step step;
    return step;
}

void Begin(const std::string& name) {
    const std::lock_guard lock(Current().Mutex);
    Current().Name = name;
    Current().Since = Clock::now();
}

class Steps : public testing::EmptyTestEventListener {
    void OnTestSuiteStart(const testing::TestSuite& suite) override {
        Begin(std::string("what comes before ") + suite.name());
    }
    void OnTestStart(const testing::TestInfo& test) override {
        Begin(std::string(test.test_suite_name()) + "." + test.name());
    }
    void OnTestEnd(const testing::TestInfo& test) override {
        Begin(std::string("what comes after ") + test.test_suite_name() + "." + test.name());
    }
};

void PrintProcesses() {
    FILE* const list = popen("ps -eo pid,ppid,stat,wchan:20,etime,args --cols 160", "r");
    if (list == nullptr) {
        return;
    }
    for (int c = std::fgetc(list); c != EOF; c = std::fgetc(list)) {
        std::fputc(c, stdout);
    }
    pclose(list);
}

void Watch() {
    while (true) {
        std::this_thread::sleep_for(std::chrono::seconds(1));
        const std::lock_guard lock(Current().Mutex);
        if (Clock::now() - Current().Since > kLongest) {
            std::printf("Longer than five minutes: %s\n", Current().Name.c_str());
            PrintProcesses();
            std::fflush(nullptr);
            _exit(1);
        }
    }
}

}  // namespace

void WatchTime() {
    testing::UnitTest::GetInstance()->listeners().Append(new Steps);  // gtest deletes it
    std::thread(Watch).detach();
}

}  // namespace lv
