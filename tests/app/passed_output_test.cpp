#include "app/passed_output.h"

#include <fcntl.h>
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <string>
#include <thread>

#include "tests/support/output_to.h"

namespace lv {

namespace {

using Seconds = std::chrono::duration<double>;

/// Whoever reads this program's standard output, by a pipe of two pages.
constexpr int kManyTimes = 60;
constexpr double kWaitedEachTime = 50;  // seconds: a second for nearly each of them

struct PassedOutputTest : testing::Test {
    PassedOutputTest() : before_(std::signal(SIGPIPE, SIG_IGN)) {
        EXPECT_EQ(pipe2(ends_, O_CLOEXEC), 0);
        fcntl(ends_[0], F_SETPIPE_SZ, 8192);
        fcntl(ends_[0], F_SETFL, O_NONBLOCK);
    }
    ~PassedOutputTest() override {
        CloseReader();
        close(ends_[1]);
        std::signal(SIGPIPE, before_);
    }
    void CloseReader() {
        if (ends_[0] >= 0) {
            close(ends_[0]);
        }
        ends_[0] = -1;
    }
    double SecondsToPass(const std::string& bytes) {
        const OutputTo redirected(ends_[1]);
        const auto begun = std::chrono::steady_clock::now();
        Output.Pass(bytes);
        return Seconds(std::chrono::steady_clock::now() - begun).count();
    }
    double SecondsToPassManyTimes(const std::string& bytes) {
        double seconds = 0;
        for (int i = 0; i < kManyTimes; ++i) {
            seconds += SecondsToPass(bytes);
        }
        return seconds;
    }
    /// What stands in the pipe.
    std::string Read() const {
        std::string all;
        char piece[4096];
        for (ssize_t count = 0; (count = read(ends_[0], piece, sizeof piece)) > 0;) {
            all.append(piece, static_cast<std::size_t>(count));
        }
        return all;
    }

    PassedOutput Output;

  private:
    int ends_[2] = {-1, -1};
    void (*before_)(int);
};

}  // namespace

TEST_F(PassedOutputTest, IsWhatWasPrinted) {
    SecondsToPass("one\n");
    SecondsToPass("");
    SecondsToPass(std::string("t\0o\n", 4));
    EXPECT_EQ(Read(), std::string("one\nt\0o\n", 8));
}

TEST_F(PassedOutputTest, ReachesAReaderWhoTakesItBitByBit) {
    std::string all;
    for (int i = 0; all.size() < 50'000; ++i) {
        all += std::to_string(i) + " ";
    }
    std::string taken;
    std::jthread reader([&](const std::stop_token& stop) {
        while (!stop.stop_requested()) {
            taken += Read();
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
    });
    SecondsToPass(all);
    reader.request_stop();
    reader.join();
    taken += Read();
    EXPECT_EQ(taken, all);
}

TEST_F(PassedOutputTest, WaitsForAReaderOnceAndNoMore) {
    const std::string much(20'000, 'a');
    EXPECT_GE(SecondsToPass(much), 0.9);
    EXPECT_LT(SecondsToPassManyTimes(much), kWaitedEachTime);
    EXPECT_EQ(Read(), std::string(8192, 'a'));
}

TEST_F(PassedOutputTest, GivesASlowReaderWhatItHasRoomForAgain) {
    SecondsToPass(std::string(20'000, 'a'));
    Read();
    SecondsToPass("more");
    EXPECT_EQ(Read(), "more");
    EXPECT_GE(SecondsToPass(std::string(20'000, 'b')), 0.9) << "it has taken something since, and is waited for again";
}

TEST_F(PassedOutputTest, GivesOneWhoHasGoneNothingMore) {
    CloseReader();
    EXPECT_LT(SecondsToPassManyTimes(std::string(100'000, 'a')), kWaitedEachTime);
}

}  // namespace lv
