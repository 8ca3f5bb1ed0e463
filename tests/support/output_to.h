// tests/support/output_to.h
//
// What a test prints, led elsewhere.

#pragma once

#include <unistd.h>

namespace lv {

/// Standard output is this file for the life of the object.
class OutputTo {
  public:
    explicit OutputTo(int file) : before_(dup(STDOUT_FILENO)) { dup2(file, STDOUT_FILENO); }
    ~OutputTo() {
        dup2(before_, STDOUT_FILENO);
        close(before_);
    }
    OutputTo(const OutputTo&) = delete;
    OutputTo& operator=(const OutputTo&) = delete;

  private:
    int before_;
};

}  // namespace lv
