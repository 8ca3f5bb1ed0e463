#include "platform/windows/registry_key.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/support/windows/empty_key.h"

namespace lv {

namespace {

constexpr const wchar_t* kPath = L"Software\\Lorvane 3D Tests";

struct RegistryKey : testing::Test {
    void MakeKey() { ASSERT_EQ(Key.OpenOrMake(kPath, KEY_ALL_ACCESS), ERROR_SUCCESS); }
    /// The type and the text of the value; "(none)" if there is none.
    std::wstring TextOf(const std::wstring& name) const {
        RawRegistryValue value;
        return Key.Query(name, value) == ERROR_SUCCESS ? std::to_wstring(value.Type) + L" " + value.Text : L"(none)";
    }

    EmptyKey Ours{kPath};
    RegistryKeyHandle Key;
};

}  // namespace

TEST_F(RegistryKey, IsOpenedWhereItIsAndMadeOnRequestAlone) {
    EXPECT_EQ(Key.Open(kPath, KEY_READ), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(Key.OpenOrMake(std::wstring(kPath) + L"\\a\\b", KEY_ALL_ACCESS), ERROR_SUCCESS);
    EXPECT_EQ(Key.Open(std::wstring(kPath) + L"\\A", KEY_READ), ERROR_SUCCESS);
    EXPECT_EQ(Key.Keys(10), (std::vector<std::wstring>{L"b"}));
}

TEST_F(RegistryKey, KeepsTextsAndNumbersUnderNamesInAnyLetterCase) {
    MakeKey();
    EXPECT_EQ(Key.SetText(L"Name", L"Na\u00EFve \u20AC"), ERROR_SUCCESS);
    EXPECT_EQ(TextOf(L"NAME"), L"1 Na\u00EFve \u20AC");
    EXPECT_EQ(Key.SetText(L"Empty", L""), ERROR_SUCCESS);
    EXPECT_EQ(TextOf(L"Empty"), L"1 ");
    EXPECT_EQ(Key.SetNumber(L"Rate", 4'000'000'000), ERROR_SUCCESS);
    RawRegistryValue value;
    ASSERT_EQ(Key.Query(L"rate", value), ERROR_SUCCESS);
    EXPECT_EQ(value.Type, static_cast<DWORD>(REG_DWORD));
    EXPECT_EQ(value.Number, 4'000'000'000u);
    EXPECT_EQ(value.Text, L"");
}

TEST_F(RegistryKey, CutsOneTerminatorOffATextAndNoMore) {
    MakeKey();
    EXPECT_EQ(Key.SetBytes(L"Cut", REG_SZ, std::string_view("a\0b\0", 4)), ERROR_SUCCESS);
    EXPECT_EQ(TextOf(L"Cut"), L"1 ab");
    EXPECT_EQ(Key.SetBytes(L"Two", REG_SZ, std::string_view("a\0\0\0\0\0", 6)), ERROR_SUCCESS);
    EXPECT_EQ(TextOf(L"Two"), std::wstring(L"1 a\0", 4));
    EXPECT_EQ(Key.SetBytes(L"Odd", REG_SZ, std::string_view("a\0b", 3)), ERROR_SUCCESS);
    EXPECT_EQ(TextOf(L"Odd").substr(0, 3), L"1 a");
}

TEST_F(RegistryKey, TellsTheTypeAloneOfAnotherValue) {
    MakeKey();
    EXPECT_EQ(Key.SetBytes(L"Bytes", REG_BINARY, "ab"), ERROR_SUCCESS);
    EXPECT_EQ(TextOf(L"Bytes"), L"3 ");
    EXPECT_EQ(Key.SetBytes(L"Short", REG_DWORD, "ab"), ERROR_SUCCESS);
    RawRegistryValue value;
    ASSERT_EQ(Key.Query(L"Short", value), ERROR_SUCCESS);
    EXPECT_EQ(value.Type, static_cast<DWORD>(REG_DWORD));
    EXPECT_EQ(value.Number, 0u);
}

TEST_F(RegistryKey, GivesTheBytesOfAnyValueAsTheyStand) {
    MakeKey();
    const std::string bytes("\0\xFFlong", 6);
    EXPECT_EQ(Key.SetBytes(L"Bytes", REG_BINARY, bytes), ERROR_SUCCESS);
    EXPECT_EQ(Key.SetBytes(L"None", REG_BINARY, ""), ERROR_SUCCESS);
    DWORD type = 0;
    std::string read = "before";
    EXPECT_EQ(Key.QueryBytes(L"Bytes", type, read), ERROR_SUCCESS);
    EXPECT_EQ(type, static_cast<DWORD>(REG_BINARY));
    EXPECT_EQ(read, bytes);
    EXPECT_EQ(Key.QueryBytes(L"None", type, read), ERROR_SUCCESS);
    EXPECT_EQ(read, "");
    EXPECT_EQ(Key.QueryBytes(L"Gone", type, read), ERROR_FILE_NOT_FOUND);
}

TEST_F(RegistryKey, LosesAValueOnceItIsDeleted) {
    MakeKey();
    EXPECT_EQ(Key.SetText(L"Name", L"x"), ERROR_SUCCESS);
    EXPECT_EQ(Key.Delete(L"Name"), ERROR_SUCCESS);
    EXPECT_EQ(TextOf(L"Name"), L"(none)");
    EXPECT_EQ(Key.Delete(L"Name"), ERROR_FILE_NOT_FOUND);
}

TEST_F(RegistryKey, NamesNoMoreKeysThanAreAskedFor) {
    MakeKey();
    for (const wchar_t* const name : {L"a", L"b", L"c"}) {
        RegistryKeyHandle below;
        ASSERT_EQ(below.OpenOrMake(std::wstring(kPath) + L"\\" + name, KEY_READ), ERROR_SUCCESS);
    }
    EXPECT_EQ(Key.Keys(10), (std::vector<std::wstring>{L"a", L"b", L"c"}));
    EXPECT_EQ(Key.Keys(2), (std::vector<std::wstring>{L"a", L"b"}));
    EXPECT_TRUE(Key.Keys(0).empty());
}

TEST_F(RegistryKey, OfTheMachineIsReadAsProgramsOf32BitsSeeIt) {
    EXPECT_EQ(Key.OpenMachine32(L"Software\\Lorvane 3D Tests\\none"), ERROR_FILE_NOT_FOUND);
    ASSERT_EQ(Key.OpenMachine32(L"Software\\Microsoft\\Windows"), ERROR_SUCCESS);
    const std::vector<std::wstring> keys = Key.Keys(100);
    EXPECT_NE(std::find(keys.begin(), keys.end(), L"CurrentVersion"), keys.end());
    EXPECT_NE(Key.SetText(L"Lorvane 3D Tests", L"x"), ERROR_SUCCESS) << "it is to be read alone";
}

TEST_F(RegistryKey, OpensAnotherInPlaceOfTheFirst) {
    MakeKey();
    EXPECT_EQ(Key.SetText(L"Name", L"first"), ERROR_SUCCESS);
    EXPECT_EQ(Key.OpenOrMake(std::wstring(kPath) + L"\\other", KEY_ALL_ACCESS), ERROR_SUCCESS);
    EXPECT_EQ(TextOf(L"Name"), L"(none)");
}

}  // namespace lv
