// tests/forms/left_windows.h
//
// A window that outlives its test looks into a model that is gone, and the tests after it fail in its place.

#pragma once

#include <gtest/gtest.h>

namespace lv {

class LeftWindows : public ::testing::EmptyTestEventListener {
  public:
    /// Destroys what the test left behind; each such window is a failure.
    void OnTestEnd(const ::testing::TestInfo&) override;
};

}  // namespace lv
