// tests/support/windows/own_pages.h
//
// A system whose web pages are opened by what a test says. Meant for the prefix of scripts/under_wine, which has no
// program for them; it is the whole system's setting, as Wine does not let a user have one of his own.

#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/windows/system.h"

namespace lv {

/// Web pages are of a kind that no program opens until one is named; gone when this goes.
class OwnPages {
  public:
    OwnPages() {
        HKEY key = nullptr;
        if (RegOpenKeyExW(HKEY_CLASSES_ROOT, kPages, 0, KEY_QUERY_VALUE, &key) == ERROR_SUCCESS) {
            RegCloseKey(key);
            ADD_FAILURE() << "this system has a program for web pages; run this in a prefix of its own";
            return;
        }
        isOurs_ = true;
        SetDefault(kPages, kKind);
    }
    ~OwnPages() {
        if (isOurs_) {
            RegDeleteTreeW(HKEY_CLASSES_ROOT, kPages);
            RegDeleteTreeW(HKEY_CLASSES_ROOT, kKind);
        }
    }
    OwnPages(const OwnPages&) = delete;
    OwnPages& operator=(const OwnPages&) = delete;

    void OpenWith(const std::wstring& program) {
        if (isOurs_) {
            SetDefault(std::wstring(kKind) + L"\\shell\\open\\command", L"\"" + program + L"\" \"%1\"");
        }
    }

  private:
    static constexpr const wchar_t* kPages = L".htm";
    static constexpr const wchar_t* kKind = L"lorvane3d.test.page";

    static void SetDefault(const std::wstring& path, const std::wstring& text) {
        EXPECT_EQ(RegSetValueW(HKEY_CLASSES_ROOT, path.c_str(), REG_SZ, text.c_str(), 0), ERROR_SUCCESS);
    }

    bool isOurs_ = false;
};

}  // namespace lv
