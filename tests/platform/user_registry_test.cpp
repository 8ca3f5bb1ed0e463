// What every user's registry promises, whatever it keeps its values in.

#include "platform/user_registry.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_platform.h"
#include "this_system.h"

namespace lv {

namespace {

constexpr const char* kSettings = "Software\\Valve\\Half-Life\\Settings";

struct InMemory {
    MemoryRegistry Registry;
};

}  // namespace

template <class T>
class AnyRegistry : public testing::Test {
  protected:
    T made_;
    UserRegistry& registry_ = made_.Registry;
};

using AllRegistries = testing::Types<InMemory, SystemRegistry>;
TYPED_TEST_SUITE(AnyRegistry, AllRegistries);

TYPED_TEST(AnyRegistry, SayError2ForAKeyOrAValueThatIsNotThere) {
    EXPECT_EQ(this->registry_.Query(kSettings, "Name").Fault.Number, 2);
    EXPECT_EQ(this->registry_.Set(kSettings, "Name", {kRegistryText, "x", 0}).Number, 0);
    EXPECT_EQ(this->registry_.Query(kSettings, "Other").Fault.Number, 2);
    EXPECT_EQ(this->registry_.Query("Software\\Valve", "Name").Fault.Number, 2);
}

TYPED_TEST(AnyRegistry, MakeTheKeyOfAValue) {
    EXPECT_EQ(this->registry_.Set(kSettings, "Name", {kRegistryText, "Zo\xEB \x80", 0}).Number, 0);
    const auto read = this->registry_.Query(kSettings, "Name");
    EXPECT_EQ(read.Value.Type, 1u);
    EXPECT_EQ(read.Value.Text, "Zo\xEB \x80");
}

TYPED_TEST(AnyRegistry, KeepNumbersOf32Bits) {
    for (const std::uint32_t number : {0u, 1u, 4000000000u, 4294967295u}) {
        EXPECT_EQ(this->registry_.Set(kSettings, "Count", {kRegistryNumber, "", number}).Number, 0);
        const auto read = this->registry_.Query(kSettings, "Count");
        EXPECT_EQ(read.Value.Type, 4u);
        EXPECT_EQ(read.Value.Number, number);
    }
}

TYPED_TEST(AnyRegistry, AreBlindToLetterCase) {
    EXPECT_EQ(this->registry_.Set(kSettings, "Sensitivity", {kRegistryText, "3", 0}).Number, 0);
    EXPECT_EQ(this->registry_.Query("SOFTWARE\\valve\\HALF-LIFE\\settings", "sensitivity").Value.Text, "3");
}

TYPED_TEST(AnyRegistry, WriteOverAValueOfAnotherType) {
    EXPECT_EQ(this->registry_.Set(kSettings, "Mixed", {kRegistryText, "3", 0}).Number, 0);
    EXPECT_EQ(this->registry_.Set(kSettings, "Mixed", {kRegistryNumber, "", 3}).Number, 0);
    EXPECT_EQ(this->registry_.Query(kSettings, "Mixed").Value.Type, 4u);
}

TYPED_TEST(AnyRegistry, TellAnEmptyTextFromNone) {
    EXPECT_EQ(this->registry_.Set(kSettings, "Empty", {kRegistryText, "", 0}).Number, 0);
    EXPECT_EQ(this->registry_.Query(kSettings, "Empty").Fault.Number, 0);
    EXPECT_EQ(this->registry_.Query(kSettings, "Empty").Value.Text, "");
}

}  // namespace lv
