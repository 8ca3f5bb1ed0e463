// tests/support/windows/test_drive.h
//
// The drive that the tests may fill and empty, T:, as scripts/under_wine makes it; on Windows itself
//   subst T: <an empty directory>
//   set LV_TEST_DRIVE=T:

#pragma once

#include <string>
#include <string_view>

namespace lv {

/// Empty when it is made and when it goes.
class TestDrive {
  public:
    TestDrive();
    ~TestDrive();
    TestDrive(const TestDrive&) = delete;
    TestDrive& operator=(const TestDrive&) = delete;

    [[nodiscard]] char Letter() const { return letter_; }

  private:
    char letter_;
};

/// Bytes by the system's own calls; "(none)" if there is no such file.
std::string BytesOf(const std::wstring& file);
void WriteBytes(const std::wstring& file, std::string_view bytes);

}  // namespace lv
