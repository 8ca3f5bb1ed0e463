// Each call that changes a file, refused by the system: a message, and nothing half done.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "tests/faults/states.h"

namespace lv {

namespace {

using ::testing::IsEmpty;

constexpr std::size_t kFewFaults = 64;
constexpr int kErrors[] = {ENOSPC, EIO, EACCES};
constexpr const char* kCallNames[] = {"open", "write", "sync", "rename", "mkdir"};

std::vector<Trap> AllFaults(const std::array<int, kCalls>& seen) {
    std::vector<Trap> faults;
    for (const Call call : kFaultyCalls) {
        for (int at = 1; at <= seen[static_cast<std::size_t>(call)]; ++at) {
            for (const int number : kErrors) {
                faults.push_back({.Below = {}, .What = Fate::kFails, .At = at, .Kind = call, .Errno = number});
            }
        }
    }
    return faults;
}

std::vector<Trap> ChosenFaults(const std::vector<Trap>& all) {
    if (Whole() || all.size() <= kFewFaults) {
        return all;
    }
    std::vector<Trap> some;
    for (std::size_t i = 0; i < kFewFaults; ++i) {
        some.push_back(all[i * all.size() / kFewFaults]);
    }
    return some;
}

class Refused : public ::testing::TestWithParam<Deed> {};

std::string NameOf(const ::testing::TestParamInfo<Deed>& deed) {
    constexpr const char* kNames[] = {"InALaunch", "InALaunchThroughDosbox", "InASave"};
    return kNames[static_cast<std::size_t>(deed.param)];
}

}  // namespace

TEST_P(Refused, IsToldAndLeavesOldFilesOrNewOnes) {
    FaultyHome home(GetParam());
    const HomeState before = StateOf(home);
    const FaultyHome::End undisturbed = home.Run();
    ASSERT_EQ(undisturbed.Code, 0);
    const HomeState after = StateOf(home);
    ASSERT_FALSE(IsNew(after, before)) << "nothing was done";

    int told = 0;
    const std::vector<Trap> faults = ChosenFaults(AllFaults(undisturbed.Seen));
    ASSERT_GE(faults.size(), kFewFaults);
    for (const Trap& fault : faults) {
        SCOPED_TRACE(std::string(kCallNames[static_cast<std::size_t>(fault.Kind)]) + " " + std::to_string(fault.At) +
                     ": " + std::strerror(fault.Errno));
        home.Restore();
        const FaultyHome::End end = home.Run(fault);
        EXPECT_EQ(end.Code, 0) << "no message, but an end";
        const bool said = !NewIn(end.Told, undisturbed.Told).empty();
        told += said ? 1 : 0;
        const HomeState now = StateOf(home);
        const bool lacksPicture = WithoutPicture(now).Files.size() == now.Files.size();
        ASSERT_THAT(
            lacksPicture ? Damage(WithoutPicture(before), WithoutPicture(after), now) : Damage(before, after, now),
            IsEmpty());
        EXPECT_TRUE(said || IsNew(WithoutPicture(after), WithoutPicture(now))) << "something failed without a word";
        const FaultyHome::End next = home.Run();
        EXPECT_EQ(next.Code, 0);
        EXPECT_THAT(NewIn(next.Told, undisturbed.Told), IsEmpty());
        ASSERT_THAT(Damage(WithAnyVersions(after), WithAnyVersions(after), WithAnyVersions(StateOf(home))), IsEmpty());
    }
    EXPECT_GT(told, 0);
    std::printf("%zu faults, %d of them told\n", faults.size(), told);
}

INSTANTIATE_TEST_SUITE_P(ByTheSystem, Refused, ::testing::Values(Deed::kLaunch, Deed::kLaunchDos, Deed::kEditScript),
                         NameOf);

}  // namespace lv
