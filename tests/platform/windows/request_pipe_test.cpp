#include "platform/windows/request_pipe.h"

#include <gtest/gtest.h>

#include <thread>

#include "platform/windows/system.h"

namespace lv {

namespace {

std::wstring NameOf(const wchar_t* test) {
    return L"\\\\.\\pipe\\lorvane3d-test-" + std::to_wstring(GetCurrentProcessId()) + test;
}

/// Serves for that time; what was asked.
std::vector<std::string> ServeFor(RequestPipe& pipe, DWORD milliseconds, const std::string& reply) {
    std::vector<std::string> asked;
    for (DWORD waited = 0; waited < milliseconds; waited += 10) {
        pipe.Serve([&](std::string_view request) {
            asked.emplace_back(request);
            return reply;
        });
        Sleep(10);
    }
    return asked;
}

}  // namespace

TEST(RequestPipe, AsksAndAnswersOneBehindTheOther) {
    const std::wstring name = NameOf(L"two");
    RequestPipe pipe(name);
    pipe.Open();
    std::optional<std::string> first;
    std::optional<std::string> second;
    std::thread other([&] {
        first = RequestPipe::Ask(name, "one").Answer;
        for (int i = 0; i < 50 && !second; ++i) {
            second = RequestPipe::Ask(name, "two").Answer;
            Sleep(20);
        }
    });
    const auto asked = ServeFor(pipe, 1500, "yes");
    other.join();
    EXPECT_EQ(first, "yes");
    EXPECT_EQ(second, "yes");
    EXPECT_EQ(asked, (std::vector<std::string>{"one", "two"}));
}

TEST(RequestPipe, WhoSaysNothingIsHungUpOn) {
    const std::wstring name = NameOf(L"silent");
    RequestPipe pipe(name);
    pipe.Open();
    HANDLE silent = CreateFileW(name.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(silent, INVALID_HANDLE_VALUE);
    EXPECT_TRUE(ServeFor(pipe, 100, "yes").empty());
    DWORD written = 0;
    EXPECT_EQ(WriteFile(silent, "1\nx", 3, &written, nullptr), 0);
    CloseHandle(silent);
}

TEST(RequestPipe, WhoHasGoneGetsNothing) {
    const std::wstring name = NameOf(L"gone");
    RequestPipe pipe(name);
    pipe.Open();
    HANDLE gone = CreateFileW(name.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(gone, INVALID_HANDLE_VALUE);
    DWORD written = 0;
    ASSERT_NE(WriteFile(gone, "3\none", 5, &written, nullptr), 0);
    CloseHandle(gone);
    EXPECT_TRUE(ServeFor(pipe, 100, "yes").empty());
    std::thread other([&] { EXPECT_EQ(RequestPipe::Ask(name, "two").Answer, "yes") << "the next one is answered"; });
    EXPECT_EQ(ServeFor(pipe, 500, "yes"), std::vector<std::string>{"two"});
    other.join();
}

TEST(RequestPipe, WhatIsNoRequestIsNotAnswered) {
    for (const std::string said : {"x\n", "999999\nx", "-1\nx", "1x\ny"}) {
        const std::wstring name = NameOf(L"odd");
        RequestPipe pipe(name);
        pipe.Open();
        HANDLE odd = CreateFileW(name.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
        ASSERT_NE(odd, INVALID_HANDLE_VALUE) << said;
        DWORD written = 0;
        WriteFile(odd, said.data(), static_cast<DWORD>(said.size()), &written, nullptr);
        EXPECT_TRUE(ServeFor(pipe, 50, "yes").empty()) << said;
        CloseHandle(odd);
    }
}

TEST(RequestPipe, WithoutOneNobodyIsAsked) {
    EXPECT_EQ(RequestPipe::Ask(NameOf(L"none"), "one").Answer, std::nullopt);
}

TEST(RequestPipe, ASecondOfTheNameIsNotOpened) {
    const std::wstring name = NameOf(L"second");
    RequestPipe first(name);
    RequestPipe second(name);
    first.Open();
    second.Open();
    EXPECT_TRUE(ServeFor(second, 20, "no").empty());
}

}  // namespace lv
