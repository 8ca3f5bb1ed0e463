#include "platform/linux/linux_instance.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <optional>
#include <thread>
#include <vector>

namespace lv {

namespace {

/// A name of this test's own.
std::string ConfigOf(const char* test) {
    return "/nowhere/" + std::to_string(getpid()) + "/" + test;
}

/// Another process that claims the name, writes "1" or "0" into a pipe, and serves until it is killed. Each raise is
/// an "r" in the pipe.
class OtherProcess {
  public:
    OtherProcess(const std::string& config, bool serves) {
        int ends[2];
        if (pipe2(ends, O_CLOEXEC) != 0) {
            return;
        }
        child_ = fork();
        if (child_ == 0) {
            Run(config, serves, ends[1]);
        }
        close(ends[1]);
        pipe_ = ends[0];
    }
    ~OtherProcess() {
        Kill();
        if (pipe_ >= 0) {
            close(pipe_);
        }
    }
    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;

    /// The next sign from the other process; a blank if none comes within ten seconds.
    char Next() {
        pollfd waiting{pipe_, POLLIN, 0};
        char sign = ' ';
        if (poll(&waiting, 1, 10000) > 0 && read(pipe_, &sign, 1) == 1) {
            return sign;
        }
        return ' ';
    }
    void Kill() {
        if (child_ > 0) {
            kill(child_, SIGKILL);
            waitpid(child_, nullptr, 0);
            child_ = -1;
        }
    }

  private:
    [[noreturn]] static void Run(const std::string& config, bool serves, int pipe) {
        LinuxInstance instance(config);
        instance.OnRaise = [pipe] { (void)!write(pipe, "r", 1); };
        instance.OnRequest = [](std::string_view request) { return "<" + std::string(request) + ">"; };
        (void)!write(pipe, instance.Claim() ? "1" : "0", 1);
        for (;;) {
            pollfd waiting{serves ? instance.Descriptor() : -1, POLLIN, 0};
            poll(&waiting, 1, 1000);
            if (serves) {
                instance.Serve();
            }
        }
    }

