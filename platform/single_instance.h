// platform/single_instance.h
//
// One running program a user. A second start brings the first one forward and ends.

#pragma once

namespace lv {

class SingleInstance {
  public:
    virtual ~SingleInstance() = default;

    /// True if no other instance runs; from then on this one is the one that is found. False if another one runs: it
    /// was asked to come forward. A program that was killed leaves nothing behind that would be found.
    virtual bool Claim() = 0;
};

}  // namespace lv
