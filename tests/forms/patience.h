// tests/forms/patience.h
//
// The end of waiting: a window that nobody answers fails its test instead of keeping the run for good.

#pragma once

#include <gtest/gtest.h>
#include <wx/timer.h>

namespace lv {

/// The test still does something: the time of waiting begins anew.
void SignOfLife();

/// While a test runs, ends the modal windows, the system's own dialogs and the menus that stay open with no sign of
/// life; each is a failure.
class Patience : public ::testing::EmptyTestEventListener {
  public:
    explicit Patience(int milliseconds = 10000);
    void OnTestStart(const ::testing::TestInfo&) override;
    void OnTestEnd(const ::testing::TestInfo&) override;

  private:
    struct Watch : wxTimer {
        explicit Watch(int limit) : Limit(limit) {}
        void Notify() override;
        int Limit;
    };

    Watch watch_;
};

}  // namespace lv
