// tests/faults/home_run.h
//
// The program without its windows, on this system: a whole start, one thing that a user does, and the end.

#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "tests/faults/calls.h"

namespace lv {

/// What the user does between the start and the end.
enum class Deed {
    kLaunch,      // of a program of this system
    kLaunchDos,   // through a stand-in for DOSBox
    kEditScript,  // of somebody else's hand: it is read, copied, changed and saved
};

/// A user's home: settings, drives, a game, a script. Times and dates in it are always the same.
class FaultyHome {
  public:
    /// As `deed` finds it: there was a launch, and there is a script.
    explicit FaultyHome(Deed deed);
    ~FaultyHome();
    FaultyHome(const FaultyHome&) = delete;
    FaultyHome& operator=(const FaultyHome&) = delete;

    /// Everything is again as the deed finds it.
    void Restore();

    struct End {
        bool Killed = false;
        std::optional<int> Code;        // nothing after a signal
        std::vector<std::string> Told;  // each box, as "caption|text"
        std::array<int, kCalls> Seen{};
    };
    /// The start, the deed and the end, in a process of its own. With `milliseconds` that process is killed then.
    End Run(const Trap& trap = {}, std::optional<double> milliseconds = std::nullopt);

    /// All files but those of the store and the cache, by their path in the home; links as "-> target".
    [[nodiscard]] std::map<std::string, std::string> Files() const;
    /// All rows of the store, as "section/key"; nothing if it does not open.
    [[nodiscard]] std::optional<std::map<std::string, std::string>> Rows() const;

  private:
    void Make();
    void Live(const Trap& trap, int report);

    Deed deed_;
    std::filesystem::path base_;
    std::filesystem::path root_;
    std::filesystem::path kept_;  // the home as the deed finds it
};

}  // namespace lv
