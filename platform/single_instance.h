// platform/single_instance.h
//
// One running program a user. A second start brings the first one forward and ends, or asks it for something.

#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace lv {

constexpr std::size_t kLongestRequest = 64U << 10U;

/// Milliseconds until an instance that is asked has to show that it listens.
constexpr int kPatienceMs = 5000;
constexpr int kShortPatienceMs = 1000;

/// What came of a question to the instance that runs.
struct Asked {
    bool IsRunning = false;             // somebody is there
    std::optional<std::string> Answer;  // nothing if it does not listen in time, or has gone while it was asked
};

class SingleInstance {
  public:
    virtual ~SingleInstance() = default;

    /// True if no other instance runs; from then on this one is the one that is found. False if another one runs: it
    /// was asked to come forward. A program that was killed leaves nothing behind that would be found.
    virtual bool Claim() = 0;

    /// Asks the instance that runs, at most kLongestRequest bytes. One that still comes up listens later, and is waited
    /// for that long; once it listens its answer is, half a minute at most. A question that nobody has listened to in
    /// time is taken back. To be asked before Claim, or when that is refused.
    virtual Asked Ask(std::string_view /*request*/, int /*patienceMs*/) { return {}; }

    /// What Ask of another start gets from this instance once it has the claim. Called where its knocks are answered,
    /// and only while the other start still waits.
    std::function<std::string(std::string_view)> OnRequest;
};

}  // namespace lv
