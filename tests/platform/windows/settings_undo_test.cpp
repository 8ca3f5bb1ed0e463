#include "platform/windows/settings_undo.h"

#include <gtest/gtest.h>

#include <random>

#include "tests/support/windows/empty_key.h"

namespace lv {

namespace {

const std::vector<FormerValue> kTwo = {
    {L"Software\\a\\\u00C9", L"Gamma", true, REG_SZ, std::string("1\0.\0", 4)},
    {L"Software\\b", L"", false, REG_NONE, ""},
};

void ExpectSame(const std::vector<FormerValue>& one, const std::vector<FormerValue>& other) {
    ASSERT_EQ(one.size(), other.size());
    for (std::size_t i = 0; i < one.size(); ++i) {
        EXPECT_EQ(one[i].Path, other[i].Path);
        EXPECT_EQ(one[i].Name, other[i].Name);
        EXPECT_EQ(one[i].WasThere, other[i].WasThere);
        EXPECT_EQ(one[i].Type, other[i].Type);
        EXPECT_EQ(one[i].Bytes, other[i].Bytes);
    }
}

}  // namespace

TEST(FormerValues, ComeBackAsTheyWerePacked) {
    ExpectSame(UnpackFormerValues(PackFormerValues(kTwo)).value(), kTwo);
    EXPECT_TRUE(UnpackFormerValues(PackFormerValues({})).value().empty());
}

TEST(FormerValues, ArePackedByLengthsInThisOrder) {
    EXPECT_EQ(PackFormerValues({{L"P", L"N", true, REG_DWORD, "1234"}}), std::string("\1\0\0\0"
                                                                                     "\2\0\0\0P\0"
                                                                                     "\2\0\0\0N\0"
                                                                                     "\1\0\0\0"
                                                                                     "\4\0\0\0"
                                                                                     "\4\0\0\0"
                                                                                     "1234",
                                                                                     32));
}

TEST(FormerValues, AreNoneIfAnythingIsMissingOrTooMuch) {
    const std::string packed = PackFormerValues(kTwo);
    for (std::size_t size = 0; size < packed.size(); ++size) {
        EXPECT_FALSE(UnpackFormerValues(packed.substr(0, size))) << size;
    }
    EXPECT_FALSE(UnpackFormerValues(packed + "x"));
    EXPECT_FALSE(UnpackFormerValues(std::string(64, '\xFF')));
}

TEST(FormerValues, SurviveAnyBytes) {
    std::mt19937 random(7);
    std::string packed = PackFormerValues(kTwo);
    for (int round = 0; round < 20000; ++round) {
        std::string damaged = packed;
        for (int i = 0; i < 3; ++i) {
            damaged[random() % damaged.size()] = static_cast<char>(random());
        }
        (void)UnpackFormerValues(damaged);
    }
}

TEST(FormerValues, ArePutBackWithTheirTypeOrTakenAway) {
    const EmptyKey key(L"Software\\Lorvane 3D former values");
    const std::wstring path = L"Software\\Lorvane 3D former values\\Section";
    const FormerValue none = ValueNow(path, L"Name");
    EXPECT_FALSE(none.WasThere);
    EXPECT_EQ(PutBack(none), ERROR_SUCCESS);
    const FormerValue binary{path, L"Name", true, REG_BINARY, std::string("\0\1\2", 3)};
    EXPECT_EQ(PutBack(binary), ERROR_SUCCESS);
    ExpectSame({ValueNow(path, L"Name")}, {binary});
    const FormerValue empty{path, L"Name", true, REG_SZ, ""};
    EXPECT_EQ(PutBack(empty), ERROR_SUCCESS);
    ExpectSame({ValueNow(path, L"Name")}, {empty});
    EXPECT_EQ(PutBack(none), ERROR_SUCCESS);
    EXPECT_FALSE(ValueNow(path, L"Name").WasThere);
}

}  // namespace lv