    pid_t child_ = -1;
    int pipe_ = -1;
};

/// Another process that asks, and ends with 0 if the answer is "done".
pid_t AskFromAnotherProcess(const char* test, const char* request) {
    const std::string config = ConfigOf(test);
    const pid_t child = fork();
    if (child == 0) {
        _exit(LinuxInstance(config).Ask(request, kPatienceMs).Answer == "done" ? 0 : 1);
    }
    return child;
}

/// However long the other process or thread takes to get there.
void ServeUntil(LinuxInstance& instance, const std::function<bool()>& isOver) {
    while (!isOver()) {
        instance.Serve();
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
}

double SecondsOf(const std::function<void()>& act) {
    const auto start = std::chrono::steady_clock::now();
    act();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

}  // namespace

TEST(LinuxInstance, TheFirstIsAlone) {
    LinuxInstance first(ConfigOf("alone"));
    EXPECT_EQ(first.Descriptor(), -1);
    EXPECT_TRUE(first.Claim());
    EXPECT_GE(first.Descriptor(), 0);
}

TEST(LinuxInstance, ClaimingTwiceIsNoSecondStart) {
    LinuxInstance first(ConfigOf("twice"));
    EXPECT_TRUE(first.Claim());
    EXPECT_TRUE(first.Claim());
}

TEST(LinuxInstance, ASecondStartRaisesTheFirst) {
    OtherProcess first(ConfigOf("second"), true);
    ASSERT_EQ(first.Next(), '1');
    LinuxInstance second(ConfigOf("second"));
    EXPECT_FALSE(second.Claim());
    EXPECT_EQ(second.Descriptor(), -1);
    EXPECT_EQ(first.Next(), 'r');
}

TEST(LinuxInstance, EverySecondStartRaisesTheFirst) {
    OtherProcess first(ConfigOf("every"), true);
    ASSERT_EQ(first.Next(), '1');
    for (int start = 0; start < 5; ++start) {
        LinuxInstance later(ConfigOf("every"));
        EXPECT_FALSE(later.Claim());
        EXPECT_EQ(first.Next(), 'r');
    }
}

TEST(LinuxInstance, AKilledFirstLeavesNothingBehind) {
    OtherProcess first(ConfigOf("killed"), true);
    ASSERT_EQ(first.Next(), '1');
    first.Kill();
    LinuxInstance second(ConfigOf("killed"));
    EXPECT_TRUE(second.Claim());
}

TEST(LinuxInstance, AnEndedFirstLeavesNothingBehind) {
    { EXPECT_TRUE(LinuxInstance(ConfigOf("ended")).Claim()); }
    EXPECT_TRUE(LinuxInstance(ConfigOf("ended")).Claim());
}

TEST(LinuxInstance, AFirstThatHangsIsStillTheFirst) {
    OtherProcess first(ConfigOf("hangs"), false);
    ASSERT_EQ(first.Next(), '1');
    LinuxInstance second(ConfigOf("hangs"));
    bool claimed = true;
    const double seconds = SecondsOf([&] { claimed = second.Claim(); });
    EXPECT_FALSE(claimed);
    EXPECT_GE(seconds, 1.9);
    EXPECT_LT(seconds, 8);
}

TEST(LinuxInstance, AFirstThatDiesWhileItIsAskedMakesRoom) {
    std::optional<OtherProcess> first(std::in_place, ConfigOf("dies"), false);
    ASSERT_EQ(first->Next(), '1');
    std::thread killer([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        first->Kill();
    });
    LinuxInstance second(ConfigOf("dies"));
    EXPECT_TRUE(second.Claim());
    killer.join();
}

TEST(LinuxInstance, OtherSettingsAreAnotherProgram) {
    LinuxInstance first(ConfigOf("here"));
    LinuxInstance other(ConfigOf("there"));
    EXPECT_TRUE(first.Claim());
    EXPECT_TRUE(other.Claim());
}

TEST(LinuxInstance, ServingWithoutAKnockReturnsAtOnce) {
    LinuxInstance first(ConfigOf("quiet"));
    int raises = 0;
    first.OnRaise = [&] { ++raises; };
    first.Serve();  // before the claim
    ASSERT_TRUE(first.Claim());
    EXPECT_LT(SecondsOf([&] { first.Serve(); }), 1);
    EXPECT_EQ(raises, 0);
}

TEST(LinuxInstance, TheListenerIsNotInheritedByGames) {
    LinuxInstance first(ConfigOf("inherit"));
    ASSERT_TRUE(first.Claim());
    EXPECT_NE(fcntl(first.Descriptor(), F_GETFD) & FD_CLOEXEC, 0);
}

TEST(LinuxInstance, AnswersWhatAnotherStartAsks) {
    OtherProcess first(ConfigOf("asked"), true);
    ASSERT_EQ(first.Next(), '1');
    LinuxInstance second(ConfigOf("asked"));
    EXPECT_EQ(second.Ask("--launch", kPatienceMs).Answer, "<--launch>");
    EXPECT_EQ(second.Ask(std::string("a\0b\n", 4), kPatienceMs).Answer, "<" + std::string("a\0b\n", 4) + ">");
    EXPECT_EQ(second.Ask("", kPatienceMs).Answer, "<>");
    EXPECT_FALSE(second.Claim()) << "it still raises as well";
    EXPECT_EQ(first.Next(), 'r');
}

TEST(LinuxInstance, WhatSomebodyHasAskedWhoGaveUpIsNotDone) {
    LinuxInstance first(ConfigOf("given_up"));
    ASSERT_TRUE(first.Claim());
    std::vector<std::string> done;
    first.OnRequest = [&](std::string_view request) {
        done.emplace_back(request);
        return "done";
    };
    const pid_t impatient = AskFromAnotherProcess("given_up", "--import");
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    kill(impatient, SIGINT);
    waitpid(impatient, nullptr, 0);
    const pid_t patient = AskFromAnotherProcess("given_up", "--launch");
    int status = 0;
    ServeUntil(first, [&] { return waitpid(patient, &status, WNOHANG) == patient; });
    EXPECT_EQ(done, std::vector<std::string>{"--launch"});
    EXPECT_EQ(WEXITSTATUS(status), 0) << "who has waited is answered";
}

TEST(LinuxInstance, AsksAndAnswersInManyParts) {
    OtherProcess first(ConfigOf("long"), true);
    ASSERT_EQ(first.Next(), '1');
    const std::string longest(kLongestRequest, 'x');
    EXPECT_EQ(LinuxInstance(ConfigOf("long")).Ask(longest, kPatienceMs).Answer, "<" + longest + ">");
    EXPECT_EQ(LinuxInstance(ConfigOf("long")).Ask(longest + "x", kPatienceMs).Answer, std::nullopt);
}

TEST(LinuxInstance, WithoutAnotherNobodyAnswers) {
    const Asked asked = LinuxInstance(ConfigOf("nobody")).Ask("--launch", kPatienceMs);
    EXPECT_FALSE(asked.IsRunning);
    EXPECT_EQ(asked.Answer, std::nullopt);
}

TEST(LinuxInstance, OneThatEndsWhileItIsAskedGivesNoAnswer) {
    OtherProcess first(ConfigOf("ends"), false);
    ASSERT_EQ(first.Next(), '1');
    std::thread end([&first] {
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        first.Kill();
    });
    const Asked asked = LinuxInstance(ConfigOf("ends")).Ask("--launch", kPatienceMs);
    EXPECT_FALSE(asked.IsRunning);
    EXPECT_EQ(asked.Answer, std::nullopt);
    end.join();
}

TEST(LinuxInstance, OneThatStillComesUpIsWaitedFor) {
    LinuxInstance first(ConfigOf("comes_up"));
    ASSERT_TRUE(first.Claim());
    first.OnRequest = [](std::string_view request) { return "<" + std::string(request) + ">"; };
    Asked asked;
    std::thread second([&] { asked = LinuxInstance(ConfigOf("comes_up")).Ask("dm3.bsp", kPatienceMs); });
    std::this_thread::sleep_for(std::chrono::milliseconds(1500));
    first.Serve();
    second.join();
    EXPECT_TRUE(asked.IsRunning);
    EXPECT_EQ(asked.Answer, "<dm3.bsp>");
}

TEST(LinuxInstance, OneThatDoesNotListenIsWaitedForNoLongerThanThat) {
    LinuxInstance first(ConfigOf("deaf"));
    ASSERT_TRUE(first.Claim());
    LinuxInstance second(ConfigOf("deaf"));
    Asked asked;
    const double seconds = SecondsOf([&] { asked = second.Ask("dm3.bsp", 500); });
    EXPECT_TRUE(asked.IsRunning);
    EXPECT_EQ(asked.Answer, std::nullopt);
    EXPECT_GE(seconds, 0.4);
    EXPECT_LT(seconds, 4);
}

TEST(LinuxInstance, WhatNobodyListenedToInTimeIsTakenBack) {
    LinuxInstance first(ConfigOf("late"));
    ASSERT_TRUE(first.Claim());
    int requests = 0;
    first.OnRequest = [&](std::string_view) {
        ++requests;
        return std::string("done");
    };
    EXPECT_EQ(LinuxInstance(ConfigOf("late")).Ask("--launch", 100).Answer, std::nullopt);
    first.Serve();
    EXPECT_EQ(requests, 0);
}

TEST(LinuxInstance, OneThatListensIsWaitedForLongerThanThat) {
    LinuxInstance first(ConfigOf("works"));
    ASSERT_TRUE(first.Claim());
    first.OnRequest = [](std::string_view) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1000));
        return std::string("done");
    };
    Asked asked;
    std::atomic<bool> over = false;
    std::thread second([&] {
        asked = LinuxInstance(ConfigOf("works")).Ask("--launch", 500);
        over = true;
    });
    ServeUntil(first, [&] { return over.load(); });
    second.join();
    EXPECT_EQ(asked.Answer, "done");
}

}  // namespace lv
