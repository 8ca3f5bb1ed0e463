// A kill at any call that changes a file, and between them, loses nothing.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <numeric>
#include <random>

#include "tests/faults/states.h"

namespace lv {

namespace {

using ::testing::IsEmpty;

constexpr int kWholeKills = 500;
constexpr int kFewKills = 24;
constexpr int kFewMoments = 8;

struct Kill {
    Trap At;
    std::optional<double> Milliseconds;
};

/// Ahead of each call, in it and behind it.
std::vector<Kill> AllKills(int calls) {
    std::vector<Kill> kills;
    for (int call = 1; call <= calls; ++call) {
        for (const Fate fate : {Fate::kKilledBefore, Fate::kKilledAmid, Fate::kKilledAfter}) {
            kills.push_back({{.Below = {}, .What = fate, .At = call}, std::nullopt});
        }
    }
    return kills;
}

/// All of them, or some that are spread over all.
std::vector<Kill> ChosenKills(const std::vector<Kill>& all) {
    if (Whole()) {
        return all;
    }
    std::vector<Kill> some;
    some.reserve(kFewKills);
    for (int i = 0; i < kFewKills; ++i) {
        some.push_back(all[static_cast<std::size_t>(i) * all.size() / kFewKills]);
    }
    return some;
}

std::string Described(const Kill& kill) {
    return kill.Milliseconds
               ? "after " + std::to_string(*kill.Milliseconds) + " ms"
               : "call " + std::to_string(kill.At.At) + ", fate " + std::to_string(static_cast<int>(kill.At.What));
}

struct Counted {
    int Killed = 0;
    int Changed = 0;  // after a first change of a file
};

/// A run that is killed, and the next one, which finishes what was begun and takes away what was left.
void KillOnce(FaultyHome& home, const Kill& kill, const HomeState& before, const HomeState& after,
              const std::vector<std::string>& usual, Counted& counted) {
    SCOPED_TRACE(Described(kill));
    home.Restore();
    const FaultyHome::End end = home.Run(kill.At, kill.Milliseconds);
    counted.Killed += end.Killed ? 1 : 0;
    EXPECT_TRUE(end.Killed || end.Code == 0);
    EXPECT_TRUE(end.Killed || kill.Milliseconds) << "the call never came";
    const HomeState now = StateOf(home);
    counted.Changed += IsNew(before, now) ? 0 : 1;
    ASSERT_THAT(Damage(before, after, now, Leftovers::kAllowed), IsEmpty());
    const FaultyHome::End next = home.Run();
    EXPECT_EQ(next.Code, 0);
    EXPECT_THAT(NewIn(next.Told, usual), IsEmpty());
    ASSERT_THAT(Damage(WithAnyVersions(after), WithAnyVersions(after), WithAnyVersions(StateOf(home))), IsEmpty());
}

class Killed : public ::testing::TestWithParam<Deed> {};

std::string NameOf(const ::testing::TestParamInfo<Deed>& deed) {
    constexpr const char* kNames[] = {"InALaunch", "InALaunchThroughDosbox", "InASave"};
    return kNames[static_cast<std::size_t>(deed.param)];
}

}  // namespace

TEST_P(Killed, LeavesOldFilesOrNewOnesAndAStoreThatOpens) {
    FaultyHome home(GetParam());
    const HomeState before = StateOf(home);
    const auto start = std::chrono::steady_clock::now();
    const FaultyHome::End undisturbed = home.Run();
    const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
    ASSERT_EQ(undisturbed.Code, 0);
    const HomeState after = StateOf(home);
    ASSERT_FALSE(IsNew(after, before)) << "nothing was done";
    const int calls = std::accumulate(undisturbed.Seen.begin(), undisturbed.Seen.end(), 0);
    ASSERT_GT(calls, 40);

    Counted counted;
    const std::vector<Kill> kills = ChosenKills(AllKills(calls));
    for (const Kill& kill : kills) {
        ASSERT_NO_FATAL_FAILURE(KillOnce(home, kill, before, after, undisturbed.Told, counted));
    }
    EXPECT_EQ(counted.Killed, static_cast<int>(kills.size()));
    // At moments of the clock, until there are enough: some of them come behind the end.
    std::mt19937 random(20);  // NOLINT: the same moments each time
    std::uniform_real_distribution<double> moment(0, took.count());
    int moments = 0;
    for (; counted.Killed < (Whole() ? kWholeKills : kFewKills + kFewMoments); ++moments) {
        ASSERT_LT(moments, 2 * kWholeKills) << "the clock hardly ever comes in time";
        ASSERT_NO_FATAL_FAILURE(KillOnce(home, {{}, moment(random)}, before, after, undisturbed.Told, counted));
    }
    EXPECT_GT(counted.Changed, 0) << "every kill came before the first change";
    std::printf("%d calls; %d kills, %d of them after a first change\n", calls, counted.Killed, counted.Changed);
}

INSTANTIATE_TEST_SUITE_P(AtAnyMoment, Killed, ::testing::Values(Deed::kLaunch, Deed::kLaunchDos, Deed::kEditScript),
                         NameOf);

}  // namespace lv
