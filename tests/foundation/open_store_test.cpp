#include "foundation/open_store.h"

#include <gtest/gtest.h>

#include <deque>
#include <string>

#include "platform/memory/memory_platform.h"
#include "tests/support/scripted_user.h"

namespace lv {
namespace {

/// Ways that fail as told, and open when nothing more is told.
struct Ways {
    std::deque<Error> Faults;
    std::deque<Error> CopyFaults;
    std::string Log;

    OpenedStore Try(std::deque<Error>& faults, char sign) {
        Log += sign;
        if (faults.empty()) {
            return OpenedStore(std::make_unique<MemorySettings>());
        }
        const Error fault = faults.front();
        faults.pop_front();
        return fault;
    }
    StoreWays Both() {
        return {[this] { return Try(Faults, 'o'); }, [this] { return Try(CopyFaults, 'c'); }};
    }
};

const Error kLocked = {55, "Locked by the program \"sqlite3\" (process 7)."};
const Error kFull = {61, "The settings in \"/s\" cannot be used: the disk is full."};

TEST(OpenStore, SaysNothingWhereItOpens) {
    ScriptedUser user;
    Ways ways;
    EXPECT_NE(OpenStore(user, ways.Both()), nullptr);
    EXPECT_EQ(ways.Log, "o");
}

TEST(OpenStore, NamesTheProgramThatHoldsTheStoreAndWaitsOnceMore) {
    ScriptedUser user;
    Ways ways;
    ways.Faults = {kLocked, kLocked};
    const Text told = Join(kLocked.Text, "\r\n\r\nRetry waits for it once more. With Exit this program ends.");
    user.Expect({"Lorvane 3D", told, 0, false, true, "&Retry,E&xit"});
    user.Expect({"Lorvane 3D", told, 0, false, true, "&Retry,E&xit"});
    EXPECT_NE(OpenStore(user, ways.Both()), nullptr);
    EXPECT_EQ(ways.Log, "ooo");
}

TEST(OpenStore, GivesUpWhenTheUserDoes) {
    ScriptedUser user;
    Ways ways;
    ways.Faults = {kLocked};
    user.Expect({"Lorvane 3D", kLocked.Text, 1});
    EXPECT_EQ(OpenStore(user, ways.Both()), nullptr);
    EXPECT_EQ(ways.Log, "o");
}

TEST(OpenStore, WorksOnACopyWhereTheDiskIsFull) {
    ScriptedUser user;
    Ways ways;
    ways.Faults = {kFull};
    user.Expect({"Lorvane 3D",
                 Join(kFull.Text,
                      "\r\n\r\nThe program works with the settings that are stored, but nothing that\r\n"
                      "you change now is kept. Free some space, then start the program again."),
                 0, false, true, "&OK"});
    EXPECT_NE(OpenStore(user, ways.Both()), nullptr);
    EXPECT_EQ(ways.Log, "oc");
}

TEST(OpenStore, TellsWhyThereIsNoCopy) {
    ScriptedUser user;
    Ways ways;
    ways.Faults = {kFull};
    ways.CopyFaults = {{75, "The database is damaged."}};
    user.Expect({"Lorvane 3D", "The database is damaged.\r\n\r\nError Number = 75", 0, false, true, "&OK"});
    EXPECT_EQ(OpenStore(user, ways.Both()), nullptr);
}

TEST(OpenStore, TellsWhyThereIsNoStore) {
    ScriptedUser user;
    Ways ways;
    ways.Faults = {{75, "The file is no settings database."}};
    user.Expect({"Lorvane 3D", "The file is no settings database.\r\n\r\nError Number = 75", 0, false, true, "&OK"});
    EXPECT_EQ(OpenStore(user, ways.Both()), nullptr);
    EXPECT_EQ(ways.Log, "o");
}

TEST(TellOfDrives, SaysWhatIsWrong) {
    ScriptedUser user;
    user.Expect(
        {"Lorvane 3D", "Error Number = 61\r\nError String = Disk full: /home/me/drives", 0, false, false, "&OK"});
    TellOfDrives(user, {61, "Disk full: /home/me/drives"});
}

}  // namespace
}  // namespace lv
