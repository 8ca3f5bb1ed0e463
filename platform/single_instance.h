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

class SingleInstance {
  public:
    virtual ~SingleInstance() = default;

    /// True if no other instance runs; from then on this one is the one that is found. False if another one runs: it
    /// was asked to come forward. A program that was killed leaves nothing behind that would be found.
    virtual bool Claim() = 0;

    /// Asks the instance that runs, and waits for its answer as long as that takes, half a minute at most. Nothing if
    /// none runs, or it does not answer. To be asked instead of Claim, at most kLongestRequest bytes.
    virtual std::optional<std::string> Ask(std::string_view) { return std::nullopt; }

    /// What Ask of another start gets from this instance once it has the claim. Called where its knocks are answered.
    std::function<std::string(std::string_view)> OnRequest;
};

}  // namespace lv
